#include <gtest/gtest.h>

#include <string>

#include "crossword/grid_builder.h"
#include "tests/crossword_words.h"
#include "tests/literal_grid_builder.h"

// The builder against the literal one: every cell, number, mark and draw.
namespace brindlepage {
namespace {

// What the builds of a test had in them, all told.
struct Seen {
  int builds = 0;
  int too_deep = 0;
  int gave_up = 0;
  int with_orphans = 0;
  int late_restarts = 0;
  int letters_changed = 0;
  int shared_starts = 0;
  int second_passes = 0;
  int deepest = 0;
};

void ExpectSameWords(const SharedState& one, const SharedState& other) {
  for (int i = 0; i <= 300; ++i) {
    ASSERT_EQ(int{one.AnswerTable(i)}, int{other.AnswerTable(i)}) << i;
    ASSERT_EQ(int{one.WordMarks(i)}, int{other.WordMarks(i)}) << i;
  }
  ASSERT_EQ(one.OrphansFlag, other.OrphansFlag);
}

void ExpectSameGrid(const literal::LiteralGridBuilder& expected, const CrosswordGrid& grid) {
  for (int c = 0; c <= 39; ++c) {
    for (int r = 0; r <= 30; ++r) ASSERT_EQ(grid.Grid(c, r), expected.Grid[c][r]) << c << "," << r;
  }
  for (int c = 0; c <= 37; ++c) {
    for (int r = 0; r <= 29; ++r) {
      ASSERT_EQ(grid.StartNumbers(c, r), expected.StartNumbers[c][r]) << c << "," << r;
    }
  }
  for (int p = 0; p <= 300; ++p) {
    ASSERT_EQ(grid.PlacedWords(p).Number, expected.PlacedWords[p].Number) << p;
    ASSERT_EQ(static_cast<int>(grid.PlacedWords(p).Direction), expected.PlacedWords[p].Direction)
        << p;
  }
}

void Add(const literal::LiteralGridBuilder& build, const SharedState& shared, Seen& seen) {
  seen.gave_up += build.GaveUp;
  seen.with_orphans += shared.OrphansFlag ? 1 : 0;
  seen.late_restarts += build.LateRestarts;
  seen.letters_changed += build.LettersChanged;
  seen.shared_starts += build.SharedStarts;
  seen.second_passes += build.SecondPasses;
  seen.deepest = std::max(seen.deepest, build.Deepest);
}

// Builds twice over the same state: the second build is a remake, on the order of the first.
void Compare(const PuzzleWish& wish, std::uint64_t seed, Seen& seen) {
  SharedState expected_state = StateFor(wish);
  SharedState state = StateFor(wish);
  for (int build = 0; build < 2; ++build) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", build " + std::to_string(build));
    CrosswordDraws expected_draws({}, seed * 2 + static_cast<std::uint64_t>(build));
    CrosswordDraws draws({}, seed * 2 + static_cast<std::uint64_t>(build));
    literal::LiteralGridBuilder expected(expected_state, expected_draws);
    try {
      expected.LoadForm();
    } catch (const literal::TooDeep&) {
      ++seen.too_deep;
      return;
    }
    int bar = 0;
    GridBuilder builder(state, draws, [&](int value) { bar = value; });
    builder.Build();

    ASSERT_EQ(draws.drawn(), expected_draws.drawn());
    ASSERT_EQ(draws.reseeds(), expected_draws.reseeds());
    ASSERT_EQ(draws.trace(), expected_draws.trace());
    ASSERT_NO_FATAL_FAILURE(ExpectSameWords(state, expected_state));
    ASSERT_NO_FATAL_FAILURE(ExpectSameGrid(expected, builder.grid()));
    ASSERT_EQ(builder.Attempts(), expected.Attempts);
    ASSERT_EQ(builder.OrphanCount(), expected.OrphanCount);
    ASSERT_EQ(builder.GaveUp(), expected.GaveUp == 1);
    ASSERT_EQ(builder.DeepestRestart(), expected.Deepest);
    ASSERT_EQ(bar, expected.BarValue);
    ++seen.builds;
    Add(expected, expected_state, seen);
    for (int i = 1; i <= state.ListWordCount; ++i) {
      // What a remake restores: the marks, as they were chosen or, of the best puzzle, none.
      const bool marked = !wish.best && StateFor(wish).WordMarks(i) == 1;
      state.WordMarks(i) = expected_state.WordMarks(i) = marked ? 1 : 0;
    }
  }
}

TEST(GridBuilderBesideTheLiteralOne, ManualModeOnShortLists) {
  Seen seen;
  for (std::uint64_t seed = 1; seed <= 1500; ++seed) {
    WordMaker maker(seed);
    PuzzleWish wish;
    wish.words = maker.Words(maker.Upto(9), 1 + maker.Upto(12), maker.Upto(3), 3 + maker.Upto(14));
    wish.slider = 20 * maker.Upto(2);
    ASSERT_NO_FATAL_FAILURE(Compare(wish, seed, seen));
  }
  EXPECT_EQ(seen.builds, 3000);
  EXPECT_GT(seen.with_orphans, 50);
  EXPECT_GT(seen.letters_changed, 50);
  EXPECT_GT(seen.shared_starts, 100);
}

TEST(GridBuilderBesideTheLiteralOne, ManualModeWithSomeOfTheWordsMarked) {
  Seen seen;
  for (std::uint64_t seed = 1; seed <= 100; ++seed) {
    WordMaker maker(seed + 5000);
    PuzzleWish wish{.words = maker.Words(20, 12, 2, 9), .slider = 20 * maker.Upto(10)};
    for (int word = 1; word <= 20; ++word) {
      if (word == 7 || maker.Upto(3) == 1) wish.marked.push_back(word);
    }
    ASSERT_NO_FATAL_FAILURE(Compare(wish, seed, seen));
  }
  EXPECT_EQ(seen.builds, 200);
}

// Words of 17 letters, two letters in turn, so that some cross and the others take up the room.
std::vector<std::string> LongWords(WordMaker& maker, int count) {
  std::vector<std::string> words;
  for (int i = 0; i < count; ++i) {
    const char one = WordMaker::Letter(maker.Upto(16));
    const char other = WordMaker::Letter(maker.Upto(16));
    std::string word;
    for (int k = 0; k < 17; ++k) word += maker.Upto(2) == 1 ? one : other;
    words.push_back(word);
  }
  return words;
}

TEST(GridBuilderBesideTheLiteralOne, ManualModeWhereOrphansFindNoRoom) {
  Seen seen;
  for (std::uint64_t seed = 1; seed <= 10; ++seed) {
    WordMaker maker(seed * 100 + 19);
    const PuzzleWish wish{.words = LongWords(maker, 21 + maker.Upto(4)), .slider = 20};
    ASSERT_NO_FATAL_FAILURE(Compare(wish, seed, seen));
  }
  EXPECT_EQ(seen.builds, 20);
  EXPECT_GT(seen.gave_up, 3);
  EXPECT_LT(seen.gave_up, 20);
  EXPECT_GT(seen.second_passes, 20);
}

// Orphans that find no room while a share of the words still has to cross: the attempts so
// interrupted go on on a grid that others made, refuse it, and restart.
TEST(GridBuilderBesideTheLiteralOne, ManualModeWhereInterruptedAttemptsRestartLater) {
  Seen seen;
  for (std::uint64_t seed = 1; seed <= 5; ++seed) {
    WordMaker maker(seed * 100 + 19);
    const PuzzleWish wish{.words = LongWords(maker, 19), .slider = 100};
    ASSERT_NO_FATAL_FAILURE(Compare(wish, seed, seen));
  }
  EXPECT_EQ(seen.builds, 10);
  EXPECT_GT(seen.late_restarts, 20);
}

TEST(GridBuilderBesideTheLiteralOne, ManualModeWithWordsOfNoLetters) {
  Seen seen;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    WordMaker maker(seed + 700);
    PuzzleWish wish{.words = maker.Words(2 + maker.Upto(4), 4, 1, 4), .slider = 20};
    for (int i = maker.Upto(3); i > 0; --i) wish.words.emplace_back();
    ASSERT_NO_FATAL_FAILURE(Compare(wish, seed, seen));
  }
  EXPECT_EQ(seen.builds, 120);
}

TEST(GridBuilderBesideTheLiteralOne, BestModeOnShortLists) {
  Seen seen;
  for (std::uint64_t seed = 1; seed <= 400; ++seed) {
    WordMaker maker(seed + 20000);
    PuzzleWish wish{.words = {}, .slider = 20 * maker.Upto(3), .best = true};
    wish.words = maker.Words(maker.Upto(30), 1 + maker.Upto(20), maker.Upto(3), 3 + maker.Upto(14));
    ASSERT_NO_FATAL_FAILURE(Compare(wish, seed, seen));
  }
  EXPECT_EQ(seen.builds, 800);
  EXPECT_EQ(seen.with_orphans, 0);
  EXPECT_GT(seen.letters_changed, 50);
}

TEST(GridBuilderBesideTheLiteralOne, BestModeOnLongLists) {
  Seen seen;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    WordMaker maker(seed + 30000);
    PuzzleWish wish{.words = {}, .slider = 20 * maker.Upto(4), .best = true};
    wish.words = maker.Words(30 + maker.Upto(20), 8 + maker.Upto(18), 2, 3 + maker.Upto(14));
    ASSERT_NO_FATAL_FAILURE(Compare(wish, seed, seen));
  }
  EXPECT_EQ(seen.builds + seen.too_deep, 120);
  EXPECT_GT(seen.builds, 100);
}

// Word 2 first: position 0 has no word, is offered as an orphan and restarts the puzzle.
TEST(GridBuilderBesideTheLiteralOne, BestModeOnLongListsWithWordTwoFirst) {
  Seen seen;
  for (std::uint64_t seed = 1; seed <= 40; ++seed) {
    WordMaker maker(seed + 40000);
    PuzzleWish wish{.words = maker.Words(31 + maker.Upto(5), 20, 2, 9),
                    .slider = 20 * maker.Upto(3),
                    .best = true,
                    .marked = {2}};
    SharedState expected_state = StateFor(wish);
    expected_state.MarkedCount = expected_state.ListWordCount;
    SharedState state = expected_state;
    CrosswordDraws expected_draws({}, seed);
    CrosswordDraws draws({}, seed);
    literal::LiteralGridBuilder expected(expected_state, expected_draws);
    expected.LoadForm();
    GridBuilder builder(state, draws);
    builder.Build();
    ASSERT_EQ(draws.drawn(), expected_draws.drawn());
    ASSERT_EQ(draws.trace(), expected_draws.trace());
    ASSERT_NO_FATAL_FAILURE(ExpectSameWords(state, expected_state));
    ASSERT_NO_FATAL_FAILURE(ExpectSameGrid(expected, builder.grid()));
    ASSERT_EQ(builder.DeepestRestart(), expected.Deepest);
    Add(expected, expected_state, seen);
  }
  EXPECT_GT(seen.deepest, 100);
}

TEST(GridBuilderBesideTheLiteralOne, FullListsAtEveryQuality) {
  Seen seen;
  for (int slider = 20; slider <= 200; slider += 20) {
    const auto seed = static_cast<std::uint64_t>(slider);
    WordMaker maker(seed);
    ASSERT_NO_FATAL_FAILURE(
        Compare({.words = maker.Words(25, 22, 3, 11), .slider = slider}, seed, seen));
    ASSERT_NO_FATAL_FAILURE(
        Compare({.words = maker.Words(60, 26, 3, 12), .slider = slider, .best = true}, seed, seen));
  }
  EXPECT_EQ(seen.builds + seen.too_deep, 40);
  EXPECT_GT(seen.builds, 35);
}

}  // namespace
}  // namespace brindlepage
