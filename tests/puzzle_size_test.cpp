#include "wordsearch/puzzle_size.h"

#include "tests/expect_fault.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

class PuzzleSizeTest : public Teacher {
 protected:
  PuzzleSize& Open() {
    if (!Loaded(Screen::Title)) Start();
    Do([&] { program.forms().Show(Screen::PuzzleSize); });
    return On<PuzzleSize>(Screen::PuzzleSize);
  }
  SharedState& shared = program.shared;
};

TEST_F(PuzzleSizeTest, ItStartsAt20By20) {
  PuzzleSize& form = Open();
  EXPECT_EQ(form.Caption(), "Puzzle Size");
  EXPECT_EQ(form.VScrollx.Value, 20);
  EXPECT_EQ(form.VScrolly.Value, 20);
  EXPECT_EQ(form.Labelx.Caption(), " 20");
  EXPECT_EQ(form.Labely.Caption(), " 20");
  EXPECT_EQ(form.Label1.Caption(), "How big do you want this puzzle to be?");
  EXPECT_EQ(form.Label2.Caption(),
            "Note: The program will use this number as a minimum. The puzzle size may have to be "
            "adjusted to make all of the words fit...");
  EXPECT_EQ(form.Label3.Caption(), "Across:");
  EXPECT_EQ(form.Label4.Caption(), "Down:");
  EXPECT_NE(form.Picture(), nullptr);
  EXPECT_EQ(form.Left, 1024 * 15 / 2 - form.Width / 2);
}

TEST_F(PuzzleSizeTest, EachBarShowsItsOwnValue) {
  PuzzleSize& form = Open();
  Do([&] { form.VScrollx.Move(12); });
  EXPECT_EQ(form.Labelx.Caption(), " 12");
  EXPECT_EQ(form.Labely.Caption(), " 20");
  Do([&] { form.VScrolly.Move(27); });
  EXPECT_EQ(form.Labelx.Caption(), " 12");
  EXPECT_EQ(form.Labely.Caption(), " 27");
}

TEST_F(PuzzleSizeTest, TheBarsGoFrom10To30) {
  PuzzleSize& form = Open();
  for (HScrollBar* bar : {&form.VScrollx, &form.VScrolly}) {
    Do([&] { bar->Move(9); });
    EXPECT_EQ(bar->Value, 10);
    Do([&] { bar->Move(31); });
    EXPECT_EQ(bar->Value, 30);
  }
  EXPECT_FAULT(5, form.VScrollx.Value = 31);
}

TEST_F(PuzzleSizeTest, OkTakesTheSizeAndMakesThePuzzle) {
  PuzzleSize& form = Open();
  shared.ListWords(1) = "lava";
  shared.WordMarks(1) = 1;
  shared.MarkedCount = 1;
  Do([&] { form.VScrollx.Move(12); });
  Do([&] { form.VScrolly.Move(15); });
  Click(Screen::PuzzleSize, "Command1");
  EXPECT_EQ(shared.PuzzleAcross, 12);
  EXPECT_EQ(shared.PuzzleDown, 15);
  EXPECT_TRUE(Active(Screen::WordSearchForm));
  EXPECT_FALSE(Loaded(Screen::PuzzleSize));
}

TEST_F(PuzzleSizeTest, GoBackReturnsToTheOptionsAndForgetsTheBars) {
  shared.PuzzleAcross = 17;
  PuzzleSize& form = Open();
  Do([&] { form.VScrollx.Move(12); });
  Click(Screen::PuzzleSize, "Command2");
  EXPECT_TRUE(Active(Screen::QuizOptions));
  EXPECT_FALSE(Loaded(Screen::PuzzleSize));
  EXPECT_EQ(shared.PuzzleAcross, 17);
  Click(Screen::QuizOptions, "Command1");
  EXPECT_EQ(On<PuzzleSize>(Screen::PuzzleSize).VScrollx.Value, 20);
  EXPECT_EQ(On<PuzzleSize>(Screen::PuzzleSize).Labelx.Caption(), " 20");
}

TEST_F(PuzzleSizeTest, ClosingTheFrameEndsTheProgram) {
  PuzzleSize& form = Open();
  Do([&] { program.forms().Unload(Screen::Title); });
  Do([&] { program.forms().Close(form); });
  EXPECT_TRUE(program.Ended());
}

TEST_F(PuzzleSizeTest, EnterIsOkAndEscapeIsGoBack) {
  PuzzleSize& form = Open();
  EXPECT_TRUE(form.Command1.Default);
  Do([&] { form.ClickCancel(); });
  EXPECT_TRUE(Active(Screen::QuizOptions));
}

}  // namespace
}  // namespace brindlepage
