#pragma once

#include "core/program.h"
#include "toolkit/file_lists.h"

namespace brindlepage {

// Links the program to the list file of another folder, by line 4 of the settings file; the menu
// reads it when it loads.
//
// Its ways out are broken: a change is stored and then reported as a failure, and Cancel ends the
// program with an error. It is left by closing its frame.
class ChangeList : public ProgramForm {
 public:
  explicit ChangeList(Program& program);

  Label Label1{*this, "Label1",
               "Type the directory path for the file you want to use. For example: "
               "C:\\Wordlantern\\"};
  TextBox Text1{*this, "Text1", "c:\\"};
  Label Label2{*this, "Label2",
               "WARNING: Entering a directory that does not exist or does not contain a list file "
               "(\"TheLists.dat\") will result in program errors.",
               Look::Warning};
  CommandButton Command2{*this, "Command2", "Cancel"};
  CommandButton Command1{*this, "Command1", "OK"};
  FileListBox TestPath{*this, "TestPath"};
  ListBox Data{*this, "Data"};  // the settings file

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void TakeFolder();
  void LinkTo(const std::string& folder);
  bool FolderHoldsListFile();
  [[noreturn]] void ShowNotice();
  std::string SettingsPath() const { return shared.ProgramDir + "\\brindlepage.dat"; }
};

}  // namespace brindlepage
