#pragma once

#include <optional>
#include <string_view>

#include "toolkit/random_source.h"
#include "wordsearch/puzzle_grid.h"

namespace brindlepage {

// Places words one after the other, each at a random place among those that are free for it.
//
//   PuzzleGrid grid;
//   PuzzlePlacer placer(grid, 20, 15, false, random);
//   const bool placed = placer.Place("volcano");
//
// A word never reaches the last cell of a line along which it runs: the last column is touched by
// words that go down alone, the last row by words that go across alone.
class PuzzlePlacer {
 public:
  // Works on the first `across` columns and `down` rows of the grid, each at most
  // PuzzleGrid::kLargest, or RunTimeError 9. An easy puzzle has no diagonal words.
  PuzzlePlacer(PuzzleGrid& grid, int across, int down, bool easy, RandomSource& random);

  // Writes the word into the grid. False, and nothing is written, if no place in any direction is
  // free for it. For each direction that it tries the random source is reseeded once.
  bool Place(std::string_view word);

 private:
  using Numbers = PuzzleGrid::Numbers;

  // A number from 1 to n that wasn't drawn before.
  int DrawUntried(int n, Numbers& tried);
  // The first free place, the lines in random order and in each line the starts in random order.
  std::optional<PuzzlePlace> Scan(Direction direction, std::string_view word);
  // Draws starts of a line until a free one comes; 0 when all have been tried and none is free.
  int DrawStart(int starts, Numbers free);

  PuzzleGrid& grid_;
  const int across_;
  const int down_;
  const int directions_;
  RandomSource& random_;
};

}  // namespace brindlepage
