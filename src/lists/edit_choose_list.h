#pragma once

#include "core/program.h"
#include "toolkit/lists.h"

namespace brindlepage {

// The choice of the list to view or edit.
class EditChooseList : public ProgramForm {
 public:
  explicit EditChooseList(Program& program);

  Frame Frame2{*this, "Frame2", "Choose a List to View or Edit"};
  ListBox TheLists{*this, "TheLists", ListStyle::Sorted};
  CommandButton Command1{*this, "Command1", "OK"};
  CommandButton Command2{*this, "Command2", "Cancel"};

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void Open();
};

}  // namespace brindlepage
