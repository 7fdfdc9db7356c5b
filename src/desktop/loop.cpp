#include "desktop/loop.h"

#include <QCoreApplication>
#include <algorithm>
#include <chrono>

#include "toolkit/platform.h"

namespace brindlepage {

namespace {

// The timers' resolution. The program's shortest interval means: as soon as there is time; a
// desktop need not wake a thousand times a second for that.
constexpr Milliseconds kShortestWait = 10;

}  // namespace

Loop::Loop() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &Loop::FireTimers);
}

Milliseconds Loop::Now() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void Loop::Dispatch(const std::function<void()>& handler) {
  if (!runtime_->InHandler()) emit HandlerBegins();
  runtime_->Dispatch(handler);
  TakeStock();
}

void Loop::Act(Form& form, const std::function<void()>& deed) {
  Dispatch([&] {
    runtime_->forms().Activate(form);
    if (form.Visible) deed();
  });
}

void Loop::Act(Control& control, const std::function<void()>& deed) {
  Act(control.form(), [&] {
    if (control.CanAct()) deed();
  });
}

void Loop::TakeStock() {
  if (runtime_->Ended()) {
    timer_.stop();
    if (told_end_ || Held()) return;
    told_end_ = true;
    emit Ended();
    return;
  }
  runtime_->timers().Arm(Now());
  const auto due = runtime_->timers().NextDue();
  if (!due) return timer_.stop();
  const Milliseconds wait = std::max(kShortestWait, *due - Now());
  if (!timer_.isActive() || timer_.remainingTime() > wait) {
    timer_.start(std::chrono::milliseconds(wait));
  }
}

void Loop::LetWindowsPaint() {
  const TimersHeld held(*this);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Loop::FireTimers() {
  if (holds_ == 0) {
    if (!runtime_->InHandler()) emit HandlerBegins();
    runtime_->FireTimers();
  }
  TakeStock();
}

}  // namespace brindlepage
