#include "lists/change_list_name.h"

#include "lists/make_new_list.h"
#include "toolkit/arrangement.h"

namespace brindlepage {

ChangeListName::ChangeListName(Program& owner)
    : ProgramForm(owner, Screen::ChangeListName, "ChangeListName", "Change List Name",
                  FormKind::Box) {
  constexpr int kWide = 46;
  Command1.Default = true;
  Command2.Cancel = true;
  TheName.Enter = [this] { EnterName(); };
  Command1.Click = [this] { TakeName(); };
  Command2.Click = [this] { Unload(); };
  Arrange(Column(Wide(kWide, TheName), Gap(), Row(Spring(), Command2, Command1)));
}

void ChangeListName::Load() {
  CentreForm();
  TheName.Text = shared.CurrentListName;
}

void ChangeListName::TakeName() {
  shared.ListDisplayName = TheName.Text;
  shared.CurrentListName = TheName.Text;
  shared.NewListName = TheName.Text;
  if (shared.ReturnTag == "create") {
    forms().Get<MakeNewList>(Screen::MakeNewList).Rename(TheName.Text);
  }
  Unload();
}

// Enter is not the same as OK: the editor's caption keeps the old name.
void ChangeListName::EnterName() {
  shared.CurrentListName = TheName.Text;
  Unload();
}

}  // namespace brindlepage
