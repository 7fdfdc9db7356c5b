#include "quiz/quiz_options.h"

#include "quiz/quiz_options3.h"
#include "quiz/quiz_options5.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

class QuizOptionsTest : public Teacher {
 protected:
  void Open(Screen id) {
    if (!Loaded(Screen::Title)) Start();
    Do([&] { program.forms().Show(id); });
  }
  SharedState& shared = program.shared;
};

TEST_F(QuizOptionsTest, EachOptionIsAKindOfQuiz) {
  const std::pair<const char*, int> kinds[] = {
      {"MC", 1}, {"Match", 2}, {"FillNo", 3}, {"FillYes", 4}, {"MC2", 5}};
  for (const auto& [option, kind] : kinds) {
    Open(Screen::QuizOptions3);
    Click(Screen::QuizOptions3, option);
    Click(Screen::QuizOptions3, "Command1");
    EXPECT_EQ(shared.QuizKind, kind) << option;
    EXPECT_TRUE(Active(Screen::QuizOptions5));
    EXPECT_FALSE(Loaded(Screen::QuizOptions3));
  }
}

TEST_F(QuizOptionsTest, AClickBesideTheButtonHasTheSameEffectAsOnIt) {
  const std::pair<int, int> labels[] = {{0, 1}, {1, 2}, {2, 3}, {3, 5}, {5, 4}};
  for (const auto& [index, kind] : labels) {
    Open(Screen::QuizOptions3);
    Click(Screen::QuizOptions3, "Match");
    Click(Screen::QuizOptions3, "Label3", index);
    Click(Screen::QuizOptions3, "Command1");
    EXPECT_EQ(shared.QuizKind, kind) << index;
  }
}

TEST_F(QuizOptionsTest, ChoosingTheWordIsOnAtTheStart) {
  Open(Screen::QuizOptions3);
  auto& form = On<QuizOptions3>(Screen::QuizOptions3);
  EXPECT_TRUE(form.MC.Value);
  EXPECT_EQ(form.Label3(5).Caption(), "Fill-in WITH a word bank");
  EXPECT_EQ(form.Frame2.Caption(), "What Type of Quiz?");
  EXPECT_EQ(form.FindControl("Label3", 4), nullptr);
}

TEST_F(QuizOptionsTest, GoBackOnTheQuizKindsReturnsToTheLists) {
  Open(Screen::QuizOptions3);
  Click(Screen::QuizOptions3, "Command2");
  EXPECT_TRUE(Active(Screen::ChooseList));
}

TEST_F(QuizOptionsTest, EveryActivityProposesItsHeading) {
  const std::pair<int, const char*> proposals[] = {{0, "Planets Word Search"},
                                                   {1, "Planets Crossword"},
                                                   {2, "Planets Scramble"},
                                                   {3, "Planets Quiz"},
                                                   {4, "Planets Study Guide"},
                                                   {5, "Planets Secret Code Worksheet"},
                                                   {6, "Planets Secret Riddle Worksheet"},
                                                   {98, "Planets Alphabetize Worksheet"},
                                                   {7, "Coded Riddles Worksheet"},
                                                   {8, "Cryptoquip Worksheet"}};
  for (const auto& [kind, heading] : proposals) {
    shared.ActivityKind = kind;
    shared.CurrentListName = "Planets";
    Open(Screen::QuizOptions5);
    EXPECT_EQ(On<QuizOptions5>(Screen::QuizOptions5).Text1.Text(), heading);
    EXPECT_EQ(shared.CurrentListName, kind == 7 || kind == 8 ? heading : "Planets");
    Do([&] { program.forms().Unload(Screen::QuizOptions5); });
  }
}

TEST_F(QuizOptionsTest, AListsTrailingBlankStaysInTheProposal) {
  shared.ActivityKind = kQuiz;
  shared.CurrentListName = "Planets ";
  Open(Screen::QuizOptions5);
  EXPECT_EQ(On<QuizOptions5>(Screen::QuizOptions5).Text1.Text(), "Planets  Quiz");
}

TEST_F(QuizOptionsTest, TheHeadingGoesOnAsItStandsEvenEmpty) {
  shared.ActivityKind = kStudySheet;
  shared.CurrentListName = "Planets";
  shared.ListWordCount = 3;
  shared.WorksheetTitle = "before";
  Open(Screen::QuizOptions5);
  shared.ListFilePath = "TheLists.dat";
  Do([&] { On<QuizOptions5>(Screen::QuizOptions5).Text1.Type(U""); });
  Click(Screen::QuizOptions5, "Command1");
  EXPECT_EQ(shared.WorksheetTitle, "");
  EXPECT_TRUE(Active(Screen::PickWords));
}

TEST_F(QuizOptionsTest, ContinueFollowsTheActivity) {
  const std::pair<int, Screen> roads[] = {
      {7, Screen::CodeForm}, {8, Screen::CodeForm}, {1, Screen::CrossOption1}};
  for (const auto& [kind, screen] : roads) {
    shared.ActivityKind = kind;
    Open(Screen::QuizOptions5);
    Click(Screen::QuizOptions5, "Command1");
    EXPECT_TRUE(Loaded(screen)) << kind;
    EXPECT_FALSE(Loaded(Screen::QuizOptions5)) << kind;
    Do([&, next = screen] { program.forms().Unload(next); });
  }
}

TEST_F(QuizOptionsTest, GoBackFollowsTheActivity) {
  const std::pair<int, Screen> roads[] = {{7, Screen::RiddleOption1},
                                          {8, Screen::RiddleOption1},
                                          {3, Screen::ChooseList},
                                          {0, Screen::ChooseList}};
  for (const auto& [kind, screen] : roads) {
    shared.ActivityKind = kind;
    Open(Screen::QuizOptions5);
    Click(Screen::QuizOptions5, "Command2");
    EXPECT_TRUE(Loaded(screen)) << kind;
    EXPECT_FALSE(Loaded(Screen::QuizOptions5)) << kind;
    Do([&, next = screen] { program.forms().Unload(next); });
  }
}

TEST_F(QuizOptionsTest, GoBackFromAQuizForgetsTheListAndKeepsTheKind) {
  shared.ActivityKind = kQuiz;
  shared.QuizKind = kMatching;
  shared.CurrentListName = "Planets";
  Open(Screen::QuizOptions5);
  Click(Screen::QuizOptions5, "Command2");
  EXPECT_EQ(shared.CurrentListName, "");
  EXPECT_EQ(shared.QuizKind, kMatching);
}

TEST_F(QuizOptionsTest, TheWordBankIsTheWordsUnlessTheMeaningsAreChosen) {
  Open(Screen::QuizOptions);
  EXPECT_TRUE(On<QuizOptions>(Screen::QuizOptions).WordQuiz.Value);
  Click(Screen::QuizOptions, "Command1");
  EXPECT_EQ(shared.WordBankKind, 1);
  EXPECT_TRUE(Active(Screen::PuzzleSize));
  Open(Screen::QuizOptions);
  Click(Screen::QuizOptions, "DefinitionQuiz");
  Click(Screen::QuizOptions, "Command1");
  EXPECT_EQ(shared.WordBankKind, 2);
}

TEST_F(QuizOptionsTest, TheLabelsSetTheirControls) {
  Open(Screen::QuizOptions);
  auto& form = On<QuizOptions>(Screen::QuizOptions);
  Click(Screen::QuizOptions, "Label3", 4);
  EXPECT_TRUE(form.DefinitionQuiz.Value);
  EXPECT_FALSE(form.WordQuiz.Value);
  Click(Screen::QuizOptions, "Label3", 3);
  EXPECT_TRUE(form.WordQuiz.Value);
  Click(Screen::QuizOptions, "Label3", 0);
  EXPECT_TRUE(form.Check1.Value);
  Click(Screen::QuizOptions, "Label3", 0);
  EXPECT_FALSE(form.Check1.Value);
  EXPECT_EQ(form.Label3(0).Caption(), "           Make puzzle easy. (No diagnal words.)");
}

TEST_F(QuizOptionsTest, AfterOneEasyPuzzleAllAreEasyWhateverTheBoxShows) {
  Open(Screen::QuizOptions);
  Click(Screen::QuizOptions, "Command1");
  EXPECT_FALSE(shared.EasyPuzzle);
  Open(Screen::QuizOptions);
  Click(Screen::QuizOptions, "Check1");
  Click(Screen::QuizOptions, "Command1");
  EXPECT_TRUE(shared.EasyPuzzle);
  Open(Screen::QuizOptions);
  EXPECT_FALSE(On<QuizOptions>(Screen::QuizOptions).Check1.Value);
  Click(Screen::QuizOptions, "Command1");
  EXPECT_TRUE(shared.EasyPuzzle);
}

TEST_F(QuizOptionsTest, ClosingTheFrameOfAnOptionScreenEndsTheProgram) {
  for (Screen screen : {Screen::QuizOptions, Screen::QuizOptions3, Screen::QuizOptions5}) {
    NotingPlatform desk;
    BrindlepageProgram run(desk, random);
    run.Start();
    run.Dispatch([&] { run.forms().Show(screen); });
    run.Dispatch([&] { run.forms().Close(*run.forms().Find(screen)); });
    EXPECT_TRUE(run.Ended());
  }
}

}  // namespace
}  // namespace brindlepage
