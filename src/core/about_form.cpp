#include "core/about_form.h"

namespace brindlepage {

AboutForm::AboutForm(Program& owner)
    : ProgramForm(owner, Screen::AboutForm, "AboutForm", "About Brindlepage", FormKind::Box) {
  Command1.Default = true;
  Command1.Cancel = true;
  Command1.Click = [this] { Unload(); };
  Arrange(Column(Row(Image1, Gap(), Column(Label1, Label5)), Gap(), Row(Spring(), Command1)));
}

}  // namespace brindlepage
