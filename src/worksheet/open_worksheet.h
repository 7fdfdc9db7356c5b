#pragma once

#include "core/program.h"
#include "toolkit/file_lists.h"

namespace brindlepage {

// The saved worksheets; the chosen one opens in QuizForm. The menu stays loaded beneath.
class OpenWorksheet : public ProgramForm {
 public:
  explicit OpenWorksheet(Program& program);

  Label Label2{*this, "Label2", "Worksheets Saved:"};
  FileListBox File1{*this, "File1", "*.rtf"};
  CommandButton Command1{*this, "Command1", "Open Worksheet"};
  CommandButton Command2{*this, "Command2", "Cancel"};

  std::optional<Screen> Successor() const override { return Screen::QuizForm; }

 private:
  void Load() override;
  void OpenChosen();
};

}  // namespace brindlepage
