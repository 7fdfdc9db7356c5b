#pragma once

#include <string>
#include <vector>

#include "core/shared_state.h"
#include "crossword/crossword_grid.h"

namespace brindlepage {

// Turns positions into clue numbers, in StartNumbers and in PlacedWords alike: 1 is the topmost
// start cell of the leftmost column that has one, and the numbers go on down the columns. Words
// that start in one cell share a number. More than 100 start cells: RunTimeError 9.
void NumberGrid(CrosswordGrid& grid, int marked_count);

// The clue texts and the hidden lists they are made of.
struct ClueLists {
  // The lines in the order of a sorted list: "  2) a meaning", " 10) another".
  std::vector<std::string> AcrossList;
  std::vector<std::string> DownList;
  // The meanings listed down, behind the item "-----".
  std::vector<std::string> RepeatList;
  // The texts of the boxes. Each line loses one leading blank and ends in a line feed. ClueBox
  // begins with the first blank of the title's pad; the rest of the pad stands behind the lines.
  std::string ClueBox;
  std::string ClueBox2;
  std::string WordsUsed;  // the caption of WordsUsedLabel
};

// For a grid that NumberGrid has numbered. A meaning is listed once in each direction; a word
// whose meaning was listed before stands on the grid without a clue. Words that are not on the
// grid have none.
ClueLists BuildClueLists(const SharedState& shared, const CrosswordGrid& grid);

}  // namespace brindlepage
