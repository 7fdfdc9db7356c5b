#pragma once

#include "crossword/grid_form.h"
#include "toolkit/geometry.h"

namespace brindlepage {

// Where the squares stand for the worksheet's pictures. Sizes are twips, of the screen and of
// what is made for it.

// So that a grid of all columns and rows fills the screen.
Size PlainSquareSize(Size screen);

// Every square takes the size; then the visible ones move up to the left and to the top.
void PackGrid(GridForm& grid, Size square);

// The rows and columns that autosize counts on: the used extent of the grid from its upper left
// corner, the shorter side stretched so that squares don't become long and thin.
struct AutoSize {
  double rows = 0;
  double cols = 0;
};
AutoSize MeasureGrid(GridForm& grid);
Size AutoSquareSize(Size screen, const AutoSize& used);

}  // namespace brindlepage
