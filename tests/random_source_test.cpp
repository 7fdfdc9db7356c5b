#include "toolkit/random_source.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace brindlepage {
namespace {

// Gives the same number at each draw.
class OneNumber : public DrawByDraw {
 public:
  explicit OneNumber(float number) : number_(number) {}
  float Draw() override { return number_; }
  void Reseed() override {}

 private:
  float number_;
};

std::vector<float> Draws(RandomSource& source, int count) {
  std::vector<float> draws;
  for (int i = 0; i < count; ++i) draws.push_back(source.NextRandom());
  return draws;
}

constexpr float kLargest = 1.0f - 0x1.0p-24f;

TEST(Xoshiro, DrawsWhatTheGeneratorIsDefinedToGive) {
  // The first two numbers of splitmix64 from 0 are E220A8397B1DCDAF and 6E789E6AA1B965F4, so the
  // state is 7B1DCDAF E220A839 A1B965F4 6E789E6A. First and last add up to E9966C19, after one
  // step to B8F8985E; 24 bits of each are the draw.
  Xoshiro generator(0);
  std::array<float, 2> numbers;
  generator.Fill(numbers);
  EXPECT_EQ(numbers[0], static_cast<float>(0xE9966C) / 16777216.0f);
  EXPECT_EQ(numbers[1], static_cast<float>(0xB8F898) / 16777216.0f);
}

TEST(SeededRandom, StaysFromZeroToBelowOne) {
  SeededRandom source(1);
  double sum = 0;
  for (int i = 0; i < 100000; ++i) {
    float draw = source.NextRandom();
    ASSERT_GE(draw, 0.0f);
    ASSERT_LT(draw, 1.0f);
    sum += static_cast<double>(draw);
  }
  EXPECT_NEAR(sum / 100000, 0.5, 0.01);
}

TEST(SeededRandom, SameSeedGivesSameDraws) {
  SeededRandom one(42);
  SeededRandom other(42);
  SeededRandom neighbour(43);
  std::vector<float> draws = Draws(one, 20);
  EXPECT_EQ(draws, Draws(other, 20));
  EXPECT_NE(draws, Draws(neighbour, 20));
}

TEST(SeededRandom, ReseedingHasNoEffect) {
  SeededRandom one(42);
  SeededRandom other(42);
  one.NextRandom();
  other.NextRandom();
  one.Reseed();
  EXPECT_EQ(Draws(one, 20), Draws(other, 20));
}

TEST(ClockRandom, TwoSourcesOfOneInstantDiffer) {
  ClockRandom one;
  ClockRandom other;
  EXPECT_NE(Draws(one, 8), Draws(other, 8));
}

TEST(ClockRandom, TwoReseedsInOneInstantDiffer) {
  ClockRandom source;
  source.Reseed();
  std::vector<float> first = Draws(source, 8);
  source.Reseed();
  EXPECT_NE(first, Draws(source, 8));
}

TEST(DrawIndex, RunsFromOneToN) {
  OneNumber lowest(0.0f);
  OneNumber highest(kLargest);
  for (int n : {1, 2, 3, 26, 300, 32767}) {
    EXPECT_EQ(lowest.DrawIndex(n), 1) << n;
    EXPECT_EQ(highest.DrawIndex(n), n) << n;
  }
}

TEST(DrawIndex, LargestNumberDoesNotRoundUpPastN) {
  // In single precision n * r + 1 would round to n + 1 here.
  EXPECT_EQ(256.0f * kLargest + 1.0f, 257.0f);
  EXPECT_EQ(OneNumber(kLargest).DrawIndex(256), 256);
}

TEST(DrawIndex, TakesTheWholePart) {
  EXPECT_EQ(OneNumber(0.5f).DrawIndex(4), 3);
  EXPECT_EQ(OneNumber(0.49f).DrawIndex(4), 2);
  EXPECT_EQ(OneNumber(0.5f).DrawIndex(1), 1);
}

TEST(DrawIndex, DrawsEveryNumberAboutAsOften) {
  SeededRandom source(7);
  std::array<int, 7> drawn{};
  for (int i = 0; i < 60000; ++i) ++drawn.at(static_cast<std::size_t>(source.DrawIndex(6)));
  EXPECT_EQ(drawn[0], 0);
  for (std::size_t face = 1; face <= 6; ++face) EXPECT_NEAR(drawn[face], 10000, 500) << face;
}

}  // namespace
}  // namespace brindlepage
