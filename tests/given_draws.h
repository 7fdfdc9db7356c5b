#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>
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
class GivenDraws : public DrawByDraw {
 public:
  GivenDraws& Of(int n, const std::vector<int>& indices) {
    for (const int index : indices) {
      numbers_.push_back((static_cast<float>(index) - 0.5F) / static_cast<float>(n));
    }
    return *this;
  }
  // Each index from 1 to n, that many times over.
  GivenDraws& AllOf(int n, int times = 1) {
    for (int i = 0; i < n * times; ++i) Of(n, {i % n + 1});
    return *this;
  }
  // These letters of A to Z.
  GivenDraws& Letters(std::string_view letters) {
    for (const char letter : letters) Of(26, {letter - 'A' + 1});
    return *this;
  }
  // A number that is drawn and thrown away.
  GivenDraws& Unused() { return Of(2, {2}); }

  float Draw() override {
    if (Left() == 0) throw DrawsUsedUp();
    return numbers_[next_++];
  }
  void Reseed() override { reseeds_.push_back(next_); }

  std::size_t Left() const { return numbers_.size() - next_; }
  // How many draws had been made at each reseeding.
  const std::vector<std::size_t>& Reseeds() const { return reseeds_; }

 private:
  std::vector<float> numbers_;
  std::size_t next_ = 0;
  std::vector<std::size_t> reseeds_;
};

}  // namespace brindlepage
