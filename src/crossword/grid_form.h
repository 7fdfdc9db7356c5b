#pragma once

#include "core/program.h"
#include "crossword/crossword_grid.h"
#include "toolkit/controls.h"
#include "toolkit/timer.h"

namespace brindlepage {

// A screen that shows the crossword's grid, a label to a cell, where their Left, Top, Width and
// Height put them.
class GridForm : public ProgramForm {
 public:
  // Cells are told apart by CrosswordGrid::SquareIndex; the last square is no cell's.
  static constexpr int kLastSquare = CrosswordGrid::kColumns * CrosswordGrid::kRows;

  GridForm(Program& program, Screen id, std::string name);

  Image CrossImage{*this, "CrossImage"};  // the background graphic, as large as the form
  ControlArray<Image> BackImage{*this, "BackImage", 0, kLastSquare};
  ControlArray<Label> Square{*this, "Square", 0, kLastSquare};

  Label& SquareAt(int column, int row) { return Square(CrosswordGrid::SquareIndex(column, row)); }
  // Tells a cell's square, and hides its picture.
  void ShowSquare(int column, int row, bool visible, std::string caption);
  // The index of the last square that is visible; 0 if none is.
  int LastVisibleSquare();
  // The background graphic takes the form's size.
  void SpreadCrossImage();
};

// A grid that is photographed for the worksheet. While CaptureRequest is set, the next tick of its
// timer takes the photograph, and the one after that goes on to the worksheet.
class CapturedGridForm : public GridForm {
 public:
  CapturedGridForm(Program& program, Screen id, std::string name);

  Timer Timer1{*this, "Timer1", 1000, false};

 protected:
  // The only screen there is: its frame closes the program. Over the finished puzzle it just goes.
  void Closing() override;

 private:
  void Tick();
  void PhotographWindow();
};

}  // namespace brindlepage
