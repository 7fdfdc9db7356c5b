#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/program.h"
#include "toolkit/file_lists.h"

namespace brindlepage {

// The main menu. Its load is the program's start-up and runs at every return to the menu.
class Title : public ProgramForm {
 public:
  explicit Title(Program& program);

  Image Image1{*this, "Image1"};
  Toolbar Toolbar1{*this, "Toolbar1"};
  Label Label1{*this, "Label1", kProgramName, Look::Heading};
  Label Label2{*this, "Label2", "What would you like to make today?", Look::Note};
  // The index is the value of ActivityKind.
  std::vector<std::unique_ptr<CommandButton>> Command1;
  CommandButton Command4{*this, "Command4", "Create Alphabetize Sheet", "alphabetize"};
  CommandButton Command3{*this, "Command3", "Just For Fun", "just-for-fun"};
  CommandButton Command2{*this, "Command2", "Open Saved Worksheet", "open-worksheet"};
  DirListBox PathBox{*this, "PathBox"};
  ListBox Data{*this, "Data"};

 private:
  void Load() override;

  void ShowTipOnNarrowScreen();
  void ReadProgramDir();
  void ReadSettings();
  void EnsureWorksheetsFolder();
  void ReadQuickWordSetting();
  void ClearSession();

  void LoadSettingsLines();
  void MarkFirstStart();

  void StartActivity(int kind);
  void StartAlphabetizeSheet();
  void ToolbarClick(const std::string& key);
};

}  // namespace brindlepage
