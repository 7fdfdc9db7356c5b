#include "riddle/riddle_option1.h"

#include "tests/teacher.h"

namespace brindlepage {
namespace {

class RiddleOption1Test : public Teacher {
 protected:
  void Open(const char* riddles = "Q1\r\nA1\r\nQ2\r\nA2\r\nQ3\r\nA3\r\n") {
    folder.Write("Riddles.dat", riddles);
    Start();
    Click(Screen::Title, "Command3");
    Click(Screen::JustForFun, "Command2");
  }
  void Press(const char* control) { Click(Screen::RiddleOption1, control); }
  void Next() { Press("Image1"); }
  void Previous() { Press("Image2"); }
  void Add() { Press("Command3"); }
  void Type(const char32_t* riddle, const char32_t* answer) {
    Do([&] {
      Book().RiddleBox.Type(riddle);
      Book().Punchbox.Type(answer);
    });
  }
  RiddleOption1& Book() { return On<RiddleOption1>(Screen::RiddleOption1); }
  std::string Page() { return Book().RiddleBox.Text() + "/" + Book().Punchbox.Text(); }
  std::vector<std::string> TakeLog() { return std::exchange(platform.log, {}); }

  SharedState& shared = program.shared;
  const std::vector<std::string> kBeep{"beep"};
  const std::vector<std::string> kNothing;
};

TEST_F(RiddleOption1Test, ItOpensAtTheFirstRiddleWithNothingCollected) {
  shared.CodedRiddleCount = 7;
  shared.CodedRiddles(7) = "old";
  shared.CodedAnswers(20) = "old";
  Open();
  EXPECT_EQ(Book().Caption(), "Coded Riddles Worksheet");
  EXPECT_EQ(Book().Command2.Caption(), "Continue");
  EXPECT_EQ(Book().Command3.Caption(), "Add This Riddle To The WorkSheet");
  EXPECT_EQ(Book().TotalLabel.Caption(), "Total Riddles Selected for This WorkSheet: 0");
  EXPECT_EQ(Page(), "Q1/A1");
  EXPECT_EQ(shared.CodedRiddleCount, 0);
  EXPECT_EQ(shared.CodedRiddles(7), "");
  EXPECT_EQ(shared.CodedAnswers(20), "");
}

TEST_F(RiddleOption1Test, LeafingWithoutAdding) {
  Open();
  Next();
  EXPECT_EQ(Page(), "Q2/A2");
  Next();
  Next();
  EXPECT_EQ(Page(), "Q3/A3");
  EXPECT_EQ(TakeLog(), kBeep);
  Previous();
  Previous();
  EXPECT_EQ(Page(), "Q1/A1");
  Previous();
  EXPECT_EQ(Page(), "Q1/A1");
  EXPECT_EQ(TakeLog(), kBeep);
}

TEST_F(RiddleOption1Test, AddingTakesTheRiddleOutOfTheBookAndEmptiesTheBoxes) {
  Open();
  Next();
  Add();
  EXPECT_EQ(Page(), "/");
  EXPECT_EQ(shared.CodedRiddleCount, 1);
  EXPECT_EQ(shared.CodedRiddles(1), "Q2");
  EXPECT_EQ(shared.CodedAnswers(1), "A2");
  EXPECT_EQ(Book().RiddleList.ListCount(), 2);
  EXPECT_EQ(Book().PunchList.List(1), "A3");
  EXPECT_EQ(TakeLog(), kNothing);
}

TEST_F(RiddleOption1Test, TheTotalHasTwoBlanksBeforeItsNumber) {
  Open();
  Add();
  EXPECT_EQ(Book().TotalLabel.Caption(), "Total Riddles Selected for This WorkSheet:  1");
}

TEST_F(RiddleOption1Test, AfterAddingNextShowsTheRiddleThatFollowed) {
  Open();
  Add();
  Next();
  EXPECT_EQ(Page(), "Q2/A2");
  Next();
  EXPECT_EQ(Page(), "Q3/A3");
  EXPECT_EQ(TakeLog(), kNothing);
}

TEST_F(RiddleOption1Test, AfterAddingAnOwnRiddleNextShowsTheOneThatWasOnShow) {
  Open();
  Next();
  Type(U"Mine?", U"Yes");
  Add();
  EXPECT_EQ(shared.CodedRiddles(1), "Mine?");
  EXPECT_EQ(Book().RiddleList.ListCount(), 3);
  Next();
  EXPECT_EQ(Page(), "Q2/A2");
}

TEST_F(RiddleOption1Test, AChangedRiddleStaysInTheBookAndAChangedAnswerDoesNot) {
  Open();
  Type(U"Q1 changed", U"A1");
  Add();
  EXPECT_EQ(Book().RiddleList.ListCount(), 3);
  Next();
  Type(U"Q1", U"another answer");
  Add();
  EXPECT_EQ(Book().RiddleList.ListCount(), 2);
  EXPECT_EQ(Book().PunchList.List(0), "A2");
  EXPECT_EQ(shared.CodedAnswers(2), "another answer");
}

TEST_F(RiddleOption1Test, PreviousLeavesTheAddedRiddleDueForNext) {
  Open();
  Next();
  Add();
  Previous();
  EXPECT_EQ(Page(), "Q1/A1");
  // The first Next goes nowhere, since the step back took none of what is due.
  Next();
  EXPECT_EQ(Page(), "Q1/A1");
  EXPECT_EQ(TakeLog(), kNothing);
  Next();
  EXPECT_EQ(Page(), "Q3/A3");
}

TEST_F(RiddleOption1Test, AfterAddingTheLastNextBeepsAndShowsTheOneBefore) {
  Open();
  Next();
  Next();
  Add();
  Next();
  EXPECT_EQ(Page(), "Q2/A2");
  EXPECT_EQ(TakeLog(), kBeep);
}

TEST_F(RiddleOption1Test, WithAllAddedLeafingBeepsAndShowsNothing) {
  Open("Q1\r\nA1\r\n");
  Add();
  Next();
  EXPECT_EQ(Page(), "/");
  Next();
  Previous();
  EXPECT_EQ(Page(), "/");
  EXPECT_EQ(TakeLog(), (std::vector<std::string>{"beep", "beep", "beep"}));
  Type(U"Mine?", U"Yes");
  Add();
  EXPECT_EQ(shared.CodedRiddleCount, 2);
}

TEST_F(RiddleOption1Test, AnEmptyRiddleOrAnswerIsRefusedWithABeep) {
  Open();
  Type(U"", U"Yes");
  Add();
  EXPECT_EQ(TakeLog(), kBeep);
  Type(U"Mine?", U"");
  Add();
  EXPECT_EQ(TakeLog(), kBeep);
  EXPECT_EQ(Page(), "Mine?/");
  EXPECT_EQ(shared.CodedRiddleCount, 0);
  EXPECT_EQ(Book().TotalLabel.Caption(), "Total Riddles Selected for This WorkSheet: 0");
}

TEST_F(RiddleOption1Test, TheTwentyFirstRiddleEndsTheProgram) {
  Open("");
  for (int i = 1; i <= 20; ++i) {
    Type(U"Mine?", U"Yes");
    Add();
  }
  EXPECT_EQ(Book().TotalLabel.Caption(), "Total Riddles Selected for This WorkSheet:  20");
  EXPECT_EQ(TakeLog(), kNothing);
  Type(U"Mine?", U"Yes");
  Add();
  EXPECT_EQ(TakeLog(), (std::vector<std::string>{"error 9 Subscript out of range"}));
  EXPECT_TRUE(program.Ended());
}

TEST_F(RiddleOption1Test, ContinueWithoutARiddleBeepsAndSaysSo) {
  Open();
  Press("Command2");
  EXPECT_EQ(TakeLog(), (std::vector<std::string>{
                           "beep", "Hey!|At least one riddle must be added for this worksheet."}));
  EXPECT_TRUE(Active(Screen::RiddleOption1));
}

TEST_F(RiddleOption1Test, ContinueLeadsToTheHeadingWithNoHint) {
  Open();
  shared.CodedRiddleHint = 1;
  Add();
  Press("Command2");
  EXPECT_EQ(shared.CodedRiddleHint, 0);
  EXPECT_TRUE(Active(Screen::QuizOptions5));
  EXPECT_FALSE(Loaded(Screen::RiddleOption1));
}

TEST_F(RiddleOption1Test, ComingBackFromTheHeadingStartsAgain) {
  Open();
  Add();
  Press("Command2");
  Click(Screen::QuizOptions5, "Command2");
  EXPECT_TRUE(Active(Screen::RiddleOption1));
  EXPECT_EQ(shared.CodedRiddleCount, 0);
  EXPECT_EQ(shared.CodedRiddles(1), "");
  EXPECT_EQ(Page(), "Q1/A1");
}

TEST_F(RiddleOption1Test, GoBackReturnsToJustForFun) {
  Open();
  Press("Command1");
  EXPECT_TRUE(Active(Screen::JustForFun));
  EXPECT_FALSE(Loaded(Screen::RiddleOption1));
}

}  // namespace
}  // namespace brindlepage
