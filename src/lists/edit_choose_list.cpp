#include "lists/edit_choose_list.h"

#include "core/list_file.h"
#include "toolkit/arrangement.h"

namespace brindlepage {

EditChooseList::EditChooseList(Program& owner)
    : ProgramForm(owner, Screen::EditChooseList, "EditChooseList", "View/Edit Vocabulary List") {
  Command2.Cancel = true;
  // Enter opens what has been chosen, and nothing before.
  TheLists.Click = [this] { Command1.Default = TheLists.ListIndex >= 0; };
  TheLists.DblClick = [this] {
    if (TheLists.ListIndex >= 0) Open();
  };
  Command1.Click = [this] { Open(); };
  Command2.Click = [this] { StepTo(Screen::Title); };
  Arrange(Column(Fill(Framed(Frame2, Column(Fill(TheLists)))), Row(Command2, Spring(), Command1)));
}

void EditChooseList::Load() {
  CentreForm();
  LoadBackground();
  TheLists.AddItems(list_file::FillListNames(shared.ListFilePath));
  if (TheLists.List(0) == list_file::kNoLists) TheLists.RemoveItem(0);
}

void EditChooseList::Open() {
  shared.CurrentListName = TheLists.Text();
  // With nothing chosen the notice that should come isn't there.
  if (TheLists.ListIndex < 0) throw RunTimeError(Fault::ObjectRequired);
  StepTo(Screen::EditList);
}

}  // namespace brindlepage
