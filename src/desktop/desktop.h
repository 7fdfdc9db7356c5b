#pragma once

#include "desktop/desktop_random.h"
#include "desktop/loop.h"
#include "desktop/qt_platform.h"
#include "desktop/windows.h"
#include "program/screens.h"

namespace brindlepage {

// The program on the desktop: the logic, its random numbers and its windows. It works in the
// process's working directory and needs a QApplication.
class Desktop {
 public:
  Desktop();
  ~Desktop();

  // Shows the menu.
  void Start();
  // Starts, and works until the program ends. The status of the process.
  int Run();

  BrindlepageProgram& program() { return program_; }
  Loop& loop() { return loop_; }
  Windows& windows() { return *windows_; }

 private:
  void StillWaiting();

  Loop loop_;
  std::unique_ptr<Windows> windows_;
  QtPlatform platform_;
  DesktopRandom random_;
  BrindlepageProgram program_;
};

}  // namespace brindlepage
