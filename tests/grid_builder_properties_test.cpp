#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "crossword/grid_builder.h"
#include "crossword/numbering.h"
#include "tests/crossword_words.h"

// What holds of every grid, over ten thousand seeds and lists.
namespace brindlepage {
namespace {

struct Cell {
  int column;
  int row;
  bool operator<(const Cell& other) const {
    return column != other.column ? column < other.column : row < other.row;
  }
};

// A word as it should be readable on the grid.
struct LaidWord {
  int position;
  std::string word;
  bool across;
  std::vector<Cell> cells;
};

std::vector<LaidWord> LaidWords(const SharedState& shared, const CrosswordGrid& grid) {
  std::vector<Cell> starts(301, Cell{0, 0});
  for (int c = 1; c <= 37; ++c) {
    for (int r = 1; r <= 29; ++r) {
      starts[static_cast<std::size_t>(grid.StartNumbers(c, r))] = {c, r};
    }
  }
  std::vector<LaidWord> words;
  for (int p = 1; p <= shared.MarkedCount; ++p) {
    const PlacedWord& placed = grid.PlacedWords(p);
    if (placed.Number == 0) continue;
    LaidWord laid{
        p, shared.ListWords(shared.AnswerTable(p)), placed.Direction == WordDirection::Across, {}};
    const Cell start = starts[static_cast<std::size_t>(placed.Number)];
    EXPECT_GT(start.column, 0) << "position " << p << " starts nowhere";
    for (int k = 0; k < static_cast<int>(laid.word.size()); ++k) {
      laid.cells.push_back(
          {start.column + (laid.across ? k : 0), start.row + (laid.across ? 0 : k)});
    }
    words.push_back(std::move(laid));
  }
  return words;
}

// Every word can be read. A letter may differ where an across word was written over it.
void ExpectReadable(const std::vector<LaidWord>& words, const CrosswordGrid& grid) {
  std::set<std::pair<Cell, char>> across_letters;
  for (const LaidWord& word : words) {
    for (std::size_t k = 0; word.across && k < word.cells.size(); ++k) {
      across_letters.insert({word.cells[k], word.word[k]});
    }
  }
  for (const LaidWord& word : words) {
    for (std::size_t k = 0; k < word.cells.size(); ++k) {
      const Cell cell = word.cells[k];
      const char letter = grid.Grid(cell.column, cell.row);
      if (letter == word.word[k]) continue;
      ASSERT_NE(letter, CrosswordGrid::kEmpty) << word.word;
      ASSERT_TRUE(across_letters.contains({cell, letter})) << word.word;
    }
  }
}

// Letters side by side belong to one across word, letters one above the other to one down word,
// and no letter belongs to none.
void ExpectNoTouch(const std::vector<LaidWord>& words, const CrosswordGrid& grid) {
  std::set<Cell> covered;
  std::set<Cell> joined_right;
  std::set<Cell> joined_down;
  for (const LaidWord& word : words) {
    for (std::size_t k = 0; k < word.cells.size(); ++k) {
      covered.insert(word.cells[k]);
      if (k + 1 < word.cells.size())
        (word.across ? joined_right : joined_down).insert(word.cells[k]);
    }
  }
  for (int c = 0; c <= 38; ++c) {
    for (int r = 0; r <= 29; ++r) {
      if (!grid.HasLetter(c, r)) continue;
      ASSERT_TRUE(covered.contains({c, r})) << c << "," << r;
      ASSERT_EQ(grid.HasLetter(c + 1, r), joined_right.contains({c, r})) << c << "," << r;
      ASSERT_EQ(grid.HasLetter(c, r + 1), joined_down.contains({c, r})) << c << "," << r;
    }
  }
}

// Words that share no cell with another.
int LonelyWords(const std::vector<LaidWord>& words) {
  std::multiset<Cell> covered;
  for (const LaidWord& word : words) covered.insert(word.cells.begin(), word.cells.end());
  return static_cast<int>(std::count_if(words.begin(), words.end(), [&](const LaidWord& word) {
    return std::none_of(word.cells.begin(), word.cells.end(),
                        [&](Cell cell) { return covered.count(cell) > 1; });
  }));
}

void ExpectNumbersDownTheColumns(const CrosswordGrid& grid) {
  int next = 1;
  for (int c = 1; c <= 37; ++c) {
    for (int r = 1; r <= 29; ++r) {
      if (grid.StartNumbers(c, r) == 0) continue;
      ASSERT_EQ(grid.StartNumbers(c, r), next++) << c << "," << r;
    }
  }
}

void ExpectWordsWhereTheirNumbersAre(const std::vector<LaidWord>& words,
                                     const CrosswordGrid& grid) {
  for (const LaidWord& word : words) {
    const Cell start = word.cells.front();
    ASSERT_EQ(grid.PlacedWords(word.position).Number, grid.StartNumbers(start.column, start.row));
  }
}

struct PropertyBuild {
  PropertyBuild(const PuzzleWish& wish, std::uint64_t seed)
      : shared(StateFor(wish)), random(seed), builder(shared, random) {
    builder.Build();
    words = LaidWords(shared, builder.grid());
  }

  SharedState shared;
  SeededRandom random;
  GridBuilder builder;
  std::vector<LaidWord> words;
};

void ExpectSoundGrid(PropertyBuild& build) {
  CrosswordGrid& grid = build.builder.grid();
  ASSERT_NO_FATAL_FAILURE(ExpectReadable(build.words, grid));
  ASSERT_NO_FATAL_FAILURE(ExpectNoTouch(build.words, grid));
  int starts = 0;
  for (int c = 1; c <= 37; ++c) {
    for (int r = 1; r <= 29; ++r) starts += grid.StartNumbers(c, r) > 0 ? 1 : 0;
  }
  if (starts > 100) {
    EXPECT_THROW(NumberGrid(grid, build.shared.MarkedCount), RunTimeError);
    return;
  }
  NumberGrid(grid, build.shared.MarkedCount);
  ASSERT_NO_FATAL_FAILURE(ExpectNumbersDownTheColumns(grid));
  ASSERT_NO_FATAL_FAILURE(ExpectWordsWhereTheirNumbersAre(build.words, grid));
}

// An accepted grid holds every marked word; while a share of the words has to cross, it does.
void ExpectManualModeKept(const PropertyBuild& build) {
  const int marked = build.shared.MarkedCount;
  const int slider = build.shared.CrossSize;
  const int attempts = build.builder.Attempts();
  const int lonely = marked == 1 ? 0 : LonelyWords(build.words);
  ASSERT_EQ(static_cast<int>(build.words.size()), marked);
  ASSERT_NE(attempts, slider / 3) << "a grid of that attempt is always refused";
  ASSERT_EQ(build.shared.OrphansFlag, build.builder.OrphanCount() > 0);
  if (attempts <= slider / 3) {
    ASSERT_EQ(lonely, 0);
    ASSERT_EQ(build.builder.OrphanCount(), 0);
  } else if (10 * attempts < 8 * slider && lonely > 1) {
    const int percent = (600 - 3 * attempts + slider) / 6;
    ASSERT_GT(marked - build.builder.OrphanCount(), percent * marked / 100);
  }
}

PuzzleWish ManualWish(WordMaker& maker) {
  PuzzleWish wish;
  wish.slider = 20 * maker.Upto(10);
  switch (maker.Upto(8)) {
    case 1:  // one-letter words
      wish.words = maker.Words(maker.Upto(12), 6, 1, 1);
      break;
    case 2:  // no shared letters
      wish.words = maker.Strangers(maker.Upto(10), maker.Upto(9));
      break;
    case 3:  // long words
      wish.words = maker.Words(maker.Upto(8), 20, 15, 17);
      break;
    case 4:  // as many as a teacher may choose
      wish.words = maker.Words(maker.Upto(50), 20, 3, 10);
      break;
    default:
      wish.words = maker.Words(maker.Upto(15), maker.Upto(26), maker.Upto(4), 3 + maker.Upto(14));
  }
  return wish;
}

TEST(GridBuilderProperties, ManualMode) {
  int gave_up = 0;
  int with_orphans = 0;
  for (std::uint64_t seed = 1; seed <= 6000; ++seed) {
    SCOPED_TRACE(seed);
    WordMaker maker(seed);
    PropertyBuild build(ManualWish(maker), seed);
    if (build.builder.GaveUp()) {
      ++gave_up;
      continue;
    }
    with_orphans += build.shared.OrphansFlag ? 1 : 0;
    ASSERT_NO_FATAL_FAILURE(ExpectManualModeKept(build));
    ASSERT_NO_FATAL_FAILURE(ExpectSoundGrid(build));
  }
  EXPECT_LT(gave_up, 50);
  EXPECT_GT(with_orphans, 500);
}

TEST(GridBuilderProperties, BestModeUpTo30WordsHasNoOrphans) {
  for (std::uint64_t seed = 1; seed <= 3700; ++seed) {
    SCOPED_TRACE(seed);
    WordMaker maker(seed + 100000);
    PuzzleWish wish{.words = {}, .slider = 20 * maker.Upto(10), .best = true};
    wish.words = maker.Words(maker.Upto(30), maker.Upto(26), maker.Upto(4), 3 + maker.Upto(14));
    PropertyBuild build(wish, seed);
    ASSERT_FALSE(build.builder.GaveUp());
    ASSERT_FALSE(build.shared.OrphansFlag);
    ASSERT_EQ(build.builder.Attempts(), 0);
    ASSERT_EQ(LonelyWords(build.words), build.words.size() == 1 ? 1 : 0);
    ASSERT_NO_FATAL_FAILURE(ExpectSoundGrid(build));
  }
}

TEST(GridBuilderProperties, BestModeOnLongLists) {
  int crowded = 0;
  for (std::uint64_t seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE(seed);
    WordMaker maker(seed + 200000);
    PuzzleWish wish{.words = {}, .slider = 20 * maker.Upto(10), .best = true};
    wish.words = maker.Words(30 + maker.Upto(270), 2 + maker.Upto(24), 1 + maker.Upto(3),
                             4 + maker.Upto(13));
    PropertyBuild build(wish, seed);
    ASSERT_FALSE(build.shared.OrphansFlag);
    if (build.shared.AnswerTable(2) == 0) continue;  // position 2 holds no letters
    ASSERT_NO_FATAL_FAILURE(ExpectSoundGrid(build));
    crowded += build.words.size() > 60 ? 1 : 0;
  }
  EXPECT_GT(crowded, 50);
}

}  // namespace
}  // namespace brindlepage
