#include "crossword/cross_option1.h"

namespace brindlepage {

CrossOption1::CrossOption1(Program& owner)
    : ProgramForm(owner, Screen::CrossOption1, "CrossOption1", "Crossword Option") {
  Command1.Default = true;
  Command2.Cancel = true;
  Command1.Click = [this] { Continue(); };
  Command2.Click = [this] { StepTo(Screen::QuizOptions5); };

  Arrange(Column(Row(Image1, Gap(), Column(Label1)), Gap(), Row(Label2, QualityBar, Label3),
                 Spring(), Row(Command2, Spring(), Command1)));
}

void CrossOption1::Load() {
  CentreForm();
  LoadBackground();
}

void CrossOption1::Continue() {
  shared.CrossSize = QualityBar.Value();
  StepTo(Screen::CrossOption2);
}

}  // namespace brindlepage
