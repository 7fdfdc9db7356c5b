#include "tests/faults/steps.h"

#include <cctype>

#include "toolkit/run_time_error.h"

namespace brindlepage {

namespace {

const std::string kFault = "@";  // stands for the fault's message and the end
constexpr char kNoSettings[] =
    "message \"Error!\" \"Some required files cannot be found by the program. This could have been "
    "caused if the program's directory has been changed or if some files have been deleted. Please "
    "re-install the program to correct these errors.\" ok -> ok\nend\n";
constexpr char kInvalidFolder[] =
    "message \"\" \"The directory you have chosen is invalid.\" ok -> ok\n";
constexpr char kFoundFolder[] =
    "beep\nmessage \"Success!\" \"A list file was found here. Do you want to make it the default "
    "Vocabulary List file?\" yes-no -> yes\n";
constexpr char kBackupQuestion[] =
    "message \"Backup\" \"Make a backup copy of your default Vocabulary List?\" yes-no -> yes\n";
constexpr char kRestoreQuestion[] =
    "message \"Restore\" \"Restore backup copy of Vocabulary List?\" yes-no -> yes\n";
constexpr char kNoBackup[] = "message \"Error\" \"No Backup file can be found\" ok -> ok\n";
constexpr char kCannotAdd[] =
    "message \"Error:\" \"This control uses Active X to add clipart to your worksheet. It appears "
    "that Active X is not properly installed on your computer. You have several other options. You "
    "can <copy and paste> clipart onto the worksheet, you can save the worksheet to open in "
    "another application, or you can use the <QuickWord> feature to open the worksheet directly in "
    "your word processor.\" ok -> ok\n";
constexpr char kSaveQuestion[] =
    "beep\nmessage \"Confirm Save\" \"Are you sure you want to save this list?\" yes-no -> yes\n";
constexpr char kSaveChanges[] =
    "message \"Save and quit?\" \"Save changes to list?\" yes-no-cancel -> yes\n";
constexpr char kKeyQuestion[] =
    "message \"Save Answer Key?\" \"Also Save Answer Key?\" yes-no -> yes\n";

// --- Ways from the start to a screen

const Lines kMenu = {"start"};

Lines ToLists(int kind) {
  return kMenu + Lines{"click Title.Command1(" + std::to_string(kind) + ")"};
}
Lines ChoiceOfList(int kind) {
  return ToLists(kind) + Lines{"select ChooseList.TheLists \"Fire\""};
}
Lines BehindList(int kind) { return ChoiceOfList(kind) + Lines{"click ChooseList.Command1"}; }
Lines ToHeading(int kind) {
  const Lines way = BehindList(kind);
  if (kind == kScramble) return way + Lines{"click ScrambleOption1.Command1"};
  if (kind == kQuiz) return way + Lines{"click QuizOptions3.Command1"};
  if (kind == kRiddle) return way + Lines{"click ChooseRiddle.Command2"};
  return way;
}
Lines BehindHeading(int kind) {
  return ToHeading(kind) +
         Lines{"type QuizOptions5.Text1 \"Venus\"", "click QuizOptions5.Command1"};
}
const Lines kMarks = {"mark PickWords.TheWords 0 1 2 3", "seed 1"};
const std::string kDone = "click PickWords.Command2";

Lines ToMarkedWords(int kind) { return BehindHeading(kind) + kMarks; }
Lines ToPuzzleSize() {
  return ToMarkedWords(kWordSearch) + Lines{kDone, "click QuizOptions.Command1"};
}
Lines ToCrossOption2() { return BehindHeading(kCrossword) + Lines{"click CrossOption1.Command1"}; }
Lines ToCrosswordWords() {
  return ToCrossOption2() + Lines{"click CrossOption2.Command2"} + kMarks;
}
Lines ToCrossPrint() { return ToCrosswordWords() + Lines{kDone, "tick 1001", "tick 1000"}; }
Lines ToFailedCrossword() {
  return ToHeading(kCrossword) + Lines{"click QuizOptions5.Command1",
                                       "set CrossOption1.QualityBar 20",
                                       "click CrossOption1.Command1",
                                       "click CrossOption2.Command2",
                                       "click PickWords.ChooseRandom",
                                       "seed 2",
                                       kDone,
                                       "tick 5000"};
}
Lines ToBackgrounds() { return ToCrossPrint() + Lines{"click CrossPrint.ColorLabel(8)"}; }
const Lines kAlphabetizeWords = {"start",
                                 "click Title.Command4",
                                 "select ChooseList.TheLists \"Fire\"",
                                 "click ChooseList.Command1",
                                 "type QuizOptions5.Text1 \"Venus\"",
                                 "click QuizOptions5.Command1",
                                 "mark PickWords.TheWords 0 1 2 3",
                                 "seed 1"};
const Lines kRiddles = kMenu + Lines{"click Title.Command3"};
const Lines kCodedRiddle =
    kRiddles + Lines{"click JustForFun.Command2", "click RiddleOption1.Command3",
                     "click RiddleOption1.Command2", "seed 1"};
const Lines kOptions = kMenu + Lines{"click Title.Toolbar1 \"Opts\""};
const Lines kSaved = kMenu + Lines{"click Title.Command2", "select OpenWorksheet.File1 0"};
const Lines kNewName =
    kMenu + Lines{"click Title.Toolbar1 \"Create\"", "type CreateList.NewName \"Sea\""};
const Lines kNewList =
    kNewName + Lines{"click CreateList.Command2", "type MakeNewList.TheWord \"wave\"",
                     "type MakeNewList.TheMeaning \"it rolls\""};
const Lines kChosenForEdit =
    kMenu + Lines{"click Title.Toolbar1 \"Edit\"", "select EditChooseList.TheLists \"Pets\""};
const Lines kEditor = kChosenForEdit + Lines{"click EditChooseList.Command1"};
const Lines kDeletion =
    kMenu + Lines{"click Title.Toolbar1 \"Delete\"", "select DeleteList.TheLists \"Pets\"",
                  "click DeleteList.Command1"};
const Lines kOnStudySheet = ToMarkedWords(kStudySheet) + Lines{kDone};
const Lines kClipart = kOnStudySheet + Lines{"click StudyGuideForm.Toolbar1 \"Clipart\""};
const Lines kLink =
    kOptions + Lines{"click ProgramOptions.Command3", "type ChangeList.Text1 \"school\\\\\""};
const Lines kQuickWord = kOptions + Lines{"click ProgramOptions.Command5"};

// Forty words that share no letter and don't fit side by side.
std::string HopelessList() {
  std::string list = "Fire\r\n";
  for (int i = 0; i < 40; ++i) {
    const char letter = static_cast<char>(i < 26 ? 'A' + i : '\xC0' + i - 26);
    list += std::string(17, letter) + "\r\nits letter\r\n";
  }
  return list;
}

struct Sheet {
  const char* form;
  Lines way;  // up to the finished sheet
};

std::vector<Sheet> Sheets() {
  return {
      {"WordSearchForm", ToPuzzleSize() + Lines{"click PuzzleSize.Command1"}},
      {"Scramble", ToMarkedWords(kScramble) + Lines{kDone}},
      {"QuizForm", kAlphabetizeWords + Lines{kDone}},
      {"CodeForm", ToMarkedWords(kSecretCode) + Lines{kDone}},
      {"RiddleForm", ToMarkedWords(kRiddle) + Lines{kDone}},
      {"CrosswordWorksheet",
       ToCrossPrint() + Lines{"click CrossPrint.Command5", "tick 10000", "tick 10000"}},
      {"StudyGuideForm", kOnStudySheet},
  };
}

std::string ErrorLine(int number) {
  return "error " + std::to_string(number) + " \"" + FaultText(static_cast<Fault>(number)) +
         "\"\nend\n";
}

}  // namespace

std::string NameOf(const Step& step) {
  std::string name;
  bool after_blank = true;
  for (const char* letter = step.name; *letter != '\0'; ++letter) {
    const auto code = static_cast<unsigned char>(*letter);
    if (std::isalnum(code)) name += static_cast<char>(after_blank ? std::toupper(code) : code);
    after_blank = *letter == ' ';
  }
  return name;
}

Snapshot FolderFor(const Step& step) {
  Snapshot files = SmallFolder();
  for (const auto& [name, bytes] : step.files) files[name] = bytes;
  return files;
}

std::string Told(const Step& step, int number) {
  std::string told = step.told;
  const auto at = told.find(kFault);
  if (at != std::string::npos) told.replace(at, kFault.size(), ErrorLine(number));
  return told;
}

std::vector<Step> ScreensWithBackground() {
  struct Opening {
    const char* screen;
    Lines way;
    std::string deed;
  };
  const std::vector<Opening> openings = {
      {"ChooseList", kMenu, "click Title.Command1(4)"},
      {"QuizOptions3", ChoiceOfList(kQuiz), "click ChooseList.Command1"},
      {"QuizOptions5", ChoiceOfList(kStudySheet), "click ChooseList.Command1"},
      {"ScrambleOption1", ChoiceOfList(kScramble), "click ChooseList.Command1"},
      {"ChooseRiddle", ChoiceOfList(kRiddle), "click ChooseList.Command1"},
      {"PickWords", ToHeading(kStudySheet), "click QuizOptions5.Command1"},
      {"QuizOptions", ToMarkedWords(kWordSearch), kDone},
      {"PuzzleSize", ToMarkedWords(kWordSearch) + Lines{kDone}, "click QuizOptions.Command1"},
      {"WordSearchForm", ToPuzzleSize(), "click PuzzleSize.Command1"},
      {"CrossOption1", ToHeading(kCrossword), "click QuizOptions5.Command1"},
      {"CrossOption2", BehindHeading(kCrossword), "click CrossOption1.Command1"},
      {"CrossPrint", ToCrosswordWords() + Lines{kDone}, "tick 1001"},
      {"CrosswordWorksheet", ToCrossPrint() + Lines{"click CrossPrint.Command5"}, "tick 10000"},
      {"Scramble", ToMarkedWords(kScramble), kDone},
      {"QuizForm", kAlphabetizeWords, kDone},
      {"StudyGuideForm", ToMarkedWords(kStudySheet), kDone},
      {"CodeForm", ToMarkedWords(kSecretCode), kDone},
      {"CodeForm of riddles", kCodedRiddle, "click QuizOptions5.Command1"},
      {"RiddleForm", ToMarkedWords(kRiddle), kDone},
      {"JustForFun", kMenu, "click Title.Command3"},
      {"RiddleOption1", kRiddles, "click JustForFun.Command2"},
      {"OpenWorksheet", kMenu, "click Title.Command2"},
      {"QuizForm of a saved worksheet", kSaved, "click OpenWorksheet.Command1"},
      {"AddPic of a worksheet", kOnStudySheet, "click StudyGuideForm.Toolbar1 \"Clipart\""},
      {"AddPic of a crossword", ToBackgrounds(), "click CrossPrint.Command4"},
      {"CreateList", kMenu, "click Title.Toolbar1 \"Create\""},
      {"MakeNewList", kNewName, "click CreateList.Command2"},
      {"EditChooseList", kMenu, "click Title.Toolbar1 \"Edit\""},
      {"EditList", kChosenForEdit, "click EditChooseList.Command1"},
      {"DeleteList", kMenu, "click Title.Toolbar1 \"Delete\""},
      {"ChangeList", kOptions, "click ProgramOptions.Command3"},
      {"QuickWordOption", kOptions, "click ProgramOptions.Command5"},
  };
  std::vector<Step> steps = {{.name = "PleaseWait on the way back",
                              .way = ToFailedCrossword(),
                              .deed = "click PleaseWait.Command1",
                              .file = "brindlepagebackground.jpg",
                              .files = {{"TheLists.dat", HopelessList()}}}};
  for (const Opening& opening : openings) {
    steps.push_back({opening.screen, opening.way, opening.deed, "brindlepagebackground.jpg"});
  }
  return steps;
}

std::vector<Step> ReadingSteps() {
  constexpr const char* kLists = "TheLists.dat";
  constexpr const char* kSettings = "brindlepage.dat";
  const std::string add = "click AddPic.Command1";
  const Lines preview = {"select AddPic.File1 \"apple.bmp\""};
  const Lines jpeg = {"select AddPic.File1 \"bell.jpg\""};
  const Lines to_browser = {"click CrossPrint.Command4"};
  const std::string begin = "click ChooseList.Command1";
  const std::string save = "\"Save and Quit\"";
  return {
      {"Start reads the settings", {}, "start", kSettings, kNoSettings},
      {"Start reads the picture", {}, "start", "titleback.jpg"},
      {"The way back reads the settings", kOptions, "click ProgramOptions.Command2", kSettings,
       kNoSettings},
      {"The way back reads the picture", kOptions, "click ProgramOptions.Command2",
       "titleback.jpg"},
      {"The options read the picture", kMenu, "click Title.Toolbar1 \"Opts\"", "titleback.jpg"},
      {"The choice of a list reads the names", kMenu, "click Title.Command1(4)", kLists},
      {"The choice for an edit reads the names", kMenu, "click Title.Toolbar1 \"Edit\"", kLists},
      {"The deletion reads all lines", kMenu, "click Title.Toolbar1 \"Delete\"", kLists},
      {"Begin counts the words", ChoiceOfList(kStudySheet), begin, kLists},
      {"A double click counts the words", ChoiceOfList(kStudySheet), "double ChooseList.TheLists",
       kLists},
      {"The choice of words reads them", ToHeading(kStudySheet), "click QuizOptions5.Command1",
       kLists},
      {"The editor reads the words", kChosenForEdit, "click EditChooseList.Command1", kLists},
      {"A new list reads the first line", kNewName, "click CreateList.Command2", kLists},
      {"Saving a new list reads all lines", kNewList, "click MakeNewList.Toolbar1 " + save, kLists,
       kSaveQuestion + kFault},
      {"Saving an edited list reads all lines", kEditor, "click EditList.Toolbar1 " + save, kLists,
       kSaveChanges + kFault},
      {"A backup reads the lists", kOptions, "click ProgramOptions.Command6", kLists,
       kBackupQuestion + kFault},
      {.name = "A restore reads the backup",
       .way = kOptions,
       .deed = "click ProgramOptions.Command1",
       .file = "TheLists.bak",
       .told = std::string(kRestoreQuestion) + kNoBackup,
       .stays = "ProgramOptions"},
      {"The riddle sheet reads the riddles", ChoiceOfList(kRiddle), begin, "Riddles.dat"},
      {"Coded riddles read the riddles", kRiddles, "click JustForFun.Command2", "Riddles.dat"},
      {"A cryptoquip reads the riddles", kRiddles, "click JustForFun.Command3", "Riddles.dat"},
      {"The link to lists reads the settings", kOptions, "click ProgramOptions.Command3",
       kSettings},
      {"The word processors option reads the settings", kOptions, "click ProgramOptions.Command5",
       kSettings},
      {"Open Worksheet reads the worksheet", kSaved, "click OpenWorksheet.Command1",
       "worksheets/Mars.rtf"},
      {"A double click reads the worksheet", kSaved, "double OpenWorksheet.File1",
       "worksheets/Mars.rtf"},
      {"A look at a bitmap reads it", kClipart, preview.front(), "apple.bmp"},
      {.name = "Adding a bitmap reads it again",
       .way = kClipart + preview,
       .deed = add,
       .file = "apple.bmp",
       .told = kCannotAdd,
       .stays = "StudyGuideForm"},
      {"A look at a picture reads it", ToBackgrounds() + to_browser, jpeg.front(), "bell.jpg"},
      {.name = "Adding a picture reads it again",
       .way = ToBackgrounds() + to_browser + jpeg,
       .deed = add,
       .file = "bell.jpg",
       .told = kCannotAdd,
       .stays = "CrossPrint"},
  };
}

std::vector<Step> WritingSteps() {
  constexpr const char* kLists = "TheLists.dat";
  constexpr const char* kSettings = "brindlepage.dat";
  return {
      {.name = "The first start writes the settings",
       .way = {},
       .deed = "start",
       .file = kSettings,
       .told = kNoSettings,
       .files = {{kSettings, "a\r\nb\r\n+++++\r\nlistpath\r\nand a fifth line\r\n"}}},
      {"A new list is saved", kNewList, "click MakeNewList.Toolbar1 \"Save and Quit\"", kLists,
       kSaveQuestion + kFault},
      {"An edited list is saved", kEditor, "click EditList.Toolbar1 \"Save and Quit\"", kLists,
       kSaveChanges + kFault},
      {"A list is deleted", kDeletion, "click DeleteList.Yes", kLists},
      {"A backup is made", kOptions, "click ProgramOptions.Command6", "TheLists.bak",
       kBackupQuestion + kFault},
      {.name = "A backup is restored",
       .way = kOptions,
       .deed = "click ProgramOptions.Command1",
       .file = kLists,
       .told = std::string(kRestoreQuestion) + kNoBackup,
       .stays = "ProgramOptions"},
      {.name = "Another folders lists are linked to",
       .way = kLink,
       .deed = "click ChangeList.Command1",
       .file = kSettings,
       .told = std::string(kFoundFolder) + kInvalidFolder,
       .stays = "ChangeList"},
      {"The word processors option is saved", kQuickWord, "click QuickWordOption.Command1",
       kSettings},
  };
}

std::vector<Step> WorksheetSteps() {
  constexpr const char* kSheet = "worksheets/Venus.rtf";
  constexpr const char* kKey = "worksheets/Venus(Answer Key).rtf";
  constexpr const char* kWordProcessor = "a\r\nb\r\nwriter \r\nlistpath\r\n";
  const std::string asked =
      "input \"Name Saved File\" \"What would you like to call this file?\" \"Venus\" -> "
      "\"Venus\"\n";
  std::vector<Step> steps;
  for (const Sheet& sheet : Sheets()) {
    const std::string toolbar = std::string("click ") + sheet.form + ".Toolbar1 ";
    const bool asks = sheet.form != std::string("StudyGuideForm");
    const Step save = {sheet.form, sheet.way, toolbar + "\"Save\"", kSheet, asked + kFault};
    steps.push_back(save);
    steps.push_back(save);
    steps.back().file = kKey;
    steps.back().told = asked + (asks ? kKeyQuestion : "") + kFault;
    steps.back().written = {kSheet};
    const Step open = {.name = sheet.form,
                       .way = sheet.way,
                       .deed = toolbar + "\"QuickWord\"",
                       .file = kSheet,
                       .files = {{"brindlepage.dat", kWordProcessor}}};
    steps.push_back(open);
    steps.push_back(open);
    steps.back().file = kKey;
    steps.back().written = {kSheet};
  }
  return steps;
}

}  // namespace brindlepage
