#include "core/program.h"

namespace brindlepage {

void ProgramForm::StepTo(Screen next) {
  forms().Show(next);
  Unload();
}

void ProgramForm::LeaveFor(Screen next) {
  Unload();
  forms().Show(next);
}

void ProgramForm::LoadBackground() {
  Picture = LoadPicture(shared.ProgramDir + "\\brindlepagebackground.jpg");
}

}  // namespace brindlepage
