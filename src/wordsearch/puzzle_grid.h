#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace brindlepage {

// The ways a word can run: to the right, downwards, and both at once. Drawn by their numbers.
enum class Direction { Across = 1, Down = 2, Diagonal = 3 };

// Where a word begins and how it runs.
struct PuzzlePlace {
  int x;
  int y;
  Direction direction;
};

// The letters that the words of a word search stand on; letters that only fill the sheet are not
// among them. Columns x and rows y count from 1, from the left and from the top, up to kLargest.
// A cell is empty or holds one character (Windows-1252), in the case in which its word gave it.
//
// A cell that isn't there: RunTimeError 9 "Subscript out of range".
//
//   grid.Write("lava", {2, 5, Direction::Across});
//   grid.FreeStarts("ash", Direction::Down, 3, 6);  // in column 3: 1, 2, 5 and 6
class PuzzleGrid {
 public:
  static constexpr int kLargest = 40;

  // A set of columns, rows or starts: the bit of each number from 1 to kLargest.
  using Numbers = std::uint64_t;
  static constexpr Numbers Bit(int number) { return Numbers{1} << number; }

  PuzzleGrid() { Clear(); }
  void Clear();

  bool IsEmpty(int x, int y) const;
  char Letter(int x, int y) const;  // of a cell that isn't empty

  void Write(std::string_view word, const PuzzlePlace& place);

  // Which of the starts 1 to `starts` are free for the word: each of its cells is empty or holds
  // the word's own letter, case included. In a row (across, diagonal) the starts are columns, in
  // a column (down) they are rows.
  Numbers FreeStarts(std::string_view word, Direction direction, int line, int starts) const;

 private:
  // Cells of one kind, row by row and column by column.
  struct Cells {
    std::array<Numbers, kLargest + 1> rows{};
    std::array<Numbers, kLargest + 1> columns{};
  };
  // All the cells that hold that letter; those of a letter that stands nowhere are none.
  const Cells& CellsOf(char letter) const;
  Cells& AddCellsOf(char letter);

  // So a whole line of starts is tested at once, letter by letter.
  Cells empty_;
  std::vector<Cells> cells_;                   // of the letters, in the order of their coming
  std::array<std::uint16_t, 256> cells_of_{};  // by letter, its place in cells_; at 0 stand none
  std::array<char, (kLargest + 1) * (kLargest + 1)> letters_{};
};

}  // namespace brindlepage
