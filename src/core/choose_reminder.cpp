#include "core/choose_reminder.h"

namespace brindlepage {

ChooseReminder::ChooseReminder(Program& owner)
    : ProgramForm(owner, Screen::ChooseReminder, "ChooseReminder", "Hey!", FormKind::Box) {
  Command1.Default = true;
  Command1.Cancel = true;
  Command1.Click = [this] { forms().Hide(id()); };
  Arrange(Column(Label1, Gap(), Row(Spring(), Command1)));
}

}  // namespace brindlepage
