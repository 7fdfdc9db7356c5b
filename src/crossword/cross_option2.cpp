#include "crossword/cross_option2.h"

#include "core/pick_words.h"

namespace brindlepage {

CrossOption2::CrossOption2(Program& owner)
    : ProgramForm(owner, Screen::CrossOption2, "CrossOption2", "Crossword Option") {
  Command1.Default = true;
  Command3.Cancel = true;
  Command1.SetFocus();
  Command1.Click = [this] { MakeBestPuzzle(); };
  Command2.Click = [this] { LetTeacherChoose(); };
  Command3.Click = [this] { StepTo(Screen::CrossOption1); };

  Arrange(Column(Row(Image1, Gap(), Column(Label1)), Spring(),
                 Row(Command3, Spring(), Command2, Command1)));
}

void CrossOption2::Load() {
  CentreForm();
  LoadBackground();
  shared.BestPuzzle = 0;
}

void CrossOption2::MakeBestPuzzle() {
  shared.BestPuzzle = 1;
  forms().Show(Screen::PickWords);
  forms().Get<PickWords>(Screen::PickWords).BestChoice();
  Unload();
}

void CrossOption2::LetTeacherChoose() {
  shared.BestPuzzle = 0;
  StepTo(Screen::PickWords);
}

}  // namespace brindlepage
