#pragma once

#include "core/program.h"

namespace brindlepage {

// Whether a scramble worksheet gives hints.
class ScrambleOption1 : public ProgramForm {
 public:
  explicit ScrambleOption1(Program& program);

  Label Label1{*this, "Label1", "Give the word meaning as a hint?", Look::Heading};
  CommandButton Command1{*this, "Command1", "Yes"};
  CommandButton Command2{*this, "Command2", "No"};
  CommandButton Command3{*this, "Command3", "Go Back"};

 private:
  void Load() override;
  void GiveHints(bool wanted);
};

}  // namespace brindlepage
