#pragma once

#include "core/program.h"

namespace brindlepage {

// A small box over the choice of a list: nothing was chosen.
class ChooseReminder : public ProgramForm {
 public:
  explicit ChooseReminder(Program& program);

  Label Label1{*this, "Label1", "You need to choose a list!"};
  CommandButton Command1{*this, "Command1", "OK"};

 private:
  void Load() override { CentreForm(); }
  void Deactivate() override { Unload(); }
};

}  // namespace brindlepage
