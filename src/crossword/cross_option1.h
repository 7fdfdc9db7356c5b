#pragma once

#include "core/program.h"
#include "toolkit/controls.h"

namespace brindlepage {

// How long the search for a good crossword may take.
class CrossOption1 : public ProgramForm {
 public:
  explicit CrossOption1(Program& program);

  Image Image1{*this, "Image1", "crossword"};
  Label Label1{*this, "Label1",
               "To build your crossword puzzle, Brindlepage will experiment until it finds the "
               "best placement of words. Depending on the speed of your computer and the number "
               "of words you choose, this could be time consuming, but will result in a better "
               "looking puzzle. Use the sliding bar below to set your preference of speed vs. "
               "quality."};
  Label Label2{*this, "Label2", "Speed"};
  HScrollBar QualityBar{*this, "QualityBar", 20, 200, 120, 20};
  Label Label3{*this, "Label3", "Quality"};
  CommandButton Command2{*this, "Command2", "Go Back"};
  CommandButton Command1{*this, "Command1", "Continue"};

 private:
  void Load() override;
  void Continue();
};

}  // namespace brindlepage
