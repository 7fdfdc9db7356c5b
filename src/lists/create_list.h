#pragma once

#include "core/program.h"

namespace brindlepage {

// Asks for the name of a new vocabulary list.
class CreateList : public ProgramForm {
 public:
  explicit CreateList(Program& program);

  Label Label1{*this, "Label1", "Type in the Name of your New List", Look::Heading};
  TextBox NewName{*this, "NewName"};
  CommandButton Command2{*this, "Command2", "OK"};
  CommandButton Command1{*this, "Command1", "Cancel"};

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void TakeName();
};

}  // namespace brindlepage
