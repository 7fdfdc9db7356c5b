#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "toolkit/control.h"

namespace brindlepage {

// A time on the platform's clock, or a stretch of it.
using Milliseconds = std::int64_t;

// Raises Tick every Interval milliseconds while it is enabled, counted from when it was enabled
// or its interval set.
class Timer : public Control {
 public:
  Timer(Form& form, std::string name, int interval, bool enabled);
  ~Timer() override;

  Property<int> Interval;  // milliseconds; 0 stops it
  Event<> Tick;

 private:
  friend class TimerQueue;

  int armed_ = 0;  // the interval that is running, 0 while none is
  Milliseconds due_ = 0;
};

// All timers of the loaded forms. There are never more than a handful, so it looks at each.
class TimerQueue {
 public:
  void Add(Timer& timer) { timers_.push_back(&timer); }
  void Remove(Timer& timer) { std::erase(timers_, &timer); }

  // Starts those that were enabled since the last look and stops the others.
  void Arm(Milliseconds now);
  // When the next timer is due; nothing while none runs.
  std::optional<Milliseconds> NextDue() const;
  // The timer that is due first at `now`, set running anew from its due time or, if it has
  // fallen behind by more than an interval, from now. Nothing if none is due.
  Timer* TakeDue(Milliseconds now);

 private:
  std::vector<Timer*> timers_;
};

}  // namespace brindlepage
