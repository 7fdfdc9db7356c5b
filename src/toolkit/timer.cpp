#include "toolkit/timer.h"

#include <algorithm>

#include "toolkit/form.h"
#include "toolkit/runtime.h"

namespace brindlepage {

Timer::Timer(Form& form, std::string name, int interval, bool enabled)
    : Control(form, std::move(name)), Interval(*this, "Interval", interval) {
  Visible = false;
  Enabled = enabled;
  form.runtime().timers().Add(*this);
}

Timer::~Timer() { form().runtime().timers().Remove(*this); }

void TimerQueue::Arm(Milliseconds now) {
  for (Timer* timer : timers_) {
    const bool runs = timer->form().IsLoaded() && timer->Enabled;
    const int wanted = runs ? std::max(0, timer->Interval()) : 0;
    if (wanted == timer->armed_) continue;
    timer->armed_ = wanted;
    timer->due_ = now + wanted;
  }
}

std::optional<Milliseconds> TimerQueue::NextDue() const {
  std::optional<Milliseconds> next;
  for (const Timer* timer : timers_) {
    if (timer->armed_ > 0 && (!next || timer->due_ < *next)) next = timer->due_;
  }
  return next;
}

Timer* TimerQueue::TakeDue(Milliseconds now) {
  Timer* first = nullptr;
  for (Timer* timer : timers_) {
    if (timer->armed_ == 0 || timer->due_ > now) continue;
    if (first == nullptr || timer->due_ < first->due_) first = timer;
  }
  if (first == nullptr) return nullptr;
  first->due_ += first->armed_;
  if (first->due_ <= now) first->due_ = now + first->armed_;
  return first;
}

}  // namespace brindlepage
