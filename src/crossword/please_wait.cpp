#include "crossword/please_wait.h"

namespace brindlepage {

PleaseWait::PleaseWait(Program& owner)
    : ProgramForm(owner, Screen::PleaseWait, "PleaseWait", "Working...") {
  Command1.Visible = false;
  Command1.Default = true;
  Command1.Click = [this] { BackToMenu(); };
  Timer1.Tick = [this] { Tick(); };

  Arrange(Column(Label1, Gap(), ProgressBar1, Gap(), Row(Spring(), Command1)));
}

void PleaseWait::Load() {
  CentreForm();
  ProgressBar1.Max = shared.CrossSize;
}

void PleaseWait::ShowFailure() {
  ProgressBar1.Visible = false;
  Label1.Caption =
      "The program was unable to make this puzzle. To try again, you can either select fewer "
      "words, have the computer choose the words for you by choosing the <Make Best Puzzle> "
      "option, or you can move the Speed Vs. Quality slider further to the right and try again...";
  Command1.Visible = true;
}

void PleaseWait::Tick() {
  if (shared.RemakeRequest) Remake();
  Timer1.Enabled = false;
}

// The build runs in the load of the new form.
void PleaseWait::Remake() {
  for (int i = 1; i <= shared.ListWordCount; ++i) shared.WordMarks(i) = shared.CrossMarks(i);
  forms().Load(Screen::CrossWord);
  forms().Show(Screen::CrossPrint);
  shared.RemakeRequest = false;
}

void PleaseWait::BackToMenu() {
  LoadBackground();
  forms().Show(Screen::Title);
  for (const Screen screen : {Screen::PickWords, Screen::CrossPrint, Screen::PleaseWait}) {
    forms().Unload(screen);
  }
}

}  // namespace brindlepage
