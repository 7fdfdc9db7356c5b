#pragma once

#include "core/program.h"

namespace brindlepage {

// Tells the program's name and version; goes away when it loses the activation.
class AboutForm : public ProgramForm {
 public:
  explicit AboutForm(Program& program);

  Image Image1{*this, "Image1", "program"};
  Label Label1{*this, "Label1", kProgramName, Look::Heading};
  Label Label5{*this, "Label5", "Version 2.3"};
  CommandButton Command1{*this, "Command1", "OK"};

 private:
  void Load() override { CentreForm(); }
  void Deactivate() override { Unload(); }
};

}  // namespace brindlepage
