#include "crossword/crossword_grid.h"

namespace brindlepage {

char CrosswordGrid::Grid(int column, int row) const {
  constexpr int kLastColumn = kColumns + 2;
  constexpr int kLastRow = kRows + 1;
  if (column < 0 || column > kLastColumn || row < 0 || row > kLastRow) {
    throw RunTimeError(Fault::Subscript);
  }
  return At(Cell(column, row));
}

int CrosswordGrid::StartNumbers(int column, int row) const { return start_numbers_(column)(row); }

void CrosswordGrid::StartNumbers(int column, int row, int number) {
  start_numbers_(column)(row) = static_cast<std::int16_t>(number);
}

void CrosswordGrid::Clear() { *this = CrosswordGrid(); }

}  // namespace brindlepage
