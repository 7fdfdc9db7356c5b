#include "scramble_code/scramble_option1.h"

namespace brindlepage {

ScrambleOption1::ScrambleOption1(Program& owner)
    : ProgramForm(owner, Screen::ScrambleOption1, "ScrambleOption1", "Activity Setup") {
  Command1.Default = true;
  Command3.Cancel = true;
  Command1.Click = [this] { GiveHints(true); };
  Command2.Click = [this] { GiveHints(false); };
  Command3.Click = [this] { StepTo(Screen::ChooseList); };
  Command1.SetFocus();
  Arrange(Column(Label1, Spring(), Row(Command3, Spring(), Command2, Command1)));
}

void ScrambleOption1::Load() {
  CentreForm();
  LoadBackground();
}

void ScrambleOption1::GiveHints(bool wanted) {
  shared.ScrambleClues = wanted ? 1 : 0;
  StepTo(Screen::QuizOptions5);
}

}  // namespace brindlepage
