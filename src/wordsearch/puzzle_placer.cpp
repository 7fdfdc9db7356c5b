#include "wordsearch/puzzle_placer.h"

#include <algorithm>

#include "toolkit/run_time_error.h"

namespace brindlepage {

PuzzlePlacer::PuzzlePlacer(PuzzleGrid& grid, int across, int down, bool easy, RandomSource& random)
    : grid_(grid), across_(across), down_(down), directions_(easy ? 2 : 3), random_(random) {
  static_assert(PuzzleGrid::kLargest < 63, "a line's numbers fit the bits of Numbers");
  if (across > PuzzleGrid::kLargest || down > PuzzleGrid::kLargest) {
    throw RunTimeError(Fault::Subscript);
  }
}

bool PuzzlePlacer::Place(std::string_view word) {
  Numbers directions_tried = 0;
  for (int i = 0; i < directions_; ++i) {
    random_.Reseed();
    const auto direction = static_cast<Direction>(DrawUntried(directions_, directions_tried));
    if (const auto place = Scan(direction, word)) {
      grid_.Write(word, *place);
      return true;
    }
  }
  return false;
}

int PuzzlePlacer::DrawUntried(int n, Numbers& tried) {
  int number = 0;
  do {
    number = random_.DrawIndex(n);
  } while ((tried & PuzzleGrid::Bit(number)) != 0);
  tried |= PuzzleGrid::Bit(number);
  return number;
}

std::optional<PuzzlePlace> PuzzlePlacer::Scan(Direction direction, std::string_view word) {
  const int length = static_cast<int>(word.size());
  const bool goes_down = direction == Direction::Down;
  // The starts are one less than would do, so that the last cell of a line stays out of reach.
  const int starts = (goes_down ? down_ : across_) - length;
  const int lines = goes_down ? across_ : direction == Direction::Across ? down_ : down_ - length;

  Numbers lines_tried = 0;
  for (int i = 0; i < lines; ++i) {
    const int line = DrawUntried(lines, lines_tried);
    const Numbers free = grid_.FreeStarts(word, direction, line, starts);
    if (const int start = DrawStart(starts, free)) {
      return PuzzlePlace{goes_down ? line : start, goes_down ? start : line, direction};
    }
  }
  return std::nullopt;
}

// Starts that were tried are drawn again, but since none of them was free this is the same as
// drawing until a free one comes, or until all have come.
int PuzzlePlacer::DrawStart(int starts, Numbers free) {
  const Numbers all = PuzzleGrid::Bit(std::max(starts, 0) + 1) - PuzzleGrid::Bit(1);
  Numbers drawn = 0;
  while (drawn != all) {
    const int start = random_.DrawIndex(starts);
    drawn |= PuzzleGrid::Bit(start);
    if ((drawn & free) != 0) return start;
  }
  return 0;
}

}  // namespace brindlepage
