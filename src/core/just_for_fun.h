#pragma once

#include "core/program.h"

namespace brindlepage {

// The second menu: the activities that need no vocabulary list.
class JustForFun : public ProgramForm {
 public:
  explicit JustForFun(Program& program);

  Label Label1{*this, "Label1",
               "Here are some activities that are a bit less academic. They're good just for some "
               "fun..."};
  CommandButton Command2{*this, "Command2", "Coded Riddle Worksheet", "riddle"};
  CommandButton Command3{*this, "Command3", "Crypto-Quip Worksheet", "secret-code"};
  CommandButton Command1{*this, "Command1", "Back to Main Screen"};

 private:
  void Load() override;
  void StartActivity(int kind);
};

}  // namespace brindlepage
