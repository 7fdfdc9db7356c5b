#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "wordsearch/puzzle_grid.h"

namespace brindlepage {

// One run: the words ListWords(1) to ListWords(MarkedCount), in that order, on an empty grid of
// PuzzleAcross columns and PuzzleDown rows. False when one has no place; WorkWord is that word.
bool PlaceWords(SharedState& shared, RandomSource& random, PuzzleGrid& grid);

// Adds 2 to PuzzleAcross and to PuzzleDown, each as long as it is below 35. So an even size ends
// at 36 and an odd one at 35. False, and nothing changes, when both are above 35.
bool GrowPuzzle(SharedState& shared);

// Runs, and grows, until all words have their place. False if they have none at 36 by 36. An odd
// size never gets there: where the words can't be placed it runs again and again at its largest,
// until RunTimeError 28 "Out of stack space" at the ten thousandth run.
bool BuildPuzzle(SharedState& shared, RandomSource& random, PuzzleGrid& grid);

}  // namespace brindlepage
