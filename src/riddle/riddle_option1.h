#pragma once

#include "riddle/riddle_book.h"

namespace brindlepage {

// Collects the riddles of a coded riddles worksheet or a cryptoquip.
class RiddleOption1 : public RiddleBook {
 public:
  explicit RiddleOption1(Program& program);

  CommandButton Command3{*this, "Command3", "Add This Riddle To The WorkSheet"};
  Label TotalLabel{*this, "TotalLabel", "Total Riddles Selected for This WorkSheet: 0",
                   Look::Heading};
  CommandButton Command1{*this, "Command1", "Go Back"};
  CommandButton Command2{*this, "Command2", "Continue"};

 private:
  void Load() override;
  void NextRiddle() override;
  void PreviousRiddle() override;
  void Add();
  void TakeOutOfBook();
  void Continue();

  // The page behind the one that was added is due next.
  bool JustAdded = false;
};

}  // namespace brindlepage
