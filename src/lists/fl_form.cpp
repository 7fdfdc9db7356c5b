#include "lists/fl_form.h"

#include "lists/edit_word.h"
#include "lists/make_new_list.h"

namespace brindlepage {

FLForm::FLForm(Program& owner)
    : ProgramForm(owner, Screen::FLForm, "FLForm", "Foreign Language Characters", FormKind::Box) {
  Command1.Cancel = true;
  Command1.Click = [this] { Unload(); };
  Foreign.FLButton.Click = [this](int index) { GiveLetter(index); };
  Arrange(Column(Foreign.Arranged(), Gap(), Row(Spring(), Command1)));
}

void FLForm::GiveLetter(int index) {
  if (shared.ReturnTag == "editword") {
    Append(forms().Get<EditWord>(Screen::EditWord), index);
  } else {
    Append(forms().Get<MakeNewList>(Screen::MakeNewList), index);
  }
  Unload();
}

}  // namespace brindlepage
