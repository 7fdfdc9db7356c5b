#include "scramble_code/code_form.h"

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

}  // namespace
}  // namespace brindlepage
