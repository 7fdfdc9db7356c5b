#include "lists/add_word.h"

#include "lists/edit_list.h"

namespace brindlepage {

AddWord::AddWord(Program& owner)
    : ProgramForm(owner, Screen::AddWord, "AddWord", "Add A Word To This List", FormKind::Box) {
  constexpr int kWide = 60;
  Foreign.Frame1.Visible = false;
  Command1.Default = true;
  Command2.Cancel = true;
  Text1.Enter = [this] { EnterWord(); };
  Text2.Enter = [this] { Add(); };
  Command1.Click = [this] { Add(); };
  Command2.Click = [this] { Unload(); };
  Command3.Click = [this] { ShowPanel(); };
  Foreign.FLButton.Click = [this](int index) { Foreign.Append(index == 0 ? Text1 : Text2); };

  Arrange(Column(Label1, Wide(kWide, Text1), Label2, Wide(kWide, Text2), Foreign.Arranged(), Gap(),
                 Row(Command3, Spring(), Command2, Command1)));
}

void AddWord::Load() {
  CentreForm();
  shared.WorkWord = "";
  shared.WorkMeaning = "";
}

void AddWord::EnterWord() {
  if (BothFilled()) {
    Add();
  } else {
    Text2.SetFocus();
  }
}

void AddWord::Add() {
  if (!BothFilled()) return runtime().Beep();
  shared.WorkWord = Text1.Text;
  shared.WorkMeaning = Text2.Text;
  ++shared.ListWordCount;
  if (auto* editor = forms().Find<EditList>(Screen::EditList)) editor->ShowTotal();
  shared.WordAdded = 1;
  Unload();
}

void AddWord::ShowPanel() {
  Foreign.Frame1.Visible = true;
  Foreign.LScroll.SetFocus();
  Command3.Visible = false;
}

}  // namespace brindlepage
