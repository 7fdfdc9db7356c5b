#include "riddle/choose_riddle.h"

namespace brindlepage {

ChooseRiddle::ChooseRiddle(Program& owner)
    : RiddleBook(owner, Screen::ChooseRiddle, "ChooseRiddle", "Choose a Riddle") {
  Command2.Default = true;
  Command1.Cancel = true;
  Label4.Click = [this] { NextRiddle(); };
  Label5.Click = [this] { PreviousRiddle(); };
  Command1.Click = [this] { StepTo(Screen::ChooseList); };
  Command2.Click = [this] { Choose(); };
  Arrange(Column(Label1, Leaves(),
                 Row(Image2, Label5, Spring(), PageLabel, Spring(), Label4, Image1), Gap(),
                 Row(Command1, Spring(), Command2)));
}

void ChooseRiddle::NextRiddle() {
  ++RiddleIndex;
  if (BehindTheLast()) {
    --RiddleIndex;
    runtime().Beep();
  }
  ShowRiddle();
}

void ChooseRiddle::PreviousRiddle() {
  if (RiddleIndex > 0) {
    --RiddleIndex;
  } else {
    runtime().Beep();
  }
  ShowRiddle();
}

void ChooseRiddle::Choose() {
  shared.RiddleText = RiddleBox.Text;
  shared.RiddleAnswer = Punchbox.Text;
  StepTo(Screen::QuizOptions5);
}

}  // namespace brindlepage
