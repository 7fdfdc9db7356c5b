#include "lists/quick_word_option.h"

#include "core/settings_file.h"
#include "toolkit/arrangement.h"
#include "toolkit/files.h"

namespace brindlepage {

namespace {
constexpr char kPrograms[] = "Programs (*.exe)|*.exe";
}

QuickWordOption::QuickWordOption(Program& owner)
    : ProgramForm(owner, Screen::QuickWordOption, "QuickWordOption", "Quick Word Option") {
  Command1.Default = true;
  OptionsList.Visible = false;
  Checks1.Click = [this] { Checked(); };
  Label1.Click = [this] { Checks1.Value = !Checks1.Value; };
  Command1.Click = [this] { Done(); };
  Arrange(Column(Row(Checks1, Label1, Spring()), Label2, Spring(), Row(Spring(), Command1)));
}

void QuickWordOption::Load() {
  CentreForm();
  LoadBackground();
  OptionsList.AddItems(files::ReadAllLines(SettingsPath()));
  ProcessorPath = OptionsList.List(settings_file::kWordProcessorLine);
  if (ProcessorPath == settings_file::kNoWordProcessor) Checks1.Value = false;
  runtime().platform().ExpectOpenDialog(kPrograms);
}

// Checked without a program found, the box does not stay so.
void QuickWordOption::Checked() {
  if (Checks1.Value) {
    runtime().MsgBox("Enter the path of your word processor program.", "Find the program");
    FindProgram();
  }
  if (FoundProgram.empty()) Checks1.Value = false;
}

// A cancelled dialog keeps the file name from before.
void QuickWordOption::FindProgram() {
  try {
    const auto chosen = runtime().OpenDialog("Find Word processor", kPrograms, "c:\\");
    if (chosen) FoundProgram = *chosen;
  } catch (const RunTimeError&) {
    Checks1.Value = false;
  }
}

void QuickWordOption::Done() {
  if (Checks1.Value && !FoundProgram.empty()) {
    const BoxAnswer answer = runtime().MsgBox(
        "Do you want to set " + FoundProgram + " as your default word processor for Brindlepage?",
        "Enable QuickWord option?", BoxButtons::YesNo);
    if (answer != BoxAnswer::Yes) return runtime().Beep();
    ProcessorPath = FoundProgram;
    SaveOptions();
    runtime().MsgBox(
        "Change Successful. You must now restart Brindlepage for the change to take effect.",
        "Success!");
  } else {
    SaveOptions();
    runtime().MsgBox("You must now restart Brindlepage for the change to take effect.", "Restart");
  }
  runtime().End();
}

void QuickWordOption::SaveOptions() {
  if (!Checks1.Value) ProcessorPath = settings_file::kNoWordProcessor;
  OptionsList.List(settings_file::kWordProcessorLine, ProcessorPath);
  files::WriteAllLines(SettingsPath(), OptionsList.Rows());
}

}  // namespace brindlepage
