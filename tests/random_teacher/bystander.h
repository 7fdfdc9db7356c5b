#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "tests/random_teacher/list_file_model.h"
#include "toolkit/platform.h"

namespace brindlepage {

// Stands beside a teacher and notes what is done to the lists: which button was clicked, what
// stood in the boxes then, what was answered. Knows from that alone what the list files and their
// backups must hold.
//
// It listens to the events of the list screens' controls, so it is all one whether a script or a
// mouse clicks them.
class Bystander {
 public:
  // The list files in `folder`, the working directory, and in its folder "class" are known.
  explicit Bystander(std::filesystem::path folder);

  // To be told: before the program starts, between two deeds, and of each box that was answered.
  void ProgramStarts();
  void Look(Program& program);
  void Answered(std::string_view title, BoxAnswer answer);

  // What was done, and how often: "words added".
  const std::map<std::string, long>& Noted() const { return noted_; }
  // What is wrong with the files, or with the boxes that show a word for changing; or "".
  std::string Compare() const;

 private:
  // A list that is being made: its lines as they will be appended.
  using Made = std::vector<std::string>;

  // A list that is being edited.
  struct Edited {
    struct Change {
      std::optional<int> row;  // none: at the end
      std::string word;
      std::string meaning;
    };
    std::string name;  // as it is looked for in the file
    std::string caption;
    std::string next_caption;  // shown when the editor is in front again, as are the changes
    ListFileModel::Pairs pairs;
    std::vector<Change> coming;
  };

  void Watch(Form& form);
  template <class Note, class... Args>
  void Before(Event<Args...>& event, Note note);
  void WatchChoices(Form& form);
  void WatchMaker(Form& form);
  void WatchEditor(Form& form);
  void WatchBoxes(Form& form);

  void BeginList(const std::string& name);
  void AddPair(Form& maker);
  void RemovePair(int row);
  void TakeBackPair(int row);
  void BeginEdit(const std::string& name);
  void DeleteRow();
  void Rename(const std::string& name);
  void TakeUpChanges();
  void CheckBoxes(const Form& form, const std::pair<std::string, std::string>& pair);
  void SaveMade();
  void SaveEdited();
  void BackUp();
  void Restore();

  // The list file in use, or null if it isn't there.
  ListFileModel* ListFile();
  std::filesystem::path ListPath() const;
  static std::filesystem::path BackupOf(std::filesystem::path path);
  // Null if it isn't.
  const Form* Loaded(std::string_view name) const;
  const Form* InFront(std::string_view name) const;

  std::filesystem::path folder_;
  std::map<std::filesystem::path, ListFileModel> files_;
  std::string link_ = "listpath";  // the folder of the list file, as the settings hold it
  std::string link_in_use_;
  std::string link_of_option_;

  std::map<std::string, long> noted_;

  Program* program_ = nullptr;
  // A form's events hold on to their ear. When it is gone, so is the form, whatever now stands
  // in its place.
  std::map<const Form*, std::weak_ptr<int>> watched_;
  std::shared_ptr<int> ear_;  // of the form that is being watched from now on
  std::optional<Made> made_;
  std::optional<Edited> edited_;
  int selected_row_ = 0;
  std::optional<std::pair<std::string, std::string>> taken_back_;  // to be in the boxes now
  std::string misshown_;
};

}  // namespace brindlepage
