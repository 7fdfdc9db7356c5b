#include "lists/delete_list.h"

#include "toolkit/arrangement.h"

namespace brindlepage {

DeleteList::DeleteList(Program& owner)
    : ProgramForm(owner, Screen::DeleteList, "DeleteList", "Delete A Word List") {
  // Escape takes the way that deletes nothing.
  No.Cancel = true;
  Command2.Cancel = true;
  Command1.Click = [this] { Ask(); };
  Command2.Click = [this] { LeaveFor(Screen::Title); };
  Yes.Click = [this] { Delete(); };
  No.Click = [this] { ShowQuestion(false); };
  ShowQuestion(false);
  Arrange(Column(Label1, Label2, Fill(TheLists), Sure, Row(Command2, Spring(), Command1, No, Yes)));
}

void DeleteList::Load() {
  CentreForm();
  LoadBackground();
  Data = list_file::LoadWholeFile(shared.ListFilePath);
  TheLists.AddItems(list_file::FillListNames(shared.ListFilePath));
}

void DeleteList::Ask() {
  // With nothing selected the notice that should come isn't there.
  if (TheLists.ListIndex < 0) throw RunTimeError(Fault::ObjectRequired);
  ShowQuestion(true);
  runtime().Beep();
}

// The list that is selected now goes, whichever it was when the question came.
void DeleteList::Delete() {
  list_file::DeleteListLines(shared.ListFilePath, Data, TheLists.Text());
  ShowQuestion(false);
  TheLists.RemoveItem(TheLists.ListIndex);
}

void DeleteList::ShowQuestion(bool shown) {
  Command1.Visible = !shown;
  Command2.Visible = !shown;
  Sure.Visible = shown;
  No.Visible = shown;
  Yes.Visible = shown;
  shown ? No.SetFocus() : TheLists.SetFocus();
}

}  // namespace brindlepage
