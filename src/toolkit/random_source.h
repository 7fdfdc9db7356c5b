#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace brindlepage {

class RandomSource {
 public:
  RandomSource() = default;
  RandomSource(const RandomSource&) = delete;
  RandomSource& operator=(const RandomSource&) = delete;
  virtual ~RandomSource() = default;

  // A uniform number r with 0 <= r < 1, in single precision.
  float NextRandom() {
    if (numbers_.empty()) numbers_ = MakeNumbers();
    const float number = numbers_.front();
    numbers_ = numbers_.subspan(1);
    return number;
  }

  // Seeds the generator from the clock.
  virtual void Reseed() = 0;

  // A whole number from 1 to n: the whole part of n * r + 1, computed in double precision, so
  // that it can't leave 1 to n.
  int DrawIndex(int n) { return static_cast<int>(n * static_cast<double>(NextRandom()) + 1.0); }

 protected:
  // The next draws, one at least; they stay the source's. Many at a time, since a worksheet takes
  // draws by the ten thousand and a virtual call for each would be most of their cost.
  virtual std::span<const float> MakeNumbers() = 0;

  // What was made and not yet drawn is drawn no more.
  void DropNumbers() { numbers_ = {}; }

 private:
  std::span<const float> numbers_;
};

// A source that is asked for every single draw.
class DrawByDraw : public RandomSource {
 protected:
  virtual float Draw() = 0;

 private:
  std::span<const float> MakeNumbers() final {
    number_ = Draw();
    return {&number_, 1};
  }

  float number_ = 0;
};

// xoshiro128+, after Blackman and Vigna's description of the generator; 24 bits a draw.
class Xoshiro {
 public:
  explicit Xoshiro(std::uint64_t seed) { Seed(seed); }
  void Seed(std::uint64_t seed);

  void Fill(std::span<float> numbers);

 private:
  std::array<std::uint32_t, 4> state_;
};

// Draws of a generator, made in blocks.
class GeneratedDraws : public RandomSource {
 protected:
  explicit GeneratedDraws(std::uint64_t seed) : generator_(seed) {}

  void Seed(std::uint64_t seed);
  std::span<const float> MakeNumbers() override;

 private:
  Xoshiro generator_;
  std::array<float, 64> numbers_;
  // Few numbers at first, since some sheets reseed for nearly every draw.
  std::size_t count_ = 1;
};

// The program's own source. Reseeding mixes the clock with a counter, so that two reseeds in one
// instant differ.
class ClockRandom : public GeneratedDraws {
 public:
  ClockRandom();
  void Reseed() override;
};

// Draws from a seed; reseeding has no effect.
class SeededRandom : public GeneratedDraws {
 public:
  explicit SeededRandom(std::uint64_t seed) : GeneratedDraws(seed) {}
  using GeneratedDraws::Seed;
  void Reseed() override {}
};

}  // namespace brindlepage
