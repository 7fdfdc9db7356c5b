#include <algorithm>
#include <map>

#include "core/pick_words.h"
#include "crossword/cross_option2.h"
#include "crossword/cross_print.h"
#include "crossword/cross_word.h"
#include "crossword/cross_word_fill.h"
#include "crossword/crossword_worksheet.h"
#include "crossword/new_cross1.h"
#include "crossword/numbering.h"
#include "crossword/please_wait.h"
#include "tests/teacher.h"
#include "toolkit/code_page.h"
#include "toolkit/keyboard.h"

namespace brindlepage {
namespace {

constexpr char kOrphanNotice[] =
    "Puzzle Made|Because of the words selected, this puzzle contains \"orphans\" (uncrossed "
    "words). "
    "You can click the <Remake Puzzle> button to try making the puzzle again if you wish. For the "
    "best results, you may need to use less words. If the orphans don't bother you, then proceed "
    "as usual.";
constexpr char kCompileNotice[] =
    "Create Worksheet|It will take a few seconds to compile the worksheet. During that time, do "
    "not use the keyboard or mouse. Click OK when you are ready to begin.";
constexpr char kAllDone[] =
    "All done!|Ok! This crossword worksheet is ready for editing, saving, or printing!";

using Lines = std::vector<std::string>;

class CrosswordFlow : public Teacher {
 protected:
  void UseList(const Lines& words) {
    std::string lines = "Words\r\n";
    for (const std::string& word : words) lines += word + "\r\nmeaning of " + word + "\r\n";
    folder.Write("TheLists.dat", lines);
  }
  void WalkToOptions() {
    Start();
    Click(Screen::Title, "Command1", kCrossword);
    auto& lists = dynamic_cast<ListBox&>(*On<Form>(Screen::ChooseList).FindControl("TheLists"));
    Do([&] { lists.ClickRow(0); });
    Click(Screen::ChooseList, "Command1");
    Click(Screen::QuizOptions5, "Command1");
  }
  // Up to the request to wait: all words, chosen by hand or as the best puzzle.
  void WalkToBuild(bool best = false) {
    WalkToOptions();
    Click(Screen::CrossOption1, "Command1");
    Click(Screen::CrossOption2, best ? "Command1" : "Command2");
    if (best) return;
    Click(Screen::PickWords, "ChooseRandom");
    Click(Screen::PickWords, "Command2");
  }
  void WalkToPuzzle(bool best = false) {
    WalkToBuild(best);
    Tick(1001);
  }
  Label& Square(Screen grid, int column, int row) {
    return On<GridForm>(grid).SquareAt(column, row);
  }
  std::string SheetText() {
    return code_page::FromUnicode(
        On<CrosswordWorksheet>(Screen::CrosswordWorksheet).QuizBox.PlainText());
  }
  static int CountPictures(const RichText& box) {
    int pictures = 0;
    for (int i = 0; i < box.Length(); ++i) pictures += box.FormatAt(i).picture != nullptr ? 1 : 0;
    return pictures;
  }
};

TEST_F(CrosswordFlow, TheRequestToWaitIsInFrontBeforeTheBuildBegins) {
  WalkToBuild();
  EXPECT_TRUE(Active(Screen::PleaseWait));
  EXPECT_FALSE(Loaded(Screen::CrossPrint));
  EXPECT_TRUE(Loaded(Screen::CrossWord));
  Tick(1);
  EXPECT_TRUE(Active(Screen::CrossPrint));
  const auto at = [&](const char* event) {
    return std::find(platform.events.begin(), platform.events.end(), event);
  };
  EXPECT_LT(at("activated PleaseWait"), at("activated CrossPrint"));
  EXPECT_LT(at("activated CrossPrint"), at("hidden PickWords"));
}

TEST_F(CrosswordFlow, TheBarMovesOnAtEachRestart) {
  UseList({"cat", "dog"});
  WalkToOptions();
  Do([&] {
    dynamic_cast<HScrollBar&>(*On<Form>(Screen::CrossOption1).FindControl("QualityBar")).Move(40);
  });
  Click(Screen::CrossOption1, "Command1");
  Click(Screen::CrossOption2, "Command2");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  EXPECT_EQ(On<PleaseWait>(Screen::PleaseWait).ProgressBar1.Max, 40);
  const int before = platform.changes;
  Tick(1);
  // At 14 to 31 restarts the required share of two words is both of them; at 32 every grid passes.
  EXPECT_EQ(On<PleaseWait>(Screen::PleaseWait).ProgressBar1.Value, 32);
  EXPECT_GE(platform.changes, before + 32);
}

TEST_F(CrosswordFlow, TheOrphanNoticeComesOnceAPuzzleOnItsFirstActivation) {
  UseList({"cat", "dog"});
  WalkToPuzzle();
  EXPECT_EQ(platform.log, Lines{kOrphanNotice});
  EXPECT_FALSE(program.shared.OrphansFlag);
  Click(Screen::CrossPrint, "Command1");
  Do([&] { program.forms().Key(On<Form>(Screen::CrossWord)); });
  EXPECT_TRUE(Active(Screen::CrossPrint));
  EXPECT_EQ(platform.log.size(), 1u);
  Click(Screen::CrossPrint, "Command6");
  Tick(1101);
  EXPECT_EQ(platform.log, (Lines{kOrphanNotice, kOrphanNotice}));
}

TEST_F(CrosswordFlow, TheTimersGoOnBehindTheOrphanNotice) {
  UseList({"cat", "dog"});
  WalkToBuild();
  platform.while_box_is_open = [this] {
    Tick(5000);
    EXPECT_FALSE(Loaded(Screen::PickWords));
    EXPECT_FALSE(On<Form>(Screen::PleaseWait).Visible);
  };
  Tick(1);
  EXPECT_EQ(platform.log, Lines{kOrphanNotice});
  EXPECT_TRUE(Active(Screen::CrossPrint));
  EXPECT_FALSE(program.Ended());
}

TEST_F(CrosswordFlow, APuzzleWithoutOrphansSaysNothing) {
  WalkToPuzzle();
  EXPECT_TRUE(platform.log.empty());
}

TEST_F(CrosswordFlow, ThePuzzleRemadeUsesTheSameMarkedWords) {
  UseList({"cat", "tan", "net", "tea"});
  WalkToOptions();
  Click(Screen::CrossOption1, "Command1");
  Click(Screen::CrossOption2, "Command2");
  auto& words = On<PickWords>(Screen::PickWords).TheWords;
  Do([&] { words.ClickCheck(1); });
  Do([&] { words.ClickCheck(3); });
  Click(Screen::PickWords, "Command2");
  Tick(1001);
  for (int remake = 0; remake < 5; ++remake) {
    EXPECT_EQ(program.shared.MarkedCount, 2);
    std::vector<int> order = {program.shared.AnswerTable(1), program.shared.AnswerTable(2)};
    std::sort(order.begin(), order.end());
    EXPECT_EQ(order, (std::vector<int>{2, 4}));
    Click(Screen::CrossPrint, "Command6");
    EXPECT_FALSE(Loaded(Screen::CrossWord));
    EXPECT_FALSE(Loaded(Screen::NewCross1));
    EXPECT_FALSE(Loaded(Screen::CrossWordFill));
    EXPECT_FALSE(Loaded(Screen::CrossPrint));
    Tick(1100);
    EXPECT_TRUE(Active(Screen::CrossPrint));
  }
}

TEST_F(CrosswordFlow, TheBestPuzzleIsRemadeFromAllWordsThoughNoMarksWereKept) {
  UseList({"cat", "tan", "net", "tea"});
  WalkToPuzzle(true);
  EXPECT_EQ(program.shared.CrossMarks(1), 0);
  Click(Screen::CrossPrint, "Command6");
  Tick(1100);
  EXPECT_TRUE(Active(Screen::CrossPrint));
  EXPECT_EQ(program.shared.MarkedCount, 4);
}

// --- What stands on the screens and in the worksheet, whatever the draws.

TEST_F(CrosswordFlow, EveryClueLeadsToItsWordOnTheSolvedGrid) {
  const Lines words = {"mars",    "venus",   "earth", "saturn", "uranus", "neptune",
                       "mercury", "jupiter", "moon",  "sun",    "comet",  "star"};
  UseList(words);
  for (std::uint64_t seed = 1; seed <= 40; ++seed) {
    random.Seed(seed);
    WalkToPuzzle();
    // Where each number stands.
    std::map<std::string, std::pair<int, int>> starts;
    for (int column = 1; column <= 37; ++column) {
      for (int row = 1; row <= 29; ++row) {
        const Label& numbered = Square(Screen::NewCross1, column, row);
        const Label& solved = Square(Screen::CrossWord, column, row);
        ASSERT_EQ(numbered.Visible(), solved.Visible()) << column << ' ' << row;
        if (!numbered.Caption().empty()) starts[numbered.Caption] = {column, row};
      }
    }
    auto& fill = On<CrossWordFill>(Screen::CrossWordFill);
    for (const bool across : {true, false}) {
      const RichTextBox& box = across ? fill.ClueBox : fill.ClueBox2;
      std::istringstream lines(code_page::FromUnicode(box.PlainText()));
      for (std::string line; std::getline(lines, line);) {
        const auto bracket = line.find(") meaning of ");
        if (bracket == std::string::npos) continue;
        const auto digit = line.find_first_not_of(' ');
        const std::string number = " " + line.substr(digit, bracket - digit);
        ASSERT_TRUE(starts.count(number)) << line;
        auto [column, row] = starts[number];
        for (const char letter : line.substr(bracket + 13)) {
          const Label& square = Square(Screen::CrossWord, column, row);
          ASSERT_TRUE(square.Visible) << line;
          // A word across may be written over a letter of one that goes down.
          if (across) {
            ASSERT_EQ(square.Caption(), std::string(1, letter)) << line;
          }
          across ? ++column : ++row;
        }
      }
    }
    Do([&] { program.forms().Show(Screen::Title); });
    for (const Screen screen : {Screen::CrossPrint, Screen::CrossWord, Screen::NewCross1,
                                Screen::CrossWordFill, Screen::PleaseWait, Screen::Title}) {
      program.forms().Unload(screen);
    }
  }
}

TEST_F(CrosswordFlow, TheWorksheetHoldsEachGridOnceAndTheCluesInOrder) {
  WalkToPuzzle();
  Click(Screen::CrossPrint, "Command5");
  Tick(6000);
  EXPECT_EQ(platform.log, (Lines{kCompileNotice, kAllDone}));
  auto& sheet = On<CrosswordWorksheet>(Screen::CrosswordWorksheet);
  EXPECT_EQ(CountPictures(sheet.QuizBox), 1);
  EXPECT_EQ(CountPictures(*sheet.AnswerBox1), 1);
  const std::string text = SheetText();
  const auto picture = text.find('?');  // what a picture's place is in the code page
  EXPECT_LT(text.find("Directions: "), picture);
  EXPECT_LT(picture, text.find("Across:\n"));
  EXPECT_LT(text.find("Across:\n"), text.find("Down:\n"));
  Lines photographs;
  for (const std::string& event : platform.events) {
    if (event.starts_with("photographed ")) photographs.push_back(event);
  }
  EXPECT_EQ(photographs, (Lines{"photographed NewCross1", "photographed CrossWord"}));
}

TEST_F(CrosswordFlow, NothingThatComesBetweenSpoilsTheWorksheet) {
  WalkToPuzzle();
  Click(Screen::CrossPrint, "Command5");
  // Another program comes to the front, keys and clicks come in at every moment.
  for (int moment = 0; moment < 60 && platform.log.size() < 2; ++moment) {
    Tick(100);
    Form* front = program.forms().Front();
    ASSERT_NE(front, nullptr);
    Do([&] { program.forms().Deactivate(*front); });
    if (moment % 3 == 0) Do([&] { program.forms().Activate(*front); });
    Do([&] { program.forms().Click(*front); });
    Do([&] { program.forms().Key(*front); });
  }
  EXPECT_EQ(platform.log, (Lines{kCompileNotice, kAllDone}));
  auto& sheet = On<CrosswordWorksheet>(Screen::CrosswordWorksheet);
  EXPECT_EQ(CountPictures(sheet.QuizBox), 1);
  EXPECT_EQ(CountPictures(*sheet.AnswerBox1), 1);
}

TEST_F(CrosswordFlow, WhileTheGridsArePastedTheSheetTakesNoInput) {
  WalkToPuzzle();
  Click(Screen::CrossPrint, "Command5");
  Tick(1500);
  auto& sheet = On<CrosswordWorksheet>(Screen::CrosswordWorksheet);
  EXPECT_TRUE(Active(Screen::CrosswordWorksheet));
  EXPECT_FALSE(sheet.Toolbar1.Enabled);
  EXPECT_FALSE(sheet.QuizBox.Enabled);
  Tick(4500);
  EXPECT_TRUE(sheet.Toolbar1.Enabled);
  EXPECT_TRUE(sheet.QuizBox.Enabled);
  EXPECT_TRUE(sheet.AnswerBox1->Enabled);
  EXPECT_TRUE(sheet.QuizBox.HasFocus());
}

TEST_F(CrosswordFlow, TheWordProcessorButtonWaitsForASettingAsOnAllWorksheets) {
  folder.Write("brindlepage.dat", "a\r\nb\r\nC:\\Writer.exe \r\nlistpath\r\n");
  WalkToPuzzle();
  Click(Screen::CrossPrint, "Command5");
  Tick(6000);
  EXPECT_TRUE(On<CrosswordWorksheet>(Screen::CrosswordWorksheet).Toolbar1.Button(4).Enabled);
}

TEST_F(CrosswordFlow, TheHiddenClueFormHidesOnAKey) {
  WalkToPuzzle();
  Do([&] { program.forms().Show(Screen::CrossWordFill); });
  EXPECT_TRUE(Active(Screen::CrossWordFill));
  Do([&] { program.forms().Key(On<Form>(Screen::CrossWordFill)); });
  EXPECT_FALSE(On<Form>(Screen::CrossWordFill).Visible);
  EXPECT_TRUE(Active(Screen::CrossPrint));
}

TEST_F(CrosswordFlow, AGridWithMoreThanAHundredNumbersEndsTheProgram) {
  // Not reached with these words; the fault of the numbering is what ends it.
  WalkToPuzzle();
  CrosswordGrid crowded;
  for (int cell = 1; cell <= 101; ++cell) {
    crowded.StartNumbers(cell % 37 + 1, cell / 37 + 1, cell);
  }
  Do([&] { NumberGrid(crowded, 101); });
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(platform.log.back(), "error 9 Subscript out of range");
}

// --- Quick print

class QuickPrinting : public CrosswordFlow {
 protected:
  QuickPrinting() { UseList({"cat", "tan"}); }
  void QuickPrint() {
    Do([&] { On<CrossPrint>(Screen::CrossPrint).ConfirmQuickPrint(); });
  }
  const std::string kConfirm =
      "Confirm Print|The Quick-Print results will not be as good as if you printed this crossword "
      "as a worksheet. For the best format, you should first click the <Edit as Worksheet> button "
      "and print from there. Would you like to Quick-Print anyway?";
};

TEST_F(QuickPrinting, NoPrintsNothing) {
  WalkToPuzzle();
  platform.answers = {BoxAnswer::No};
  QuickPrint();
  EXPECT_EQ(platform.log, Lines{kConfirm});
  EXPECT_EQ(platform.printed.str(), "");
}

TEST_F(QuickPrinting, ThePageHoldsThePictureTheNameTheTitleAndTheClues) {
  WalkToPuzzle();
  auto& fill = On<CrossWordFill>(Screen::CrossWordFill);
  fill.ClueBox.Text(" 1) a light brown\n");
  fill.ClueBox2.Text(" 2) it purrs\n");
  platform.answers = {BoxAnswer::Yes, BoxAnswer::No};
  QuickPrint();
  EXPECT_EQ(platform.log, (Lines{kConfirm, "Answer Key?|Also print answer key?",
                                 "Puzzle printed.|Puzzle has been sent to the printer"}));
  // Lines of 12 points are 288 twips high here, of 8 points 192, of 10 points 240. The title has
  // 15 characters: (12,240 - 250 x 15) / 2 = 4,245. The picture is 7,200 high.
  EXPECT_EQ(platform.printed.str(),
            "page-picture 0 0 png 10800 7200\n"
            "page-text 0 288 \"Times New Roman\" 12 --- \"              "
            "Name_______________________________                Date____________________\"\n"
            "page-text 4245 768 \"Times New Roman\" 16 b-- \"Words Crossword\"\n"
            "page-text 0 7600 \"Times New Roman\" 10 b-u \"Across\"\n"
            "page-text 0 7840 \"Times New Roman\" 10 --- \" 1) a light brown\"\n"
            "page-text 0 8080 \"Times New Roman\" 10 b-u \"Down\"\n"
            "page-text 0 8320 \"Times New Roman\" 10 --- \" 2) it purrs\"\n"
            "pages-printed\n");
}

TEST_F(QuickPrinting, TheKeyIsThePictureOfTheSolvedGrid) {
  WalkToPuzzle();
  QuickPrint();
  const std::string printed = platform.printed.str();
  const auto key = printed.find("pages-printed\n") + 14;
  const FormPicture solved = platform.PictureOf(On<Form>(Screen::CrossWord));
  EXPECT_EQ(printed.substr(key), "page-picture 0 0 png " + std::to_string(solved.width) + " " +
                                     std::to_string(solved.height) + "\npages-printed\n");
}

TEST_F(QuickPrinting, CluesThatReachThePagesEndGoOnOnTheNext) {
  WalkToPuzzle();
  std::string clues;
  for (int line = 1; line <= 60; ++line) clues += std::to_string(line) + ") a clue\n";
  On<CrossWordFill>(Screen::CrossWordFill).ClueBox.Text(clues);
  platform.answers = {BoxAnswer::Yes, BoxAnswer::No};
  QuickPrint();
  const std::string printed = platform.printed.str();
  // From 7,840 on, lines of 240 twips end at 15,840: 33 of them.
  const auto page = printed.find("page-new\n");
  ASSERT_NE(page, std::string::npos);
  EXPECT_EQ(printed.find("\"33) a clue\"\npage-new\n"), page - 13);
  EXPECT_EQ(printed.find("page-text 0 0 \"Times New Roman\" 10 --- \"34) a clue\"\n"), page + 9);
}

}  // namespace
}  // namespace brindlepage
