#include "riddle/riddle_option1.h"

namespace brindlepage {

RiddleOption1::RiddleOption1(Program& owner)
    : RiddleBook(owner, Screen::RiddleOption1, "RiddleOption1", "Coded Riddles Worksheet") {
  Command3.Default = true;
  Command1.Cancel = true;
  TotalLabel.Alignment = kCentred;
  Command3.Click = [this] { Add(); };
  Command1.Click = [this] { StepTo(Screen::JustForFun); };
  Command2.Click = [this] { Continue(); };
  Arrange(Column(Label1, Leaves(), Row(Image2, Spring(), PageLabel, Spring(), Image1),
                 Row(Spring(), Command3, Spring()), TotalLabel, Gap(),
                 Row(Command1, Spring(), Command2)));
}

void RiddleOption1::Load() {
  RiddleBook::Load();
  shared.CodedRiddles.Erase();
  shared.CodedAnswers.Erase();
  shared.CodedRiddleCount = 0;
}

void RiddleOption1::NextRiddle() {
  ++RiddleIndex;
  if (JustAdded) {
    --RiddleIndex;
    JustAdded = false;
  }
  if (BehindTheLast()) {
    --RiddleIndex;
    runtime().Beep();
  }
  ShowRiddle();
}

void RiddleOption1::PreviousRiddle() {
  --RiddleIndex;
  if (RiddleIndex < 0) {
    ++RiddleIndex;
    runtime().Beep();
  }
  ShowRiddle();
}

void RiddleOption1::Add() {
  if (RiddleBox.Text().empty() || Punchbox.Text().empty()) return runtime().Beep();
  ++shared.CodedRiddleCount;
  shared.CodedRiddles(shared.CodedRiddleCount) = RiddleBox.Text;
  shared.CodedAnswers(shared.CodedRiddleCount) = Punchbox.Text;
  TotalLabel.Caption =
      "Total Riddles Selected for This WorkSheet: " + DisplayForm(shared.CodedRiddleCount);
  TakeOutOfBook();
  RiddleBox.Text = "";
  Punchbox.Text = "";
  PageLabel.Caption = "";
  JustAdded = true;
}

// So that a riddle of the book is added once. A riddle of the teacher's own takes nothing out.
void RiddleOption1::TakeOutOfBook() {
  if (RiddleBox.Text() != RiddleList.List(RiddleIndex)) return;
  RiddleList.RemoveItem(RiddleIndex);
  PunchList.RemoveItem(RiddleIndex);
}

void RiddleOption1::Continue() {
  shared.CodedRiddleHint = 0;
  if (shared.CodedRiddleCount > 0) return StepTo(Screen::QuizOptions5);
  runtime().Beep();
  runtime().MsgBox("At least one riddle must be added for this worksheet.", "Hey!");
}

}  // namespace brindlepage
