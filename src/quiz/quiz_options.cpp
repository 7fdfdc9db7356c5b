#include "quiz/quiz_options.h"

namespace brindlepage {

QuizOptions::QuizOptions(Program& owner)
    : ProgramForm(owner, Screen::QuizOptions, "QuizOptions", "Word Search Options") {
  Command1.Default = true;
  Command2.Cancel = true;
  Label3.Click = [this](int index) { LabelClick(index); };
  Command1.Click = [this] { Continue(); };
  Command2.Click = [this] { StepTo(Screen::PickWords); };

  Arrange(Column(Label1,
                 Framed(Frame1, Column(Row(WordQuiz, Label3(3), Spring()),
                                       Row(DefinitionQuiz, Label3(4), Spring()))),
                 Row(Check1, Label3(0), Spring()), Spring(), Row(Command2, Spring(), Command1)));
}

void QuizOptions::Load() {
  CentreForm();
  LoadBackground();
}

void QuizOptions::LabelClick(int index) {
  if (index == 3) {
    WordQuiz.Value = true;
  } else if (index == 0) {
    Check1.Value = !Check1.Value;
  } else {
    DefinitionQuiz.Value = true;
  }
}

// An unticked box leaves an earlier easy puzzle standing for the rest of the run.
void QuizOptions::Continue() {
  if (Check1.Value) shared.EasyPuzzle = true;
  shared.WordBankKind = WordQuiz.Value ? 1 : 2;
  StepTo(Screen::PuzzleSize);
}

}  // namespace brindlepage
