#include "lists/change_list.h"

#include "core/settings_file.h"
#include "toolkit/arrangement.h"
#include "toolkit/code_page.h"
#include "toolkit/files.h"

namespace brindlepage {

ChangeList::ChangeList(Program& owner)
    : ProgramForm(owner, Screen::ChangeList, "ChangeList", "Change List File") {
  Command1.Default = true;
  TestPath.Visible = false;
  Data.Visible = false;
  Command1.Click = [this] { TakeFolder(); };
  Command2.Click = [this] { ShowNotice(); };
  Arrange(Column(Label1, Text1, Gap(), Label2, Spring(), Row(Command2, Spring(), Command1)));
}

void ChangeList::Load() {
  CentreForm();
  LoadBackground();
  Data.AddItems(files::ReadAllLines(SettingsPath()));
  const std::string& folder = Data.List(settings_file::kListFolderLine);
  const bool own = code_page::LowerCase(folder) == settings_file::kProgramFolder;
  Text1.Text = own ? shared.ProgramDir : folder;
}

void ChangeList::TakeFolder() {
  try {
    LinkTo(Text1.Text);
  } catch (const RunTimeError&) {
    runtime().MsgBox("The directory you have chosen is invalid.", "");
  }
}

void ChangeList::LinkTo(const std::string& folder) {
  TestPath.Path = folder;
  const bool found = FolderHoldsListFile();
  runtime().Beep();
  if (!found) {
    runtime().MsgBox(
        "A valid List File was not found at this location. Please check the path carefully and "
        "try again.",
        "Nope...");
    return;
  }
  const BoxAnswer answer = runtime().MsgBox(
      "A list file was found here. Do you want to make it the default Vocabulary List file?",
      "Success!", BoxButtons::YesNo);
  if (answer != BoxAnswer::Yes) return;
  Data.List(settings_file::kListFolderLine, folder);
  files::WriteAllLines(SettingsPath(), Data.Rows());
  ShowNotice();
}

bool ChangeList::FolderHoldsListFile() {
  for (int row = 0; row < TestPath.ListCount(); ++row) {
    if (code_page::LowerCase(TestPath.List(row)) == "thelists.dat") return true;
  }
  return false;
}

// What should be shown here is the title of a message, which is no control.
void ChangeList::ShowNotice() { throw RunTimeError(Fault::ObjectRequired); }

}  // namespace brindlepage
