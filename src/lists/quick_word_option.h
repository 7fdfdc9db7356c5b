#pragma once

#include "core/program.h"
#include "toolkit/lists.h"

namespace brindlepage {

// The word processor that opens finished worksheets: line 3 of the settings file. Its button
// ends the program, which reads the setting when it starts.
class QuickWordOption : public ProgramForm {
 public:
  explicit QuickWordOption(Program& program);

  CheckBox Checks1{*this, "Checks1", "", true};
  Label Label1{*this, "Label1", "Enable Quick Word Option"};
  Label Label2{*this, "Label2",
               "The \"Quick Word\" option, if enabled, will automatically open your worksheets in "
               "the word processor of your choice for instant editing. It makes quiz and worksheet "
               "creation much easier and more versatile. If you have trouble with this option on, "
               "return here to turn it off again."};
  CommandButton Command1{*this, "Command1", "Done"};
  ListBox OptionsList{*this, "OptionsList"};  // the settings file

 private:
  void Load() override;
  void Checked();
  void FindProgram();
  void Done();
  void SaveOptions();
  std::string SettingsPath() const { return shared.ProgramDir + "/brindlepage.dat"; }

  std::string ProcessorPath;
  std::string FoundProgram;  // the file name that the open dialog holds
};

}  // namespace brindlepage
