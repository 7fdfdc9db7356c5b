#include "quiz/quiz_options3.h"

namespace brindlepage {

QuizOptions3::QuizOptions3(Program& owner)
    : ProgramForm(owner, Screen::QuizOptions3, "QuizOptions3", "Activity Setup") {
  Command1.Default = true;
  Command2.Cancel = true;
  Label3.Click = [this](int index) { LabelClick(index); };
  Command1.Click = [this] {
    shared.QuizKind = ChosenKind();
    StepTo(Screen::QuizOptions5);
  };
  Command2.Click = [this] { StepTo(Screen::ChooseList); };

  Arrange(Column(
      Framed(Frame2, Column(Row(MC, Label3(0), Spring()), Row(MC2, Label3(3), Spring()),
                            Row(Match, Label3(1), Spring()), Row(FillNo, Label3(2), Spring()),
                            Row(FillYes, Label3(5), Spring()))),
      Spring(), Row(Command2, Spring(), Command1)));
}

void QuizOptions3::Load() {
  CentreForm();
  LoadBackground();
}

void QuizOptions3::LabelClick(int index) {
  switch (index) {
    case 0:
      MC.Value = true;
      break;
    case 1:
      Match.Value = true;
      break;
    case 2:
      FillNo.Value = true;
      break;
    case 3:
      MC2.Value = true;
      break;
    case 5:
      FillYes.Value = true;
      break;
    default:
      break;
  }
}

int QuizOptions3::ChosenKind() const {
  if (MC.Value) return kChooseWord;
  if (Match.Value) return kMatching;
  if (FillNo.Value) return kFillIn;
  if (FillYes.Value) return kWordBank;
  return kChooseMeaning;
}

}  // namespace brindlepage
