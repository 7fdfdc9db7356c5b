#pragma once

#include "core/program.h"

namespace brindlepage {

// Takes a new name for the list in the editor beneath it. Goes away when it loses the activation.
class ChangeListName : public ProgramForm {
 public:
  explicit ChangeListName(Program& program);

  TextBox TheName{*this, "TheName"};
  CommandButton Command2{*this, "Command2", "Cancel"};
  CommandButton Command1{*this, "Command1", "OK"};

 private:
  void Load() override;
  void Deactivate() override { Unload(); }
  void TakeName();
  void EnterName();
};

}  // namespace brindlepage
