#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>

#include "toolkit/random_source.h"
#include "toolkit/timer.h"

namespace brindlepage {

// The program's random numbers, with an eye on draws that can't succeed: once a handler has drawn
// for more than ten seconds the teacher is asked whether to go on waiting.
class DesktopRandom : public ClockRandom {
 public:
  static constexpr Milliseconds kPatience = 10'000;
  static constexpr std::size_t kDrawsBetweenLooks = 65536;

  // `now` tells the time; `still_waiting` asks the teacher. It may throw, to end the program.
  DesktopRandom(std::function<Milliseconds()> now, std::function<void()> still_waiting);

  // A handler begins, and with it the teacher's patience.
  void BeginHandler();

 private:
  std::span<const float> MakeNumbers() override;
  void LookAtClock();

  std::function<Milliseconds()> now_;
  std::function<void()> still_waiting_;
  std::size_t draws_ = 0;                      // since the last look
  std::optional<Milliseconds> waiting_since_;  // the first look of this handler
};

}  // namespace brindlepage
