#pragma once

#include <initializer_list>
#include <stdexcept>
#include <vector>

#include "toolkit/random_source.h"

namespace brindlepage {

struct DrawsUsedUp : std::runtime_error {
  DrawsUsedUp() : std::runtime_error("the draws are used up") {}
};

// The very draws to come, told as what DrawIndex makes of them.
//
//   GivenDraws draws;
//   draws.Of(6, {1, 5}).Of(4, {2});  // DrawIndex(6) gives 1, then 5; DrawIndex(4) gives 2
class GivenDraws : public RandomSource {
 public:
  GivenDraws& Of(int n, std::initializer_list<int> indices) {
    for (const int index : indices) numbers_.push_back((static_cast<float>(index) - 0.5f) / n);
    return *this;
  }
  // Each index from 1 to n, that many times over.
  GivenDraws& AllOf(int n, int times) {
    for (int i = 0; i < n * times; ++i) Of(n, {i % n + 1});
    return *this;
  }
  // A number that is drawn and thrown away.
  GivenDraws& Unused() { return Of(2, {2}); }

  float NextRandom() override {
    if (Left() == 0) throw DrawsUsedUp();
    return numbers_[next_++];
  }
  void Reseed() override { ++reseeds_; }

  std::size_t Left() const { return numbers_.size() - next_; }
  int Reseeds() const { return reseeds_; }

 private:
  std::vector<float> numbers_;
  std::size_t next_ = 0;
  int reseeds_ = 0;
};

}  // namespace brindlepage
