// What the toolbar of a worksheet makes of it: a rich text file, a print, a word processor opened
// on the file. A worksheet without a key view asks nothing of its key.

#include "worksheet/worksheet_form.h"

namespace brindlepage {

namespace {

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

// The selection, or with none the whole document.
void SelPrint(Platform& platform, RichTextBox& box) {
  if (box.SelLength() > 0) return platform.Print(box, box.SelStart(), box.SelLength());
  platform.Print(box, 0, box.Length());
}

}  // namespace

std::string WorksheetForm::WorksheetPath() const {
  return "worksheets\\" + shared.WorksheetTitle + ".rtf";
}

std::string WorksheetForm::KeyPath() const {
  return "worksheets\\" + shared.WorksheetTitle + "(Answer Key).rtf";
}

void WorksheetForm::SaveWorksheet() {
  if (design_.has_key_button) ShowWorksheetView();
  const auto name = runtime().InputBox("What would you like to call this file?", "Name Saved File",
                                       shared.WorksheetTitle);
  if (!name || name->empty()) return;
  shared.WorksheetTitle = *name;
  QuizBox.SaveFile(WorksheetPath());
  if (KeyFileIsWanted()) KeyBox().SaveFile(KeyPath());
  TellSaved();
}

bool WorksheetForm::KeyFileIsWanted() {
  if (!design_.has_key_button) return shared.AnswerKeyWanted == 1;
  return OffersKeyFile() && runtime().MsgBox("Also Save Answer Key?", "Save Answer Key?",
                                             BoxButtons::YesNo) == BoxAnswer::Yes;
}

void WorksheetForm::TellSaved() {
  const std::string file = shared.WorksheetTitle + ".rtf";
  runtime().MsgBox(design_.saved_start + Quoted("worksheets") +
                       " folder of your Brindlepage directory as " + Quoted(file) +
                       design_.saved_end,
                   "Export Successful");
}

void WorksheetForm::PrintWorksheet() {
  if (design_.has_key_button) ShowWorksheetView();
  try {
    unsigned flags = kPrintNoFile | kPrintReturnDevice | kPrintNoPageNumbers;
    const auto choice = runtime().PrintDialog(flags);
    if (!choice) return;
    if (*choice == PrintChoice::Selection) flags |= kPrintSelection;
    if (*choice != PrintChoice::Selection) QuizBox.SelLength(0);
    SelPrint(runtime().platform(), QuizBox);
    if (!design_.has_key_button) return;

    const BoxAnswer key =
        runtime().MsgBox("Also Print Answer Key?", "Print Answer Key?", BoxButtons::YesNo);
    if (key == BoxAnswer::Yes && !PrintKey(flags + kPrintNoSelection)) return;
    runtime().MsgBox("This activity has been sent to your printer.", "Activity Printed");
  } catch (const RunTimeError&) {
    // A printer that fails ends it as Cancel does, without a word.
  }
}

// Cancelled, it leaves the key on screen.
bool WorksheetForm::PrintKey(unsigned flags) {
  KeyBox().Visible = true;
  QuizBox.Visible = false;
  if (!runtime().PrintDialog(flags)) return false;
  KeyBox().SelLength(0);
  SelPrint(runtime().platform(), KeyBox());
  KeyBox().Visible = false;
  QuizBox.Visible = true;
  return true;
}

void WorksheetForm::OpenInWordProcessor() {
  const auto quoted_path = [this](const std::string& path) {
    return Quoted(shared.ProgramDir + "\\" + path);
  };
  QuizBox.SaveFile(WorksheetPath());
  std::string files = quoted_path(WorksheetPath());
  if (shared.AnswerKeyWanted == 1) {
    KeyBox().SaveFile(KeyPath());
    files = quoted_path(KeyPath()) + " " + files;
  }
  // With no blank between: the word processor's path is used as it is stored.
  runtime().platform().StartProgram(shared.QuickWordPath + files);
}

void WorksheetForm::OpenClipart() {
  shared.PictureReturn = true;
  shared.ReturnTag = design_.tag;
  forms().Show(Screen::AddPic);
}

}  // namespace brindlepage
