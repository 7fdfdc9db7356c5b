#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "toolkit/forms.h"
#include "toolkit/keyboard.h"
#include "toolkit/platform.h"
#include "toolkit/random_source.h"
#include "toolkit/timer.h"

namespace brindlepage {

// The program's name, the title of its own messages.
inline constexpr char kProgramName[] = "Brindlepage";

// Unwinds from a handler to the loop when the program ends. Nothing catches it but Dispatch.
struct ProgramEnd {};

// What every form stands on: the forms, the timers, the window system, the random numbers, and
// the loop's way into a handler.
class Runtime {
 public:
  Runtime(Platform& platform, RandomSource& random, Forms::Factory factory);

  Platform& platform() { return platform_; }
  RandomSource& random() { return *random_; }
  void UseRandom(RandomSource& random) { random_ = &random; }
  Forms& forms() { return forms_; }
  TimerQueue& timers() { return timers_; }
  Keyboard& keyboard() { return keyboard_; }

  // Runs a handler for the loop, and is the one place that catches its end: the program's end
  // and run-time errors, which end the program with status 1. Handlers nest while a box is open.
  // When the outermost has returned, unloaded forms are destroyed, and the program ends if no
  // form is shown any more and no timer runs that could show one.
  void Dispatch(const std::function<void()>& handler);

  // Fires every timer that is due, in order, each in a dispatch of its own.
  void FireTimers();

  // Ends the program at once: nothing else of the handler runs.
  [[noreturn]] void End();
  bool Ended() const { return ended_; }
  int Status() const { return status_; }  // of the process; 1 after a run-time error
  bool InHandler() const { return depth_ > 0; }

  // The boxes and dialogs of the platform.
  BoxAnswer MsgBox(std::string_view text, std::string_view title,
                   BoxButtons buttons = BoxButtons::Ok);
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                      std::string_view default_text);
  std::optional<PrintChoice> PrintDialog(unsigned flags);
  std::optional<std::string> OpenDialog(std::string_view title, std::string_view filter,
                                        std::string_view folder);
  void Beep() { platform_.Beep(); }

 private:
  // Unwinds the handler that waited for a box, if the program ended behind it.
  void GoOnUnlessEnded() const;
  void Fail(Fault fault);

  Platform& platform_;
  RandomSource* random_;
  TimerQueue timers_;
  Forms forms_;
  Keyboard keyboard_{*this};
  int depth_ = 0;
  bool ended_ = false;
  int status_ = 0;
};

}  // namespace brindlepage
