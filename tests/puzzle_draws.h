#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string_view>
#include <vector>

#include "toolkit/random_source.h"

namespace brindlepage {

// The very numbers that a word search is to draw, in their order, and when it reseeded.
class PuzzleDraws : public RandomSource {
 public:
  // The next draw from 1 to n gives `number`.
  void Add(int number, int n) {
    draws_.push_back((static_cast<float>(number) - 0.5F) / static_cast<float>(n));
  }
  // These numbers one after the other, each drawn from 1 to n.
  void AddAll(const std::vector<int>& numbers, int n) {
    for (const int number : numbers) Add(number, n);
  }
  // 1 to n in order: every number that can be tried, once.
  void AddEachOf(int n) {
    for (int number = 1; number <= n; ++number) Add(number, n);
  }
  // So many letters that fill empty cells.
  void AddLetters(std::string_view letters) {
    for (const char letter : letters) Add(letter - 'A' + 1, 26);
  }

  float NextRandom() override {
    if (next_ == draws_.size()) {
      ADD_FAILURE() << "the draws are used up";
      return 0;
    }
    return draws_[next_++];
  }
  void Reseed() override { reseeds.push_back(next_); }

  std::size_t Used() const { return next_; }
  std::size_t Left() const { return draws_.size() - next_; }

  std::vector<std::size_t> reseeds;  // how many draws had been made at each

 private:
  std::vector<float> draws_;
  std::size_t next_ = 0;
};

}  // namespace brindlepage
