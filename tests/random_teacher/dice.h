#pragma once

#include <cstddef>
#include <cstdint>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace brindlepage {

// What decides for a teacher without a plan: the same from the same seed.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : random_(seed) {}

  int Below(int limit) { return static_cast<int>(random_() % static_cast<std::uint64_t>(limit)); }
  bool OneIn(int chances) { return Below(chances) == 0; }

  template <class T>
  const T& AnyOf(const std::vector<T>& things) {
    return things[static_cast<std::size_t>(Below(static_cast<int>(things.size())))];
  }
  // Each as likely as its weight says; at least one has a weight.
  template <class T>
  const T& AnyOf(const std::vector<T>& things, const std::vector<int>& weights) {
    int left = Below(std::accumulate(weights.begin(), weights.end(), 0));
    std::size_t place = 0;
    while (left >= weights[place]) left -= weights[place++];
    return things[place];
  }

  // Something to type, in UTF-8.
  std::string Text();
  // The name of a list that a fresh folder may have.
  std::string ListName();
  // The folder of a list file: with one, without, and none at all.
  std::string Link();

 private:
  std::mt19937_64 random_;
};

}  // namespace brindlepage
