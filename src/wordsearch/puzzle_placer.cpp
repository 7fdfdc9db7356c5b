#include "wordsearch/puzzle_placer.h"

#include "toolkit/run_time_error.h"

namespace brindlepage {

PuzzlePlacer::PuzzlePlacer(PuzzleGrid& grid, int across, int down, bool easy, RandomSource& random)
    : grid_(grid), across_(across), down_(down), directions_(easy ? 2 : 3), random_(random) {
  static_assert(PuzzleGrid::kLargest < 64, "a line's numbers fit the bits of Tried");
  if (across > PuzzleGrid::kLargest || down > PuzzleGrid::kLargest) {
    throw RunTimeError(Fault::Subscript);
  }
}

bool PuzzlePlacer::Place(std::string_view word) {
  Tried directions_tried = 0;
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

int PuzzlePlacer::DrawUntried(int n, Tried& tried) {
  int number = 0;
  do {
    number = random_.DrawIndex(n);
  } while ((tried >> number & 1) != 0);
  tried |= Tried{1} << number;
  return number;
}

std::optional<PuzzlePlace> PuzzlePlacer::Scan(Direction direction, std::string_view word) {
  const int length = static_cast<int>(word.size());
  const bool goes_down = direction == Direction::Down;
  // The starts are one less than would do, so that the last cell of a line stays out of reach.
  const int starts = (goes_down ? down_ : across_) - length;
  const int lines = goes_down ? across_ : direction == Direction::Across ? down_ : down_ - length;

  Tried lines_tried = 0;
  for (int i = 0; i < lines; ++i) {
    const int line = DrawUntried(lines, lines_tried);
    Tried starts_tried = 0;
    for (int j = 0; j < starts; ++j) {
      const int start = DrawUntried(starts, starts_tried);
      const PuzzlePlace place{goes_down ? line : start, goes_down ? start : line, direction};
      if (grid_.Fits(word, place)) return place;
    }
  }
  return std::nullopt;
}

}  // namespace brindlepage
