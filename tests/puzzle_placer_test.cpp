#include "wordsearch/puzzle_placer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/expect_fault.h"
#include "tests/given_draws.h"

namespace brindlepage {
namespace {

// The top left corner of a grid, a line a row, empty cells as dots.
std::string Corner(const PuzzleGrid& grid, int across, int down) {
  std::string corner;
  for (int y = 1; y <= down; ++y) {
    for (int x = 1; x <= across; ++x) corner += grid.IsEmpty(x, y) ? '.' : grid.Letter(x, y);
    corner += '\n';
  }
  return corner;
}

// Whether the word's cells there are empty or its own letters.
bool Fits(const PuzzleGrid& grid, const std::string& word, const PuzzlePlace& place) {
  int x = place.x;
  int y = place.y;
  for (const char letter : word) {
    if (!grid.IsEmpty(x, y) && grid.Letter(x, y) != letter) return false;
    if (place.direction != Direction::Down) ++x;
    if (place.direction != Direction::Across) ++y;
  }
  return true;
}

class PuzzlePlacerTest : public ::testing::Test {
 protected:
  bool Place(const char* word, int across, int down, bool easy = false) {
    return PuzzlePlacer(grid, across, down, easy, draws).Place(word);
  }

  PuzzleGrid grid;
  GivenDraws draws;
};

// --- The grid

TEST_F(PuzzlePlacerTest, AClearedGridIsEmptyAndAWordIsWrittenInEachDirection) {
  grid.Write("abc", {1, 1, Direction::Across});
  grid.Write("de", {5, 2, Direction::Down});
  grid.Write("fgh", {2, 3, Direction::Diagonal});
  EXPECT_EQ(Corner(grid, 5, 5),
            "abc..\n"
            "....d\n"
            ".f..e\n"
            "..g..\n"
            "...h.\n");
  grid.Clear();
  EXPECT_EQ(Corner(grid, 2, 2), "..\n..\n");
}

// Starts as a set.
PuzzleGrid::Numbers Starts(const std::vector<int>& starts) {
  PuzzleGrid::Numbers set = 0;
  for (const int start : starts) set |= PuzzleGrid::Bit(start);
  return set;
}

TEST_F(PuzzlePlacerTest, AStartIsFreeOverEmptyCellsAndEqualLettersAndOverNoOthers) {
  grid.Write("lava", {2, 5, Direction::Across});
  EXPECT_EQ(grid.FreeStarts("ash", Direction::Down, 3, 6), Starts({1, 2, 5, 6}));
  EXPECT_EQ(grid.FreeStarts("ash", Direction::Down, 4, 6), Starts({1, 2, 6}));
  EXPECT_EQ(grid.FreeStarts("ash", Direction::Down, 6, 6), Starts({1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(grid.FreeStarts("la", Direction::Across, 5, 7), Starts({2, 6, 7}));
  EXPECT_EQ(grid.FreeStarts("lava", Direction::Across, 5, 3), Starts({2}));
  EXPECT_EQ(grid.FreeStarts("xa", Direction::Diagonal, 4, 7), Starts({2, 4, 5, 6, 7}));
  EXPECT_EQ(grid.FreeStarts("xa", Direction::Diagonal, 5, 7), Starts({1, 6, 7}));
}

TEST_F(PuzzlePlacerTest, ACapitalAndASmallLetterClash) {
  grid.Write("Cat", {1, 1, Direction::Across});
  EXPECT_EQ(grid.FreeStarts("cat", Direction::Across, 1, 1), 0U);
  EXPECT_EQ(grid.FreeStarts("Cat", Direction::Across, 1, 1), Starts({1}));
}

TEST_F(PuzzlePlacerTest, ABlankAndEvenANulAreLettersLikeOthers) {
  const std::string word{'a', ' ', '\0', 'b'};
  grid.Write(word, {1, 1, Direction::Across});
  EXPECT_FALSE(grid.IsEmpty(2, 1));
  EXPECT_EQ(grid.Letter(2, 1), ' ');
  EXPECT_FALSE(grid.IsEmpty(3, 1));
  EXPECT_EQ(grid.FreeStarts("abcb", Direction::Across, 1, 1), 0U);
  EXPECT_EQ(grid.FreeStarts(word, Direction::Across, 1, 1), Starts({1}));
}

TEST_F(PuzzlePlacerTest, AnEmptyLineHasNoStartAndAnEmptyWordHasThemAll) {
  EXPECT_EQ(grid.FreeStarts("cat", Direction::Across, 1, 0), 0U);
  EXPECT_EQ(grid.FreeStarts(std::string(90, 'x'), Direction::Across, 1, -50), 0U);
  EXPECT_EQ(grid.FreeStarts("", Direction::Across, 1, 3), Starts({1, 2, 3}));
  EXPECT_EQ(grid.FreeStarts("x", Direction::Across, 40, 40), (PuzzleGrid::Bit(41) - 2));
}

TEST_F(PuzzlePlacerTest, ACellOutsideTheGridIsASubscriptError) {
  EXPECT_FAULT(9, grid.IsEmpty(0, 1));
  EXPECT_FAULT(9, grid.IsEmpty(1, 41));
  EXPECT_FAULT(9, grid.Letter(41, 1));
  EXPECT_FAULT(9, grid.Write("ab", {40, 1, Direction::Across}));
  EXPECT_FAULT(9, grid.Write("ab", {1, 40, Direction::Down}));
  EXPECT_FAULT(9, grid.FreeStarts("ab", Direction::Diagonal, 40, 1));
  EXPECT_FAULT(9, grid.FreeStarts("ab", Direction::Across, 1, 40));
  EXPECT_FAULT(9, grid.FreeStarts("ab", Direction::Down, 41, 1));
  EXPECT_FAULT(9, PuzzlePlacer(grid, 41, 10, false, draws));
  grid.Write("ab", {39, 40, Direction::Across});
  EXPECT_EQ(grid.Letter(40, 40), 'b');
}

// --- The scans

TEST_F(PuzzlePlacerTest, AcrossDrawsADirectionARowAndAStart) {
  draws.Of(3, {1});
  draws.Of(5, {4});
  draws.Of(3, {2});  // 6 columns less 3 letters
  EXPECT_TRUE(Place("cat", 6, 5));
  EXPECT_EQ(Corner(grid, 6, 5), "......\n......\n......\n.cat..\n......\n");
  EXPECT_EQ(draws.Reseeds(), std::vector<std::size_t>{0});
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, DownDrawsADirectionAColumnAndAStart) {
  draws.Of(3, {2});
  draws.Of(6, {6});
  draws.Of(2, {2});  // 5 rows less 3 letters
  EXPECT_TRUE(Place("cat", 6, 5));
  EXPECT_EQ(Corner(grid, 6, 5), "......\n.....c\n.....a\n.....t\n......\n");
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, DiagonalDrawsADirectionAStartRowAndAStartColumn) {
  draws.Of(3, {3});
  draws.Of(2, {1});
  draws.Of(3, {3});
  EXPECT_TRUE(Place("cat", 6, 5));
  EXPECT_EQ(Corner(grid, 6, 5), "..c...\n...a..\n....t.\n......\n......\n");
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, NeitherTheLastColumnNorTheLastRowIsReachedAlongAWord) {
  draws.Of(3, {1});
  draws.Of(4, {4});
  draws.Of(1, {1});
  EXPECT_TRUE(Place("cat", 4, 4));
  draws.Of(3, {2});
  draws.Of(4, {4});
  draws.Of(1, {1});
  EXPECT_TRUE(Place("dog", 4, 4));
  EXPECT_EQ(Corner(grid, 4, 4), "...d\n...o\n...g\ncat.\n");
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, ATakenStartAndATakenLineAreDrawnAgainWithoutReseeding) {
  // Two rows full of other letters, so that two rows are searched in vain.
  grid.Write("xxxxx", {1, 1, Direction::Across});
  grid.Write("xxxxx", {1, 3, Direction::Across});
  draws.Of(3, {1});
  draws.Of(4, {3});
  draws.Of(3, {2, 2, 3, 2, 3, 1});  // each start of row 3, two of them again and again
  draws.Of(4, {3, 1});              // row 3 once more, then row 1
  draws.Of(3, {1, 2, 1, 3});
  draws.Of(4, {1, 3, 4});
  draws.Of(3, {3});  // what was drawn in row 1 counts no more
  EXPECT_TRUE(Place("ab", 5, 4));
  EXPECT_EQ(Corner(grid, 5, 4), "xxxxx\n.....\nxxxxx\n..ab.\n");
  EXPECT_EQ(draws.Reseeds(), std::vector<std::size_t>{0});
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, AFullDirectionGivesWayToOneNotTriedYetAfterAReseed) {
  // In 3 by 4 a word of two letters goes across from column 1 alone; it is taken in every row.
  for (int y = 1; y <= 4; ++y) grid.Write("x", {1, y, Direction::Across});
  draws.Of(3, {1});
  for (int y = 1; y <= 4; ++y) {
    draws.Of(4, {y});
    draws.Of(1, {1});
  }
  draws.Of(3, {1, 1, 2});  // across was tried
  draws.Of(3, {2});
  draws.Of(2, {1});
  EXPECT_TRUE(Place("ab", 3, 4));
  EXPECT_EQ(Corner(grid, 3, 4), "xa.\nxb.\nx..\nx..\n");
  EXPECT_EQ(draws.Reseeds(), (std::vector<std::size_t>{0, 9}));
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, AWordIsGivenUpWhenEveryPlaceInEveryDirectionIsTaken) {
  for (int y = 1; y <= 3; ++y) grid.Write("xxx", {1, y, Direction::Across});
  const std::string before = Corner(grid, 3, 3);
  draws.Of(3, {3});
  draws.Of(1, {1});  // one start row and one start column for a diagonal of two
  draws.Of(1, {1});
  draws.Of(3, {1});
  for (int y = 1; y <= 3; ++y) {
    draws.Of(3, {y});
    draws.Of(1, {1});
  }
  draws.Of(3, {2});
  for (int x = 1; x <= 3; ++x) {
    draws.Of(3, {x});
    draws.Of(1, {1});
  }
  EXPECT_FALSE(Place("ab", 3, 3));
  EXPECT_EQ(Corner(grid, 3, 3), before);
  EXPECT_EQ(draws.Reseeds(), (std::vector<std::size_t>{0, 3, 10}));
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, AnEasyPuzzleNeverDrawsADiagonalAndGivesUpAfterTwoDirections) {
  for (int y = 1; y <= 3; ++y) grid.Write("x", {1, y, Direction::Across});
  for (int x = 1; x <= 3; ++x) grid.Write("x", {x, 1, Direction::Across});
  draws.Of(2, {2});
  for (int x = 1; x <= 3; ++x) {
    draws.Of(3, {x});
    draws.Of(1, {1});
  }
  draws.Of(2, {1});
  for (int y = 1; y <= 3; ++y) {
    draws.Of(3, {y});
    draws.Of(1, {1});
  }
  EXPECT_FALSE(Place("ab", 3, 3, true));
  EXPECT_EQ(draws.Reseeds().size(), 2U);
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, AWordAsLongAsTheGridIsWideCanOnlyGoDown) {
  draws.Of(3, {1});
  draws.AllOf(6);  // every row, none with a start
  draws.Of(3, {3});
  draws.Of(2, {2, 1});  // both start rows, none with a start column
  draws.Of(3, {2});
  draws.Of(4, {2});
  draws.Of(2, {2});
  EXPECT_TRUE(Place("mars", 4, 6));
  EXPECT_EQ(Corner(grid, 4, 6), "....\n.m..\n.a..\n.r..\n.s..\n....\n");
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, AWordAsLongAsTheGridIsHighHasNoDiagonalToDraw) {
  draws.Of(3, {3});
  draws.Of(3, {2});
  draws.AllOf(6);
  draws.Of(3, {1});
  draws.Of(4, {4});
  draws.Of(2, {1});
  EXPECT_TRUE(Place("mars", 6, 4));
  EXPECT_EQ(Corner(grid, 6, 4), "......\n......\n......\nmars..\n");
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, AWordAsLongAsBothSidesFitsInNoDirection) {
  draws.Of(3, {1});
  draws.AllOf(4);
  draws.Of(3, {2});
  draws.AllOf(4);
  draws.Of(3, {3});
  EXPECT_FALSE(Place("mars", 4, 4));
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(PuzzlePlacerTest, AWordOneShorterThanTheGridStartsInColumnOne) {
  for (const float draw : {0.0F, 0.5F, 0.999999F}) {
    grid.Clear();
    class Fixed : public DrawByDraw {
     public:
      explicit Fixed(float start) : start_(start) {}
      float Draw() override { return ++count_ < 3 ? 0.0F : start_; }
      void Reseed() override {}

     private:
      float start_;
      int count_ = 0;
    } fixed(draw);
    EXPECT_TRUE(PuzzlePlacer(grid, 5, 9, false, fixed).Place("mars"));
    EXPECT_EQ(Corner(grid, 5, 1), "mars.\n");
  }
}

TEST_F(PuzzlePlacerTest, TwoEqualWordsMayLieOnTheSameCells) {
  for (int time = 0; time < 2; ++time) {
    draws.Of(3, {1});
    draws.Of(5, {2});
    draws.Of(2, {1});
    EXPECT_TRUE(Place("cat", 5, 5));
  }
  EXPECT_EQ(Corner(grid, 5, 5), ".....\ncat..\n.....\n.....\n.....\n");
}

TEST_F(PuzzlePlacerTest, AnEmptyWordTakesItsDrawsAndNoCell) {
  grid.Write("xxx", {1, 1, Direction::Across});
  draws.Of(3, {1});
  draws.Of(3, {1});
  draws.Of(3, {3});
  EXPECT_TRUE(Place("", 3, 3));
  EXPECT_EQ(Corner(grid, 3, 3), "xxx\n...\n...\n");
  EXPECT_EQ(draws.Left(), 0U);
}

// --- Ten thousand puzzles

struct Size {
  int across;
  int down;
};

std::size_t LettersIn(const PuzzleGrid& grid, Size size) {
  std::size_t letters = 0;
  for (int y = 1; y <= size.down; ++y) {
    for (int x = 1; x <= size.across; ++x) letters += !grid.IsEmpty(x, y);
  }
  return letters;
}

// Whether the word stands there in full, and which of its cells were empty before.
bool Stands(const PuzzleGrid& grid, const PuzzleGrid& before, const std::string& word,
            const PuzzlePlace& place, std::size_t& newly) {
  newly = 0;
  for (int k = 0; k < static_cast<int>(word.size()); ++k) {
    const int x = place.x + (place.direction == Direction::Down ? 0 : k);
    const int y = place.y + (place.direction == Direction::Across ? 0 : k);
    if (grid.IsEmpty(x, y) || grid.Letter(x, y) != word[static_cast<std::size_t>(k)]) return false;
    newly += before.IsEmpty(x, y);
  }
  return true;
}

// Whether the word alone was written, at a place that the scans allow.
bool WasPlaced(const PuzzleGrid& before, const PuzzleGrid& after, const std::string& word,
               Size size) {
  const int length = static_cast<int>(word.size());
  const std::size_t added = LettersIn(after, size) - LettersIn(before, size);
  for (int x = 1; x <= size.across; ++x) {
    for (int y = 1; y <= size.down; ++y) {
      for (const auto d : {Direction::Across, Direction::Down, Direction::Diagonal}) {
        const bool room = (d == Direction::Down || x + length <= size.across) &&
                          (d == Direction::Across || y + length <= size.down);
        std::size_t newly = 0;
        if (room && Fits(before, word, {x, y, d}) &&
            Stands(after, before, word, {x, y, d}, newly) && newly == added) {
          return true;
        }
      }
    }
  }
  return false;
}

bool HasRoom(const PuzzleGrid& grid, const std::string& word, Size size) {
  const int length = static_cast<int>(word.size());
  for (int x = 1; x <= size.across; ++x) {
    for (int y = 1; y <= size.down; ++y) {
      const bool across = x + length <= size.across;
      const bool down = y + length <= size.down;
      if (across && Fits(grid, word, {x, y, Direction::Across})) return true;
      if (down && Fits(grid, word, {x, y, Direction::Down})) return true;
      if (across && down && Fits(grid, word, {x, y, Direction::Diagonal})) return true;
    }
  }
  return false;
}

TEST(TenThousandPuzzles, HaveEachWordAtAPlaceThatIsAllowedAndGiveUpOnlyWhereThereIsNone) {
  const std::string words[] = {"ember", "tree", "Ash", "lava", "magma", "crater", "ea", "geyser"};
  int given_up = 0;
  int crossings = 0;
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    SeededRandom random(seed);
    const Size size{6 + static_cast<int>(seed % 3), 6 + static_cast<int>(seed / 3 % 2)};
    PuzzleGrid grid;
    PuzzlePlacer placer(grid, size.across, size.down, false, random);
    std::size_t letters = 0;
    for (const std::string& word : words) {
      const PuzzleGrid before = grid;
      if (placer.Place(word)) {
        ASSERT_TRUE(WasPlaced(before, grid, word, size)) << word << " of seed " << seed;
        letters += word.size();
      } else {
        ++given_up;
        ASSERT_FALSE(HasRoom(before, word, size)) << word << " of seed " << seed;
        ASSERT_EQ(LettersIn(before, size), LettersIn(grid, size));
      }
    }
    crossings += LettersIn(grid, size) < letters;
    ASSERT_TRUE(grid.IsEmpty(size.across, size.down)) << "the corner, in seed " << seed;
  }
  EXPECT_GT(given_up, 1000);
  EXPECT_GT(crossings, 1000);
}

TEST(TenThousandPuzzles, HaveWordsDownAloneInTheLastColumnAndAcrossAloneInTheLastRow) {
  int in_last_column = 0;
  int in_last_row = 0;
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    SeededRandom random(seed);
    PuzzleGrid grid;
    ASSERT_TRUE(PuzzlePlacer(grid, 7, 6, false, random).Place("lava"));
    std::string column;
    std::string row;
    for (int y = 1; y <= 6; ++y) column += grid.IsEmpty(7, y) ? '.' : grid.Letter(7, y);
    for (int x = 1; x <= 7; ++x) row += grid.IsEmpty(x, 6) ? '.' : grid.Letter(x, 6);
    if (column != "......") {
      ++in_last_column;
      ASSERT_TRUE(column == "lava.." || column == ".lava.") << column;
    }
    if (row != ".......") {
      ++in_last_row;
      ASSERT_TRUE(row == "lava..." || row == ".lava.." || row == "..lava.") << row;
    }
  }
  // A third goes down, in one of seven columns; a third across, in one of six rows.
  EXPECT_NEAR(in_last_column, 10'000 / 21, 100);
  EXPECT_NEAR(in_last_row, 10'000 / 18, 100);
}

TEST(TenThousandPuzzles, OfTheEasyKindHaveNoDiagonalWord) {
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    SeededRandom random(seed);
    PuzzleGrid grid;
    ASSERT_TRUE(PuzzlePlacer(grid, 8, 8, true, random).Place("ab"));
    for (int x = 1; x < 8; ++x) {
      for (int y = 1; y < 8; ++y) {
        ASSERT_TRUE(grid.IsEmpty(x, y) || grid.IsEmpty(x + 1, y + 1)) << "seed " << seed;
      }
    }
  }
}

}  // namespace
}  // namespace brindlepage
