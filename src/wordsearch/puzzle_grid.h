#pragma once

#include <array>
#include <cstdint>
#include <string_view>

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
class PuzzleGrid {
 public:
  static constexpr int kLargest = 40;

  void Clear() { cells_.fill(kEmpty); }

  bool IsEmpty(int x, int y) const { return cells_[Index(x, y)] == kEmpty; }
  char Letter(int x, int y) const { return static_cast<char>(cells_[Index(x, y)] & 0xFF); }

  // Whether each cell there is empty or holds the word's own letter, case included.
  bool Fits(std::string_view word, const PuzzlePlace& place) const;
  void Write(std::string_view word, const PuzzlePlace& place);

 private:
  // A byte, marked so that no letter is mistaken for an empty cell.
  using Cell = std::uint16_t;
  static constexpr Cell kEmpty = 0;
  static Cell Marked(char letter) {
    return static_cast<Cell>(0x100 | static_cast<unsigned char>(letter));
  }

  static std::size_t Index(int x, int y);
  static std::size_t Step(Direction direction);
  // Throws unless all of the word's cells are there.
  static void RequireRoom(std::string_view word, const PuzzlePlace& place);

  std::array<Cell, std::size_t{kLargest} * kLargest> cells_{};
};

}  // namespace brindlepage
