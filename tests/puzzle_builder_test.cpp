#include "wordsearch/puzzle_builder.h"

#include <gtest/gtest.h>

#include "tests/expect_fault.h"
#include "tests/given_draws.h"

namespace brindlepage {
namespace {

class PuzzleBuilderTest : public ::testing::Test {
 protected:
  void UseWords(const std::vector<std::string>& words, int across, int down) {
    int number = 0;
    for (const std::string& word : words) shared.ListWords(++number) = word;
    shared.MarkedCount = number;
    shared.PuzzleAcross = across;
    shared.PuzzleDown = down;
  }
  // 75 words of 17 letters, no letter in two of them: they can't cross, and have more letters than
  // the largest puzzle with an odd side has cells.
  void UseHopelessWords(int across, int down) {
    std::vector<std::string> words;
    for (int i = 0; i < 75; ++i) words.emplace_back(17, static_cast<char>('!' + i));
    UseWords(words, across, down);
  }
  bool Build() { return BuildPuzzle(shared, random, grid); }

  SharedState shared;
  SeededRandom random{1};
  GivenDraws draws;
  PuzzleGrid grid;
};

std::string Row(const PuzzleGrid& grid, int y, int across) {
  std::string row;
  for (int x = 1; x <= across; ++x) row += grid.IsEmpty(x, y) ? '.' : grid.Letter(x, y);
  return row;
}

TEST_F(PuzzleBuilderTest, TheWordsArePlacedInTheOrderOfTheList) {
  UseWords({"sea", "Island", "at"}, 10, 10);
  draws.Of(3, {1});
  draws.Of(10, {2});
  draws.Of(7, {3});
  draws.Of(3, {1});
  draws.Of(10, {3});
  draws.Of(4, {4});
  draws.Of(3, {2});
  draws.Of(10, {5});  // column 5, from the a of sea
  draws.Of(8, {2});   // the t would stand on the s of Island
  draws.Of(8, {1});   // the a would stand on nothing, its t on the a of sea
  draws.Of(8, {8});
  EXPECT_TRUE(PlaceWords(shared, draws, grid));
  EXPECT_EQ(Row(grid, 2, 10), "..sea.....");
  EXPECT_EQ(Row(grid, 3, 10), "...Island.");
  EXPECT_EQ(Row(grid, 8, 10), "....a.....");
  EXPECT_EQ(Row(grid, 9, 10), "....t.....");
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzleBuilderTest, ARunBeginsWithAnEmptyGrid) {
  grid.Write("zzz", {1, 1, Direction::Across});
  UseWords({"ab"}, 10, 10);
  draws.Of(3, {2});
  draws.Of(10, {4});
  draws.Of(8, {8});
  EXPECT_TRUE(PlaceWords(shared, draws, grid));
  EXPECT_EQ(Row(grid, 1, 10), "..........");
  EXPECT_EQ(Row(grid, 8, 10), "...a......");
  EXPECT_EQ(Row(grid, 9, 10), "...b......");
}

TEST_F(PuzzleBuilderTest, TheSizeGrowsByTwoBelow35EachSideByItself) {
  const struct {
    int across, down, new_across, new_down;
  } steps[] = {{10, 10, 12, 12}, {21, 20, 23, 22}, {33, 34, 35, 36},
               {34, 30, 36, 32}, {35, 34, 35, 36}, {36, 12, 36, 14}};
  for (const auto& step : steps) {
    shared.PuzzleAcross = step.across;
    shared.PuzzleDown = step.down;
    EXPECT_TRUE(GrowPuzzle(shared)) << step.across << " by " << step.down;
    EXPECT_EQ(shared.PuzzleAcross, step.new_across);
    EXPECT_EQ(shared.PuzzleDown, step.new_down);
  }
}

TEST_F(PuzzleBuilderTest, At36By36ThereIsNoMoreGrowth) {
  shared.PuzzleAcross = 36;
  shared.PuzzleDown = 36;
  EXPECT_FALSE(GrowPuzzle(shared));
  EXPECT_EQ(shared.PuzzleAcross, 36);
  EXPECT_EQ(shared.PuzzleDown, 36);
}

TEST_F(PuzzleBuilderTest, AnOddSizeAt35IsTriedAgainAsItIs) {
  for (const auto& [across, down] : {std::pair(35, 35), std::pair(35, 36), std::pair(36, 35)}) {
    shared.PuzzleAcross = across;
    shared.PuzzleDown = down;
    EXPECT_TRUE(GrowPuzzle(shared));
    EXPECT_EQ(shared.PuzzleAcross, across);
    EXPECT_EQ(shared.PuzzleDown, down);
  }
}

TEST_F(PuzzleBuilderTest, AGrownPuzzleStartsAgainWithEveryWordAndFreshDraws) {
  UseWords({"cat", "house"}, 4, 4);
  // 4 by 4: the first word is placed, the second is longer than the grid.
  draws.Of(3, {1});
  draws.Of(4, {1});
  draws.Of(1, {1});
  draws.Of(3, {1});
  draws.AllOf(4);
  draws.Of(3, {2});
  draws.AllOf(4);
  draws.Of(3, {3});
  // 6 by 6: both are placed.
  draws.Of(3, {3});
  draws.Of(3, {3});
  draws.Of(3, {1});
  draws.Of(3, {1});
  draws.Of(6, {1});
  draws.Of(1, {1});
  EXPECT_TRUE(BuildPuzzle(shared, draws, grid));
  EXPECT_EQ(draws.Left(), 0U);
  EXPECT_EQ(shared.PuzzleAcross, 6);
  EXPECT_EQ(shared.PuzzleDown, 6);
  EXPECT_EQ(Row(grid, 1, 6), "house.");
  EXPECT_EQ(Row(grid, 2, 6), "......");
  EXPECT_EQ(Row(grid, 3, 6), "c.....");
  EXPECT_EQ(Row(grid, 4, 6), ".a....");
  EXPECT_EQ(Row(grid, 5, 6), "..t...");
  EXPECT_EQ(draws.Reseeds(), (std::vector<std::size_t>{0, 3, 8, 13, 14, 17}));
}

TEST_F(PuzzleBuilderTest, AWordOf17LettersOn10By10EndsOn18By18) {
  UseWords({"electromagnetisms"}, 10, 10);
  EXPECT_TRUE(Build());
  EXPECT_EQ(shared.PuzzleAcross, 18);
  EXPECT_EQ(shared.PuzzleDown, 18);
}

TEST_F(PuzzleBuilderTest, TheWordThatWasPlacedLastIsTheWorkWord) {
  UseWords({"lava", "ash", "crater"}, 20, 20);
  EXPECT_TRUE(Build());
  EXPECT_EQ(shared.WorkWord, "crater");
}

TEST_F(PuzzleBuilderTest, AHopelessListOf20By20EndsAt36By36) {
  UseHopelessWords(20, 20);
  EXPECT_FALSE(Build());
  EXPECT_EQ(shared.PuzzleAcross, 36);
  EXPECT_EQ(shared.PuzzleDown, 36);
}

TEST_F(PuzzleBuilderTest, AHopelessListOf21By20GoesOnAndOnAt35By36) {
  // A teacher who has waited for ten runs at the largest size.
  struct Enough {};
  class Impatient : public SeededRandom {
   public:
    explicit Impatient(SharedState& state) : SeededRandom(1), state_(state) {}
    void Reseed() override {
      const bool begins = state_.WorkWord == state_.ListWords(1) && last_ != state_.WorkWord;
      last_ = state_.WorkWord;
      if (begins && state_.PuzzleAcross == 35 && state_.PuzzleDown == 36 && ++runs_ > 10) {
        throw Enough();
      }
    }

   private:
    SharedState& state_;
    std::string last_;
    int runs_ = 0;
  } impatient(shared);
  UseHopelessWords(21, 20);
  EXPECT_THROW(BuildPuzzle(shared, impatient, grid), Enough);
}

TEST_F(PuzzleBuilderTest, AWordLongerThanAnySizeRunsOutOfStackAt35By36) {
  UseWords({std::string(40, 'x')}, 21, 20);
  EXPECT_FAULT(28, Build());
  EXPECT_EQ(shared.PuzzleAcross, 35);
  EXPECT_EQ(shared.PuzzleDown, 36);
}

TEST_F(PuzzleBuilderTest, AHopelessListStopsAtItsTenThousandthRun) {
  // Too long for every size, so that each run ends with its first word: two directions of an easy
  // puzzle, and a reseed for each.
  class Counted : public SeededRandom {
   public:
    Counted() : SeededRandom(1) {}
    void Reseed() override { ++reseeds; }
    int reseeds = 0;
  } counted;
  UseWords({std::string(40, 'x')}, 35, 35);
  shared.EasyPuzzle = true;
  EXPECT_FAULT(28, BuildPuzzle(shared, counted, grid));
  EXPECT_EQ(counted.reseeds, 20'000);
}

TEST_F(PuzzleBuilderTest, NoWordsMakeAnEmptyPuzzleWithoutADraw) {
  UseWords({}, 10, 10);
  EXPECT_TRUE(BuildPuzzle(shared, draws, grid));
  EXPECT_EQ(draws.Reseeds().size(), 0U);
}

}  // namespace
}  // namespace brindlepage
