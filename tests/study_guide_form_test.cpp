#include "worksheet/study_guide_form.h"

#include "tests/sheet_runs.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

const std::string kWidest =
    "Name_____________________________                                    Date_______________";

class StudyGuideTest : public Teacher {
 protected:
  StudyGuideForm& Sheet() { return On<StudyGuideForm>(Screen::StudyGuideForm); }
  SharedState& shared = program.shared;
};

TEST_F(StudyGuideTest, FromTheMenuToTheFinishedSheet) {
  WalkToPickWords("Planets");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  ASSERT_TRUE(Active(Screen::StudyGuideForm));
  EXPECT_FALSE(Loaded(Screen::PickWords));
  const std::vector<std::string> expected = {
      "Times New Roman 200 --- c|\n",     "Times New Roman 200 --- c|" + kWidest + "\n",
      "Times New Roman 360 b-- c|\n",     "Times New Roman 360 b-- c|Planets Study Guide\n",
      "Times New Roman 240 --- l|\n",     "Times New Roman 240 --- l|\n",
      "Times New Roman 240 --- l|\n",     "Times New Roman 240 --- l| 1)  ",
      "Times New Roman 240 b-u l|Mars:",  "Times New Roman 240 --- l|  red\n",
      "Times New Roman 240 --- l|\n",     "Times New Roman 240 --- l| 2)  ",
      "Times New Roman 240 b-u l|Venus:", "Times New Roman 240 --- l|  hot\n",
      "Times New Roman 240 --- l|\n",     "Times New Roman 240 --- l| 3)  ",
      "Times New Roman 240 b-u l|Earth:", "Times New Roman 240 --- l|  home\n",
      "Times New Roman 240 --- l|\n",
  };
  EXPECT_EQ(Runs(Sheet().QuizBox), expected);
}

TEST_F(StudyGuideTest, TheEntriesAreNumberedInListOrderWhateverTheWordsNumbers) {
  shared.ListWordCount = 4;
  for (int i = 1; i <= 4; ++i) {
    shared.ListWords(i) = "word" + std::to_string(i);
    shared.ListMeanings(i) = "meaning" + std::to_string(i);
  }
  shared.WordMarks(2) = 1;
  shared.WordMarks(4) = 1;
  shared.MarkedCount = 2;
  RichText box("Courier New", 9.75);
  BuildStudyList(shared, box);
  EXPECT_EQ(box.PlainText(), U"\n\n\n 1)  word2:  meaning2\n\n 2)  word4:  meaning4\n\n");
  EXPECT_EQ(shared.ListWords(1), "word2");
  EXPECT_EQ(shared.ListMeanings(2), "meaning4");
  EXPECT_EQ(shared.ListWords(3), "word3");
  EXPECT_EQ(shared.ListWords(4), "word4");
  EXPECT_EQ(shared.WordMarks(2), 1);
  EXPECT_EQ(shared.WordMarks(1), 0);
}

TEST_F(StudyGuideTest, OneMarkedWordGivesOneEntry) {
  shared.ListWordCount = 1;
  shared.ListWords(1) = "Mars";
  shared.ListMeanings(1) = "red";
  shared.WordMarks(1) = 1;
  shared.MarkedCount = 1;
  RichText box("Courier New", 9.75);
  BuildStudyList(shared, box);
  EXPECT_EQ(box.PlainText(), U"\n\n\n 1)  Mars:  red\n\n");
}

TEST_F(StudyGuideTest, AnEmptyMeaningLeavesTwoBlanks) {
  shared.ListWordCount = 1;
  shared.ListWords(1) = "Mars";
  shared.WordMarks(1) = 1;
  shared.MarkedCount = 1;
  RichText box("Courier New", 9.75);
  BuildStudyList(shared, box);
  EXPECT_EQ(box.PlainText(), U"\n\n\n 1)  Mars:  \n\n");
}

TEST_F(StudyGuideTest, AnEmptiedHeadingGivesAnEmptyTitleLine) {
  RichText box("Courier New", 9.75);
  ComposeStudySheet(shared, box);
  const auto paragraphs = box.Paragraphs();
  EXPECT_EQ(paragraphs[3].length, 1);
  EXPECT_EQ(paragraphs[3].alignment, Alignment::Centre);
}

TEST_F(StudyGuideTest, ItHasNoKeyAndItsQuitIsButton5) {
  WalkToPickWords("Planets");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  ASSERT_EQ(Sheet().Toolbar1.ButtonCount(), 5);
  EXPECT_EQ(Sheet().Toolbar1.Button(5).Caption(), "Quit");
  EXPECT_EQ(Sheet().AnswerBox.PlainText(), U"RichTextBox1");
  EXPECT_FALSE(Sheet().AnswerBox.Visible);
  EXPECT_EQ(Sheet().Caption(), "Study Guide");
}

TEST_F(StudyGuideTest, ResizingLeavesTheUnusedKeyBoxAlone) {
  WalkToPickWords("Planets");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  Do([&] { program.forms().Resize(Sheet(), 9000, 6000); });
  EXPECT_EQ(Sheet().QuizBox.Width, 8950);
  EXPECT_EQ(Sheet().AnswerBox.Width, 0);
}

TEST_F(StudyGuideTest, BackDropsTheSheetAndErasesTheWords) {
  WalkToPickWords("Planets");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  Click(Screen::StudyGuideForm, "Back");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::StudyGuideForm));
  EXPECT_EQ(shared.ListWords(1), "");
  EXPECT_EQ(platform.log, std::vector<std::string>{});
}

TEST_F(StudyGuideTest, QuitEndsTheProgramWithNoQuestion) {
  WalkToPickWords("Planets");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  ClickToolbar(Screen::StudyGuideForm, "Quit");
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(platform.log, std::vector<std::string>{});
}

}  // namespace
}  // namespace brindlepage
