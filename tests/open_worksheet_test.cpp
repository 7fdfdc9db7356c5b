#include "worksheet/open_worksheet.h"

#include "quiz/quiz_form.h"
#include "tests/teacher.h"
#include "worksheet/rtf_writer.h"

namespace brindlepage {
namespace {

using Log = std::vector<std::string>;

class OpenWorksheetTest : public Teacher {
 protected:
  OpenWorksheetTest() { std::filesystem::create_directory("worksheets"); }

  void Save(const std::string& name, const std::string& text) {
    RichText document("Times New Roman", 12);
    document.SelText(text);
    folder.Write("worksheets/" + name, WriteRtf(document));
  }
  void Open() {
    Start();
    Click(Screen::Title, "Command2");
  }
  OpenWorksheet& Chooser() { return On<OpenWorksheet>(Screen::OpenWorksheet); }
  QuizForm& Sheet() { return On<QuizForm>(Screen::QuizForm); }
  void OpenFile(int row) {
    Open();
    Do([&] { Chooser().File1.ClickRow(row); });
    Click(Chooser().Command1);
  }
};

TEST_F(OpenWorksheetTest, ListsTheRichTextFilesKeysIncludedAndNothingElse) {
  Save("Planets.rtf", "a");
  Save("Planets(Answer Key).rtf", "b");
  Save("moons.RTF", "c");
  folder.Write("worksheets/notes.txt", "d");
  folder.Write("here.rtf", "e");
  Open();
  ASSERT_TRUE(Active(Screen::OpenWorksheet));
  ASSERT_EQ(Chooser().File1.ListCount(), 3);
  EXPECT_EQ(Chooser().File1.List(0), "moons.RTF");
  EXPECT_EQ(Chooser().File1.List(1), "Planets(Answer Key).rtf");
  EXPECT_EQ(Chooser().File1.List(2), "Planets.rtf");
  EXPECT_EQ(Chooser().Caption(), "Open Saved Worksheet");
  EXPECT_EQ(Chooser().Label2.Caption(), "Worksheets Saved:");
  EXPECT_TRUE(Loaded(Screen::Title));
}

TEST_F(OpenWorksheetTest, AnEmptyFolderGivesTheMessageAndNoForm) {
  folder.Write("worksheets/notes.txt", "no worksheet");
  Open();
  EXPECT_EQ(platform.log, Log{"No files found!|There are no saved worksheets to open."});
  EXPECT_FALSE(Loaded(Screen::OpenWorksheet));
  EXPECT_TRUE(Active(Screen::Title));
}

TEST_F(OpenWorksheetTest, OpenWorksheetStaysDisabledUntilAnEntryIsClicked) {
  Save("Planets.rtf", "a");
  Open();
  EXPECT_FALSE(Chooser().Command1.Enabled);
  Do([&] { Chooser().File1.ClickRow(5); });
  EXPECT_FALSE(Chooser().Command1.Enabled);
  Do([&] { Chooser().File1.DoubleClickRow(5); });
  EXPECT_TRUE(Active(Screen::OpenWorksheet));
  Do([&] { Chooser().File1.ClickRow(0); });
  EXPECT_TRUE(Chooser().Command1.Enabled);
}

TEST_F(OpenWorksheetTest, TheButtonOpensTheFileInAQuizFormAsAPlainEditor) {
  Save("Planets.rtf", "Mars is red\n");
  Open();
  program.shared.WorksheetTitle = "the last activity";
  Do([&] { Chooser().File1.ClickRow(0); });
  Click(Chooser().Command1);
  ASSERT_TRUE(Active(Screen::QuizForm));
  EXPECT_FALSE(Loaded(Screen::OpenWorksheet));
  EXPECT_TRUE(Loaded(Screen::Title));
  EXPECT_EQ(program.shared.ActivityKind, 99);
  EXPECT_EQ(program.shared.SavedWorksheetName, "Planets.rtf");
  EXPECT_EQ(program.shared.WorksheetTitle, "the last activity");
  EXPECT_EQ(Sheet().Caption(), "Planets.rtf");
  EXPECT_EQ(Sheet().QuizBox.PlainText(), U"Mars is red\n");
  EXPECT_EQ(Sheet().QuizBox.SelStart(), 1);
  EXPECT_EQ(Sheet().cmbFontColor.Text(), "Black");
  EXPECT_EQ(Sheet().WindowState, kMaximised);
  EXPECT_FALSE(Sheet().Toolbar1.Button(4).Enabled);
  EXPECT_FALSE(Sheet().Toolbar1.Button(5).Enabled);
}

TEST_F(OpenWorksheetTest, ADoubleClickOpensTheFileAlike) {
  Save("Planets.rtf", "a");
  Save("Rivers.rtf", "b");
  Open();
  Do([&] { Chooser().File1.DoubleClickRow(1); });
  ASSERT_TRUE(Active(Screen::QuizForm));
  EXPECT_FALSE(Loaded(Screen::OpenWorksheet));
  EXPECT_EQ(program.shared.ActivityKind, 99);
  EXPECT_EQ(Sheet().Caption(), "Rivers.rtf");
}

TEST_F(OpenWorksheetTest, CancelLeavesTheMenu) {
  Save("Planets.rtf", "a");
  Open();
  Click(Chooser().Command2);
  EXPECT_FALSE(Loaded(Screen::OpenWorksheet));
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_EQ(program.shared.ActivityKind, 0);
}

TEST_F(OpenWorksheetTest, WithAWordProcessorSetQuickWordWorks) {
  folder.Write("brindlepage.dat", "a\r\nb\r\nwriter\r\nlistpath\r\n");
  Save("Planets.rtf", "a");
  OpenFile(0);
  EXPECT_TRUE(Sheet().Toolbar1.Button(4).Enabled);
}

TEST_F(OpenWorksheetTest, BackShowsTheMenuThatStayedLoadedWithoutANewLoad) {
  Save("Planets.rtf", "a");
  OpenFile(0);
  program.shared.ListWords(1) = "left";
  Click(Screen::QuizForm, "Back");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::QuizForm));
  EXPECT_EQ(program.shared.ListWords(1), "left");
}

TEST_F(OpenWorksheetTest, AFileThatIsNoRichTextEndsTheProgram) {
  folder.Write("worksheets/broken.rtf", "GIF89a");
  OpenFile(0);
  EXPECT_EQ(platform.log, Log{"error 321 Invalid file format"});
  EXPECT_EQ(program.Status(), 1);
}

TEST_F(OpenWorksheetTest, AFileThatHasVanishedEndsTheProgram) {
  Save("Planets.rtf", "a");
  Open();
  std::filesystem::remove("worksheets/Planets.rtf");
  Do([&] { Chooser().File1.DoubleClickRow(0); });
  EXPECT_EQ(platform.log, Log{"error 53 File not found"});
}

TEST_F(OpenWorksheetTest, AFolderThatHasVanishedEndsTheProgram) {
  Start();
  std::filesystem::remove("worksheets");
  Click(Screen::Title, "Command2");
  EXPECT_EQ(platform.log, Log{"error 76 Path not found"});
}

TEST_F(OpenWorksheetTest, SavingAnOpenedWorksheetDoesNotAskAboutAKeyButPrintingDoes) {
  Save("Planets.rtf", "Mars");
  OpenFile(0);
  platform.texts = {"Copy"};
  ClickToolbar(Screen::QuizForm, "Save");
  EXPECT_EQ(platform.log,
            (Log{"Name Saved File|What would you like to call this file?|",
                 "Export Successful|This quiz has been saved in the \"worksheets\" folder of your "
                 "Brindlepage directory as \"Copy.rtf\"."}));
  EXPECT_FALSE(std::filesystem::exists("worksheets/Copy(Answer Key).rtf"));

  platform.log.clear();
  platform.print_choices = {PrintChoice::All, PrintChoice::All};
  ClickToolbar(Screen::QuizForm, "Print");
  EXPECT_EQ(platform.log, (Log{"print-dialog 0x100108", "printed QuizBox 0 4",
                               "Print Answer Key?|Also Print Answer Key?", "print-dialog 0x10010c",
                               "printed AnswerBox 0 12",
                               "Activity Printed|This activity has been sent to your printer."}));
}

TEST_F(OpenWorksheetTest, QuickWordOnAnOpenedWorksheetWritesAKeyOnlyAfterAListActivity) {
  Save("Planets.rtf", "Mars");
  OpenFile(0);
  program.shared.WorksheetTitle = "T";
  program.shared.ProgramDir = "C:";
  program.shared.QuickWordPath = "writer";
  ClickToolbar(Screen::QuizForm, "QuickWord");
  EXPECT_EQ(platform.log, Log{"run writer\"C:\\worksheets\\T.rtf\""});
  program.shared.AnswerKeyWanted = 1;
  ClickToolbar(Screen::QuizForm, "QuickWord");
  EXPECT_EQ(platform.log.back(),
            "run writer\"C:\\worksheets\\T(Answer Key).rtf\" \"C:\\worksheets\\T.rtf\"");
}

TEST_F(OpenWorksheetTest, ItsOwnSaveAsAQuizAsksAboutTheKey) {
  Save("Planets.rtf", "Mars");
  OpenFile(0);
  program.shared.ActivityKind = kQuiz;
  ClickToolbar(Screen::QuizForm, "Save");
  EXPECT_EQ(platform.log.size(), 1U) << "nothing is saved under no name";
  platform.texts = {"Copy"};
  ClickToolbar(Screen::QuizForm, "Save");
  EXPECT_EQ(platform.log[2], "Save Answer Key?|Also Save Answer Key?");
}

}  // namespace
}  // namespace brindlepage
