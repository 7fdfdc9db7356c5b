#pragma once

#include "core/program.h"

namespace brindlepage {

// Changes a word and its meaning for the list editor beneath it.
class EditWord : public ProgramForm {
 public:
  explicit EditWord(Program& program);

  Label Label1{*this, "Label1", "Word:"};
  TextBox TheWord{*this, "TheWord"};
  Label Label2{*this, "Label2", "Meaning:"};
  TextBox TheMeaning{*this, "TheMeaning"};
  Label Label3{*this, "Label3", "Insert Foreign Language Character"};
  CommandButton Command2{*this, "Command2", "Cancel"};
  CommandButton Command1{*this, "Command1", "Done"};

 private:
  void Load() override;
  void Closing() override { forms().Unload(Screen::FLForm); }
  void Done();
  void Leave();
  void InsertForeign();
};

}  // namespace brindlepage
