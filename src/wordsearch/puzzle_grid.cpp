#include "wordsearch/puzzle_grid.h"

#include "toolkit/run_time_error.h"

namespace brindlepage {

bool PuzzleGrid::Fits(std::string_view word, const PuzzlePlace& place) const {
  RequireRoom(word, place);
  const std::size_t step = Step(place.direction);
  std::size_t index = Index(place.x, place.y);
  for (const char letter : word) {
    const Cell cell = cells_[index];
    if (cell != kEmpty && cell != Marked(letter)) return false;
    index += step;
  }
  return true;
}

void PuzzleGrid::Write(std::string_view word, const PuzzlePlace& place) {
  RequireRoom(word, place);
  const std::size_t step = Step(place.direction);
  std::size_t index = Index(place.x, place.y);
  for (const char letter : word) {
    cells_[index] = Marked(letter);
    index += step;
  }
}

std::size_t PuzzleGrid::Index(int x, int y) {
  if (x < 1 || x > kLargest || y < 1 || y > kLargest) throw RunTimeError(Fault::Subscript);
  return static_cast<std::size_t>((y - 1) * kLargest + x - 1);
}

std::size_t PuzzleGrid::Step(Direction direction) {
  switch (direction) {
    case Direction::Across:
      return 1;
    case Direction::Down:
      return kLargest;
    case Direction::Diagonal:
      return kLargest + 1;
  }
  return 0;
}

void PuzzleGrid::RequireRoom(std::string_view word, const PuzzlePlace& place) {
  const int more = word.empty() ? 0 : static_cast<int>(word.size()) - 1;
  const int last_x = place.direction == Direction::Down ? place.x : place.x + more;
  const int last_y = place.direction == Direction::Across ? place.y : place.y + more;
  if (last_x > kLargest || last_y > kLargest) throw RunTimeError(Fault::Subscript);
}

}  // namespace brindlepage
