#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "toolkit/random_source.h"

namespace brindlepage {

// The draws of a generator as they are due: where it reseeds, and what each draw gives.
//
//   ToldDraws random({kReseed, {2, 3}, {1, 3}});  // reseeds, draws 2 of 3, then 1 of 3
//
// Whatever else it asks for fails the test, and so does what it leaves over.
class ToldDraws : public DrawByDraw {
 public:
  struct Step {
    int index;  // what DrawIndex gives
    int of;     // 0: a reseeding
  };

  explicit ToldDraws(std::vector<Step> steps) : steps_(std::move(steps)) {}
  ~ToldDraws() override { EXPECT_EQ(next_, steps_.size()) << "steps are left over"; }

  void Then(std::vector<Step> steps, int times = 1) {
    for (int i = 0; i < times; ++i) steps_.insert(steps_.end(), steps.begin(), steps.end());
  }

  float Draw() override {
    const Step step = Next();
    if (step.of == 0) throw std::logic_error("a draw where a reseeding is due");
    return (static_cast<float>(step.index) - 0.5f) / static_cast<float>(step.of);
  }
  void Reseed() override {
    if (Next().of != 0) throw std::logic_error("a reseeding where a draw is due");
  }

 private:
  Step Next() {
    if (next_ == steps_.size()) throw std::logic_error("the draws are used up");
    return steps_[next_++];
  }

  std::vector<Step> steps_;
  std::size_t next_ = 0;
};

inline constexpr ToldDraws::Step kReseed{0, 0};

// For what never ends: any numbers, until there were too many.
class EndlessDraws : public DrawByDraw {
 public:
  struct NeverEnds {};

  float Draw() override {
    if (++draws_ > 100'000) throw NeverEnds();
    return source_.NextRandom();
  }
  void Reseed() override {}

 private:
  SeededRandom source_{7};
  int draws_ = 0;
};

}  // namespace brindlepage
