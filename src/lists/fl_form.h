#pragma once

#include "core/program.h"
#include "lists/foreign_panel.h"

namespace brindlepage {

// The foreign letters as a box of their own, for the new list's screen and for the editing of a
// word. Gives one letter each time it is opened.
class FLForm : public ProgramForm {
 public:
  explicit FLForm(Program& program);

  ForeignPanel Foreign{*this};
  CommandButton Command1{*this, "Command1", "Cancel"};

 private:
  void Load() override { CentreForm(); }
  void GiveLetter(int index);
  template <class Target>
  void Append(Target& target, int index) {
    Foreign.Append(index == 0 ? target.TheWord : target.TheMeaning);
  }
};

}  // namespace brindlepage
