#include "walk/walk.h"

#include <gtest/gtest.h>

#include <sstream>

#include "temp_folder.h"
#include "toolkit/controls.h"
#include "toolkit/file_lists.h"
#include "walk/walk_arguments.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage::walk {
namespace {

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

void TestForm::Note(std::string happened) {
  if (auto* desk = forms().Find<Desk>(Screen::Title)) desk->Log.Caption = std::move(happened);
}

void Desk::AskFor(int index) {
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

std::unique_ptr<Form> MakeTestForm(Screen id, Program& program) {
  if (id == Screen::Title) return std::make_unique<Desk>(program);
  if (id == Screen::ChooseList) return std::make_unique<Thief>(program);
  return std::make_unique<Slip>(program);
}

class TestProgram : public Program {
 public:
  TestProgram(Platform& platform, RandomSource& random)
      : Program(platform, random, [this](Screen id) { return MakeTestForm(id, *this); }) {}
};

WalkedProgram TestWalked() {
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

Walked Play(const std::string& script, const WalkSettings& settings = {}) {
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
std::string Printed(const std::string& script) {
  const Walked walked = Play("start\n" + script);
  EXPECT_EQ(walked.status, 0) << walked.errors;
  EXPECT_EQ(walked.errors, "");
  return walked.out;
}

// What the last line did, as the desk noted it.
std::string Noted(const std::string& script) {
  return Printed(script + "\nget Desk.Log.Caption\n");
}

// Why the last line of a script is wrong.
std::string Refused(const std::string& script) {
  const Walked walked = Play(script);
  EXPECT_EQ(walked.status, 2) << walked.out;
  return walked.errors;
}

std::string RefusedLine(const std::string& line) {
  const Walked walked = Play("start\n" + line + "\n");
  EXPECT_EQ(walked.status, 2) << line << '\n' << walked.out;
  EXPECT_EQ(walked.out, "") << line;
  const std::string told = "line 2: " + line + "\n";
  EXPECT_EQ(walked.errors.substr(0, told.size()), told);
  return walked.errors.substr(std::min(told.size(), walked.errors.size()));
}

// --- The lines of a script

TEST(WalkScript, WordsAreSeparatedByBlanksAndTextsStandInQuotes) {
  const Tokens tokens = ReadTokens("  type\tDesk.Title  \"a b\" \"\"  ");
  ASSERT_EQ(tokens.size(), 4u);
  EXPECT_EQ(tokens[0].text, "type");
  EXPECT_FALSE(tokens[0].quoted);
  EXPECT_EQ(tokens[1].text, "Desk.Title");
  EXPECT_EQ(tokens[2].text, "a b");
  EXPECT_TRUE(tokens[2].quoted);
  EXPECT_EQ(tokens[3].text, "");
  EXPECT_TRUE(tokens[3].quoted);
}

TEST(WalkScript, EscapesStandForWhatTheyLookLikeAndForBytesOfTheCodePage) {
  const Tokens tokens = ReadTokens(R"(x "\"q\" \\ \n \t \x80 \xe9 é")");
  ASSERT_EQ(tokens.size(), 2u);
  EXPECT_EQ(tokens[1].text, "\"q\" \\ \n \t \xE2\x82\xAC \xC3\xA9 \xC3\xA9");
}

TEST(WalkScript, WhatIsNoTextIsRefused) {
  for (const char* line : {R"(x "open)", R"(x "a\)", R"(x "\q")", R"(x "\xZ1")", R"(x "\x4")",
                           R"(x "a"b)", R"(x a"b")"}) {
    EXPECT_THROW(ReadTokens(line), ScriptError) << line;
  }
}

TEST(WalkScript, BlankLinesAndCommentsAreSkippedEvenBeforeTheStartAndAfterTheEnd) {
  const Walked walked =
      Play("\xEF\xBB\xBF# a story\n\n   \nstart\r\nclick Desk.Quit\r\n# the end\n\n");
  EXPECT_EQ(walked.status, 0) << walked.errors;
  EXPECT_EQ(walked.out, "end\n");
}

TEST(WalkScript, ANameMayHaveAnIndex) {
  const Target target = ReadTarget({"Desk.Keys(3)", false});
  EXPECT_EQ(target.form, "Desk");
  EXPECT_EQ(target.control, "Keys");
  EXPECT_EQ(target.index, 3);
  for (const char* name : {"Desk.", ".Keys", "Desk.Keys(", "Desk.Keys()", "Desk.Keys(x)", "A.B.C",
                           "Desk(1).Keys", "", "Desk.Keys(1)x"}) {
    EXPECT_THROW(ReadTarget({name, false}), ScriptError) << name;
  }
}

TEST(WalkScript, DrawsAreSinglePrecisionFromZeroToBelowOne) {
  EXPECT_EQ(ReadDraw("0"), 0.0F);
  EXPECT_EQ(ReadDraw("0.1"), 0.1F);
  EXPECT_EQ(ReadDraw("0.99999999999"), 0x0.FFFFFFp0F);
  for (const char* text : {"1", "-0.1", "x", "", "0.5x", "nan", "inf"}) {
    EXPECT_THROW(ReadDraw(text), ScriptError) << text;
  }
}

// --- When a line may stand

TEST(Walk, ALineThatIsWrongIsToldWithItsNumberAndEndsTheWalkWithStatusTwo) {
  const Walked walked = Play("# one\nstart\n\njump Desk\nget Draws\n");
  EXPECT_EQ(walked.status, 2);
  EXPECT_EQ(walked.out, "");
  EXPECT_EQ(walked.errors, "line 4: jump Desk\nno such command: jump\n");
}

TEST(Walk, ActionsBeforeTheStartAreRefused) {
  EXPECT_EQ(Refused("click Desk.Hello\n"),
            "line 1: click Desk.Hello\nthe program has not been started\n");
  Refused("tick\n");
  Refused("forms\n");
  Refused("get Desk.Caption\n");
}

TEST(Walk, AnswersAndRandomNumbersMayBePreparedBeforeTheStart) {
  const Walked walked = Play(
      "seed 1\ndraws 0.5\nanswer no\nget Draws\nexpect Reseeds 0\nstart\n"
      "click Desk.Ask(1)\nclick Desk.Ask(10)\nget Desk.Log.Caption\n");
  EXPECT_EQ(walked.status, 0) << walked.errors;
  EXPECT_EQ(walked.out, "0\nmessage \"Ask\" \"Sure?\" yes-no -> no\n\"0.500000\"\n");
}

TEST(Walk, ARunningProgramIsNotStartedAgain) {
  EXPECT_EQ(RefusedLine("start"), "the program is running already\n");
}

TEST(Walk, LinesAfterTheEndAreRefusedButForAStart) {
  const std::string ended = "start\nclick Desk.Quit\n";
  for (const char* line : {"get Draws", "tick", "seed 1", "answer yes", "forms", "click Desk.Hello",
                           "expect Draws 0"}) {
    const Walked walked = Play(ended + line + "\n");
    EXPECT_EQ(walked.status, 2) << line;
    EXPECT_EQ(walked.out, "end\n");
    EXPECT_EQ(walked.errors, "line 3: " + std::string(line) + "\nthe program has ended\n");
  }
  const Walked again = Play(ended + "start\nforms\n");
  EXPECT_EQ(again.status, 0) << again.errors;
  EXPECT_EQ(again.out, "end\nDesk shown active\n");
}

TEST(Walk, ANewProcessHasFreshVariablesAndTheCountsGoOn) {
  EXPECT_EQ(Printed("draws 0.5 0.25\nclick Desk.Ask(16)\nclick Desk.Ask(11)\nget ActivityKind\n"
                    "click Desk.Quit\nstart\nget ActivityKind\nget ListWords(2)\nget Draws\n"
                    "get Reseeds\nclick Desk.Ask(10)\nget Desk.Log.Caption\n"),
            "4\nend\n0\n\"\"\n1\n1\n\"0.250000\"\n");
}

TEST(Walk, EachCommandHasItsNumberOfWords) {
  EXPECT_EQ(RefusedLine("click"), "something is missing\n");
  EXPECT_EQ(RefusedLine("forms Desk"), "too many words\n");
  for (const char* line : {"double",
                           "select Desk.Names",
                           "mark Desk.Words",
                           "type Desk.Title",
                           "press Desk",
                           "set Desk.Bar",
                           "caret Desk.Page",
                           "insert Desk.Page",
                           "folder Desk.Folders",
                           "activate",
                           "deactivate",
                           "close",
                           "resize Desk 100",
                           "answer",
                           "seed",
                           "draws",
                           "get",
                           "rows",
                           "text",
                           "runs",
                           "expect Draws",
                           "click Desk.Tools a b",
                           "double Desk.Names 1 2",
                           "select Desk.Names 1 2",
                           "type Desk.Title a b",
                           "press Desk Enter Up",
                           "set Desk.Bar 1 2",
                           "caret Desk.Page 1 2 3",
                           "insert Desk.Page a b",
                           "folder Desk.Folders a b",
                           "tick 1 2",
                           "activate Desk Desk",
                           "deactivate Desk Desk",
                           "close Desk Desk",
                           "resize Desk 1 2 3",
                           "seed 1 2",
                           "get Draws Draws",
                           "rows Desk.Names 1",
                           "text Desk.Page 1",
                           "runs Desk.Page 1",
                           "expect Draws 0 0"}) {
    RefusedLine(line);
  }
}

// --- What the teacher does

TEST(Walk, AClickReachesButtonsLabelsImagesOptionsBoxesAndMenus) {
  EXPECT_EQ(Noted("click Desk.Hello"), "\"hello\"\n");
  EXPECT_EQ(Noted("click Desk.Keys(3)"), "\"key 3\"\n");
  EXPECT_EQ(Noted("click Desk.Image1"), "\"image\"\n");
  EXPECT_EQ(Noted("click Desk.Label1"), "\"\"\n");
  EXPECT_EQ(Printed("click Desk.Right1\nget Desk.Right1.Value\nget Desk.Left1.Value\n"),
            "true\nfalse\n");
  EXPECT_EQ(Printed("click Desk.Check1\nget Desk.Check1.Value\nclick Desk.Check1\n"
                    "get Desk.Check1.Value\n"),
            "true\nfalse\n");
  EXPECT_EQ(Printed("click Desk.Quit\n"), "end\n");
}

TEST(Walk, AToolbarButtonIsClickedByItsCaption) {
  EXPECT_EQ(Noted("click Desk.Tools \"Print\""), "\"tool print\"\n");
  EXPECT_EQ(Noted("click Desk.Tools Print"), "\"tool print\"\n");
  EXPECT_EQ(Printed("click Desk.Tools \"Café\"\nget Desk.Tools(2).Enabled\n"
                    "get Desk.Tools(2).Caption\nget Desk.Tools(1).ToolTipText\n"),
            "ignored\nfalse\n\"Café\"\n\"Print it\"\n");
  EXPECT_EQ(RefusedLine("click Desk.Tools \"Key\""), "no such button: \"Key\"\n");
  RefusedLine("click Desk.Tools");
  RefusedLine("click Desk.Hello \"Hello\"");
  RefusedLine("click Desk \"Hello\"");
  RefusedLine("get Desk.Tools(3).Caption");
}

TEST(Walk, WhatIsNotThereMakesTheScriptWrong) {
  EXPECT_EQ(RefusedLine("click Chair.Hello"), "no such form: Chair\n");
  EXPECT_EQ(RefusedLine("click Desk.Nothing"), "no such control on Desk\n");
  RefusedLine("click Desk.Keys");
  RefusedLine("click Desk.Keys(1)");
  RefusedLine("click Desk.Hello(0)");
  RefusedLine("click Chair");
  EXPECT_EQ(RefusedLine("get Desk.Hello.Size"), "no such property: Desk.Hello.Size\n");
  EXPECT_EQ(RefusedLine("get Desk.Size"), "no such property: Desk.Size\n");
  EXPECT_EQ(RefusedLine("get Desk.Nothing.Caption"), "no such control: Desk.Nothing.Caption\n");
  EXPECT_EQ(RefusedLine("get Wordz"), "no such variable: Wordz\n");
  EXPECT_EQ(RefusedLine("get ListWords"), "no such variable: ListWords\n");
  EXPECT_EQ(RefusedLine("get ActivityKind(1)"), "no such variable: ActivityKind\n");
  EXPECT_EQ(RefusedLine("get ListWords(301)"), "ListWords: Subscript out of range\n");
  RefusedLine("get Desk.Hello.Caption.Size");
  RefusedLine("rows Desk.Nothing");
  RefusedLine("activate Chair");
  RefusedLine("deactivate Chair");
  RefusedLine("close Chair");
  RefusedLine("resize Chair 1 1");
}

TEST(Walk, HiddenAndDisabledControlsAreIgnored) {
  for (const char* line : {"click Desk.Grey", "click Desk.Hidden", "press Desk.Grey Enter",
                           "click Desk.Inside", "click Desk.Locked", "click Desk.Clock"}) {
    EXPECT_EQ(Noted(line), "ignored\n\"\"\n") << line;
  }
}

TEST(Walk, FormsThatAreNotLoadedOrNotShownAreIgnored) {
  const char* deeds[] = {"click Slip.Ok",    "click Slip",        "press Slip.Ok Enter",
                         "press Slip Enter", "activate Slip",     "close Slip",
                         "deactivate Slip",  "resize Slip 9 9",   "double Slip.X",
                         "select Slip.X 1",  "mark Slip.X 1 2",   "type Slip.X a",
                         "set Slip.X 1",     "caret Slip.X 1",    "insert Slip.X a",
                         "folder Slip.X a",  "click Slip.X \"a\""};
  for (const std::string deed : deeds) EXPECT_EQ(Printed(deed), "ignored\n") << deed;
  for (const std::string look :
       {"get Slip.Caption", "get Slip.Ok.Caption", "rows Slip.X", "text Slip.X", "runs Slip.X"}) {
    EXPECT_EQ(Printed(look), "ignored\n") << look;
  }
  EXPECT_EQ(Printed("click Desk.Ask(15)\nforms\nclick Slip.Ok\nget Slip.Ok.Caption\n"),
            "Desk shown active\nSlip hidden\nignored\n\"OK\"\n");
}

TEST(Walk, AnActionOnAFormThatIsNotActiveActivatesItFirst) {
  EXPECT_EQ(Printed("click Desk.Ask(13)\nforms\nclick Desk.Hello\nforms\nget Desk.Log.Caption\n"),
            "Desk shown\nSlip shown active\nDesk shown active\n\"hello\"\n");
  EXPECT_EQ(Printed("click Desk.Ask(13)\nclick Desk\nforms\n"), "Desk shown active\n");
  EXPECT_EQ(Printed("click Desk.Ask(13)\nclick Desk.Grey\nforms\n"),
            "ignored\nDesk shown\nSlip shown active\n");
}

TEST(Walk, AFormThatItsActivationTookAwayIsIgnored) {
  EXPECT_EQ(Printed("click Desk.Ask(18)\nclick Desk.Hello\nforms\nget Desk.Log.Caption\n"),
            "ignored\nDesk hidden\nThief shown active\n\"\"\n");
}

TEST(Walk, AnActionTakesTheFocusToControlsThatHaveAUseForIt) {
  const std::string ask = "\nget Desk.ActiveControl\n";
  for (const std::string name : {"Hello", "Check1", "Right1"}) {
    EXPECT_EQ(Printed("click Desk." + name + ask), '"' + name + "\"\n");
  }
  EXPECT_EQ(Printed("type Desk.Title x" + ask), "\"Title\"\n");
  EXPECT_EQ(Printed("select Desk.Names 0" + ask), "\"Names\"\n");
  EXPECT_EQ(Printed("mark Desk.Words 0" + ask), "\"Words\"\n");
  EXPECT_EQ(Printed("select Desk.Sizes 0" + ask), "\"Sizes\"\n");
  EXPECT_EQ(Printed("set Desk.Bar 2" + ask), "\"Bar\"\n");
  EXPECT_EQ(Printed("caret Desk.Page 0" + ask), "\"Page\"\n");
  EXPECT_EQ(Printed("click Desk.Hello\nclick Desk.Label1\nclick Desk.Image1\n"
                    "click Desk.Tools Print" +
                    ask),
            "\"Hello\"\n");
}

TEST(Walk, ADoubleClickMeetsARowOrTheSelectedOne) {
  EXPECT_EQ(Noted("double Desk.Names 1"), "\"double 1\"\n");
  EXPECT_EQ(Noted("select Desk.Names 0\ndouble Desk.Names"), "\"double 0\"\n");
  EXPECT_EQ(Noted("double Desk.Names"), "\"double -1\"\n");
  RefusedLine("double Desk.Hello 1");
  RefusedLine("double Desk.Names x");
  RefusedLine("double Desk");
}

TEST(Walk, ARowIsSelectedByItsNumberOrItsText) {
  EXPECT_EQ(Printed("select Desk.Names 1\nget Desk.Log.Caption\nrows Desk.Names\n"),
            "\"row 1\"\nrow 0 \"apple\"\nrow 1 \"Pear\" *\n");
  EXPECT_EQ(Noted("select Desk.Names \"apple\""), "\"row 0\"\n");
  EXPECT_EQ(Noted("select Desk.Names apple"), "\"row 0\"\n");
  EXPECT_EQ(Noted("select Desk.Words \"café\""), "\"words 2\"\n");
  EXPECT_EQ(Noted("select Desk.Words \"caf\\xE9\""), "\"words 2\"\n");
  EXPECT_EQ(Noted("select Desk.Names 0\nclick Desk.Hello\nselect Desk.Names -1"), "\"row 0\"\n");
  EXPECT_EQ(RefusedLine("select Desk.Names \"plum\""), "no such row: \"plum\"\n");
  RefusedLine("select Desk.Names \"1\"");
  RefusedLine("select Desk.Words \"caf日\"");
  RefusedLine("select Desk.Hello 1");
  RefusedLine("select Desk 1");
}

TEST(Walk, AComboBoxTakesARowItsTextOrAnyText) {
  EXPECT_EQ(Noted("select Desk.Sizes 2"), "\"size 12\"\n");
  EXPECT_EQ(Printed("select Desk.Sizes \"10\"\nrows Desk.Sizes\n"),
            "row 0 \"8\"\nrow 1 \"10\" *\nrow 2 \"12\"\n");
  EXPECT_EQ(Noted("select Desk.Sizes \"11\""), "\"size 11\"\n");
  EXPECT_EQ(Printed("type Desk.Sizes \"11€\xE6\x97\xA5\"\nget Desk.Sizes.Text\n"
                    "get Desk.Sizes.ListIndex\n"),
            "beep\n\"11€\"\n-1\n");
  RefusedLine("select Desk.Sizes 3");
}

TEST(Walk, RowsAreMarkedByTheirCheckBoxes) {
  EXPECT_EQ(Printed("mark Desk.Words 0 2 0\nrows Desk.Words\n"),
            "row 0 [ ] \"lava\" *\nrow 1 [ ] \"ash\"\nrow 2 [x] \"café\"\n");
  RefusedLine("mark Desk.Words 3");
  RefusedLine("mark Desk.Names 0");
  RefusedLine("mark Desk.Hello 0");
  RefusedLine("mark Desk.Words -1");
}

TEST(Walk, TypingReplacesTheTextAndRefusesWhatTheCodePageLacks) {
  EXPECT_EQ(Noted("type Desk.Title \"Café \\\"€\\\"\""), "\"typed Café \\\"€\\\"\"\n");
  EXPECT_EQ(Printed("type Desk.Title \"a\xE6\x97\xA5z\"\nget Desk.Title.Text\n"), "beep\n\"az\"\n");
  EXPECT_EQ(Noted("type Desk.Title \"\""), "\"typed \"\n");
  RefusedLine("type Desk.Hello x");
  RefusedLine("type Desk x");
}

TEST(Walk, KeysArePressedByName) {
  EXPECT_EQ(Noted("press Desk.Hello Enter"), "\"hello\"\n");
  EXPECT_EQ(Noted("press Desk.Hello Space"), "\"hello\"\n");
  EXPECT_EQ(Noted("press Desk.Names Down"), "\"row 0\"\n");
  EXPECT_EQ(Noted("press Desk.Names End"), "\"row 1\"\n");
  EXPECT_EQ(Noted("press Desk.Bar Right"), "\"bar 6\"\n");
  EXPECT_EQ(Noted("press Desk.Bar Home"), "\"bar 1\"\n");
  EXPECT_EQ(Noted("press Desk.Hello x"), "\"\"\n");
  for (const std::string key : {"Enter", "Escape", "Space", "Tab", "Up", "Down", "Left", "Right",
                                "Home", "End", "PageUp", "PageDown", "Delete", "Backspace", "q"}) {
    EXPECT_EQ(Noted("press Desk " + key), "\"form key\"\n") << key;
  }
  EXPECT_EQ(RefusedLine("press Desk.Hello Hard"), "no such key: Hard\n");
}

TEST(Walk, AScrollBarStopsAtItsEnds) {
  EXPECT_EQ(Noted("set Desk.Bar 7"), "\"bar 7\"\n");
  EXPECT_EQ(Noted("set Desk.Bar 70"), "\"bar 9\"\n");
  EXPECT_EQ(Noted("set Desk.Bar -3"), "\"bar 1\"\n");
  RefusedLine("set Desk.Hello 1");
  RefusedLine("set Desk.Bar 1.5");
}

TEST(Walk, ADocumentIsTypedIntoAtItsCaret) {
  EXPECT_EQ(Printed("insert Desk.Page \"one\\ntwo 日\"\ntext Desk.Page\nget Desk.Page.Text\n"
                    "get Desk.Page.SelStart\ncaret Desk.Page 0 3\nget Desk.Page.SelLength\n"
                    "insert Desk.Page \"1\"\ntext Desk.Page\ncaret Desk.Page 2\n"
                    "get Desk.Page.SelStart\nget Desk.Page.SelLength\n"),
            "\"one\\ntwo 日\"\n\"one\\ntwo 日\"\n9\n3\n\"1\\ntwo 日\"\n2\n0\n");
  RefusedLine("caret Desk.Page -1");
  RefusedLine("caret Desk.Hello 1");
  RefusedLine("insert Desk.Hello x");
  RefusedLine("text Desk.Title");
  RefusedLine("runs Desk.Title");
}

TEST(Walk, FoldersAreMovedThroughByPathAndByDoubleClick) {
  TempFolder folder;
  std::filesystem::create_directory(folder.Path() / "sub");
  folder.Write("sub/b.txt", "");
  EXPECT_EQ(Printed("get Desk.Drive1.Drive\nselect Desk.Folders \"sub\"\ndouble Desk.Folders\n"
                    "rows Desk.Files\nselect Desk.Files 0\nget Desk.Files.FileName\n"
                    "double Desk.Folders 0\nrows Desk.Folders\n"),
            "\"/\"\nrow 0 \"b.txt\"\n\"b.txt\"\nrow 0 \"..\"\nrow 1 \"sub\"\n");
  EXPECT_EQ(Printed("folder Desk.Folders \"sub\"\nrows Desk.Files\nfolder Desk.Files \".\"\n"
                    "rows Desk.Files\nfolder Desk.Drive1 \"x:\"\nget Desk.Drive1.Drive\n"
                    "select Desk.Drive1 0\nget Desk.Drive1.Drive\n"),
            "row 0 \"b.txt\"\n\"x:\"\n\"/\"\n");
  RefusedLine("folder Desk.Names \"x\"");
  const Walked missing = Play("start\nfolder Desk.Folders \"none\"\n");
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.out, "error 76 \"Path not found\"\nend\n");
}

TEST(Walk, TimePassesByTickAloneAndTimersFireInOrder) {
  EXPECT_EQ(Printed("click Desk.Ask(14)\nget Desk.Log.Caption\ntick\ntick 98\ntick\n"
                    "get Desk.Log.Caption\ntick 150\nget Desk.Log.Caption\n"),
            "\"\"\nbeep\n\"\"\nbeep\n\"slow\"\n");
  EXPECT_EQ(Printed("tick 1000\nclick Desk.Ask(14)\ntick 99\n"), "");
  EXPECT_EQ(Printed("click Desk.Ask(14)\ntick 1000\n"),
            "beep\nbeep\nbeep\nbeep\nbeep\nbeep\nbeep\nbeep\nbeep\nbeep\n");
  EXPECT_EQ(Printed("click Desk.Ask(14)\ntick 0\n"), "");
  RefusedLine("tick -1");
  RefusedLine("tick soon");
}

TEST(Walk, WindowsAreActivatedResizedAndClosed) {
  EXPECT_EQ(Printed("click Desk.Ask(13)\nactivate Desk\nforms\n"), "Desk shown active\n");
  EXPECT_EQ(Printed("click Desk.Ask(13)\ndeactivate Slip\nforms\n"), "Desk shown\n");
  EXPECT_EQ(Printed("deactivate Desk\nforms\nactivate Desk\nforms\nget Desk.Hello.ToolTipText\n"),
            "Desk shown\nDesk shown active\n\"2\"\n");
  EXPECT_EQ(Printed("resize Desk 9000 6000\nget Desk.Width\nget Desk.Height\n"
                    "get Desk.Log.Caption\n"),
            "9000\n6000\n\"resized\"\n");
  EXPECT_EQ(Printed("close Desk\n"), "beep\nend\n");
  EXPECT_EQ(Printed("click Desk.Ask(13)\nclose Slip\nforms\n"), "Desk shown active\n");
  EXPECT_EQ(Printed("click Desk.Ask(13)\nclose Desk\n"), "beep\nend\n");
  EXPECT_EQ(Printed("click Desk\nget Desk.Log.Caption\n"), "\"form clicked\"\n");
  RefusedLine("resize Desk wide high");
  RefusedLine("activate Desk.Hello");
}

TEST(Walk, TheLastFormThatGoesEndsTheProgram) { EXPECT_EQ(Printed("click Desk.Door\n"), "end\n"); }

// --- Boxes and their answers

constexpr char kNotice[] = R"(message "Title" "A \"note\"\n\tC:\\x é" ok -> ok)";

TEST(WalkAnswers, AMessageWithOkAloneTakesAnOkThatIsNextAndNothingElse) {
  EXPECT_EQ(Printed("click Desk.Ask(0)\n"), std::string(kNotice) + "\n");
  EXPECT_EQ(Printed("answer ok no\nclick Desk.Ask(0)\nclick Desk.Ask(1)\n"),
            std::string(kNotice) + "\nmessage \"Ask\" \"Sure?\" yes-no -> no\n");
  EXPECT_EQ(Printed("answer no ok\nclick Desk.Ask(0)\nclick Desk.Ask(1)\nclick Desk.Ask(0)\n"
                    "click Desk.Ask(1)\n"),
            std::string(kNotice) + "\nmessage \"Ask\" \"Sure?\" yes-no -> no\n" + kNotice +
                "\nmessage \"Ask\" \"Sure?\" yes-no -> yes\n");
  EXPECT_EQ(Printed("answer \"ok\"\nclick Desk.Ask(0)\nclick Desk.Ask(3)\n"),
            std::string(kNotice) + "\ninput \"Ask\" \"Name?\" \"old\" -> \"ok\"\n");
}

TEST(WalkAnswers, AQuestionTakesYesNoAndCancelAndIsYesWhenNobodyAnswers) {
  EXPECT_EQ(Noted("click Desk.Ask(1)"), "message \"Ask\" \"Sure?\" yes-no -> yes\n\"yes\"\n");
  EXPECT_EQ(Noted("answer no\nclick Desk.Ask(1)"),
            "message \"Ask\" \"Sure?\" yes-no -> no\n\"no\"\n");
  EXPECT_EQ(Noted("click Desk.Ask(2)"),
            "message \"Ask\" \"Sure?\" yes-no-cancel -> yes\n\"yes\"\n");
  EXPECT_EQ(Noted("answer cancel\nclick Desk.Ask(2)"),
            "message \"Ask\" \"Sure?\" yes-no-cancel -> cancel\n\"cancel\"\n");
}

TEST(WalkAnswers, AnInputBoxTakesATextOrCancelAndItsDefaultWhenNobodyAnswers) {
  EXPECT_EQ(Noted("click Desk.Ask(3)"), "input \"Ask\" \"Name?\" \"old\" -> \"old\"\n\"old\"\n");
  EXPECT_EQ(Noted("answer \"Maß \\\"1\\\"\"\nclick Desk.Ask(3)"),
            "input \"Ask\" \"Name?\" \"old\" -> \"Maß \\\"1\\\"\"\n\"Maß \\\"1\\\"\"\n");
  EXPECT_EQ(Noted("answer \"\"\nclick Desk.Ask(3)"),
            "input \"Ask\" \"Name?\" \"old\" -> \"\"\n\"\"\n");
  EXPECT_EQ(Noted("answer cancel\nclick Desk.Ask(3)"),
            "input \"Ask\" \"Name?\" \"old\" -> cancel\n\"nothing\"\n");
}

TEST(WalkAnswers, APrintDialogTakesAllSelectionAndCancelAndIsCancelledWhenNobodyAnswers) {
  EXPECT_EQ(Noted("click Desk.Ask(4)"), "print-dialog 0x100108 -> cancel\n\"not printed\"\n");
  EXPECT_EQ(Noted("insert Desk.Page abc\nanswer all\nclick Desk.Ask(4)"),
            "print-dialog 0x100108 -> all\nprinted Desk.Page 0 3\n\"all\"\n");
  EXPECT_EQ(Noted("answer selection\nclick Desk.Ask(4)"),
            "print-dialog 0x100108 -> selection\nprinted Desk.Page 0 0\n\"selection\"\n");
  EXPECT_EQ(Noted("answer cancel\nclick Desk.Ask(4)"),
            "print-dialog 0x100108 -> cancel\n\"not printed\"\n");
  EXPECT_EQ(Noted("answer all\nclick Desk.Ask(5)"),
            "print-dialog 0x10010c -> all\nprinted Desk.Page 0 0\n\"all\"\n");
}

TEST(WalkAnswers, AFileDialogTakesAPathAndIsCancelledWhenNobodyAnswers) {
  const std::string dialog = R"(open-dialog "Open" "Programs (*.exe)|*.exe" "C:\\" -> )";
  EXPECT_EQ(Noted("click Desk.Ask(6)"), dialog + "cancel\n\"none\"\n");
  EXPECT_EQ(Noted("answer cancel\nclick Desk.Ask(6)"), dialog + "cancel\n\"none\"\n");
  EXPECT_EQ(Noted("answer \"C:\\\\w p.exe\"\nclick Desk.Ask(6)"),
            dialog + R"("C:\\w p.exe")" + "\n" + R"("C:\\w p.exe")" + "\n");
}

TEST(WalkAnswers, AnAnswerThatDoesNotFitFailsTheScript) {
  const auto refused = [](const std::string& answer, int box) {
    return Refused("start\nanswer " + answer + "\nclick Desk.Ask(" + std::to_string(box) + ")\n");
  };
  EXPECT_EQ(refused("ok", 1),
            "line 3: click Desk.Ask(1)\n"
            "the answer ok does not fit: message \"Ask\" \"Sure?\" yes-no\n");
  for (const char* answer : {"cancel", "all", "\"yes\""}) refused(answer, 1);
  for (const char* answer : {"ok", "selection", "\"cancel\""}) refused(answer, 2);
  for (const char* answer : {"yes", "no", "ok", "all"}) refused(answer, 3);
  for (const char* answer : {"yes", "ok", "\"all\""}) refused(answer, 4);
  refused("selection", 5);
  for (const char* answer : {"yes", "ok", "all"}) refused(answer, 6);
  EXPECT_EQ(RefusedLine("answer maybe"), "no such answer: maybe\n");
}

TEST(Walk, ProgramsThatAreStartedAndBeepsArePrinted) {
  EXPECT_EQ(Printed("click Desk.Ask(7)\nclick Desk.Ask(8)\n"),
            "run \"word\\\"a b.rtf\\\"\"\nbeep\n");
}

// --- Random numbers

TEST(WalkDraws, GivenDrawsComeInOrderAndReseedingIsCountedAlone) {
  EXPECT_EQ(Printed("draws 0.25 0.5\nclick Desk.Ask(10)\nget Desk.Log.Caption\nclick Desk.Ask(11)\n"
                    "get Desk.Log.Caption\nget Draws\nget Reseeds\n"),
            "\"0.250000\"\n\"501\"\n2\n1\n");
}

TEST(WalkDraws, NewDrawsStandInPlaceOfThoseLeft) {
  EXPECT_EQ(Printed("draws 0.25 0.5\nclick Desk.Ask(10)\ndraws 0.75\nclick Desk.Ask(10)\n"
                    "get Desk.Log.Caption\n"),
            "\"0.750000\"\n");
}

TEST(WalkDraws, DrawsThatAreUsedUpFailTheScript) {
  const Walked walked = Play("start\ndraws 0.25\nclick Desk.Ask(10)\nclick Desk.Ask(10)\n");
  EXPECT_EQ(walked.status, 2);
  EXPECT_EQ(walked.errors, "line 4: click Desk.Ask(10)\nthe draws are used up\n");
  EXPECT_EQ(walked.out, "");
}

TEST(WalkDraws, AFileHoldsOneNumberALine) {
  TempFolder folder;
  std::filesystem::create_directory(folder.Path() / "scripts");
  folder.Write("here.txt", "0.125\r\n0.5\n\n");
  folder.Write("scripts/my draws.txt", "0.75\n");
  EXPECT_EQ(Printed("draws @here.txt\nclick Desk.Ask(10)\nclick Desk.Ask(10)\n"
                    "get Desk.Log.Caption\n"),
            "\"0.500000\"\n");
  WalkSettings settings;
  settings.script_folder = folder.Path() / "scripts";
  EXPECT_EQ(Play("start\ndraws \"@my draws.txt\"\nclick Desk.Ask(10)\nget Desk.Log.Caption\n"
                 "draws @here.txt\n",
                 settings)
                .out,
            "\"0.750000\"\n");
  RefusedLine("draws @none.txt");
  RefusedLine("draws @here.txt 0.5");
  RefusedLine("draws half");
  RefusedLine("draws 1");
}

TEST(WalkDraws, ASeedGivesTheSameNumbersWhateverIsReseeded) {
  const std::string script =
      "seed 7\nclick Desk.Ask(11)\nget Desk.Log.Caption\nclick Desk.Ask(11)\n"
      "get Desk.Log.Caption\nget Reseeds\n";
  const std::string first = Printed(script);
  EXPECT_EQ(first, Printed(script));
  SeededRandom expected(7);
  const int one = expected.DrawIndex(1000);
  const int two = expected.DrawIndex(1000);
  EXPECT_EQ(first, '"' + std::to_string(one) + "\"\n\"" + std::to_string(two) + "\"\n2\n");
  RefusedLine("seed -1");
  RefusedLine("seed x");
}

TEST(WalkDraws, ACommandThatDrawsWithoutEndIsNotResponding) {
  WalkSettings settings;
  settings.draw_limit = 1000;
  const Walked walked = Play("start\nget Draws\nclick Desk.Ask(12)\nget Draws\n", settings);
  EXPECT_EQ(walked.status, 3);
  EXPECT_EQ(walked.out, "0\nnot responding\n");
  EXPECT_EQ(walked.errors, "");
}

TEST(WalkDraws, TheLimitHoldsForEachCommandAndNotForTheWalk) {
  WalkSettings settings;
  settings.draw_limit = 1;
  EXPECT_EQ(Play("start\nclick Desk.Ask(10)\nclick Desk.Ask(10)\nget Draws\n", settings).out,
            "2\n");
}

// --- What is asked and printed

TEST(Walk, ValuesArePrintedBareAndTextsQuoted) {
  EXPECT_EQ(Printed("get Desk.Caption\nget Desk.Visible\nget Desk.Hello.Caption\n"
                    "get Desk.Grey.Enabled\nget Desk.Names.ListCount\nget Desk.Names.ListIndex\n"
                    "get Desk.Label1.FontSize\nget Desk.Page.SelFontSize\n"
                    "get Desk.Page.SelFontName\nget Desk.Keys(3).Caption\nget Desk.Name\n"),
            "\"The \\\"Desk\\\"\"\ntrue\n\"Hello\"\nfalse\n2\n-1\n0\n9.75\n\"Courier New\"\n\"B\"\n"
            "\"Desk\"\n");
  EXPECT_EQ(Printed("click Desk.Ask(16)\nget ActivityKind\nget EasyPuzzle\nget ListWords(2)\n"
                    "get ListWords(0)\nget WordMarks(300)\nget WorksheetTitle\n"),
            "4\ntrue\n\"lava \\\"x\\\"\"\n\"\"\n0\n\"\"\n");
}

TEST(Walk, HiddenControlsAnswerAsWell) {
  EXPECT_EQ(Printed("get Desk.Hidden.Visible\nget Desk.Hidden.Caption\n"), "false\n\"Hidden\"\n");
}

TEST(Walk, ADocumentIsPrintedByItsParagraphsAndRuns) {
  EXPECT_EQ(Printed("click Desk.Ask(17)\nruns Desk.Page\n"),
            "paragraph centre\n"
            "run \"Courier New\" 9.75 --- 000000 \"Name\\n\"\n"
            "paragraph right\n"
            "run \"Times New Roman\" 18 biu 8000FF \"\\\"T\\\"\"\n"
            "picture png 1440 720\n"
            "run \"Times New Roman\" 18 biu 8000FF \"\\n\"\n"
            "paragraph right\n");
  EXPECT_EQ(Printed("runs Desk.Page\ntext Desk.Page\n"), "paragraph left\n\"\"\n");
}

TEST(Walk, RowsAreAskedOfListsAlone) {
  RefusedLine("rows Desk.Hello");
  RefusedLine("rows Desk");
}

TEST(Walk, AnExpectationThatHoldsPrintsNothing) {
  EXPECT_EQ(Printed("expect Desk.Hello.Caption \"Hello\"\nexpect Desk.Hello.Caption Hello\n"
                    "expect Desk.Visible true\nexpect ActivityKind 0\nexpect Draws 0\n"
                    "expect Desk.Page.SelFontSize 9.75\nexpect Desk.Caption \"The \\\"Desk\\\"\"\n"
                    "expect Slip.Caption ignored\nexpect ListWords(1) \"\"\n"
                    "insert Desk.Page \"a\\nb\"\nexpect Desk.Page.Text \"a\\nb\"\n"),
            "");
}

TEST(Walk, AnExpectationThatFailsIsPrintedAndTheWalkGoesOnToStatusOne) {
  const Walked walked = Play(
      "start\nexpect Desk.Hello.Caption \"Bye \\\"x\\\"\"\nexpect Desk.Visible false\n"
      "expect ActivityKind \"0\"\nexpect Slip.Caption Slip\nget Desk.Visible\n");
  EXPECT_EQ(walked.status, 1);
  EXPECT_EQ(walked.out,
            "expected Desk.Hello.Caption \"Bye \\\"x\\\"\" but got \"Hello\"\n"
            "expected Desk.Visible false but got true\n"
            "expected ActivityKind \"0\" but got 0\n"
            "expected Slip.Caption Slip but got ignored\n"
            "true\n");
  EXPECT_EQ(walked.errors, "");
}

TEST(Walk, ARunTimeErrorEndsTheProgramWithStatusOne) {
  const Walked walked = Play("start\nclick Desk.Ask(9)\n");
  EXPECT_EQ(walked.status, 1);
  EXPECT_EQ(walked.out, "error 9 \"Subscript out of range\"\nend\n");
  EXPECT_EQ(Play("start\nclick Desk.Ask(9)\nstart\nclick Desk.Quit\n").status, 1);
  EXPECT_EQ(Play("start\nclick Desk.Ask(19)\n").out, "error 9 \"Subscript out of range\"\nend\n");
}

TEST(Walk, AWrongScriptOutweighsAFailedExpectation) {
  EXPECT_EQ(Play("start\nexpect Draws 1\njump\n").status, 2);
}

TEST(Walk, AControlCharacterIsPrintedByItsNumber) {
  EXPECT_EQ(Printed("insert Desk.Page \"\\x07\\x7F\"\ntext Desk.Page\n"), "\"\\x07\\x7F\"\n");
}

// --- Lines that come one by one

// Gives a line when the reader asks for it, and runs what stands behind it first.
class LineByLine : public std::streambuf {
 public:
  explicit LineByLine(std::vector<std::function<std::string()>> lines) : lines_(std::move(lines)) {}

 private:
  int underflow() override {
    if (next_ == lines_.size()) return traits_type::eof();
    line_ = lines_[next_++]() + "\n";
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_.front());
  }

  std::vector<std::function<std::string()>> lines_;
  std::size_t next_ = 0;
  std::string line_;
};

TEST(Walk, EachLineIsActedOnBeforeTheNextIsRead) {
  std::ostringstream out;
  std::ostringstream errors;
  std::vector<std::string> seen;
  LineByLine buffer({[] { return "start"; }, [] { return "click Desk.Ask(8)"; },
                     [&] {
                       seen.push_back(out.str());
                       return "get Desk.Visible";
                     },
                     [&] {
                       seen.push_back(out.str());
                       return "click Desk.Quit";
                     }});
  std::istream script(&buffer);
  Walk walk(TestWalked(), {}, out, errors);
  EXPECT_EQ(walk.Play(script), 0);
  EXPECT_EQ(seen, (std::vector<std::string>{"beep\n", "beep\ntrue\n"}));
}

// --- The command line

TEST(WalkArguments, NamesFolderScreenLimitAndScript) {
  const Arguments none = ReadArguments({});
  EXPECT_FALSE(none.folder);
  EXPECT_FALSE(none.script);
  EXPECT_EQ(none.settings.screen.width, 15360);
  EXPECT_EQ(none.settings.screen.height, 11520);
  EXPECT_EQ(none.settings.draw_limit, 50'000'000);

  const Arguments all = ReadArguments(
      {"--folder", "some where", "--screen", "640x480", "--draw-limit", "12", "a.walk"});
  EXPECT_EQ(all.folder, "some where");
  EXPECT_EQ(all.settings.screen.width, 9600);
  EXPECT_EQ(all.settings.screen.height, 7200);
  EXPECT_EQ(all.settings.draw_limit, 12);
  EXPECT_EQ(all.script, "a.walk");
  EXPECT_FALSE(ReadArguments({"-"}).script);
}

TEST(WalkArguments, WhatIsNotAnArgumentIsRefusedWithTheUsage) {
  const std::vector<std::vector<std::string>> wrong = {{"--folder"},
                                                       {"--screen"},
                                                       {"--screen", "640"},
                                                       {"--screen", "0x5"},
                                                       {"--screen", "axb"},
                                                       {"--draw-limit"},
                                                       {"--draw-limit", "-1"},
                                                       {"--draw-limit", "many"},
                                                       {"--fast"},
                                                       {"a.walk", "b.walk"},
                                                       {"-x"}};
  for (const auto& arguments : wrong) {
    try {
      ReadArguments(arguments);
      ADD_FAILURE() << arguments.front();
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find("\nusage: brindlepage-walk [--folder DIR]"),
                std::string::npos)
          << error.what();
    }
  }
}

TEST(Walk, TheScreenIsThatOfTheCommandLineAndTheFontsAreFixed) {
  std::ostringstream out;
  const WalkPlatform platform(out, ReadArguments({"--screen", "800x600"}).settings.screen);
  EXPECT_EQ(platform.ScreenSize().width, 12000);
  EXPECT_EQ(platform.ScreenSize().height, 9000);
  EXPECT_EQ(platform.ScreenFonts(),
            (std::vector<std::string>{"Arial", "Courier New", "Liberation Mono", "Times New Roman",
                                      "Verdana"}));
}

}  // namespace
}  // namespace brindlepage::walk
