#pragma once

#include <gtest/gtest.h>

#include <sstream>

#include "toolkit/controls.h"
#include "toolkit/file_lists.h"
#include "walk/walk.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage::walk {

// A small program of two screens and a box, with a control of every kind. What happened last
// stands in the label `Log` of the desk.
class TestForm : public ProgramForm {
 public:
  using ProgramForm::ProgramForm;

 protected:
  void Note(std::string happened);
};

class Desk : public TestForm {
 public:
  explicit Desk(Program& owner) : TestForm(owner, Screen::Title, "Desk", "The \"Desk\"") {
    Hello.Click = [this] { Note("hello"); };
    Door.Click = [this] { forms().Unload(id()); };
    Grey.Enabled = false;
    Hidden.Visible = false;
    Keys.Click = [this](int index) { Note("key " + std::to_string(index)); };
    Image1.Click = [this] { Note("image"); };
    Quit.Click = [this] { program().End(); };
    Locked.Click = [this] { Note("locked"); };
    Other.Visible = false;
    Tools.Add("Print", "print", "Print it", "");
    Tools.Add("Caf\xE9", "coffee", "", "").Enabled = false;
    Tools.ButtonClick = [this](ToolbarButton& button) { Note("tool " + button.Key()); };
    for (const char* word : {"lava", "ash", "caf\xE9"}) Words.AddItem(word);
    Words.Click = [this] { Note("words " + std::to_string(Words.ListIndex())); };
    for (const char* name : {"Pear", "apple"}) Names.AddItem(name);
    Names.Click = [this] { Note("row " + std::to_string(Names.ListIndex())); };
    Names.DblClick = [this] { Note("double " + std::to_string(Names.ListIndex())); };
    for (const char* size : {"8", "10", "12"}) Sizes.AddItem(size);
    Sizes.Click = [this] { Note("size " + Sizes.Text()); };
    Title.Change = [this] { Note("typed " + Title.Text()); };
    Bar.Change = [this] { Note("bar " + std::to_string(Bar.Value())); };
    Folders.Change = [this] { Files.Path = Folders.Path(); };
    Ask.Click = [this](int index) { AskFor(index); };
    Clock.Tick = [this] { program().Beep(); };
    Slow.Tick = [this] { Note("slow"); };
    Framed1.Enabled = false;
    Note("");
    Page.Text("");
    Arrange(Column(Hello, Framed(Framed1, Inside)));
  }

  Label Log{*this, "Log"};
  CommandButton Hello{*this, "Hello", "Hello"};
  CommandButton Door{*this, "Door", "Door"};
  CommandButton Grey{*this, "Grey", "Grey"};
  CommandButton Hidden{*this, "Hidden", "Hidden"};
  Label Label1{*this, "Label1", "a label"};
  Image Image1{*this, "Image1"};
  OptionButton Left1{*this, "Left1", "left", true};
  OptionButton Right1{*this, "Right1", "right"};
  CheckBox Check1{*this, "Check1", "easy"};
  ControlArray<CommandButton> Keys{*this, "Keys", {{0, "A"}, {3, "B"}}};
  Menu Go{*this, "Go", "Go"};
  MenuItem Quit{Go, "Quit", "Quit"};
  Menu Other{*this, "Other", "Other"};
  MenuItem Locked{Other, "Locked", "Locked"};
  Toolbar Tools{*this, "Tools"};
  ListBox Words{*this, "Words", ListStyle::CheckBoxes};
  ListBox Names{*this, "Names", ListStyle::Sorted};
  ComboBox Sizes{*this, "Sizes"};
  TextBox Title{*this, "Title", "start"};
  HScrollBar Bar{*this, "Bar", 1, 9, 5};
  DriveListBox Drive1{*this, "Drive1"};
  DirListBox Folders{*this, "Folders"};
  FileListBox Files{*this, "Files", "*.txt"};
  RichTextBox Page{*this, "Page", "Courier New", 9.75};
  Frame Framed1{*this, "Framed1", "frame"};
  CommandButton Inside{*this, "Inside", "Inside"};
  Timer Clock{*this, "Clock", 100, false};
  Timer Slow{*this, "Slow", 250, false};
  // Each shows a box, does something that the platform prints, or fails.
  ControlArray<Label> Ask{*this, "Ask", 0, 19};

 private:
  friend class TestForm;

  void AskFor(int index);
  void Closing() override { program().Beep(); }
  void Resize() override { Note("resized"); }
  void FormClick() override { Note("form clicked"); }
  void FormKey() override { Note("form key"); }
  void Activate() override {
    activations_ += 1;
    Hello.ToolTipText = std::to_string(activations_);
  }
  int activations_ = 0;
};

// A box that goes when it loses the activation.
class Slip : public TestForm {
 public:
  explicit Slip(Program& owner)
      : TestForm(owner, Screen::AboutForm, "Slip", "Slip", FormKind::Box) {}
  CommandButton Ok{*this, "Ok", "OK"};
  CommandButton End{*this, "End", "End"};

 private:
  void Deactivate() override { Unload(); }
};

// A box that takes the desk away when it loses the activation.
class Thief : public TestForm {
 public:
  explicit Thief(Program& owner)
      : TestForm(owner, Screen::ChooseList, "Thief", "Thief", FormKind::Box) {}
  CommandButton Ok{*this, "Ok", "OK"};

 private:
  void Deactivate() override { forms().Hide(Screen::Title); }
};

inline void TestForm::Note(std::string happened) {
  if (auto* desk = forms().Find<Desk>(Screen::Title)) desk->Log.Caption = std::move(happened);
}

inline void Desk::AskFor(int index) {
  switch (index) {
    case 0:
      program().MsgBox("A \"note\"\n\tC:\\x \xE9", "Title", BoxButtons::Ok);
      return Note("told");
    case 1:
      return Note(program().MsgBox("Sure?", "Ask", BoxButtons::YesNo) == BoxAnswer::Yes ? "yes"
                                                                                        : "no");
    case 2: {
      const auto answer = program().MsgBox("Sure?", "Ask", BoxButtons::YesNoCancel);
      return Note(answer == BoxAnswer::Cancel ? "cancel" : answer == BoxAnswer::No ? "no" : "yes");
    }
    case 3:
      return Note(program().InputBox("Name?", "Ask", "old").value_or("nothing"));
    case 4:
    case 5: {
      const unsigned flags = index == 4 ? 0x100108 : 0x10010C;
      const auto choice = program().PrintDialog(flags);
      if (!choice) return Note("not printed");
      program().platform().Print(Page, 0, Page.Length());
      return Note(*choice == PrintChoice::All ? "all" : "selection");
    }
    case 6:
      return Note(program().OpenDialog("Open", "Programs (*.exe)|*.exe", "C:\\").value_or("none"));
    case 7:
      return program().platform().StartProgram("word\"a b.rtf\"");
    case 8:
      return program().Beep();
    case 9:
      throw RunTimeError(Fault::Subscript);
    case 10:
      return Note(std::to_string(program().random().NextRandom()));
    case 11:
      program().random().Reseed();
      return Note(std::to_string(program().random().DrawIndex(1000)));
    case 12:
      for (;;) program().random().NextRandom();
    case 13:
      return forms().Show(Screen::AboutForm);
    case 14:
      Clock.Enabled = true;
      Slow.Enabled = true;
      return;
    case 15:
      return forms().Load(Screen::AboutForm);
    case 16:
      shared.ListWords(2) = "lava \"x\"";
      shared.ActivityKind = 4;
      shared.EasyPuzzle = true;
      return;
    case 17: {
      Page.Text("");
      Page.SelAlignment(Alignment::Centre);
      Page.SelText("Name\n");
      Page.SelBold(true);
      Page.SelItalic(true);
      Page.SelUnderline(true);
      Page.SelColor(0xFF0080);
      Page.SelFontName("Times New Roman");
      Page.SelFontSize(18);
      Page.SelText("\"T\"");
      auto picture = std::make_shared<RichPicture>();
      picture->format = "png";
      picture->width = 1440;
      picture->height = 720;
      Page.InsertPicture(picture);
      Page.SelAlignment(Alignment::Right);
      Page.SelText("\n");
      return;
    }
    case 18:
      return forms().Show(Screen::ChooseList);
    default:
      shared.ListWords(301) = "";
  }
}

inline std::unique_ptr<Form> MakeTestForm(Screen id, Program& program) {
  if (id == Screen::Title) return std::make_unique<Desk>(program);
  if (id == Screen::ChooseList) return std::make_unique<Thief>(program);
  return std::make_unique<Slip>(program);
}

class TestProgram : public Program {
 public:
  TestProgram(Platform& platform, RandomSource& random)
      : Program(platform, random, [this](Screen id) { return MakeTestForm(id, *this); }) {}
};

inline WalkedProgram TestWalked() {
  return {[](Platform& platform, RandomSource& random) -> std::unique_ptr<Program> {
            auto program = std::make_unique<TestProgram>(platform, random);
            program->Dispatch([&program] { program->forms().Show(Screen::Title); });
            return program;
          },
          [](std::string_view name) -> std::optional<Screen> {
            if (name == "Desk") return Screen::Title;
            if (name == "Slip") return Screen::AboutForm;
            if (name == "Thief") return Screen::ChooseList;
            return std::nullopt;
          }};
}

struct Walked {
  int status = -1;
  std::string out;
  std::string errors;
};

inline Walked Play(const std::string& script, const WalkSettings& settings = {}) {
  std::istringstream lines(script);
  std::ostringstream out;
  std::ostringstream errors;
  Walk walk(TestWalked(), settings, out, errors);
  Walked walked;
  walked.status = walk.Play(lines);
  walked.out = out.str();
  walked.errors = errors.str();
  return walked;
}

// What a script prints that begins with the start of the program and fails in nothing.
inline std::string Printed(const std::string& script) {
  const Walked walked = Play("start\n" + script);
  EXPECT_EQ(walked.status, 0) << walked.errors;
  EXPECT_EQ(walked.errors, "");
  return walked.out;
}

// What the last line did, as the desk noted it.
inline std::string Noted(const std::string& script) {
  return Printed(script + "\nget Desk.Log.Caption\n");
}

// Why the last line of a script is wrong.
inline std::string Refused(const std::string& script) {
  const Walked walked = Play(script);
  EXPECT_EQ(walked.status, 2) << walked.out;
  return walked.errors;
}

inline std::string RefusedLine(const std::string& line) {
  const Walked walked = Play("start\n" + line + "\n");
  EXPECT_EQ(walked.status, 2) << line << '\n' << walked.out;
  EXPECT_EQ(walked.out, "") << line;
  const std::string told = "line 2: " + line + "\n";
  EXPECT_EQ(walked.errors.substr(0, told.size()), told);
  return walked.errors.substr(std::min(told.size(), walked.errors.size()));
}

}  // namespace brindlepage::walk
