#pragma once

#include "core/program.h"

namespace brindlepage {

// The size of a word search to begin with. It grows where the words need more room.
class PuzzleSize : public ProgramForm {
 public:
  explicit PuzzleSize(Program& program);

  Label Label1{*this, "Label1", "How big do you want this puzzle to be?", Look::Heading};
  Label Label3{*this, "Label3", "Across:"};
  HScrollBar VScrollx{*this, "VScrollx", 10, 30, 20};
  Label Labelx{*this, "Labelx", "", Look::Heading};
  Label Label4{*this, "Label4", "Down:"};
  HScrollBar VScrolly{*this, "VScrolly", 10, 30, 20};
  Label Labely{*this, "Labely", "", Look::Heading};
  Label Label2{*this, "Label2",
               "Note: The program will use this number as a minimum. The puzzle size may have to "
               "be adjusted to make all of the words fit...",
               Look::Note};
  CommandButton Command1{*this, "Command1", "OK"};
  CommandButton Command2{*this, "Command2", "Go Back"};

  std::optional<Screen> Successor() const override { return Screen::WordSearchForm; }

 private:
  void Load() override;
  void ShowSize();
  void Continue();
};

}  // namespace brindlepage
