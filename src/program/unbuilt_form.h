#pragma once

#include "core/program.h"

namespace brindlepage {

// Stands for a screen that is still to be built: its name, and the way back to the menu.
class UnbuiltForm : public ProgramForm {
 public:
  UnbuiltForm(Program& program, Screen screen, const std::string& name)
      : ProgramForm(program, screen, name, name), Label1(*this, "Label1", name, Look::Heading) {
    Command1.Click = [this] { StepTo(Screen::Title); };
    Command1.Cancel = true;
    Arrange(Column(Label1, Spring(), Row(Spring(), Command1)));
  }

  Label Label1;
  CommandButton Command1{*this, "Command1", "Back to Main Screen"};

 private:
  void Load() override {
    CentreForm();
    LoadBackground();
  }
};

}  // namespace brindlepage
