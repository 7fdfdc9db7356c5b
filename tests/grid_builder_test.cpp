#include "crossword/grid_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/crossword_words.h"
#include "tests/expect_fault.h"

namespace brindlepage {
namespace {

// One build from given draws, all of which it must use.
struct Built {
  SharedState shared;
  CrosswordGrid grid;
  int attempts = 0;
  int orphan_count = 0;
  int deepest_restart = 0;
  bool gave_up = false;
  std::int64_t drawn = 0;
  std::int64_t reseeds = 0;
  std::vector<int> progress;
};

Built Build(SharedState shared, CrosswordDraws& draws) {
  Built built;
  GridBuilder builder(shared, draws, [&](int value) { built.progress.push_back(value); });
  builder.Build();
  built.grid = builder.grid();
  built.attempts = builder.Attempts();
  built.orphan_count = builder.OrphanCount();
  built.deepest_restart = builder.DeepestRestart();
  built.gave_up = builder.GaveUp();
  built.drawn = draws.drawn();
  built.reseeds = draws.reseeds();
  built.shared = std::move(shared);
  return built;
}

Built BuildFrom(const PuzzleWish& wish, std::vector<double> draws) {
  CrosswordDraws source(std::move(draws));
  Built built = Build(StateFor(wish), source);
  EXPECT_TRUE(source.AllUsed()) << "draws were left over";
  return built;
}

Built BuildSeeded(const PuzzleWish& wish, std::uint64_t seed, std::vector<double> draws = {}) {
  CrosswordDraws source(std::move(draws), seed);
  return Build(StateFor(wish), source);
}

// The letters of the grid, cut to where it has any, a line a row, dots for empty cells, behind
// the column and row of its first corner.
std::string Picture(const CrosswordGrid& grid) {
  int left = 99, right = 0, top = 99, bottom = 0;
  for (int c = 0; c <= 39; ++c) {
    for (int r = 0; r <= 30; ++r) {
      if (!grid.HasLetter(c, r)) continue;
      left = std::min(left, c);
      right = std::max(right, c);
      top = std::min(top, r);
      bottom = std::max(bottom, r);
    }
  }
  std::string picture = std::to_string(left) + "," + std::to_string(top) + "\n";
  for (int r = top; r <= bottom; ++r) {
    for (int c = left; c <= right; ++c) picture += grid.HasLetter(c, r) ? grid.Grid(c, r) : '.';
    picture += '\n';
  }
  return picture;
}

std::vector<int> WordOrder(const SharedState& shared) {
  std::vector<int> order;
  for (int p = 1; p <= shared.MarkedCount; ++p) order.push_back(shared.AnswerTable(p));
  return order;
}

void ExpectPlaced(const Built& built, int position, int number, WordDirection direction) {
  EXPECT_EQ(built.grid.PlacedWords(position).Number, number) << "position " << position;
  EXPECT_EQ(built.grid.PlacedWords(position).Direction, direction) << "position " << position;
}

constexpr double kForward = 0.0;
constexpr double kBackward = 0.5;
constexpr double kColumn11 = 0.0;

// ---- Grids worked out by hand -------------------------------------------------------------

TEST(GridBuilder, OneWordStandsDownInTheMiddleOfItsColumn) {
  const Built built = BuildFrom({.words = {"CAT"}}, {0.0, 0.35});
  EXPECT_EQ(Picture(built.grid), "14,14\nC\nA\nT\n");
  ExpectPlaced(built, 1, 1, WordDirection::Down);
  EXPECT_EQ(built.grid.StartNumbers(14, 14), 1);
  EXPECT_EQ(built.reseeds, 2);
  EXPECT_EQ(built.attempts, 0);
  EXPECT_FALSE(built.shared.OrphansFlag);
  EXPECT_EQ(built.shared.WordMarks(1), 0);
}

TEST(GridBuilder, TheFirstWordStandsInColumns11To20) {
  EXPECT_EQ(Picture(BuildFrom({.words = {"I"}}, {0.0, 0.0}).grid), "11,15\nI\n");
  EXPECT_EQ(Picture(BuildFrom({.words = {"I"}}, {0.0, 0.999999}).grid), "20,15\nI\n");
}

TEST(GridBuilder, AWordOf17LettersBeginsInRow7) {
  const Built built = BuildFrom({.words = {"ABCDEFGHIJKLMNOPQ"}}, {0.0, 0.1});
  EXPECT_EQ(built.grid.StartNumbers(12, 7), 1);
  EXPECT_EQ(built.grid.Grid(12, 7), 'A');
  EXPECT_EQ(built.grid.Grid(12, 23), 'Q');
}

TEST(GridBuilder, ForwardScanCrossesAtTheFirstCellFromTheLeft) {
  // The order: word 1; then 1 again, which is taken, then 2.
  const Built built = BuildFrom({.words = {"CAT", "TAN"}}, {0.0, 0.0, 0.5, kColumn11, kForward});
  EXPECT_EQ(Picture(built.grid),
            "10,14\n"
            ".C.\n"
            "TAN\n"
            ".T.\n");
  ExpectPlaced(built, 1, 1, WordDirection::Down);
  ExpectPlaced(built, 2, 2, WordDirection::Across);
  EXPECT_EQ(built.grid.StartNumbers(11, 14), 1);
  EXPECT_EQ(built.grid.StartNumbers(10, 15), 2);
  EXPECT_EQ(built.reseeds, 4);
  EXPECT_EQ(WordOrder(built.shared), (std::vector<int>{1, 2}));
}

TEST(GridBuilder, BackwardScanCrossesAtTheLastCell) {
  const Built built = BuildFrom({.words = {"CAT", "TAN"}}, {0.0, 0.5, kColumn11, kBackward});
  EXPECT_EQ(Picture(built.grid),
            "11,14\n"
            "C..\n"
            "A..\n"
            "TAN\n");
}

TEST(GridBuilder, WordsThatStartInOneCellShareTheNumber) {
  const Built built = BuildFrom({.words = {"CAT", "COW"}}, {0.0, 0.5, kColumn11, kForward});
  EXPECT_EQ(Picture(built.grid),
            "11,14\n"
            "COW\n"
            "A..\n"
            "T..\n");
  ExpectPlaced(built, 1, 1, WordDirection::Down);
  ExpectPlaced(built, 2, 1, WordDirection::Across);
  EXPECT_EQ(built.grid.StartNumbers(11, 14), 1);
}

TEST(GridBuilder, OnlyMarkedWordsGoIn) {
  // Drawn: 3, then 2, which has no mark, then 1.
  const PuzzleWish wish = {.words = {"CAT", "DOG", "TAN"}, .marked = {1, 3}};
  const Built built =
      BuildFrom(wish, {DrawOf(3, 3), DrawOf(2, 3), DrawOf(1, 3), kColumn11, kBackward});
  EXPECT_EQ(Picture(built.grid),
            "10,14\n"
            ".T.\n"
            "CAT\n"
            ".N.\n");
}

// Three words that make two columns, three apart from each other in letters:
//   A X F
//   B . G
//   C . H
//   D . I
//   E . J
const std::vector<std::string> kTwoColumns = {"ABCDE", "AXF", "FGHIJ"};

std::vector<std::string> TwoColumnsAnd(const std::string& word) {
  std::vector<std::string> words = kTwoColumns;
  words.push_back(word);
  return words;
}

std::vector<double> InListOrder(int count, std::vector<double> then) {
  std::vector<double> draws;
  for (int i = 1; i <= count; ++i) draws.push_back(DrawOf(i, count));
  draws.insert(draws.end(), then.begin(), then.end());
  return draws;
}

TEST(GridBuilder, AnAcrossWordMayOverwriteALetterOnItsHeadSide) {
  // ZDI crosses the I. Two to the left stands a D, which is compared with the D of the word, one
  // to the right of the Z that comes there.
  const Built built = BuildFrom({.words = TwoColumnsAnd("ZDI")},
                                InListOrder(4, {kColumn11, kForward, kForward, kForward}));
  EXPECT_EQ(Picture(built.grid),
            "11,13\n"
            "AXF\n"
            "B.G\n"
            "C.H\n"
            "ZDI\n"
            "E.J\n");
  ExpectPlaced(built, 4, 4, WordDirection::Across);
  EXPECT_EQ(built.grid.StartNumbers(11, 16), 4);
}

TEST(GridBuilder, InAStrictAttemptEveryMatchingLetterIsTriedAtACell) {
  // At the D the first D of the word does not fit, the second does.
  const Built built = BuildFrom({.words = TwoColumnsAnd("DXDZI")},
                                InListOrder(4, {kColumn11, kForward, kForward, kForward}));
  EXPECT_EQ(Picture(built.grid),
            "9,13\n"
            "..AXF\n"
            "..B.G\n"
            "..C.H\n"
            "DXDZI\n"
            "..E.J\n");
}

TEST(GridBuilder, WithTheFlagLeftOnlyTheFirstMatchingLetterIsTriedAtACell) {
  // Best mode never lowers the flag. At the D the first D of DXDZI is tried and no other; at the
  // I the word is refused for the D on its head side, a good crossing.
  const Built built = BuildFrom(
      {.words = TwoColumnsAnd("DXDZI"), .slider = 20, .best = true},
      {0.0, kColumn11, kForward, kForward, kForward,  // a scan: two go in, so this was turn 4
       kForward,                                      // the word that failed once more
       kForward, kForward});                          // turn 5, the last
  EXPECT_EQ(Picture(built.grid),
            "11,13\n"
            "AXF\n"
            "B.G\n"
            "C.H\n"
            "D.I\n"
            "E.J\n");
  ExpectPlaced(built, 4, 0, WordDirection::None);
  EXPECT_FALSE(built.shared.OrphansFlag);
}

// A list of more than 30 words in best mode, whose second and third words are orphans in columns 1
// and 3, both down, while the fourth, of two letters, could cross the third from column 2.
Built TwoLettersFromColumn2(int row_of_second) {
  std::vector<std::string> words = {"aaa", "ppp", "qrs", "zq"};
  for (int i = 27; static_cast<int>(words.size()) < 31; ++i) {
    words.emplace_back(3, WordMaker::Letter(i));
  }
  constexpr double kDownFirst = 0.5;
  return BuildSeeded({.words = words, .slider = 20, .best = true}, 3,
                     {DrawOf(1, 31), kColumn11,                                        //
                      kForward, kDownFirst, DrawOf(row_of_second, 26), DrawOf(1, 37),  //
                      kForward, kDownFirst, DrawOf(5, 26), DrawOf(3, 37),              //
                      kForward, 0.0, DrawOf(20, 35), DrawOf(20, 29)});
}

TEST(GridBuilder, ATwoLetterWordMayStartInColumn2WhenTheCellBeforeItIsFree) {
  const Built built = TwoLettersFromColumn2(15);
  EXPECT_EQ(built.grid.StartNumbers(2, 5), 4);
  EXPECT_EQ(built.grid.Grid(2, 5), 'z');
  EXPECT_EQ(built.grid.Grid(3, 5), 'q');
}

TEST(GridBuilder, ATwoLetterWordIsRefusedInColumn2WhenTheCellBeforeItIsTaken) {
  const Built built = TwoLettersFromColumn2(4);
  EXPECT_EQ(built.grid.Grid(1, 5), 'p');
  EXPECT_FALSE(built.grid.HasLetter(2, 5));
  EXPECT_EQ(built.grid.StartNumbers(20, 20), 4) << "it is an orphan";
}

TEST(GridBuilder, AWordGoesDownWhereTheCellBehindItIsTakenAcross) {
  // OX on the O of TON: across, the N stands behind the O.
  const Built built =
      BuildFrom({.words = {"CAT", "TON", "OX"}}, InListOrder(3, {kColumn11, kForward, kForward}));
  EXPECT_EQ(Picture(built.grid),
            "11,14\n"
            "C..\n"
            "A..\n"
            "TON\n"
            ".X.\n");
}

TEST(GridBuilder, CrossingWordsStayBetweenColumns2And34AndRows2And27) {
  for (std::uint64_t seed = 1; seed <= 300; ++seed) {
    WordMaker maker(seed);
    const Built built =
        BuildSeeded({.words = maker.Words(30, 3, 2, 17), .slider = 60, .best = true}, seed);
    for (int r = 0; r <= 30; ++r) {
      for (int c = 0; c <= 39; ++c) {
        if (c >= 2 && c <= 34 && r >= 2 && r <= 27) continue;
        ASSERT_FALSE(built.grid.HasLetter(c, r)) << seed << ": " << c << "," << r;
      }
    }
  }
}

// ---- Restarts, orphans and giving up --------------------------------------------------------

TEST(GridBuilder, WordsWithoutASharedLetterRestartUntilAnyGridWillDo) {
  std::vector<double> draws;
  const std::vector<double> strict = {0.0, 0.5, kColumn11, kForward};
  // The sweep and a pass find no crossing, then CD goes across to column 15, row 20.
  const std::vector<double> lax = {0.0,      0.5, kColumn11,      kForward,
                                   kForward, 0.0, DrawOf(15, 35), DrawOf(20, 29)};
  for (int attempt = 0; attempt <= 6; ++attempt)
    draws.insert(draws.end(), strict.begin(), strict.end());
  for (int attempt = 7; attempt <= 16; ++attempt) draws.insert(draws.end(), lax.begin(), lax.end());
  const Built built = BuildFrom({.words = {"AB", "CD"}, .slider = 20}, draws);
  EXPECT_EQ(Picture(built.grid),
            "11,14\n"
            "A.....\n"
            "B.....\n"
            "......\n"
            "......\n"
            "......\n"
            "......\n"
            "....CD\n");
  EXPECT_EQ(built.attempts, 16);
  EXPECT_EQ(built.deepest_restart, 16);
  EXPECT_EQ(built.orphan_count, 1);
  EXPECT_TRUE(built.shared.OrphansFlag);
  EXPECT_FALSE(built.gave_up);
  ExpectPlaced(built, 2, 2, WordDirection::Across);
  std::vector<int> counted;
  for (int value = 1; value <= 16; ++value) counted.push_back(value);
  EXPECT_EQ(built.progress, counted);
}

TEST(GridBuilder, ThePerfectGridOfTheFirstThresholdAttemptIsThrownAway) {
  // AB then CD: nothing to cross. AB, BC, CD: all cross.
  const std::vector<double> in_vain = {DrawOf(1, 3), DrawOf(3, 3), DrawOf(2, 3), kColumn11,
                                       kForward};
  const std::vector<double> perfect = {DrawOf(1, 3), DrawOf(2, 3), DrawOf(3, 3),
                                       kColumn11,    kForward,     kForward};
  std::vector<double> draws;
  for (int attempt = 0; attempt <= 5; ++attempt)
    draws.insert(draws.end(), in_vain.begin(), in_vain.end());
  for (int attempt = 6; attempt <= 7; ++attempt)
    draws.insert(draws.end(), perfect.begin(), perfect.end());
  const Built built = BuildFrom({.words = {"AB", "BC", "CD"}, .slider = 20}, draws);
  EXPECT_EQ(built.attempts, 7);
  EXPECT_EQ(Picture(built.grid),
            "11,14\n"
            "A.\n"
            "BC\n"
            ".D\n");
  EXPECT_FALSE(built.shared.OrphansFlag);
}

TEST(GridBuilder, AnOrphanThatIsCrossedAfterwardsIsNoOrphan) {
  // In lax attempts CD and DE both cross nothing; when DE has been placed by itself, CD crosses it.
  // That counts for both of them.
  const std::vector<double> strict = {DrawOf(1, 3), DrawOf(2, 3), DrawOf(3, 3), kColumn11,
                                      kForward};
  const std::vector<double> lax = {DrawOf(1, 3), DrawOf(2, 3),   DrawOf(3, 3),
                                   kColumn11,    kForward,       kForward,  // the sweep
                                   kForward,     kForward,  // a pass without progress
                                   0.0,          DrawOf(20, 35), DrawOf(10, 29),  // DE goes across
                                   kForward};  // a pass: CD crosses it
  std::vector<double> draws;
  for (int attempt = 0; attempt <= 6; ++attempt)
    draws.insert(draws.end(), strict.begin(), strict.end());
  draws.insert(draws.end(), lax.begin(), lax.end());
  const Built built = BuildFrom({.words = {"AB", "CD", "DE"}, .slider = 20}, draws);
  EXPECT_EQ(built.attempts, 7);
  EXPECT_EQ(built.orphan_count, 0);
  EXPECT_FALSE(built.shared.OrphansFlag);
  EXPECT_EQ(Picture(built.grid),
            "11,9\n"
            ".........C.\n"
            ".........DE\n"
            "...........\n"
            "...........\n"
            "...........\n"
            "A..........\n"
            "B..........\n");
}

// Words of 17 letters that cross nothing: some twenty of them don't go on the grid together.
std::vector<std::string> LongStrangers(int count) { return WordMaker(1).Strangers(count, 17); }

TEST(GridBuilder, GivesUpWhenOrphansNeverFindRoom) {
  const Built built = BuildSeeded({.words = LongStrangers(50), .slider = 40}, 7);
  EXPECT_TRUE(built.gave_up);
  EXPECT_GE(built.attempts, 40);
  ASSERT_FALSE(built.progress.empty());
  EXPECT_EQ(built.progress.front(), 1);
  EXPECT_EQ(built.progress.back(), 39);
}

TEST(GridBuilder, GivesUpOnWordsWithoutLetters) {
  EXPECT_TRUE(BuildSeeded({.words = {"", ""}, .slider = 20}, 1).gave_up);
}

TEST(GridBuilder, RestartsWithoutEndAreOutOfStackSpace) {
  SharedState shared = StateFor({.words = {"", ""}, .slider = 200, .best = true});
  CrosswordDraws draws({}, 1);
  GridBuilder builder(shared, draws);
  EXPECT_FAULT(28, builder.Build());
  EXPECT_EQ(builder.DeepestRestart(), 9999);
}

TEST(GridBuilder, AWordOf18LettersIsRefused) {
  SharedState shared = StateFor({.words = {"abcdefghijklmnopqr"}});
  CrosswordDraws draws({}, 1);
  GridBuilder builder(shared, draws);
  EXPECT_FAULT(9, builder.Build());
}

// ---- Best mode --------------------------------------------------------------------------------

std::vector<int> BestOrderBehind(int first, int count) {
  std::vector<std::string> words(static_cast<std::size_t>(count), "aa");
  return WordOrder(
      BuildSeeded({.words = words, .slider = 20, .best = true}, 3, {DrawOf(first, count)}).shared);
}

TEST(GridBuilder, BestModeIsListOrderBehindARandomFirstWord) {
  EXPECT_EQ(BestOrderBehind(1, 5), (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST(GridBuilder, BestModeSkipsTheFirstListWordAndTakesTheOneBeforeItsFirstTwice) {
  EXPECT_EQ(BestOrderBehind(4, 5), (std::vector<int>{4, 2, 3, 3, 5}));
}

TEST(GridBuilder, BestModeWithWordTwoFirstHoldsAWordThatIsNone) {
  EXPECT_EQ(BestOrderBehind(2, 5), (std::vector<int>{2, 0, 3, 4, 5}));
}

TEST(GridBuilder, BestModeOnAShortListLeavesOutWhatCannotCross) {
  const Built built = BuildSeeded(
      {.words = WordMaker(1).Strangers(30, 3), .slider = 200, .best = true}, 11, {DrawOf(1, 30)});
  EXPECT_EQ(Picture(built.grid).substr(6), "a\na\na\n");
  for (int p = 2; p <= 30; ++p) EXPECT_EQ(built.grid.PlacedWords(p).Number, 0);
  EXPECT_FALSE(built.shared.OrphansFlag);
  EXPECT_EQ(built.attempts, 0);
}

TEST(GridBuilder, BestModeOnALongListPlacesFailingWordsAsOrphansBeforeTurnThree) {
  // No word crosses, so that the turn stays at 2 for the whole scan: each fails and becomes an
  // orphan at the place that its draws name.
  std::vector<double> draws = {DrawOf(1, 31), kColumn11};
  const auto column_of = [](int word) { return word <= 16 ? 2 : 30; };
  const auto row_of = [](int word) { return (word <= 16 ? word - 2 : word - 17) * 2 + 1; };
  for (int word = 2; word <= 31; ++word) {
    draws.insert(draws.end(),
                 {kForward, 0.0, DrawOf(column_of(word), 35), DrawOf(row_of(word), 29)});
  }
  draws.push_back(kForward);                                  // the last that failed, once more
  draws.insert(draws.end(), {kForward, kForward, kForward});  // turns 3 to 5: nothing is left
  const Built built =
      BuildFrom({.words = WordMaker(1).Strangers(31, 2), .slider = 20, .best = true}, draws);
  for (int word = 2; word <= 31; ++word) {
    EXPECT_EQ(built.grid.StartNumbers(column_of(word), row_of(word)), word);
    EXPECT_EQ(built.grid.Grid(column_of(word) + 1, row_of(word)), WordMaker::Letter(word));
    ExpectPlaced(built, word, word, WordDirection::Across);
  }
  EXPECT_EQ(built.orphan_count, 0);
  EXPECT_FALSE(built.shared.OrphansFlag);
}

TEST(GridBuilder, BestModeGrantsNoOrphanFromTurnThreeOn) {
  // Word 2 crosses: the turn is 3 when the others fail.
  std::vector<std::string> words = WordMaker(1).Strangers(31, 2);
  words[1] = "ab";
  const Built built = BuildSeeded({.words = words, .slider = 20, .best = true}, 5, {DrawOf(1, 31)});
  EXPECT_GE(built.grid.PlacedWords(2).Number, 1);
  for (int p = 3; p <= 31; ++p) EXPECT_EQ(built.grid.PlacedWords(p).Number, 0);
}

TEST(GridBuilder, BestModeWithWordTwoFirstNests2009DeepAtTheBestQuality) {
  // Position 2 holds no letters and goes to column 1, row 1; position 0, which names no word,
  // goes to the empty cell at column 30, row 1 and is not placed by that.
  std::vector<double> draws = {DrawOf(2, 31)};
  for (int attempt = 0; attempt < 2009; ++attempt) {
    draws.insert(draws.end(), {kColumn11, kForward, 0.0, DrawOf(1, 37), DrawOf(1, 29), kForward,
                               0.0, DrawOf(30, 37), DrawOf(1, 29)});
  }
  const Built built = BuildSeeded(
      {.words = WordMaker(1).Words(31, 20, 3, 8), .slider = 200, .best = true}, 17, draws);
  EXPECT_EQ(built.deepest_restart, 2009);
  EXPECT_EQ(built.attempts, 0);
  EXPECT_FALSE(built.gave_up);
}

TEST(GridBuilder, BestModeFillsItsBarFromTheWordsThatFail) {
  // Two words fail in each scan, which counts 2/2 and 2/1. At Q 20 there are five turns: the first
  // word, and scans at turns 2 to 5, after each of which the last word is offered once more.
  const Built built = BuildFrom({.words = {"aa", "bb", "cc"}, .slider = 20, .best = true},
                                {0.0, kColumn11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(built.progress, (std::vector<int>{1, 3, 4, 6, 7, 9, 10, 12}));
}

TEST(GridBuilder, TheBarOfBestModeStopsShortOfItsEnd) {
  const Built built =
      BuildSeeded({.words = WordMaker(1).Strangers(30, 2), .slider = 20, .best = true}, 2);
  // A scan counts 2/29 + 2/28 + ... + 2/1, nearly 8, so that the third one reaches the end.
  EXPECT_GE(built.progress.back(), 19);
  EXPECT_LE(built.progress.back(), 20);
}

TEST(GridBuilder, ARemakeOfTheBestPuzzleMarksTheWordsOfTheLastOrder) {
  SharedState shared = StateFor({.words = {"ab", "bc", "cd", "de"}, .slider = 20, .best = true});
  CrosswordDraws first({DrawOf(3, 4)}, 1);
  GridBuilder(shared, first).Build();
  ASSERT_EQ(WordOrder(shared), (std::vector<int>{3, 2, 2, 4}));
  // Word 1 was not in the order and has lost its mark; for the next draw 4 is ready again.
  shared.WordMarks(1) = 0;
  CrosswordDraws second({DrawOf(1, 4), DrawOf(4, 4)}, 1);
  GridBuilder(shared, second).Build();
  EXPECT_EQ(WordOrder(shared), (std::vector<int>{4, 2, 3, 3}));
}

TEST(CrosswordGrid, CellsOutsideTheMarginAreOutOfRange) {
  CrosswordGrid grid;
  EXPECT_FALSE(grid.HasLetter(0, 0));
  EXPECT_FALSE(grid.HasLetter(39, 30));
  EXPECT_FAULT(9, grid.Grid(40, 0));
  EXPECT_FAULT(9, grid.Grid(0, 31));
  EXPECT_FAULT(9, grid.Grid(-1, 0));
  EXPECT_EQ(grid.StartNumbers(37, 29), 0);
  EXPECT_FAULT(9, grid.StartNumbers(38, 0));
  EXPECT_FAULT(9, grid.StartNumbers(0, 30));
}

TEST(CrosswordGrid, SquaresAreIndexedRowByRow) {
  EXPECT_EQ(CrosswordGrid::SquareIndex(1, 1), 0);
  EXPECT_EQ(CrosswordGrid::SquareIndex(37, 1), 36);
  EXPECT_EQ(CrosswordGrid::SquareIndex(1, 2), 37);
  EXPECT_EQ(CrosswordGrid::SquareIndex(37, 29), 1072);
}

}  // namespace
}  // namespace brindlepage
