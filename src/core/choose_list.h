#pragma once

#include "core/program.h"
#include "toolkit/lists.h"

namespace brindlepage {

// The choice of the list that an activity works from.
class ChooseList : public ProgramForm {
 public:
  explicit ChooseList(Program& program);

  Menu Go{*this, "Go", "Go"};
  MenuItem Return{Go, "Return", "Return to Main Screen"};
  MenuItem Quit{Go, "Quit", "Quit"};
  Menu Options{*this, "Options", "Options"};
  MenuItem About{Options, "About", "About This Program"};
  Label Label1{*this, "Label1", "Choose the word list you want to use for this activity",
               Look::Heading};
  ListBox TheLists{*this, "TheLists", ListStyle::Sorted};
  CommandButton Command1{*this, "Command1", "Begin!"};
  CommandButton Command2{*this, "Command2", "Go Back"};

  std::optional<Screen> Successor() const override;

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void Begin();
};

}  // namespace brindlepage
