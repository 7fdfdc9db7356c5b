#include "toolkit/random_source.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <chrono>

namespace brindlepage {
namespace {

// splitmix64, which the authors of the xoshiro generators recommend for filling their state: it
// never fills it with zeros alone, and it makes unlike states of neighbouring seeds.
std::uint64_t SplitMix(std::uint64_t& seed) {
  seed += 0x9E3779B97F4A7C15u;
  std::uint64_t mixed = seed;
  mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
  mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
  return mixed ^ (mixed >> 31);
}

std::uint64_t ClockSeed() {
  static std::atomic<std::uint64_t> seeds_made{0};
  std::uint64_t count = ++seeds_made;
  auto now = std::chrono::system_clock::now().time_since_epoch().count();
  return static_cast<std::uint64_t>(now) ^ SplitMix(count);
}

}  // namespace

void Xoshiro::Seed(std::uint64_t seed) {
  for (std::size_t i = 0; i < state_.size(); i += 2) {
    std::uint64_t bits = SplitMix(seed);
    state_[i] = static_cast<std::uint32_t>(bits);
    state_[i + 1] = static_cast<std::uint32_t>(bits >> 32);
  }
}

void Xoshiro::Fill(std::span<float> numbers) {
  auto [a, b, c, d] = state_;
  for (float& number : numbers) {
    const std::uint32_t sum = a + d;
    const std::uint32_t shifted = b << 9;
    c ^= a;
    d ^= b;
    b ^= c;
    a ^= d;
    c ^= shifted;
    d = std::rotl(d, 11);
    // The upper bits are the good ones, and 24 are what a float can hold.
    number = static_cast<float>(sum >> 8) * 0x1.0p-24f;
  }
  state_ = {a, b, c, d};
}

void GeneratedDraws::Seed(std::uint64_t seed) {
  generator_.Seed(seed);
  DropNumbers();
  count_ = 1;
}

std::span<const float> GeneratedDraws::MakeNumbers() {
  const std::span<float> made = std::span(numbers_).first(count_);
  generator_.Fill(made);
  count_ = std::min(2 * count_, numbers_.size());
  return made;
}

ClockRandom::ClockRandom() : GeneratedDraws(ClockSeed()) {}

void ClockRandom::Reseed() { Seed(ClockSeed()); }

}  // namespace brindlepage
