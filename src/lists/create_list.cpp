#include "lists/create_list.h"

#include "toolkit/arrangement.h"

namespace brindlepage {

CreateList::CreateList(Program& owner)
    : ProgramForm(owner, Screen::CreateList, "CreateList", "Create New Vocabulary List") {
  Command2.Default = true;
  Command1.Cancel = true;
  NewName.Enter = [this] { TakeName(); };
  Command2.Click = [this] { TakeName(); };
  Command1.Click = [this] { LeaveFor(Screen::Title); };
  Arrange(Column(Label1, Wide(60, NewName), Spring(), Row(Command1, Spring(), Command2)));
}

void CreateList::Load() {
  CentreForm();
  LoadBackground();
}

// Whether a list of that name exists already is not asked.
void CreateList::TakeName() {
  if (NewName.Text().empty()) return runtime().Beep();
  shared.NewListName = NewName.Text;
  LeaveFor(Screen::MakeNewList);
}

}  // namespace brindlepage
