#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "toolkit/control.h"
#include "toolkit/form.h"
#include "toolkit/runtime.h"

namespace brindlepage {

// The way from Qt's event loop into the program's logic, and the one timer behind all of the
// program's timers.
class Loop : public QObject {
  Q_OBJECT

 public:
  Loop();

  void Attach(Runtime& runtime) { runtime_ = &runtime; }
  Runtime& runtime() const { return *runtime_; }

  static Milliseconds Now();

  void Dispatch(const std::function<void()>& handler);

  // What the teacher does on a form, which is made the active one first. It is ignored where the
  // form or the control can't act, be it since the activation.
  void Act(Form& form, const std::function<void()>& deed);
  void Act(Control& control, const std::function<void()>& deed);

  // Sets the timer for the next timer that is due, and tells if the program has ended. Called
  // after everything that may have run the logic, and before a box opens.
  void TakeStock();

  // Paints what waits to be painted, in the middle of a handler: no timer fires, and what the
  // teacher does waits.
  void LetWindowsPaint();
  // The handler under way is not to be entered anew.
  bool Held() const { return holds_ > 0; }

  // No timer fires and no end is told while one of these lives.
  class TimersHeld {
   public:
    explicit TimersHeld(Loop& loop) : loop_(loop) { ++loop_.holds_; }
    ~TimersHeld() { --loop_.holds_; }
    TimersHeld(const TimersHeld&) = delete;
    TimersHeld& operator=(const TimersHeld&) = delete;

   private:
    Loop& loop_;
  };

 signals:
  void HandlerBegins();  // the outermost
  void Ended();          // once; boxes close

 private:
  void FireTimers();

  Runtime* runtime_ = nullptr;
  QTimer timer_;
  int holds_ = 0;
  bool told_end_ = false;
};

}  // namespace brindlepage
