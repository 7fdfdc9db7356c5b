#pragma once

#include "core/program.h"
#include "toolkit/controls.h"
#include "toolkit/timer.h"

namespace brindlepage {

// Stands on screen while a crossword is built, and starts the build of a remake.
class PleaseWait : public ProgramForm {
 public:
  explicit PleaseWait(Program& program);

  Label Label1{*this, "Label1",
               "Please wait while Brindlepage tries to build this crossword. This could take up "
               "to several minutes..."};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  CommandButton Command1{*this, "Command1", "OK"};
  Timer Timer1{*this, "Timer1", 100, true};

  // The build has given up: the reason, and a button to go.
  void ShowFailure();

 private:
  void Load() override;
  void Closing() override { runtime().End(); }

  void Tick();
  void Remake();
  void BackToMenu();
};

}  // namespace brindlepage
