#include "scramble_code/scramble.h"

#include "tests/sheet_runs.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

class ScrambleTest : public Teacher {
 protected:
  void Open() {
    Start();
    Click(Screen::Title, "Command1", kScramble);
    Do([&] {
      dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"))
          .ClickRow(0);
    });
    Click(Screen::ChooseList, "Command1");
    Click(Screen::ScrambleOption1, "Command1");
    Click(Screen::QuizOptions5, "Command1");
    Click(Screen::PickWords, "ChooseRandom");
    Click(Screen::PickWords, "Command2");
  }
  Scramble& Sheet() { return On<Scramble>(Screen::Scramble); }
};

TEST_F(ScrambleTest, FromTheMenuToSheetAndKey) {
  Open();
  ASSERT_TRUE(Active(Screen::Scramble));
  EXPECT_EQ(Sheet().Caption(), "Scamble Worksheet");
  EXPECT_NE(PlainBytes(Sheet().QuizBox).find("     Hint: "), std::string::npos);
  EXPECT_NE(PlainBytes(Sheet().AnswerBox).find(")  Venus\n"), std::string::npos);
  for (int word = 1; word <= 3; ++word) EXPECT_EQ(program.shared.WordMarks(word), 0);
}

TEST_F(ScrambleTest, ASmallFormKeepsItsBoxes) {
  Open();
  Do([&] { program.forms().Resize(Sheet(), 9000, 6000); });
  const int width = Sheet().QuizBox.Width;
  EXPECT_EQ(Sheet().AnswerBox.Width, width);
  Do([&] { program.forms().Resize(Sheet(), 1000, 6000); });
  EXPECT_EQ(Sheet().QuizBox.Width, width);
}

TEST_F(ScrambleTest, AboutDoesNothingHere) {
  Open();
  EXPECT_EQ(
      std::get<std::string>(*dynamic_cast<MenuItem*>(Sheet().FindControl("About"))->Caption.Ask()),
      "About this program");
  Click(Screen::Scramble, "About");
  EXPECT_FALSE(Loaded(Screen::AboutForm));
}

TEST_F(ScrambleTest, AnEntryOfTwentySixCharactersEndsTheProgram) {
  folder.Write("TheLists.dat", "Long\r\nabcdefghijklmnopqrstuvwxyz\r\nall of them\r\n");
  Open();
  EXPECT_EQ(platform.log, (std::vector<std::string>{"error 9 Subscript out of range"}));
}

}  // namespace
}  // namespace brindlepage
