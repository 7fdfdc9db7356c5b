#include "wordsearch/puzzle_builder.h"

#include "wordsearch/puzzle_placer.h"

namespace brindlepage {

namespace {

constexpr int kGrowsBelow = 35;
constexpr int kGrowth = 2;
constexpr int kMostRuns = 10'000;

}  // namespace

bool PlaceWords(SharedState& shared, RandomSource& random, PuzzleGrid& grid) {
  grid.Clear();
  PuzzlePlacer placer(grid, shared.PuzzleAcross, shared.PuzzleDown, shared.EasyPuzzle, random);
  for (int word = 1; word <= shared.MarkedCount; ++word) {
    shared.WorkWord = shared.ListWords(word);
    if (!placer.Place(shared.WorkWord)) return false;
  }
  return true;
}

bool GrowPuzzle(SharedState& shared) {
  if (shared.PuzzleAcross > kGrowsBelow && shared.PuzzleDown > kGrowsBelow) return false;
  if (shared.PuzzleAcross < kGrowsBelow) shared.PuzzleAcross += kGrowth;
  if (shared.PuzzleDown < kGrowsBelow) shared.PuzzleDown += kGrowth;
  return true;
}

bool BuildPuzzle(SharedState& shared, RandomSource& random, PuzzleGrid& grid) {
  for (int run = 1; !PlaceWords(shared, random, grid); ++run) {
    if (!GrowPuzzle(shared)) return false;
    if (run == kMostRuns) throw RunTimeError(Fault::OutOfStack);
  }
  return true;
}

}  // namespace brindlepage
