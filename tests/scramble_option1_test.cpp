#include "scramble_code/scramble_option1.h"

#include "tests/teacher.h"

namespace brindlepage {
namespace {

class ScrambleOption1Test : public Teacher {
 protected:
  void SetUp() override {
    Start();
    Click(Screen::Title, "Command1", kScramble);
    auto& lists =
        dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"));
    Do([&] { lists.ClickRow(0); });
    Click(Screen::ChooseList, "Command1");
  }
  void Press(const char* control) { Click(Screen::ScrambleOption1, control); }
};

TEST_F(ScrambleOption1Test, ItAsksForTheHint) {
  auto& screen = On<ScrambleOption1>(Screen::ScrambleOption1);
  EXPECT_EQ(screen.Caption(), "Activity Setup");
  EXPECT_EQ(screen.Label1.Caption(), "Give the word meaning as a hint?");
  EXPECT_EQ(screen.Command1.Caption(), "Yes");
  EXPECT_EQ(screen.Command2.Caption(), "No");
  EXPECT_EQ(screen.Command3.Caption(), "Go Back");
}

TEST_F(ScrambleOption1Test, YesAndNoLeadToTheHeading) {
  Press("Command1");
  EXPECT_EQ(program.shared.ScrambleClues, 1);
  EXPECT_TRUE(Active(Screen::QuizOptions5));
  EXPECT_FALSE(Loaded(Screen::ScrambleOption1));
  Click(Screen::QuizOptions5, "Command2");
  auto& lists =
      dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"));
  Do([&] { lists.ClickRow(0); });
  Click(Screen::ChooseList, "Command1");
  Press("Command2");
  EXPECT_EQ(program.shared.ScrambleClues, 0);
  EXPECT_TRUE(Active(Screen::QuizOptions5));
}

TEST_F(ScrambleOption1Test, GoBackReturnsToTheLists) {
  program.shared.ScrambleClues = 1;
  Press("Command3");
  EXPECT_TRUE(Active(Screen::ChooseList));
  EXPECT_FALSE(Loaded(Screen::ScrambleOption1));
  EXPECT_EQ(program.shared.ScrambleClues, 1);
}

}  // namespace
}  // namespace brindlepage
