#include "core/title.h"

#include "core/settings_file.h"
#include "toolkit/code_page.h"
#include "toolkit/files.h"

namespace brindlepage {

namespace {

struct ActivityButton {
  const char* caption;
  const char* icon;
};

// By ActivityKind.
constexpr ActivityButton kActivities[] = {
    {"Create a Word Search", "word-search"},     {"Create a Crossword Puzzle", "crossword"},
    {"Create a Scramble Worksheet", "scramble"}, {"Create a Quiz", "quiz"},
    {"Create Study Sheet", "study-sheet"},       {"Create a Secret Code Activity", "secret-code"},
    {"Create a Riddle Worksheet", "riddle"},
};

}  // namespace

Title::Title(Program& owner) : ProgramForm(owner, Screen::Title, "Title", kProgramName) {
  for (const ActivityButton& activity : kActivities) {
    const int kind = static_cast<int>(Command1.size());
    Command1.push_back(
        std::make_unique<CommandButton>(*this, "Command1", activity.caption, activity.icon));
    Command1.back()->MakeElement(kind);
    Command1.back()->Click = [this, kind] { StartActivity(kind); };
  }
  Command4.Click = [this] { StartAlphabetizeSheet(); };
  Command3.Click = [this] { StepTo(Screen::JustForFun); };
  Command2.Click = [this] { forms().Show(Screen::OpenWorksheet); };

  Toolbar1.Add("Create", "Create List", "Make a New Vocabulary List", "list-new");
  Toolbar1.Add("Edit", "View/Edit List", "View or Edit a Vocabulary List", "list-edit");
  Toolbar1.Add("Delete", "Delete List", "Delete a Vocabulary List", "list-delete");
  Toolbar1.Add("Opts", "Options", "Change Program Options", "options");
  Toolbar1.Add("Info", "Info", "Version Information", "info");
  Toolbar1.Add("Quit", "Quit", "Exit Brindlepage", "quit");
  Toolbar1.ButtonClick = [this](ToolbarButton& button) { ToolbarClick(button.Key); };

  PathBox.Visible = false;
  Data.Visible = false;

  Arrange(Column(Toolbar1, Label1, Label2, Spring(),
                 Grid(2, *Command1[0], *Command1[1], *Command1[2], *Command1[3], *Command1[4],
                      *Command1[5], *Command1[6], Command4, Command3, Command2),
                 Spring()));
}

void Title::Load() {
  ShowTipOnNarrowScreen();
  CentreForm();
  shared.ReturnTag = "";
  ReadProgramDir();
  ReadSettings();
  EnsureWorksheetsFolder();
  ReadQuickWordSetting();
  Caption = kProgramName;
  for (int number = 1; number <= Toolbar1.ButtonCount(); ++number) {
    Toolbar1.Button(number).Enabled = true;
  }
  ClearSession();
  Image1.Picture = LoadPicture(shared.ProgramDir + "\\titleback.jpg");
}

void Title::ShowTipOnNarrowScreen() {
  constexpr int kNarrow = 9601;  // twips: 640 pixels of 15 and one more
  if (runtime().platform().ScreenSize().width >= kNarrow) return;
  runtime().MsgBox(
      "Brindlepage was created to run at a minimum 800x600 resolution. For best results, you "
      "should change the resolution of your computer.",
      "Tip:");
}

void Title::ReadProgramDir() { shared.ProgramDir = PathBox.Path(); }

void Title::ReadSettings() {
  try {
    LoadSettingsLines();
    const std::string& folder = Data.List(settings_file::kListFolderLine);
    shared.ListFilePath = folder == settings_file::kProgramFolder
                              ? shared.ProgramDir + "\\TheLists.dat"
                              : folder + "TheLists.dat";
    if (Data.List(settings_file::kWordProcessorLine) == settings_file::kFreshInstallation) {
      MarkFirstStart();
    }
  } catch (const RunTimeError&) {
    runtime().MsgBox(
        "Some required files cannot be found by the program. This could have been caused if the "
        "program's directory has been changed or if some files have been deleted. Please "
        "re-install the program to correct these errors.",
        "Error!");
    runtime().End();
  }
}

void Title::LoadSettingsLines() {
  Data.AddItems(files::ReadAllLines(shared.ProgramDir + "\\brindlepage.dat"));
}

void Title::MarkFirstStart() {
  Data.List(settings_file::kWordProcessorLine, std::string(settings_file::kNoWordProcessor));
  files::WriteAllLines(settings_file::kFileName, Data.Rows());
}

void Title::EnsureWorksheetsFolder() {
  const std::string wanted = PathBox.Path() + "\\worksheets";
  for (int i = 0; i < PathBox.FolderCount(); ++i) {
    if (code_page::LowerCase(PathBox.Folder(i)) == code_page::LowerCase(wanted)) return;
  }
  files::MakeFolder(wanted);
}

void Title::ReadQuickWordSetting() {
  files::LineReader settings(shared.ProgramDir + "\\brindlepage.dat");
  settings.ReadLine();
  settings.ReadLine();
  const std::string word_processor(settings.ReadLine());
  shared.QuickWordEnabled = word_processor != settings_file::kNoWordProcessor;
  if (shared.QuickWordEnabled) shared.QuickWordPath = word_processor;
}

void Title::ClearSession() {
  shared.AnswerTable.Erase();
  shared.WordMarks.Erase();
  shared.ListMeanings.Erase();
  shared.ListWords.Erase();
  shared.PictureReturn = false;
}

void Title::StartActivity(int kind) {
  shared.ActivityKind = kind;
  StepTo(Screen::ChooseList);
}

void Title::StartAlphabetizeSheet() {
  shared.QuizKind = kAlphabetizeSheet;
  StartActivity(kAlphabetize);
}

void Title::ToolbarClick(const std::string& key) {
  if (key == "Create List") return StepTo(Screen::CreateList);
  if (key == "View/Edit List") return StepTo(Screen::EditChooseList);
  if (key == "Delete List") return StepTo(Screen::DeleteList);
  if (key == "Options") return StepTo(Screen::ProgramOptions);
  if (key == "Info") return forms().Show(Screen::AboutForm);
  if (key == "Quit") runtime().End();
}

}  // namespace brindlepage
