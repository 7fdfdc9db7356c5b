#pragma once

#include "crossword/grid_form.h"

namespace brindlepage {

// The solved grid: the preview of the puzzle, and the picture of its answer key.
class CrossWord : public CapturedGridForm {
 public:
  explicit CrossWord(Program& program);

  Label TitleLabel{*this, "TitleLabel", "Crossword Title Here"};
  Image TitleImage{*this, "TitleImage"};

  // A letter to a square, all over the screen.
  void FillPreviewGrid(const CrosswordGrid& grid);

 private:
  void Load() override;
  void FormClick() override { LeavePreview(); }
  void FormKey() override { LeavePreview(); }
  void LeavePreview();
};

}  // namespace brindlepage
