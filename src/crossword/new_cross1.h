#pragma once

#include "crossword/grid_form.h"

namespace brindlepage {

// The empty grid with its clue numbers, the picture of the worksheet.
class NewCross1 : public CapturedGridForm {
 public:
  explicit NewCross1(Program& program);

  // A square for each letter, and the number of the words that start there.
  void ShowNumbers(const CrosswordGrid& grid);
  // The form takes that height and stands in the middle of the screen. Twips.
  void FitAround(int height);

 private:
  void Load() override { WindowState = kMaximised; }
};

}  // namespace brindlepage
