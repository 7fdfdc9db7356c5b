#include "core/just_for_fun.h"

namespace brindlepage {

JustForFun::JustForFun(Program& owner)
    : ProgramForm(owner, Screen::JustForFun, "JustForFun", "Just For Fun") {
  Command2.Click = [this] { StartActivity(kCodedRiddles); };
  Command3.Click = [this] { StartActivity(kCryptoquip); };
  Command1.Click = [this] { StepTo(Screen::Title); };
  Command1.Cancel = true;
  Arrange(Column(Label1, Gap(), Grid(2, Command2, Command3), Spring(), Row(Spring(), Command1)));
}

void JustForFun::Load() {
  CentreForm();
  LoadBackground();
}

void JustForFun::StartActivity(int kind) {
  shared.ActivityKind = kind;
  StepTo(Screen::RiddleOption1);
}

}  // namespace brindlepage
