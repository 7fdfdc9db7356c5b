#include "toolkit/random_source.h"

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
  for (int i = 0; i < 4; i += 2) {
    std::uint64_t bits = SplitMix(seed);
    state_[i] = static_cast<std::uint32_t>(bits);
    state_[i + 1] = static_cast<std::uint32_t>(bits >> 32);
  }
}

float Xoshiro::Next() {
  std::uint32_t sum = state_[0] + state_[3];
  std::uint32_t shifted = state_[1] << 9;
  state_[2] ^= state_[0];
  state_[3] ^= state_[1];
  state_[1] ^= state_[2];
  state_[0] ^= state_[3];
  state_[2] ^= shifted;
  state_[3] = std::rotl(state_[3], 11);
  // The upper bits are the good ones, and 24 are what a float can hold.
  return static_cast<float>(sum >> 8) * 0x1.0p-24f;
}

ClockRandom::ClockRandom() : generator_(ClockSeed()) {}

void ClockRandom::Reseed() { generator_.Seed(ClockSeed()); }

}  // namespace brindlepage
