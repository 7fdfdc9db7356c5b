#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "walk/scene.h"
#include "walk/script.h"
#include "walk/walk_platform.h"
#include "walk/walk_random.h"

namespace brindlepage::walk {

// The program that is walked through.
struct WalkedProgram {
  // Makes the program on a window system and shows its first form.
  std::function<std::unique_ptr<Program>(Platform&, RandomSource&)> start;
  ScreenNames screen_names;
};

struct WalkSettings {
  Size screen{1024 * kTwipsPerPixel, 768 * kTwipsPerPixel};
  std::int64_t draw_limit = 50'000'000;  // draws that one command may make
  // Where the files that a script names are looked for first, then in the working directory.
  std::filesystem::path script_folder;
};

// What a walk's process ends with.
enum WalkStatus { kWalked = 0, kWalkFailed = 1, kScriptWrong = 2, kNotResponding = 3 };

// Plays a teacher's actions from a script, a line each, and prints what the program does.
//
//   start
//   click Title.Command1(4)
//   select ChooseList.TheLists "Volcanoes"
//   expect ChooseList.Command1.Enabled true
//
// docs/walk.md tells the language.
class Walk {
 public:
  Walk(WalkedProgram program, const WalkSettings& settings, std::ostream& out,
       std::ostream& errors);
  ~Walk();

  // Acts on each line as it is read, and gives a WalkStatus.
  int Play(std::istream& script);

 private:
  struct Command;
  using Deed = std::function<void(Control&)>;
  using FormDeed = std::function<void(Form&)>;
  using Check = std::function<bool(Control&)>;

  static const Command& FindCommand(const Token& name);
  void PlayLine(std::string_view line);

  // The commands.
  void Start(const Tokens& arguments);
  void Click(const Tokens& arguments);
  void DoubleClick(const Tokens& arguments);
  void Select(const Tokens& arguments);
  void Mark(const Tokens& arguments);
  void Type(const Tokens& arguments);
  void Press(const Tokens& arguments);
  void Set(const Tokens& arguments);
  void Caret(const Tokens& arguments);
  void Insert(const Tokens& arguments);
  void MoveFolder(const Tokens& arguments);
  void Tick(const Tokens& arguments);
  void Activate(const Tokens& arguments);
  void Deactivate(const Tokens& arguments);
  void Close(const Tokens& arguments);
  void Resize(const Tokens& arguments);
  void QueueAnswers(const Tokens& arguments);
  void Seed(const Tokens& arguments);
  void GiveDraws(const Tokens& arguments);
  void Get(const Tokens& arguments);
  void ListRows(const Tokens& arguments);
  void ShowText(const Tokens& arguments);
  void ShowRuns(const Tokens& arguments);
  void ListForms(const Tokens& arguments);
  void Expect(const Tokens& arguments);

  void ClickButtonOf(const Target& toolbar, const Token& caption);

  // Does a deed on a control as a teacher would: brings its form to the front, gives the control
  // the focus if it takes it, and lets the program handle the deed. What can't be reached is
  // `ignored`. Whether the deed was done and the program still runs.
  bool Act(const Target& target, const Deed& deed, const Check& also = nullptr);
  bool ActOnForm(const std::string& name, const FormDeed& deed);
  // Null when it can't be reached.
  Control* Reachable(const Target& target, const Check& also) const;
  Form* ReachableForm(const std::string& name) const;
  void BringToFront(Form& form);
  // ScriptError if the control is loaded and of no such kind.
  template <class... Kinds>
  void Require(const Target& target) const;
  // A control of that kind to be looked at, shown or not; null, and `ignored`, when not loaded.
  template <class Kind>
  Kind* LookAt(const Token& target);

  Scene::Answer Ask(const std::string& expression) const;

  void Dispatch(const std::function<void()>& handler);
  // Ends the process if the program has ended.
  void NoticeEnd();
  bool Running() const { return program_ != nullptr; }
  Scene scene() const { return Scene(*program_, walked_.screen_names); }
  void Say(std::string_view line);

  WalkedProgram walked_;
  WalkSettings settings_;
  std::ostream& out_;
  std::ostream& errors_;
  WalkPlatform platform_;
  WalkRandom random_;
  std::unique_ptr<Program> program_;  // while its process runs
  bool started_ = false;
  bool failed_ = false;
};

}  // namespace brindlepage::walk
