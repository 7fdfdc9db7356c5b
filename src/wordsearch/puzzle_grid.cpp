#include "wordsearch/puzzle_grid.h"

#include "toolkit/run_time_error.h"

namespace brindlepage {

namespace {

std::size_t At(int number) {
  if (number < 1 || number > PuzzleGrid::kLargest) throw RunTimeError(Fault::Subscript);
  return static_cast<std::size_t>(number);
}

std::size_t CellAt(int x, int y) { return At(y) * (PuzzleGrid::kLargest + 1) + At(x); }

std::size_t Code(char letter) { return static_cast<unsigned char>(letter); }

// The set of 1 to n.
PuzzleGrid::Numbers UpTo(int n) { return PuzzleGrid::Bit(n + 1) - PuzzleGrid::Bit(1); }

}  // namespace

void PuzzleGrid::Clear() {
  empty_.rows.fill(UpTo(kLargest));
  empty_.columns.fill(UpTo(kLargest));
  cells_.assign(1, Cells());
  cells_of_.fill(0);
}

bool PuzzleGrid::IsEmpty(int x, int y) const { return (empty_.rows[At(y)] >> At(x) & 1) != 0; }

char PuzzleGrid::Letter(int x, int y) const { return letters_[CellAt(x, y)]; }

void PuzzleGrid::Write(std::string_view word, const PuzzlePlace& place) {
  int x = place.x;
  int y = place.y;
  for (const char letter : word) {
    letters_[CellAt(x, y)] = letter;
    Cells& cells = AddCellsOf(letter);
    cells.rows[At(y)] |= Bit(x);
    cells.columns[At(x)] |= Bit(y);
    empty_.rows[At(y)] &= ~Bit(x);
    empty_.columns[At(x)] &= ~Bit(y);
    if (place.direction != Direction::Down) ++x;
    if (place.direction != Direction::Across) ++y;
  }
}

PuzzleGrid::Numbers PuzzleGrid::FreeStarts(std::string_view word, Direction direction, int line,
                                           int starts) const {
  if (starts < 1) return 0;
  if (starts + static_cast<int>(word.size()) > kLargest + 1) throw RunTimeError(Fault::Subscript);
  Numbers free = UpTo(starts);
  const auto lines = direction == Direction::Down ? &Cells::columns : &Cells::rows;
  const int step = direction == Direction::Diagonal ? 1 : 0;
  int ahead = 0;  // from the start to the letter
  for (const char letter : word) {
    const std::size_t at = At(line + step * ahead);
    const Numbers takes = (empty_.*lines)[at] | (CellsOf(letter).*lines)[at];
    free &= takes >> ahead;
    ++ahead;
  }
  return free;
}

const PuzzleGrid::Cells& PuzzleGrid::CellsOf(char letter) const {
  return cells_[cells_of_[Code(letter)]];
}

PuzzleGrid::Cells& PuzzleGrid::AddCellsOf(char letter) {
  std::uint16_t& place = cells_of_[Code(letter)];
  if (place == 0) {
    place = static_cast<std::uint16_t>(cells_.size());
    cells_.emplace_back();
  }
  return cells_[place];
}

}  // namespace brindlepage
