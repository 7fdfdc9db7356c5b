#include "crossword/grid_packing.h"

#include <algorithm>
#include <cmath>

namespace brindlepage {

namespace {

constexpr int kColumns = CrosswordGrid::kColumns;
constexpr int kRows = CrosswordGrid::kRows;
constexpr int kGap = 10;
constexpr int kFirstTop = 100;  // of the first row in use

int FirstColumn(GridForm& grid) {
  for (int column = 1; column <= kColumns; ++column) {
    for (int row = 1; row <= kRows; ++row) {
      if (grid.SquareAt(column, row).Visible) return column;
    }
  }
  return kColumns + 1;
}

void SetTops(GridForm& grid) {
  for (int column = 1; column <= kColumns; ++column) grid.SquareAt(column, 1).Top = kGap;
  for (int row = 2; row <= kRows; ++row) {
    for (int column = 1; column <= kColumns; ++column) {
      const Label& above = grid.SquareAt(column, row - 1);
      grid.SquareAt(column, row).Top = above.Top + above.Height + kGap;
    }
  }
}

void SetLefts(GridForm& grid, int first_column) {
  for (int row = 1; row <= kRows; ++row) {
    for (int column = 1; column <= kColumns; ++column) {
      int left = kGap;
      if (column > first_column) {
        const Label& beside = grid.SquareAt(column - 1, row);
        left = beside.Left + beside.Width + kGap;
      }
      grid.SquareAt(column, row).Left = left;
    }
  }
}

void MoveFirstRowUp(GridForm& grid) {
  int first = 0;
  while (first < GridForm::kLastSquare && !grid.Square(first).Visible) ++first;
  const int rise = grid.Square(first).Top - kFirstTop;
  for (int index = first; index <= GridForm::kLastSquare; ++index) {
    Label& square = grid.Square(index);
    if (square.Visible) square.Top = square.Top - rise;
  }
}

}  // namespace

Size PlainSquareSize(Size screen) {
  return {(screen.width - 100) / (kColumns + 1) - kGap, (screen.height - 50) / kRows};
}

void PackGrid(GridForm& grid, Size square) {
  for (int index = 0; index <= GridForm::kLastSquare; ++index) {
    grid.Square(index).Height = square.height;
    grid.Square(index).Width = square.width;
  }
  SetTops(grid);
  SetLefts(grid, FirstColumn(grid));
  MoveFirstRowUp(grid);
}

AutoSize MeasureGrid(GridForm& grid) {
  AutoSize used;
  for (int row = 1; row <= kRows; ++row) {
    for (int column = 1; column <= kColumns; ++column) {
      if (!grid.SquareAt(column, row).Visible) continue;
      used.rows = row;
      if (column + 1 > used.cols) used.cols = column + 1;
    }
  }
  if (used.cols < 0.75 * used.rows) used.cols = 1.25 * used.rows;
  if (used.rows < 0.75 * used.cols) used.rows = used.cols;
  return used;
}

Size AutoSquareSize(Size screen, const AutoSize& used) {
  constexpr int kAround = 30;
  const auto share = [](int room, double count) {
    return static_cast<int>(std::floor(room / std::max(1.0, count))) - kAround;
  };
  return {share(screen.width - 100, used.cols), share(screen.height - 50, used.rows)};
}

}  // namespace brindlepage
