#include "worksheet/open_worksheet.h"

namespace brindlepage {

OpenWorksheet::OpenWorksheet(Program& owner)
    : ProgramForm(owner, Screen::OpenWorksheet, "OpenWorksheet", "Open Saved Worksheet") {
  Command1.Enabled = false;
  Command1.Default = true;
  Command2.Cancel = true;
  File1.Click = [this] {
    if (File1.ListIndex >= 0) Command1.Enabled = true;
  };
  File1.DblClick = [this] {
    if (File1.ListIndex >= 0) OpenChosen();
  };
  Command1.Click = [this] { OpenChosen(); };
  Command2.Click = [this] { Unload(); };
  Arrange(Column(Label2, Fill(File1), Row(Command2, Spring(), Command1)));
}

void OpenWorksheet::Load() {
  CentreForm();
  LoadBackground();
  File1.Path = shared.ProgramDir + "\\worksheets\\";
  if (File1.ListCount() > 0) return;
  runtime().MsgBox("There are no saved worksheets to open.", "No files found!");
  Unload();
}

void OpenWorksheet::OpenChosen() {
  shared.SavedWorksheetName = File1.FileName();
  shared.ActivityKind = kSavedWorksheet;
  StepTo(*Successor());
}

}  // namespace brindlepage
