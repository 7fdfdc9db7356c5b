#pragma once

#include <string_view>

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "wordsearch/puzzle_grid.h"
#include "worksheet/rich_text.h"

// The parts of a word search as they are written, at the caret but where told.
namespace brindlepage::word_search {

// What stands above the puzzle, into an emptied box: the room for a name, the title and the
// directions. The title alone is in "Times New Roman"; what follows has the box's design font.
void WriteHeading(RichText& box, std::string_view title);

// A line for each of PuzzleDown rows: a blank and a capital for each of PuzzleAcross columns. Empty
// cells get random letters; the source is reseeded for each row.
void WritePuzzleRows(RichText& box, const SharedState& shared, const PuzzleGrid& grid,
                     RandomSource& random);

// At the end: a heading, the words in four columns or the numbered meanings (WordBankKind), and a
// rule without a line end.
void MakeWordBank(RichText& box, const SharedState& shared);

// Replaces the text by the key: the words' letters in bold as the list has them, stars between.
void MakePuzzleKey(RichText& box, const SharedState& shared, const PuzzleGrid& grid);

}  // namespace brindlepage::word_search
