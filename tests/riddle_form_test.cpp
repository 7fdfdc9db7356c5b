#include "riddle/riddle_form.h"

#include "tests/sheet_runs.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

class RiddleFormTest : public Teacher {
 protected:
  RiddleFormTest() { folder.Write("Riddles.dat", "Who?\r\nA hen\r\nWhy?\r\nNot\r\n"); }

  // From the menu to the sheet, by the riddle on that page of the book.
  void Walk(int page) {
    Click(Screen::Title, "Command1", kRiddle);
    Do([&] {
      dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"))
          .ClickRow(0);
    });
    Click(Screen::ChooseList, "Command1");
    for (int i = 1; i < page; ++i) Click(Screen::ChooseRiddle, "Image1");
    Click(Screen::ChooseRiddle, "Command2");
    Click(Screen::QuizOptions5, "Command1");
    Click(Screen::PickWords, "ChooseRandom");
    Click(Screen::PickWords, "Command2");
  }
  RiddleForm& Sheet() { return On<RiddleForm>(Screen::RiddleForm); }
};

TEST_F(RiddleFormTest, FromTheMenuToSheetAndKey) {
  Start();
  Walk(2);
  ASSERT_TRUE(Active(Screen::RiddleForm));
  EXPECT_FALSE(Loaded(Screen::PickWords));
  EXPECT_EQ(Sheet().Caption(), "Riddle Worksheet");
  const std::string sheet = PlainBytes(Sheet().QuizBox);
  EXPECT_NE(sheet.find("\nPlanets Secret Riddle Worksheet\n"), std::string::npos);
  EXPECT_NE(sheet.find("\nRiddle: Why?\n"), std::string::npos);
  EXPECT_NE(sheet.find("\nThe Answer:\n\n"), std::string::npos);
  EXPECT_NE(PlainBytes(Sheet().AnswerBox).find("\nAnswer: Not"), std::string::npos);
  EXPECT_EQ(Sheet().QuizBox.SelStart(), 1);
  EXPECT_EQ(Sheet().cmbFontColor.Text(), "Black");
}

TEST_F(RiddleFormTest, BackLeavesTheSheetLoadedBehindTheMenu) {
  Start();
  Walk(1);
  Click(Screen::RiddleForm, "Back");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_TRUE(Loaded(Screen::RiddleForm));
}

TEST_F(RiddleFormTest, TheNextRiddleOfTheRunShowsTheOldDocument) {
  Start();
  Walk(1);
  Do([&] { Sheet().QuizBox.SelText("written by hand"); });
  const std::string old = PlainBytes(Sheet().QuizBox);
  Click(Screen::RiddleForm, "Back");
  Walk(2);
  ASSERT_TRUE(Active(Screen::RiddleForm));
  EXPECT_EQ(program.shared.RiddleText, "Why?");
  EXPECT_EQ(PlainBytes(Sheet().QuizBox), old);
  EXPECT_EQ(program.shared.WordMarks(1), 1);  // nothing was composed
}

TEST_F(RiddleFormTest, AboutOpensTheBox) {
  Start();
  Walk(1);
  Click(Screen::RiddleForm, "About");
  EXPECT_TRUE(Loaded(Screen::AboutForm));
}

TEST_F(RiddleFormTest, ATypedAnswerOfMoreThanThreeHundredCharactersEndsTheProgram) {
  Start();
  folder.Write("Riddles.dat", "Who?\r\n" + std::string(301, '?') + "\r\n");
  Walk(1);
  EXPECT_EQ(platform.log, (std::vector<std::string>{"error 9 Subscript out of range"}));
}

TEST_F(RiddleFormTest, MoreThanAHundredAndFiftyMarkedWordsEndTheProgram) {
  std::string list = "Long\r\n";
  for (int i = 0; i < 151; ++i) list += "word\r\nmeaning\r\n";
  folder.Write("TheLists.dat", list);
  Start();
  Walk(1);
  EXPECT_EQ(platform.log, (std::vector<std::string>{"error 9 Subscript out of range"}));
}

TEST_F(RiddleFormTest, WordsOfMoreThanThirteenCharactersAreNotOffered) {
  folder.Write("TheLists.dat", "L\r\nthirteenchars\r\nx\r\nfourteenletter\r\ny\r\n");
  Start();
  Walk(1);
  EXPECT_EQ(program.shared.MarkedCount, 1);
  EXPECT_EQ(program.shared.ListWords(1), "thirteenchars");
}

}  // namespace
}  // namespace brindlepage
