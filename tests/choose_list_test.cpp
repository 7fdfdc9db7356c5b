#include "core/choose_list.h"

#include "tests/teacher.h"

namespace brindlepage {
namespace {

using Log = std::vector<std::string>;

class ChooseListTest : public Teacher {
 protected:
  void Open(int kind) {
    Start();
    Click(Screen::Title, "Command1", kind);
  }
  ListBox& Lists() { return On<ChooseList>(Screen::ChooseList).TheLists; }
  SharedState& shared = program.shared;
};

TEST_F(ChooseListTest, TheNamesAreSortedAndTheChoiceIsForgottenAtEachLoad) {
  folder.Write("TheLists.dat", "Zoo\r\na\r\nb\r\n<New List>\r\nanimals\r\n<New List>\r\nPets\r\n");
  shared.CurrentListName = "Zoo";
  Open(kStudySheet);
  ASSERT_EQ(Lists().ListCount(), 3);
  EXPECT_EQ(Lists().List(0), "animals");
  EXPECT_EQ(Lists().List(1), "Pets");
  EXPECT_EQ(Lists().List(2), "Zoo");
  EXPECT_EQ(shared.CurrentListName, "");
}

TEST_F(ChooseListTest, BeginIsEnabledByAClickOnTheList) {
  Open(kStudySheet);
  EXPECT_FALSE(On<ChooseList>(Screen::ChooseList).Command1.Enabled);
  Do([&] { Lists().ClickRow(0); });
  EXPECT_TRUE(On<ChooseList>(Screen::ChooseList).Command1.Enabled);
}

TEST_F(ChooseListTest, BeginCountsTheListAndOffersAKey) {
  Open(kStudySheet);
  Do([&] { Lists().ClickRow(0); });
  Click(Screen::ChooseList, "Command1");
  EXPECT_EQ(shared.CurrentListName, "Planets");
  EXPECT_EQ(shared.ListWordCount, 3);
  EXPECT_EQ(shared.AnswerKeyWanted, 1);
  EXPECT_TRUE(Active(Screen::QuizOptions5));
  EXPECT_FALSE(Loaded(Screen::ChooseList));
}

TEST_F(ChooseListTest, ADoubleClickActsLikeBegin) {
  Open(kQuiz);
  Do([&] { Lists().DoubleClickRow(0); });
  EXPECT_TRUE(Active(Screen::QuizOptions3));
}

TEST_F(ChooseListTest, ADoubleClickWithNothingSelectedShowsTheReminderAndBeeps) {
  Open(kQuiz);
  Do([&] { Lists().UserDoubleClick(); });
  EXPECT_TRUE(Active(Screen::ChooseReminder));
  EXPECT_EQ(platform.log, (Log{"beep"}));
  EXPECT_EQ(shared.AnswerKeyWanted, 1);
  EXPECT_TRUE(Loaded(Screen::ChooseList));
}

TEST_F(ChooseListTest, TheRemindersButtonHidesIt) {
  Open(kQuiz);
  Do([&] { Lists().UserDoubleClick(); });
  Click(Screen::ChooseReminder, "Command1");
  EXPECT_TRUE(Active(Screen::ChooseList));
  ASSERT_TRUE(Loaded(Screen::ChooseReminder));
  EXPECT_FALSE(program.forms().Find(Screen::ChooseReminder)->Visible);
}

TEST_F(ChooseListTest, TheReminderUnloadsWhenItLosesTheFocus) {
  Open(kQuiz);
  Do([&] { Lists().UserDoubleClick(); });
  Do([&] { program.forms().Activate(*program.forms().Find(Screen::ChooseList)); });
  EXPECT_FALSE(Loaded(Screen::ChooseReminder));
  EXPECT_TRUE(Active(Screen::ChooseList));
}

TEST_F(ChooseListTest, EachActivityHasItsNextScreen) {
  const std::pair<int, Screen> roads[] = {
      {kWordSearch, Screen::QuizOptions5},  {kCrossword, Screen::QuizOptions5},
      {kScramble, Screen::ScrambleOption1}, {kQuiz, Screen::QuizOptions3},
      {kStudySheet, Screen::QuizOptions5},  {kSecretCode, Screen::QuizOptions5},
      {kRiddle, Screen::ChooseRiddle}};
  Start();
  for (const auto& [kind, screen] : roads) {
    Click(Screen::Title, "Command1", kind);
    Do([&] { Lists().DoubleClickRow(0); });
    EXPECT_TRUE(Active(screen)) << kind;
    Do([&, next = screen] {
      program.forms().Show(Screen::Title);
      program.forms().Unload(next);
    });
  }
  Click(Screen::Title, "Command4");
  Do([&] { Lists().DoubleClickRow(0); });
  EXPECT_TRUE(Active(Screen::QuizOptions5));
}

TEST_F(ChooseListTest, NoListsMayBeChosenAndCountsNothing) {
  folder.Write("TheLists.dat", "No Lists\r\n");
  Open(kStudySheet);
  Do([&] { Lists().DoubleClickRow(0); });
  EXPECT_EQ(shared.CurrentListName, "No Lists");
  EXPECT_EQ(shared.ListWordCount, 0);
  EXPECT_TRUE(Active(Screen::QuizOptions5));
}

TEST_F(ChooseListTest, TheSeparatorChosenAsAListCountsMinusOne) {
  folder.Write("TheLists.dat", "<New List>\r\nPlanets\r\nMars\r\nred\r\n");
  Open(kStudySheet);
  EXPECT_EQ(Lists().List(0), "<New List>");
  Do([&] { Lists().DoubleClickRow(0); });
  EXPECT_EQ(shared.ListWordCount, -1);
}

TEST_F(ChooseListTest, AMissingListFileEndsTheProgram) {
  std::filesystem::remove("TheLists.dat");
  Open(kStudySheet);
  EXPECT_EQ(platform.log, (Log{"error 53 File not found"}));
}

TEST_F(ChooseListTest, AnEmptyListFileEndsTheProgram) {
  folder.Write("TheLists.dat", "");
  Open(kStudySheet);
  EXPECT_EQ(platform.log, (Log{"error 62 Input past end of file"}));
}

TEST_F(ChooseListTest, TheMenuGoesBackAndQuits) {
  Open(kStudySheet);
  Click(Screen::ChooseList, "Return");
  EXPECT_TRUE(Active(Screen::Title));
  Click(Screen::Title, "Command1", 0);
  Click(Screen::ChooseList, "About");
  EXPECT_TRUE(Active(Screen::AboutForm));
  EXPECT_TRUE(Loaded(Screen::ChooseList));
  Click(Screen::AboutForm, "Command1");
  EXPECT_TRUE(Active(Screen::ChooseList));
  Click(Screen::ChooseList, "Quit");
  EXPECT_TRUE(program.Ended());
}

TEST_F(ChooseListTest, ClosingItsFrameEndsTheProgramWhateverElseIsLoaded) {
  Open(kQuiz);
  Do([&] { Lists().UserDoubleClick(); });
  Do([&] { program.forms().Close(*program.forms().Find(Screen::ChooseList)); });
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 0);
}

}  // namespace
}  // namespace brindlepage
