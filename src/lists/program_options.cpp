#include "lists/program_options.h"

#include "toolkit/arrangement.h"
#include "toolkit/files.h"

namespace brindlepage {

ProgramOptions::ProgramOptions(Program& owner)
    : ProgramForm(owner, Screen::ProgramOptions, "ProgramOptions", "Program Options") {
  Command2.Cancel = true;
  Command6.Click = [this] { BackUp(); };
  Command1.Click = [this] { Restore(); };
  Command3.Click = [this] { StepTo(Screen::ChangeList); };
  Command5.Click = [this] { forms().Show(Screen::QuickWordOption); };
  Command2.Click = [this] { StepTo(Screen::Title); };
  Arrange(Column(Label1, Spring(), Grid(1, Command6, Command1, Command3, Command5, Command2),
                 Spring()));
}

void ProgramOptions::Load() {
  CentreForm();
  Image1.Picture = LoadPicture(shared.ProgramDir + "\\titleback.jpg");
}

bool ProgramOptions::Confirmed(const char* question, const char* title) {
  if (runtime().MsgBox(question, title, BoxButtons::YesNo) == BoxAnswer::Yes) return true;
  runtime().Beep();
  return false;
}

std::string ProgramOptions::BackupPath() const {
  constexpr std::size_t kEnding = 3;
  const std::string& path = shared.ListFilePath;
  return path.substr(0, path.size() - kEnding) + "bak";
}

void ProgramOptions::BackUp() {
  if (!Confirmed("Make a backup copy of your default Vocabulary List?", "Backup")) return;
  files::WriteAllLines(BackupPath(), files::ReadAllLines(shared.ListFilePath));
  runtime().MsgBox("Backup successful. TheLists.dat has been saved as TheLists.bak",
                   "Backup Complete");
  StepTo(Screen::Title);
}

// Whatever goes wrong is told as a missing backup.
void ProgramOptions::Restore() {
  if (!Confirmed("Restore backup copy of Vocabulary List?", "Restore")) return;
  try {
    files::WriteAllLines(shared.ListFilePath, files::ReadAllLines(BackupPath()));
    runtime().MsgBox("Restore successful.", "Restore Complete");
    StepTo(Screen::Title);
  } catch (const RunTimeError&) {
    runtime().MsgBox("No Backup file can be found", "Error");
  }
}

}  // namespace brindlepage
