#include "core/title.h"

#include "tests/teacher.h"

namespace brindlepage {
namespace {

using Log = std::vector<std::string>;

const char kTip[] =
    "Tip:|Brindlepage was created to run at a minimum 800x600 resolution. For best results, you "
    "should change the resolution of your computer.";
const char kMissingFiles[] =
    "Error!|Some required files cannot be found by the program. This could have been caused if the "
    "program's directory has been changed or if some files have been deleted. Please re-install "
    "the program to correct these errors.";

class TitleTest : public Teacher {
 protected:
  SharedState& shared = program.shared;
};

TEST_F(TitleTest, AScreen9600TwipsWideShowsTheTipAtEveryReturnToTheMenu) {
  platform.screen.width = 9600;
  Start();
  EXPECT_EQ(platform.log, (Log{kTip}));
  Click(Screen::Title, "Command3");
  Click(Screen::JustForFun, "Command1");
  EXPECT_EQ(platform.log, (Log{kTip, kTip}));
  EXPECT_TRUE(Active(Screen::Title));
}

TEST_F(TitleTest, AScreen9601TwipsWideNeverShowsTheTip) {
  platform.screen.width = 9601;
  Start();
  EXPECT_EQ(platform.log, Log{});
}

TEST_F(TitleTest, TheMenuStandsInTheMiddleOfTheScreen) {
  Start();
  const Title& title = On<Title>(Screen::Title);
  EXPECT_EQ(title.Left, 15360 / 2 - title.Width / 2);
  EXPECT_EQ(title.Top, 11520 / 2 - title.Height / 2);
}

TEST_F(TitleTest, TheProgramDirectoryIsTheWorkingDirectory) {
  Start();
  EXPECT_EQ(shared.ProgramDir, files::WorkingDirectory());
  EXPECT_EQ(shared.ListFilePath, files::WorkingDirectory() + "\\TheLists.dat");
}

TEST_F(TitleTest, ALine4ThatEndsInASeparatorGivesThatFoldersList) {
  folder.Write("brindlepage.dat", "a\r\nb\r\n*****\r\nc:\\Lists\\\r\n");
  Start();
  EXPECT_EQ(shared.ListFilePath, "c:\\Lists\\TheLists.dat");
}

TEST_F(TitleTest, ALine4WithoutSeparatorIsGluedToTheFilesName) {
  folder.Write("brindlepage.dat", "a\r\nb\r\n*****\r\nc:\\Lists\r\n");
  Start();
  EXPECT_EQ(shared.ListFilePath, "c:\\ListsTheLists.dat");
}

TEST_F(TitleTest, ListpathIsComparedExactly) {
  folder.Write("brindlepage.dat", "a\r\nb\r\n*****\r\nListPath\r\n");
  Start();
  EXPECT_EQ(shared.ListFilePath, "ListPathTheLists.dat");
}

TEST_F(TitleTest, ASettingsFileOfThreeLinesGivesARelativeListFile) {
  folder.Write("brindlepage.dat", "a\r\nb\r\n*****\r\n");
  Start();
  EXPECT_EQ(shared.ListFilePath, "TheLists.dat");
  EXPECT_FALSE(program.Ended());
}

TEST_F(TitleTest, ASettingsFileOfFewerThanThreeLinesEndsInReadingPastItsEnd) {
  folder.Write("brindlepage.dat", "a\r\nb\r\n");
  Start();
  EXPECT_EQ(platform.log, (Log{"error 62 Input past end of file"}));
  EXPECT_EQ(program.Status(), 1);
}

TEST_F(TitleTest, AMissingSettingsFileShowsTheMessageAndEndsTheProgram) {
  std::filesystem::remove("brindlepage.dat");
  Start();
  EXPECT_EQ(platform.log, (Log{kMissingFiles}));
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 0);
}

TEST_F(TitleTest, TheFirstStartTurnsPlusesIntoStarsOnDiskAndKeepsAllOtherLines) {
  folder.Write("brindlepage.dat", "one\r\n\r\n+++++\r\nlistpath\r\nfive\r\n");
  shared.QuickWordPath = "before";
  Start();
  EXPECT_EQ(folder.Read("brindlepage.dat"), "one\r\n\r\n*****\r\nlistpath\r\nfive\r\n");
  EXPECT_FALSE(shared.QuickWordEnabled);
  EXPECT_EQ(shared.QuickWordPath, "before");
}

TEST_F(TitleTest, ALaterStartLeavesTheSettingsFileAlone) {
  folder.Write("brindlepage.dat", "one\ntwo\n*****\nlistpath");
  Start();
  EXPECT_EQ(folder.Read("brindlepage.dat"), "one\ntwo\n*****\nlistpath");
}

TEST_F(TitleTest, ASettingsFileThatCantBeRewrittenShowsTheMessage) {
  folder.Write("brindlepage.dat", "a\r\nb\r\n+++++\r\nlistpath\r\n");
  std::filesystem::rename("brindlepage.dat", "settings");
  std::filesystem::create_directory("brindlepage.dat");
  Start();
  EXPECT_EQ(platform.log, (Log{kMissingFiles}));
}

TEST_F(TitleTest, AnyOtherLine3IsTheWordProcessor) {
  folder.Write("brindlepage.dat", "a\r\nb\r\nc:\\write.exe\r\nlistpath\r\n");
  Start();
  EXPECT_TRUE(shared.QuickWordEnabled);
  EXPECT_EQ(shared.QuickWordPath, "c:\\write.exe");
}

TEST_F(TitleTest, TheWorksheetsFolderIsMadeIfItIsMissing) {
  Start();
  EXPECT_TRUE(std::filesystem::is_directory("worksheets"));
}

TEST_F(TitleTest, AWorksheetsFolderInCapitalsIsFound) {
  std::filesystem::create_directory("WorkSheets");
  Start();
  EXPECT_FALSE(program.Ended());
  int folders = 0;
  for (const auto& entry : std::filesystem::directory_iterator("."))
    folders += entry.is_directory();
  EXPECT_EQ(folders, 1);
}

TEST_F(TitleTest, AWorksheetsFolderThatCantBeMadeEndsTheProgram) {
  folder.Write("worksheets", "a file");
  Start();
  EXPECT_EQ(platform.log, (Log{"error 75 Path/File access error"}));
}

TEST_F(TitleTest, AMissingBackdropEndsTheProgram) {
  std::filesystem::remove("titleback.jpg");
  Start();
  EXPECT_EQ(platform.log, (Log{"error 53 File not found"}));
}

TEST_F(TitleTest, ABackdropThatIsNoPictureEndsTheProgram) {
  folder.Write("titleback.jpg", "this is no picture");
  Start();
  EXPECT_EQ(platform.log, (Log{"error 481 Invalid picture"}));
}

TEST_F(TitleTest, ComingBackToTheMenuErasesTheWordsAndKeepsTheRest) {
  Start();
  shared.ListWords(1) = "Mars";
  shared.ListMeanings(1) = "red";
  shared.WordMarks(1) = 1;
  shared.AnswerTable(1) = 1;
  shared.CrossMarks(1) = 1;
  shared.EasyPuzzle = true;
  shared.ActivityKind = kQuiz;
  shared.WorksheetTitle = "Planets Quiz";
  shared.ReturnTag = "create";
  shared.PictureReturn = true;
  shared.MarkedCount = 1;
  Click(Screen::Title, "Command3");
  Click(Screen::JustForFun, "Command1");
  EXPECT_EQ(shared.ListWords(1), "");
  EXPECT_EQ(shared.ListMeanings(1), "");
  EXPECT_EQ(shared.WordMarks(1), 0);
  EXPECT_EQ(shared.AnswerTable(1), 0);
  EXPECT_EQ(shared.ReturnTag, "");
  EXPECT_FALSE(shared.PictureReturn);
  EXPECT_EQ(shared.CrossMarks(1), 1);
  EXPECT_TRUE(shared.EasyPuzzle);
  EXPECT_EQ(shared.ActivityKind, kQuiz);
  EXPECT_EQ(shared.WorksheetTitle, "Planets Quiz");
  EXPECT_EQ(shared.MarkedCount, 1);
}

TEST_F(TitleTest, EachActivityButtonSetsItsKindAndGoesToTheChoiceOfAList) {
  const std::string captions[] = {"Create a Word Search",        "Create a Crossword Puzzle",
                                  "Create a Scramble Worksheet", "Create a Quiz",
                                  "Create Study Sheet",          "Create a Secret Code Activity",
                                  "Create a Riddle Worksheet"};
  Start();
  for (int kind = 0; kind <= 6; ++kind) {
    EXPECT_EQ(On<Title>(Screen::Title).Command1[static_cast<std::size_t>(kind)]->Caption(),
              captions[kind]);
    Click(Screen::Title, "Command1", kind);
    EXPECT_EQ(shared.ActivityKind, kind);
    EXPECT_TRUE(Active(Screen::ChooseList));
    EXPECT_FALSE(Loaded(Screen::Title));
    Click(Screen::ChooseList, "Command2");
  }
}

TEST_F(TitleTest, TheAlphabetizeSheetIsAQuizByAnotherRoad) {
  Start();
  Click(Screen::Title, "Command4");
  EXPECT_EQ(shared.QuizKind, 6);
  EXPECT_EQ(shared.ActivityKind, 98);
  EXPECT_TRUE(Active(Screen::ChooseList));
}

TEST_F(TitleTest, TheMenuStaysLoadedBehindTheSavedWorksheets) {
  Start();
  Click(Screen::Title, "Command2");
  EXPECT_TRUE(Loaded(Screen::Title));
  EXPECT_TRUE(Active(Screen::OpenWorksheet) || Active(Screen::Title));
}

TEST_F(TitleTest, TheToolbarLeadsToTheListsAndOptions) {
  const std::pair<const char*, Screen> roads[] = {{"Create", Screen::CreateList},
                                                  {"Edit", Screen::EditChooseList},
                                                  {"Delete", Screen::DeleteList},
                                                  {"Opts", Screen::ProgramOptions}};
  Start();
  for (const auto& [caption, screen] : roads) {
    ClickToolbar(Screen::Title, caption);
    EXPECT_TRUE(Active(screen)) << caption;
    EXPECT_FALSE(Loaded(Screen::Title)) << caption;
    Do([&] {
      program.forms().Show(Screen::Title);
      program.forms().Unload(screen);
    });
  }
}

TEST_F(TitleTest, QuitOnTheToolbarEndsTheProgramAtOnce) {
  Start();
  ClickToolbar(Screen::Title, "Quit");
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(platform.log, Log{});
  EXPECT_EQ(program.Status(), 0);
}

TEST_F(TitleTest, ClosingTheMenusFrameEndsTheProgram) {
  Start();
  Do([&] { program.forms().Close(On<Title>(Screen::Title)); });
  EXPECT_TRUE(program.Ended());
}

TEST_F(TitleTest, TheAboutBoxGoesWhenTheMenuBehindItIsClicked) {
  Start();
  ClickToolbar(Screen::Title, "Info");
  EXPECT_TRUE(Active(Screen::AboutForm));
  Click(Screen::Title, "Command3");
  EXPECT_FALSE(Loaded(Screen::AboutForm));
  EXPECT_TRUE(Active(Screen::JustForFun));
}

TEST_F(TitleTest, TheAboutBoxGoesByItsButtonAndByItsFrame) {
  Start();
  ClickToolbar(Screen::Title, "Info");
  Click(Screen::AboutForm, "Command1");
  EXPECT_TRUE(Active(Screen::Title));
  ClickToolbar(Screen::Title, "Info");
  Do([&] { program.forms().Close(*program.forms().Find(Screen::AboutForm)); });
  EXPECT_FALSE(Loaded(Screen::AboutForm));
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(program.Ended());
}

TEST_F(TitleTest, JustForFunStartsTheActivitiesWithoutAList) {
  Start();
  Click(Screen::Title, "Command3");
  Click(Screen::JustForFun, "Command2");
  EXPECT_EQ(shared.ActivityKind, 7);
  EXPECT_TRUE(Active(Screen::RiddleOption1));
  Do([&] { program.forms().Show(Screen::JustForFun); });
  Click(Screen::JustForFun, "Command3");
  EXPECT_EQ(shared.ActivityKind, 8);
  EXPECT_FALSE(Loaded(Screen::JustForFun));
}

}  // namespace
}  // namespace brindlepage
