#pragma once

#include "riddle/riddle_book.h"

namespace brindlepage {

// The choice of the riddle that a riddle worksheet asks.
class ChooseRiddle : public RiddleBook {
 public:
  explicit ChooseRiddle(Program& program);

  Label Label4{*this, "Label4", "Next Riddle"};
  Label Label5{*this, "Label5", "Previous Riddle"};
  CommandButton Command1{*this, "Command1", "Go Back"};
  CommandButton Command2{*this, "Command2", "Choose This Riddle"};

 private:
  void NextRiddle() override;
  void PreviousRiddle() override;
  void Choose();
};

}  // namespace brindlepage
