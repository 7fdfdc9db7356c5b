#include <gtest/gtest.h>

#include "tests/teacher.h"
#include "worksheet/rtf_reader.h"
#include "worksheet/study_guide_form.h"

namespace brindlepage {
namespace {

using Log = std::vector<std::string>;

const char kNameQuestion[] = "Name Saved File|What would you like to call this file?|";
const char kKeyQuestion[] = "Save Answer Key?|Also Save Answer Key?";
const char kPrintKeyQuestion[] = "Print Answer Key?|Also Print Answer Key?";
const char kPrinted[] = "Activity Printed|This activity has been sent to your printer.";

// A worksheet with a key, of four and three characters.
class Sheet : public WorksheetForm {
 public:
  Sheet(Program& owner, const WorksheetDesign& design) : WorksheetForm(owner, design) {}

 private:
  void Load() override {
    PrepareWorksheet();
    QuizBox.Text("Mars");
    KeyBox().Text("key");
    FinishWorksheetLoad();
  }
};

constexpr WorksheetDesign kScramble = {
    .id = Screen::Scramble,
    .name = "Scramble",
    .caption = "Scamble Worksheet",
    .tag = "scramble",
    .saved_start = "This activity has been saved in the ",
    .saved_end = " .",
};

// The program with a worksheet of our own in the scramble's place.
class WorksheetOutput : public Teacher {
 protected:
  WorksheetOutput() { std::filesystem::create_directory("worksheets"); }

  void Open(WorksheetDesign design = kScramble) {
    shared.ProgramDir = files::WorkingDirectory();
    shared.WorksheetTitle = "Planets";
    shared.AnswerKeyWanted = 1;
    design_ = design;
    desk.Dispatch([&] { desk.forms().Show(Screen::Scramble); });
    sheet = desk.forms().Find<Sheet>(Screen::Scramble);
    ASSERT_NE(sheet, nullptr);
  }
  void Tool(const char* caption) {
    desk.Dispatch([&] { sheet->Toolbar1.ButtonClick(*sheet->Toolbar1.FindCaption(caption)); });
  }
  // A file that takes no byte.
  static void FillTheDisk(const char* file) { std::filesystem::create_symlink("/dev/full", file); }

  static bool Exists(const char* file) { return std::filesystem::exists(file); }
  // What a saved file holds.
  static std::u32string Saved(const char* file) {
    RichText document("Arial", 10);
    ReadRtf(files::ReadBytes(file), document);
    return document.PlainText();
  }

  WorksheetDesign design_;
  Program desk{platform, random, [this](Screen id) -> std::unique_ptr<Form> {
                 if (id == Screen::Scramble) return std::make_unique<Sheet>(desk, design_);
                 return MakeForm(id, desk);
               }};
  SharedState& shared = desk.shared;
  Sheet* sheet = nullptr;
};

// --- Save

TEST_F(WorksheetOutput, AllButQuickWordCanBeClicked) {
  Open();
  for (const char* caption : {"Print", "Clipart", "Save", "Key", "Quit"}) {
    EXPECT_TRUE(sheet->Toolbar1.FindCaption(caption)->Enabled) << caption;
  }
  EXPECT_FALSE(sheet->Toolbar1.FindCaption("QuickWord")->Enabled);
}

TEST_F(WorksheetOutput, SaveAsksForTheNameAndTheKeyAndTellsTheFile) {
  Open();
  platform.texts = {"Our Planets"};
  Tool("Save");
  EXPECT_EQ(platform.log,
            (Log{std::string(kNameQuestion) + "Planets", kKeyQuestion,
                 "Export Successful|This activity has been saved in the \"worksheets\" folder of "
                 "your Brindlepage directory as \"Our Planets.rtf\" ."}));
  EXPECT_EQ(Saved("worksheets/Our Planets.rtf"), U"Mars");
  EXPECT_EQ(Saved("worksheets/Our Planets(Answer Key).rtf"), U"key");
  EXPECT_EQ(shared.WorksheetTitle, "Our Planets");
}

TEST_F(WorksheetOutput, WithoutItsKeyTheWorksheetAloneIsSavedAndTheMessageIsTheSame) {
  Open();
  platform.answers = {BoxAnswer::No};
  Tool("Save");
  EXPECT_TRUE(Exists("worksheets/Planets.rtf"));
  EXPECT_FALSE(Exists("worksheets/Planets(Answer Key).rtf"));
  EXPECT_EQ(platform.log.back(),
            "Export Successful|This activity has been saved in the \"worksheets\" folder of your "
            "Brindlepage directory as \"Planets.rtf\" .");
}

TEST_F(WorksheetOutput, AnEmptyAnswerAndCancelSaveAndChangeNothingButTheView) {
  Open();
  for (const std::optional<std::string>& answer : {std::optional<std::string>(""), {}}) {
    Tool("Key");
    platform.log.clear();
    platform.texts = {answer};
    Tool("Save");
    EXPECT_EQ(platform.log, Log{std::string(kNameQuestion) + "Planets"});
    EXPECT_EQ(shared.WorksheetTitle, "Planets");
    EXPECT_TRUE(std::filesystem::is_empty("worksheets"));
    EXPECT_TRUE(sheet->QuizBox.Visible);
    EXPECT_FALSE(sheet->AnswerBox.Visible);
    EXPECT_EQ(sheet->Toolbar1.Button(5).Caption(), "Key");
  }
}

TEST_F(WorksheetOutput, TheFileIsWrittenBeforeTheQuestionAboutItsKey) {
  Open();
  platform.while_box_is_open = [] { EXPECT_TRUE(Exists("worksheets/Planets.rtf")); };
  Tool("Save");
  EXPECT_EQ(platform.while_box_is_open, nullptr);
}

TEST_F(WorksheetOutput, SavingTwiceUnderOneNameOverwritesBothFilesWithoutAQuestion) {
  Open();
  Tool("Save");
  sheet->QuizBox.Text("Venus");
  sheet->AnswerBox.Text("new key");
  platform.log.clear();
  Tool("Save");
  EXPECT_EQ(platform.log.size(), 3U);
  EXPECT_EQ(Saved("worksheets/Planets.rtf"), U"Venus");
  EXPECT_EQ(Saved("worksheets/Planets(Answer Key).rtf"), U"new key");
}

TEST_F(WorksheetOutput, TheNextSaveOffersTheNewName) {
  Open();
  platform.texts = {"Moons"};
  Tool("Save");
  platform.log.clear();
  Tool("Save");
  EXPECT_EQ(platform.log.front(), std::string(kNameQuestion) + "Moons");
}

TEST_F(WorksheetOutput, TheCrosswordsKeyIsItsSecondAnswerBox) {
  Open({.id = Screen::Scramble,
        .name = "CrosswordWorksheet",
        .has_answer_box1 = true,
        .saved_start = "This crossword worksheet has been saved in the ",
        .saved_end = " . "});
  Tool("Save");
  EXPECT_EQ(Saved("worksheets/Planets(Answer Key).rtf"), U"key");
  EXPECT_EQ(sheet->AnswerBox.PlainText(), U"RichTextBox1");
  EXPECT_EQ(platform.log.back(),
            "Export Successful|This crossword worksheet has been saved in the \"worksheets\" "
            "folder of your Brindlepage directory as \"Planets.rtf\" . ");
}

class ARefusedName : public WorksheetOutput, public ::testing::WithParamInterface<const char*> {};

TEST_P(ARefusedName, EndsTheProgram) {
  Open();
  platform.texts = {GetParam()};
  Tool("Save");
  EXPECT_EQ(platform.log.back(), "error 52 Bad file name or number");
  EXPECT_EQ(desk.Status(), 1);
  EXPECT_TRUE(std::filesystem::is_empty("worksheets"));
}

INSTANTIATE_TEST_SUITE_P(OfAFile, ARefusedName,
                         ::testing::Values("a:b", "Why?", "1 * 2", "\"Planets\"", "<a>", "a|b",
                                           "tab\there"));

TEST_F(WorksheetOutput, ABackslashInTheNameAsksForAFolderThatIsNotThere) {
  Open();
  platform.texts = {"week 1\\Planets"};
  Tool("Save");
  EXPECT_EQ(platform.log.back(), "error 76 Path not found");
  EXPECT_EQ(desk.Status(), 1);
}

TEST_F(WorksheetOutput, ABackslashInTheNameLeadsIntoAFolderThatIsThere) {
  std::filesystem::create_directory("worksheets/week 1");
  Open();
  platform.texts = {"week 1\\Planets"};
  Tool("Save");
  EXPECT_TRUE(Exists("worksheets/week 1/Planets.rtf"));
  EXPECT_TRUE(Exists("worksheets/week 1/Planets(Answer Key).rtf"));
}

TEST_F(WorksheetOutput, AMissingFolderEndsTheProgram) {
  std::filesystem::remove("worksheets");
  Open();
  Tool("Save");
  EXPECT_EQ(platform.log.back(), "error 76 Path not found");
  EXPECT_TRUE(desk.Ended());
}

TEST_F(WorksheetOutput, AFullDiskEndsTheProgram) {
  FillTheDisk("worksheets/Planets.rtf");
  Open();
  Tool("Save");
  EXPECT_EQ(platform.log.back(), "error 61 Disk full");
  EXPECT_EQ(desk.Status(), 1);
}

TEST_F(WorksheetOutput, ADiskThatIsFullForTheKeyLeavesTheWorksheet) {
  FillTheDisk("worksheets/Planets(Answer Key).rtf");
  Open();
  Tool("Save");
  EXPECT_EQ(platform.log.back(), "error 61 Disk full");
  EXPECT_EQ(Saved("worksheets/Planets.rtf"), U"Mars");
}

TEST_F(WorksheetOutput, AFolderOfTheFilesNameEndsTheProgram) {
  std::filesystem::create_directory("worksheets/Planets.rtf");
  Open();
  Tool("Save");
  EXPECT_EQ(platform.log.back(), "error 75 Path/File access error");
}

TEST_F(WorksheetOutput, FilesGoToTheCurrentDirectorysFolder) {
  Open();
  shared.ProgramDir = "elsewhere";
  Tool("Save");
  EXPECT_TRUE(Exists("worksheets/Planets.rtf"));
}

// --- Print

TEST_F(WorksheetOutput, PrintSendsTheWholeWorksheetThenItsKeyInASecondDialog) {
  Open();
  platform.print_choices = {PrintChoice::All, PrintChoice::All};
  Tool("Print");
  EXPECT_EQ(platform.log, (Log{"print-dialog 0x100108", "printed QuizBox 0 4", kPrintKeyQuestion,
                               "print-dialog 0x10010c", "printed AnswerBox 0 3", kPrinted}));
  EXPECT_TRUE(sheet->QuizBox.Visible);
  EXPECT_FALSE(sheet->AnswerBox.Visible);
}

TEST_F(WorksheetOutput, TheClosingMessageComesWithoutTheKeyToo) {
  Open();
  platform.print_choices = {PrintChoice::All};
  platform.answers = {BoxAnswer::No};
  Tool("Print");
  EXPECT_EQ(platform.log,
            (Log{"print-dialog 0x100108", "printed QuizBox 0 4", kPrintKeyQuestion, kPrinted}));
}

TEST_F(WorksheetOutput, OfTheChoicesSelectionPrintsWhatIsSelected) {
  Open();
  sheet->QuizBox.SelStart(1);
  sheet->QuizBox.SelLength(2);
  platform.print_choices = {PrintChoice::Selection, PrintChoice::All};
  Tool("Print");
  EXPECT_EQ(platform.log, (Log{"print-dialog 0x100108", "printed QuizBox 1 2", kPrintKeyQuestion,
                               "print-dialog 0x10010d", "printed AnswerBox 0 3", kPrinted}));
  EXPECT_EQ(sheet->QuizBox.SelLength(), 2);
}

TEST_F(WorksheetOutput, TheChoiceAllDropsTheSelection) {
  Open();
  sheet->QuizBox.SelStart(1);
  sheet->QuizBox.SelLength(2);
  platform.print_choices = {PrintChoice::All};
  Tool("Print");
  EXPECT_EQ(platform.log[1], "printed QuizBox 0 4");
  EXPECT_EQ(sheet->QuizBox.SelLength(), 0);
}

TEST_F(WorksheetOutput, ASelectionOfNothingPrintsAllOfIt) {
  Open();
  platform.print_choices = {PrintChoice::Selection};
  Tool("Print");
  EXPECT_EQ(platform.log[1], "printed QuizBox 0 4");
}

TEST_F(WorksheetOutput, TheKeyIsPrintedWholeWhateverIsSelectedInIt) {
  Open();
  sheet->AnswerBox.SelStart(1);
  sheet->AnswerBox.SelLength(1);
  platform.print_choices = {PrintChoice::All, PrintChoice::All};
  Tool("Print");
  EXPECT_EQ(platform.log[4], "printed AnswerBox 0 3");
  EXPECT_EQ(sheet->AnswerBox.SelLength(), 0);
}

TEST_F(WorksheetOutput, CancelInThePrintDialogEndsItWithoutAWord) {
  Open();
  Tool("Key");
  Tool("Print");
  EXPECT_EQ(platform.log, Log{"print-dialog 0x100108"});
  EXPECT_TRUE(sheet->QuizBox.Visible);
  EXPECT_EQ(sheet->Toolbar1.Button(5).Caption(), "Key");
  EXPECT_FALSE(desk.Ended());
}

TEST_F(WorksheetOutput, APrinterThatFailsEndsItWithoutAWord) {
  Open();
  platform.print_choices = {PrintChoice::All};
  platform.on_print = [] { throw RunTimeError(Fault::DeviceIo); };
  Tool("Print");
  EXPECT_EQ(platform.log, (Log{"print-dialog 0x100108", "printed QuizBox 0 4"}));
  EXPECT_FALSE(desk.Ended());
}

TEST_F(WorksheetOutput, AProgramThatEndsBehindThePrintDialogEnds) {
  Open();
  platform.print_choices = {PrintChoice::All};
  platform.on_print = [this] { desk.End(); };
  Tool("Print");
  EXPECT_TRUE(desk.Ended());
}

TEST_F(WorksheetOutput, CancelInTheKeysDialogLeavesTheKeyOnScreenUnderTheCaptionKey) {
  Open();
  platform.print_choices = {PrintChoice::All, std::nullopt};
  Tool("Print");
  EXPECT_EQ(platform.log.back(), "print-dialog 0x10010c");
  EXPECT_TRUE(sheet->AnswerBox.Visible);
  EXPECT_FALSE(sheet->QuizBox.Visible);
  EXPECT_EQ(sheet->Toolbar1.Button(5).Caption(), "Key");

  Tool("Key");
  EXPECT_EQ(sheet->Toolbar1.Button(5).Caption(), "Worksheet");
  EXPECT_TRUE(sheet->AnswerBox.Visible);
  Tool("Worksheet");
  EXPECT_TRUE(sheet->QuizBox.Visible);
  EXPECT_FALSE(sheet->AnswerBox.Visible);
}

TEST_F(WorksheetOutput, SaveAndPrintRepairAKeyThatWasLeftOnScreen) {
  Open();
  for (const char* repair : {"Save", "Print"}) {
    platform.print_choices = {PrintChoice::All, std::nullopt};
    Tool("Print");
    ASSERT_FALSE(sheet->QuizBox.Visible);
    platform.texts = {std::nullopt};
    Tool(repair);
    EXPECT_TRUE(sheet->QuizBox.Visible) << repair;
    EXPECT_FALSE(sheet->AnswerBox.Visible) << repair;
  }
}

TEST_F(WorksheetOutput, WhileItsDialogIsOpenTheKeyIsOnScreen) {
  Open();
  platform.print_choices = {PrintChoice::All, PrintChoice::All};
  int prints = 0;
  platform.on_print = [&] {
    EXPECT_EQ(sheet->AnswerBox.Visible, prints == 1);
    EXPECT_EQ(sheet->QuizBox.Visible, prints == 0);
    ++prints;
  };
  Tool("Print");
  EXPECT_EQ(prints, 2);
}

// --- The word processor

TEST_F(WorksheetOutput, QuickWordSavesBothAndStartsTheWordProcessorTheKeyFirst) {
  shared.QuickWordEnabled = true;
  Open();
  shared.QuickWordPath = "C:\\Programs\\Writer.exe";
  shared.ProgramDir = "C:\\Lists";
  Tool("Key");
  Tool("QuickWord");
  EXPECT_EQ(platform.log,
            Log{"run C:\\Programs\\Writer.exe\"C:\\Lists\\worksheets\\Planets(Answer Key).rtf\" "
                "\"C:\\Lists\\worksheets\\Planets.rtf\""});
  EXPECT_EQ(Saved("worksheets/Planets.rtf"), U"Mars");
  EXPECT_EQ(Saved("worksheets/Planets(Answer Key).rtf"), U"key");
  EXPECT_TRUE(sheet->AnswerBox.Visible) << "the view stays";
}

TEST_F(WorksheetOutput, QuickWordOfAnActivityWithoutAKeyPassesTheWorksheetAlone) {
  Open();
  shared.QuickWordPath = "writer";
  shared.ProgramDir = "C:\\Lists";
  shared.AnswerKeyWanted = 0;
  desk.Dispatch([&] { sheet->Toolbar1.ButtonClick(*sheet->Toolbar1.FindCaption("QuickWord")); });
  EXPECT_EQ(platform.log, Log{"run writer\"C:\\Lists\\worksheets\\Planets.rtf\""});
  EXPECT_FALSE(Exists("worksheets/Planets(Answer Key).rtf"));
}

TEST_F(WorksheetOutput, AfterASaveUnderANewNameQuickWordWritesToTheNewName) {
  Open();
  shared.ProgramDir = "C:";
  shared.AnswerKeyWanted = 0;
  platform.texts = {"Moons"};
  platform.answers = {BoxAnswer::No};
  Tool("Save");
  sheet->QuizBox.Text("Io");
  Tool("QuickWord");
  EXPECT_EQ(platform.log.back(), "run \"C:\\worksheets\\Moons.rtf\"");
  EXPECT_EQ(Saved("worksheets/Moons.rtf"), U"Io");
  EXPECT_FALSE(Exists("worksheets/Planets.rtf"));
}

TEST_F(WorksheetOutput, AWordProcessorThatCannotBeStartedEndsTheProgram) {
  Open();
  platform.on_start_program = [] { throw RunTimeError(Fault::FileNotFound); };
  Tool("QuickWord");
  EXPECT_EQ(platform.log.back(), "error 53 File not found");
  EXPECT_EQ(desk.Status(), 1);
  EXPECT_TRUE(Exists("worksheets/Planets.rtf"));
}

TEST_F(WorksheetOutput, QuickWordWithATitleThatTheFileSystemRefusesEndsTheProgram) {
  Open();
  shared.WorksheetTitle = "What is it?";
  Tool("QuickWord");
  EXPECT_EQ(platform.log, Log{"error 52 Bad file name or number"});
}

// --- Clipart

TEST_F(WorksheetOutput, ClipartLeavesTheFormsTagAndOpensTheBrowserOverTheWorksheet) {
  Open();
  Tool("Clipart");
  EXPECT_TRUE(shared.PictureReturn);
  EXPECT_EQ(shared.ReturnTag, "scramble");
  EXPECT_EQ(desk.forms().Active()->id(), Screen::AddPic);
  EXPECT_EQ(desk.forms().Find(Screen::Scramble), sheet);
}

// --- The study sheet

class StudySheetOutput : public Teacher {
 protected:
  void SetUp() override {
    WalkToPickWords("Planets");
    Click(Screen::PickWords, "ChooseRandom");
    Click(Screen::PickWords, "Command2");
    ASSERT_TRUE(Active(Screen::StudyGuideForm));
    platform.log.clear();
  }
  void Tool(const char* caption) { ClickToolbar(Screen::StudyGuideForm, caption); }
  StudyGuideForm& Sheet() { return On<StudyGuideForm>(Screen::StudyGuideForm); }
};

TEST_F(StudySheetOutput, SaveWritesAKeyOfTheDesignTextWithoutAQuestion) {
  Tool("Save");
  EXPECT_EQ(platform.log,
            (Log{std::string(kNameQuestion) + "Planets Study Guide",
                 "Export Successful|This Study Sheet has been saved in the \"worksheets\" folder "
                 "of your Brindlepage directory as \"Planets Study Guide.rtf\" . "}));
  RichText key("Arial", 10);
  ReadRtf(files::ReadBytes("worksheets\\Planets Study Guide(Answer Key).rtf"), key);
  EXPECT_EQ(key.PlainText(), U"RichTextBox1");
}

TEST_F(StudySheetOutput, SaveWithoutAKeyWantedWritesTheSheetAlone) {
  program.shared.AnswerKeyWanted = 0;
  Tool("Save");
  EXPECT_TRUE(std::filesystem::exists("worksheets/Planets Study Guide.rtf"));
  EXPECT_FALSE(std::filesystem::exists("worksheets/Planets Study Guide(Answer Key).rtf"));
  EXPECT_EQ(platform.log.size(), 2U);
}

TEST_F(StudySheetOutput, PrintAsksNothingAndTellsNothing) {
  platform.print_choices = {PrintChoice::All, PrintChoice::All};
  Tool("Print");
  EXPECT_EQ(platform.log, (Log{"print-dialog 0x100108",
                               "printed QuizBox 0 " + std::to_string(Sheet().QuizBox.Length())}));
}

TEST_F(StudySheetOutput, PrintOfASelectionPrintsIt) {
  Sheet().QuizBox.SelStart(3);
  Sheet().QuizBox.SelLength(5);
  platform.print_choices = {PrintChoice::Selection};
  Tool("Print");
  EXPECT_EQ(platform.log, (Log{"print-dialog 0x100108", "printed QuizBox 3 5"}));
}

TEST_F(StudySheetOutput, QuickWordPassesTwoFiles) {
  program.shared.QuickWordPath = "writer ";
  program.shared.ProgramDir = "C:";
  program.shared.WorksheetTitle = "T";
  Tool("QuickWord");
  EXPECT_EQ(platform.log,
            Log{"run writer \"C:\\worksheets\\T(Answer Key).rtf\" \"C:\\worksheets\\T.rtf\""});
}

TEST_F(StudySheetOutput, ItsTagIsStudyform) {
  Tool("Clipart");
  EXPECT_EQ(program.shared.ReturnTag, "studyform");
}

}  // namespace
}  // namespace brindlepage
