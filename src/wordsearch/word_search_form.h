#pragma once

#include "wordsearch/puzzle_grid.h"
#include "worksheet/worksheet_form.h"

namespace brindlepage {

// The word search: the marked words hidden in a grid of letters, a word bank, and a key.
class WordSearchForm : public WorksheetForm {
 public:
  explicit WordSearchForm(Program& program);

 private:
  void Load() override;
  // False if the words fit no size: the form is gone then, and the menu is back.
  bool MakePuzzle();

  PuzzleGrid grid_;
};

}  // namespace brindlepage
