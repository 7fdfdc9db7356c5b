#pragma once

#include "toolkit/timer.h"
#include "worksheet/worksheet_form.h"

namespace brindlepage {

class CrossWordFill;

// The crossword as a worksheet: the numbered grid and the clues, and the solved grid as its key.
// Its load writes all but the grids and the clues; these are pasted by its timer, the worksheet's
// first, then the key's.
class CrosswordWorksheet : public WorksheetForm {
 public:
  explicit CrosswordWorksheet(Program& program);

  Timer Timer1{*this, "Timer1", 1000, true};

 private:
  void Load() override;
  void Closing() override { runtime().End(); }

  void WriteHeading();
  void WriteDirections();
  void WriteKeyHeading();

  void Tick();
  void PasteNumberedGrid();
  void WriteClues(CrossWordFill& fill);
  void AskForSolvedGrid();
  void PasteSolvedGrid();
  // Nothing that is done at the screen gets between while the grids are pasted.
  void TakeInput(bool taken);

  Integer PicturePos;         // where the numbered grid goes
  CharFormat PictureFormat_;  // of what is written behind it
};

}  // namespace brindlepage
