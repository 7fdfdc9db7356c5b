#pragma once

#include <array>
#include <cstdint>

#include "toolkit/numbers.h"

namespace brindlepage {

enum class WordDirection : std::uint8_t { None = 0, Across = 1, Down = 2 };

// Where a word of the puzzle went. Words are numbered by their position in the word order.
struct PlacedWord {
  // 0: not on the grid. While the puzzle is built, the position of the word, or of the earlier
  // word that starts in the same cell; after NumberGrid the clue number.
  int Number = 0;
  WordDirection Direction = WordDirection::None;
};

// What a build leaves behind: the letters, the cells where words start, and the words.
//
// Columns 1 to 37 and rows 1 to 29 are the puzzle. Column 0, columns 38 and 39, row 0 and row 30
// are a margin that stays empty, so that every cell of the puzzle has neighbours.
class CrosswordGrid {
 public:
  static constexpr int kColumns = 37;
  static constexpr int kRows = 29;
  static constexpr char kEmpty = '\0';

  // The letter of a cell, kEmpty if it has none. Outside columns 0 to 39 and rows 0 to 30:
  // RunTimeError 9.
  char Grid(int column, int row) const;
  bool HasLetter(int column, int row) const { return Grid(column, row) != kEmpty; }

  // 0, or the number of the word or words that start in the cell, counted as PlacedWord::Number
  // is. A start cell holds a letter, but for a word without letters. Outside columns 0 to 37 and
  // rows 0 to 29: RunTimeError 9.
  int StartNumbers(int column, int row) const;
  void StartNumbers(int column, int row, int number);

  BoundedArray<PlacedWord, 0, 300> PlacedWords;

  // The index of the control that shows a cell of the puzzle, 0 to 1072: row by row.
  static constexpr int SquareIndex(int column, int row) {
    return kColumns * (row - 1) + (column - 1);
  }

  void Clear();

  // For the builder, which looks at millions of cells: the letters as they lie, a column behind
  // the other, and of each column a bit for each row that has a letter. Nothing is checked.
  static constexpr int kStride = 32;  // from a cell to the cell right of it; the cell below is 1
  static constexpr int Cell(int column, int row) { return column * kStride + row; }
  char At(int cell) const { return letters_[static_cast<std::size_t>(cell)]; }
  bool EmptyAt(int cell) const { return At(cell) == kEmpty; }
  std::uint32_t LettersInColumn(int column) const {
    return rows_with_letter_[static_cast<std::size_t>(column)];
  }
  void Put(int cell, char letter) {
    letters_[static_cast<std::size_t>(cell)] = letter;
    rows_with_letter_[static_cast<std::size_t>(cell / kStride)] |= 1u << (cell % kStride);
  }

 private:
  std::array<char, 40 * kStride> letters_{};
  std::array<std::uint32_t, 40> rows_with_letter_{};
  BoundedArray<BoundedArray<std::int16_t, 0, kRows>, 0, kColumns> start_numbers_;
};

}  // namespace brindlepage
