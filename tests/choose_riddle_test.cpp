#include "riddle/choose_riddle.h"

#include "tests/teacher.h"

namespace brindlepage {
namespace {

class ChooseRiddleTest : public Teacher {
 protected:
  void Open(const char* riddles = "Q1\r\nA1\r\nQ2\r\nA2\r\nQ3\r\nA3\r\n") {
    folder.Write("Riddles.dat", riddles);
    Walk();
  }
  void Walk() {
    Start();
    Click(Screen::Title, "Command1", kRiddle);
    auto& lists =
        dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"));
    Do([&] { lists.ClickRow(0); });
    Click(Screen::ChooseList, "Command1");
  }
  void Press(const char* control) { Click(Screen::ChooseRiddle, control); }
  ChooseRiddle& Book() { return On<ChooseRiddle>(Screen::ChooseRiddle); }
  std::string Page() { return Book().RiddleBox.Text() + "/" + Book().Punchbox.Text(); }
  std::vector<std::string> TakeLog() { return std::exchange(platform.log, {}); }

  SharedState& shared = program.shared;
  const std::vector<std::string> kBeep{"beep"};
  const std::vector<std::string> kNothing;
};

TEST_F(ChooseRiddleTest, ItOpensAtTheFirstRiddle) {
  Open();
  EXPECT_EQ(Book().Caption(), "Choose a Riddle");
  EXPECT_EQ(Book().Label1.Caption(), "Choose a riddle for this activity or type your own...");
  EXPECT_EQ(Book().Label2.Caption(), "Q");
  EXPECT_EQ(Book().Label3.Caption(), "A");
  EXPECT_EQ(Book().Label4.Caption(), "Next Riddle");
  EXPECT_EQ(Book().Label5.Caption(), "Previous Riddle");
  EXPECT_EQ(Book().Command1.Caption(), "Go Back");
  EXPECT_EQ(Book().Command2.Caption(), "Choose This Riddle");
  EXPECT_EQ(Page(), "Q1/A1");
  EXPECT_EQ(Book().PageLabel.Caption(), "Riddle 1 of 3");
  EXPECT_FALSE(Book().RiddleList.Visible);
  EXPECT_FALSE(Book().PunchList.Visible);
  EXPECT_EQ(Book().RiddleList.ListCount(), 3);
  EXPECT_EQ(Book().PunchList.List(2), "A3");
  EXPECT_FALSE(Loaded(Screen::ChooseList));
}

TEST_F(ChooseRiddleTest, PictureAndLabelLeafAlike) {
  Open();
  Press("Image1");
  EXPECT_EQ(Page(), "Q2/A2");
  Press("Label4");
  EXPECT_EQ(Page(), "Q3/A3");
  EXPECT_EQ(Book().PageLabel.Caption(), "Riddle 3 of 3");
  Press("Image2");
  EXPECT_EQ(Page(), "Q2/A2");
  Press("Label5");
  EXPECT_EQ(Page(), "Q1/A1");
  EXPECT_EQ(TakeLog(), kNothing);
}

TEST_F(ChooseRiddleTest, ThePageKeysLeafFromTheBoxes) {
  Open();
  Do([&] { Book().RiddleBox.Press(Key::PageDown); });
  EXPECT_EQ(Page(), "Q2/A2");
  Do([&] { Book().Command2.Press(Key::PageDown); });
  EXPECT_EQ(Page(), "Q3/A3");
  Do([&] { Book().Punchbox.Press(Key::PageUp); });
  EXPECT_EQ(Page(), "Q2/A2");
}

TEST_F(ChooseRiddleTest, BehindTheLastItBeepsAndShowsTheLastAgainOverWhatWasTyped) {
  Open();
  Press("Image1");
  Press("Image1");
  Do([&] { Book().RiddleBox.Type(U"mine"); });
  Press("Image1");
  EXPECT_EQ(TakeLog(), kBeep);
  EXPECT_EQ(Page(), "Q3/A3");
  Press("Image2");
  EXPECT_EQ(TakeLog(), kNothing);
  EXPECT_EQ(Page(), "Q2/A2");
}

TEST_F(ChooseRiddleTest, BeforeTheFirstItBeepsAndShowsTheFirstAgain) {
  Open();
  Do([&] { Book().Punchbox.Type(U"mine"); });
  Press("Label5");
  EXPECT_EQ(TakeLog(), kBeep);
  EXPECT_EQ(Page(), "Q1/A1");
}

TEST_F(ChooseRiddleTest, AnEmptyFileLeavesTheBoxesFreeForTyping) {
  Open("");
  EXPECT_EQ(Page(), "/");
  EXPECT_EQ(Book().PageLabel.Caption(), "No riddles in the book");
  Press("Image1");
  Press("Image2");
  EXPECT_EQ(TakeLog(), (std::vector<std::string>{"beep", "beep"}));
  Do([&] { Book().RiddleBox.Type(U"mine"); });
  Press("Command2");
  EXPECT_EQ(shared.RiddleText, "mine");
  EXPECT_EQ(shared.RiddleAnswer, "");
  EXPECT_TRUE(Active(Screen::QuizOptions5));
}

TEST_F(ChooseRiddleTest, TheRiddleOnShowIsChosenAsItStands) {
  Open();
  Press("Image1");
  Do([&] { Book().Punchbox.Type(U"typed"); });
  Press("Command2");
  EXPECT_EQ(shared.RiddleText, "Q2");
  EXPECT_EQ(shared.RiddleAnswer, "typed");
  EXPECT_TRUE(Active(Screen::QuizOptions5));
  EXPECT_FALSE(Loaded(Screen::ChooseRiddle));
  EXPECT_EQ(TakeLog(), kNothing);
}

TEST_F(ChooseRiddleTest, GoBackReturnsToTheLists) {
  Open();
  Press("Command1");
  EXPECT_TRUE(Active(Screen::ChooseList));
  EXPECT_FALSE(Loaded(Screen::ChooseRiddle));
  EXPECT_EQ(shared.CurrentListName, "");
}

TEST_F(ChooseRiddleTest, AMissingFileEndsTheProgram) {
  std::filesystem::remove("Riddles.dat");
  Walk();
  EXPECT_EQ(TakeLog(), (std::vector<std::string>{"error 53 File not found"}));
  EXPECT_TRUE(program.Ended());
}

TEST_F(ChooseRiddleTest, ARiddleWithoutAnAnswerEndsTheProgram) {
  Open("Q1\r\nA1\r\nQ2\r\n");
  EXPECT_EQ(TakeLog(), (std::vector<std::string>{"error 62 Input past end of file"}));
}

}  // namespace
}  // namespace brindlepage
