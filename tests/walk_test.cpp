#include "walk/walk.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/temp_folder.h"
#include "tests/walked_desk.h"

namespace brindlepage::walk {
namespace {

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

}  // namespace
}  // namespace brindlepage::walk
