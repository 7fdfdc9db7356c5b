#include "desktop/desktop_random.h"

#include <utility>

namespace brindlepage {

DesktopRandom::DesktopRandom(std::function<Milliseconds()> now, std::function<void()> still_waiting)
    : now_(std::move(now)), still_waiting_(std::move(still_waiting)) {}

void DesktopRandom::BeginHandler() {
  draws_ = 0;
  waiting_since_.reset();
}

std::span<const float> DesktopRandom::MakeNumbers() {
  const std::span<const float> numbers = ClockRandom::MakeNumbers();
  draws_ += numbers.size();
  if (draws_ >= kDrawsBetweenLooks) {
    draws_ = 0;
    LookAtClock();
  }
  return numbers;
}

void DesktopRandom::LookAtClock() {
  if (!waiting_since_) waiting_since_ = now_();
  if (now_() - *waiting_since_ <= kPatience) return;
  still_waiting_();
  waiting_since_ = now_();
}

}  // namespace brindlepage
