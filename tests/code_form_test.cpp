#include "scramble_code/code_form.h"

#include "scramble_code/scramble.h"
#include "tests/sheet_runs.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

class CodeFormTest : public Teacher {
 protected:
  void OpenRiddles(const char* activity) {
    folder.Write("Riddles.dat", "Who?\r\nNobody\r\n");
    Start();
    Click(Screen::Title, "Command3");
    Click(Screen::JustForFun, activity);
    Click(Screen::RiddleOption1, "Command3");
    Click(Screen::RiddleOption1, "Command2");
    Click(Screen::QuizOptions5, "Command1");
  }
  void OpenSecretCode() {
    WalkToPickWords("Planets", kSecretCode);
    Click(Screen::PickWords, "ChooseRandom");
    Click(Screen::PickWords, "Command2");
  }
  CodeForm& Sheet() { return On<CodeForm>(Screen::CodeForm); }
  bool Shows(const RichText& box, const char* text) {
    return PlainBytes(box).find(text) != std::string::npos;
  }
};

TEST_F(CodeFormTest, SecretCodeFromTheMenuToSheetAndKey) {
  OpenSecretCode();
  ASSERT_TRUE(Active(Screen::CodeForm));
  EXPECT_EQ(Sheet().Caption(), "Secret Code Worksheet");
  EXPECT_FALSE(Loaded(Screen::PickWords));
  EXPECT_TRUE(Shows(Sheet().QuizBox, "\nPlanets Secret Code Worksheet\n"));
  EXPECT_TRUE(Shows(Sheet().QuizBox, "\nCode Key:"));
  EXPECT_TRUE(Shows(Sheet().AnswerBox, ")  Mars\n"));
  EXPECT_TRUE(Sheet().QuizBox.Visible);
  EXPECT_FALSE(Sheet().AnswerBox.Visible);
  EXPECT_EQ(Sheet().QuizBox.SelStart(), 1);
  ClickToolbar(Screen::CodeForm, "Key");
  EXPECT_TRUE(Sheet().AnswerBox.Visible);
}

TEST_F(CodeFormTest, CodedRiddlesKeepTheFormsCaption) {
  OpenRiddles("Command2");
  ASSERT_TRUE(Active(Screen::CodeForm));
  EXPECT_EQ(program.shared.ActivityKind, kCodedRiddles);
  EXPECT_EQ(Sheet().Caption(), "Secret Code Worksheet");
  EXPECT_EQ(program.shared.WorksheetTitle, "Coded Riddles Worksheet");
  EXPECT_TRUE(Shows(Sheet().QuizBox, " 1)  Who?\n\n      ["));
  EXPECT_TRUE(Shows(Sheet().AnswerBox, " 1)  Who?\n      Nobody\n\n"));
}

TEST_F(CodeFormTest, ACryptoquipHasACaptionOfItsOwnAndNoKeyToTheCode) {
  OpenRiddles("Command3");
  ASSERT_TRUE(Active(Screen::CodeForm));
  EXPECT_EQ(program.shared.ActivityKind, kCryptoquip);
  EXPECT_EQ(Sheet().Caption(), "CryptoQuip Worksheet");
  EXPECT_FALSE(Shows(Sheet().QuizBox, "Code Key:"));
  EXPECT_TRUE(Shows(Sheet().QuizBox, " 1)  Who?\n      Hint: "));
}

TEST_F(CodeFormTest, ACryptoquipBeforeAnyListHasNoKeyToOfferAndAfterOneItHas) {
  OpenRiddles("Command3");
  EXPECT_EQ(program.shared.AnswerKeyWanted, 0);
  Click(Screen::CodeForm, "Back");
  Click(Screen::Title, "Command1", kSecretCode);
  Do([&] {
    dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"))
        .ClickRow(0);
  });
  Click(Screen::ChooseList, "Command1");
  EXPECT_EQ(program.shared.AnswerKeyWanted, 1);
}

TEST_F(CodeFormTest, AVerySmallFormGivesTheBoxesNegativeSizes) {
  OpenSecretCode();
  const int toolbar = Sheet().Toolbar1.Height;
  Do([&] { program.forms().Resize(Sheet(), 40, 600); });
  EXPECT_EQ(Sheet().QuizBox.Width, -10);
  EXPECT_EQ(Sheet().QuizBox.Height, 600 - toolbar - 650);
  EXPECT_EQ(Sheet().AnswerBox.Width, -10);
}

TEST_F(CodeFormTest, AboutDoesNothingHere) {
  OpenSecretCode();
  Click(Screen::CodeForm, "About");
  EXPECT_TRUE(Active(Screen::CodeForm));
  EXPECT_FALSE(Loaded(Screen::AboutForm));
}

TEST_F(CodeFormTest, BackReturnsToTheMenuAndDropsTheSheet) {
  OpenSecretCode();
  Click(Screen::CodeForm, "Back");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::CodeForm));
}

TEST_F(CodeFormTest, AnAnswerOfOneLetterTooFewIsNoTroubleForCodedRiddles) {
  folder.Write("Riddles.dat", "Who?\r\nI\r\n");
  Start();
  Click(Screen::Title, "Command3");
  Click(Screen::JustForFun, "Command2");
  Click(Screen::RiddleOption1, "Command3");
  Click(Screen::RiddleOption1, "Command2");
  Click(Screen::QuizOptions5, "Command1");
  EXPECT_TRUE(Active(Screen::CodeForm));
}

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
