#pragma once

#include <cstdint>

namespace brindlepage {

class RandomSource {
 public:
  virtual ~RandomSource() = default;

  // A uniform number r with 0 <= r < 1, in single precision.
  virtual float NextRandom() = 0;
  // Seeds the generator from the clock.
  virtual void Reseed() = 0;

  // A whole number from 1 to n: the whole part of n * r + 1, computed in double precision, so
  // that it can't leave 1 to n.
  int DrawIndex(int n) { return static_cast<int>(n * static_cast<double>(NextRandom()) + 1.0); }
};

// xoshiro128+, after Blackman and Vigna's description of the generator; 24 bits a draw.
class Xoshiro {
 public:
  explicit Xoshiro(std::uint64_t seed) { Seed(seed); }
  void Seed(std::uint64_t seed);
  float Next();

 private:
  std::uint32_t state_[4];
};

// The program's own source. Reseeding mixes the clock with a counter, so that two reseeds in one
// instant differ.
class ClockRandom : public RandomSource {
 public:
  ClockRandom();
  float NextRandom() override { return generator_.Next(); }
  void Reseed() override;

 private:
  Xoshiro generator_;
};

// Draws from a seed; reseeding has no effect.
class SeededRandom : public RandomSource {
 public:
  explicit SeededRandom(std::uint64_t seed) : generator_(seed) {}
  float NextRandom() override { return generator_.Next(); }
  void Reseed() override {}

 private:
  Xoshiro generator_;
};

}  // namespace brindlepage
