#include "quiz/quiz_form.h"

#include "core/pick_words.h"
#include "tests/sheet_runs.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

class QuizFormTest : public Teacher {
 protected:
  QuizFormTest() {
    std::string lines = "Letters\r\n";
    for (char letter = 'a'; letter <= 'h'; ++letter) {
      lines += std::string("word ") + letter + "\r\nmeaning " + letter + "\r\n";
    }
    lines += "<New List>\r\nMany\r\n";
    for (int i = 1; i <= 300; ++i) {
      const std::string number = std::to_string(i);
      lines += "the word " + number + "\r\nwhat the word " + number + " means\r\n";
    }
    folder.Write("TheLists.dat", lines);
  }

  QuizForm& Sheet() { return On<QuizForm>(Screen::QuizForm); }
  void MakeQuiz(const char* list = "Letters") {
    WalkToPickWords(list, kQuiz);
    Click(Screen::PickWords, "ChooseRandom");
    Click(Screen::PickWords, "Command2");
  }
  SharedState& shared = program.shared;
};

TEST_F(QuizFormTest, TheSheetAndItsKeyAreFinishedWhenTheFormComesUp) {
  MakeQuiz();
  ASSERT_TRUE(Active(Screen::QuizForm));
  EXPECT_FALSE(Loaded(Screen::PickWords));
  EXPECT_EQ(Sheet().Caption(), "Quiz Form");
  EXPECT_NE(PlainBytes(Sheet().QuizBox).find("\nLetters Quiz\n"), std::string::npos);
  EXPECT_NE(PlainBytes(Sheet().QuizBox).find("_____ 8)  meaning "), std::string::npos);
  EXPECT_EQ(PlainBytes(Sheet().AnswerBox).substr(0, 30), "\nLetters Quiz\nAnswer Key\n\n 1) ");
  EXPECT_EQ(Sheet().QuizBox.SelStart(), 1);
  EXPECT_FALSE(Sheet().AnswerBox.Visible);
  EXPECT_EQ(platform.log, std::vector<std::string>{});
}

TEST_F(QuizFormTest, TheMarksAreUsedUp) {
  MakeQuiz();
  EXPECT_EQ(shared.MarkedCount, 8);
  for (int word = 0; word <= 300; ++word) EXPECT_EQ(shared.WordMarks(word), 0);
}

TEST_F(QuizFormTest, TheKeyButtonShowsTheKey) {
  MakeQuiz();
  EXPECT_TRUE(Sheet().Toolbar1.Button(5).Enabled);
  ClickToolbar(Screen::QuizForm, "Key");
  EXPECT_TRUE(Sheet().AnswerBox.Visible);
  EXPECT_FALSE(Sheet().QuizBox.Visible);
  ClickToolbar(Screen::QuizForm, "Worksheet");
  EXPECT_TRUE(Sheet().QuizBox.Visible);
}

// They are the word search's, in spite of the menu item's name.
TEST_F(QuizFormTest, BackToQuizOptionsShowsQuizOptions) {
  MakeQuiz();
  Click(Screen::QuizForm, "QZBack");
  EXPECT_TRUE(Active(Screen::QuizOptions));
  EXPECT_FALSE(Loaded(Screen::QuizForm));
}

TEST_F(QuizFormTest, FromTheQuizOptionsGoBackLeadsToANewSheet) {
  MakeQuiz();
  const std::string first = PlainBytes(Sheet().QuizBox);
  Click(Screen::QuizForm, "QZBack");
  Click(Screen::QuizOptions, "Command2");
  ASSERT_TRUE(Active(Screen::PickWords));
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  ASSERT_TRUE(Active(Screen::QuizForm));
  EXPECT_NE(PlainBytes(Sheet().QuizBox), first);
}

TEST_F(QuizFormTest, BackToTheMainScreenErasesTheAnswers) {
  MakeQuiz();
  EXPECT_NE(shared.AnswerTable(1), 0);
  Click(Screen::QuizForm, "Back");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_EQ(shared.AnswerTable(1), 0);
}

TEST_F(QuizFormTest, TheAlphabetizeSheetComesFromAButtonOfItsOwn) {
  Start();
  Click(Screen::Title, "Command4");
  Do([&] {
    dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"))
        .ClickRow(0);
  });
  Click(Screen::ChooseList, "Command1");
  Click(Screen::QuizOptions5, "Command1");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  ASSERT_TRUE(Active(Screen::QuizForm));
  EXPECT_NE(PlainBytes(Sheet().QuizBox).find("Put the words below"), std::string::npos);
  std::string sorted;
  for (int i = 0; i < 8; ++i) {
    sorted += " " + std::to_string(i + 1) + ")  word " + static_cast<char>('a' + i) + "\n\n";
  }
  EXPECT_TRUE(PlainBytes(Sheet().AnswerBox).ends_with("Answer Key\n\n" + sorted));
}

TEST_F(QuizFormTest, AQuizOfThreeHundredQuestionsOverflows) {
  MakeQuiz("Many");
  EXPECT_EQ(platform.log, std::vector<std::string>{"error 6 Overflow"});
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 1);
}

// Nothing but the caret of the words to choose from is kept in 16 bits.
TEST_F(QuizFormTest, AQuizOfThreeHundredMeaningsToChooseFromIsMade) {
  Start();
  Click(Screen::Title, "Command1", kQuiz);
  Do([&] {
    dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"))
        .ClickRow(1);
  });
  Click(Screen::ChooseList, "Command1");
  Click(Screen::QuizOptions3, "MC2");
  Click(Screen::QuizOptions3, "Command1");
  Click(Screen::QuizOptions5, "Command1");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  ASSERT_TRUE(Active(Screen::QuizForm));
  EXPECT_GT(Sheet().QuizBox.Length(), 32767);
}

class SavedQuiz : public QuizFormTest, public ::testing::WithParamInterface<const char*> {};

// The blanks at its end and the font that no system has are saved as they stand.
TEST_P(SavedQuiz, ComesBackAsItWas) {
  Start();
  Click(Screen::Title, "Command1", kQuiz);
  Do([&] {
    dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"))
        .ClickRow(0);
  });
  Click(Screen::ChooseList, "Command1");
  Click(Screen::QuizOptions3, GetParam());
  Click(Screen::QuizOptions3, "Command1");
  Click(Screen::QuizOptions5, "Command1");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  ASSERT_TRUE(Active(Screen::QuizForm));
  for (RichTextBox* box : {&Sheet().QuizBox, &Sheet().AnswerBox}) {
    const std::vector<std::string> before = Runs(*box);
    box->SaveFile("worksheets\\quiz.rtf");
    box->Text("");
    box->LoadFile("worksheets\\quiz.rtf");
    EXPECT_EQ(Runs(*box), before);
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, SavedQuiz,
                         ::testing::Values("MC", "MC2", "Match", "FillNo", "FillYes"),
                         [](const auto& kind) { return std::string(kind.param); });

}  // namespace
}  // namespace brindlepage
