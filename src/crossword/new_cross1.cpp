#include "crossword/new_cross1.h"

namespace brindlepage {

NewCross1::NewCross1(Program& owner) : CapturedGridForm(owner, Screen::NewCross1, "NewCross1") {}

void NewCross1::ShowNumbers(const CrosswordGrid& grid) {
  for (int column = 1; column <= CrosswordGrid::kColumns; ++column) {
    for (int row = 1; row <= CrosswordGrid::kRows; ++row) {
      const int number = grid.StartNumbers(column, row);
      ShowSquare(column, row, grid.HasLetter(column, row) || number != 0,
                 number != 0 ? DisplayForm(number) : "");
    }
  }
}

void NewCross1::FitAround(int height) {
  Height = height;
  CentreForm();
}

}  // namespace brindlepage
