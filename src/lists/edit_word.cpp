#include "lists/edit_word.h"

#include "toolkit/arrangement.h"

namespace brindlepage {

EditWord::EditWord(Program& owner)
    : ProgramForm(owner, Screen::EditWord, "EditWord", "Edit", FormKind::Box) {
  constexpr int kWide = 46;
  Command1.Default = true;
  Command2.Cancel = true;
  Command1.Click = [this] { Done(); };
  Command2.Click = [this] { Leave(); };
  Label3.Click = [this] { InsertForeign(); };

  Arrange(Column(Label1, Wide(kWide, TheWord), Label2, Wide(kWide, TheMeaning),
                 Row(Label3, Spring()), Gap(), Row(Spring(), Command2, Command1)));
}

void EditWord::Load() {
  CentreForm();
  TheWord.Text = shared.WorkWord;
  TheMeaning.Text = shared.WorkMeaning;
}

void EditWord::Done() {
  shared.WorkWord = TheWord.Text;
  shared.WorkMeaning = TheMeaning.Text;
  shared.WordEdited = 1;
  Leave();
}

void EditWord::Leave() {
  forms().Unload(Screen::FLForm);
  Unload();
}

void EditWord::InsertForeign() {
  shared.ReturnTag = "editword";
  forms().Show(Screen::FLForm);
}

}  // namespace brindlepage
