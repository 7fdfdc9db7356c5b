#pragma once

#include "core/program.h"
#include "lists/foreign_panel.h"

namespace brindlepage {

// Takes a new word and its meaning for the list editor beneath it. Goes away when it loses the
// activation, which is a Cancel.
class AddWord : public ProgramForm {
 public:
  explicit AddWord(Program& program);

  Label Label1{*this, "Label1", "Word:"};
  TextBox Text1{*this, "Text1"};
  Label Label2{*this, "Label2", "Meaning:"};
  TextBox Text2{*this, "Text2"};
  CommandButton Command3{*this, "Command3", "Foreign Characters..."};
  ForeignPanel Foreign{*this};
  CommandButton Command2{*this, "Command2", "Cancel"};
  CommandButton Command1{*this, "Command1", "Add"};

 private:
  void Load() override;
  void Deactivate() override { Unload(); }
  bool BothFilled() const { return !Text1.Text().empty() && !Text2.Text().empty(); }
  void EnterWord();
  void Add();
  void ShowPanel();
};

}  // namespace brindlepage
