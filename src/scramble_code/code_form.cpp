#include "scramble_code/code_form.h"

#include "scramble_code/code_sheet.h"

namespace brindlepage {

namespace {

constexpr WorksheetDesign kDesign = {
    .id = Screen::CodeForm,
    .name = "CodeForm",
    .caption = "Secret Code Worksheet",
    .tag = "codeform",
    .saved_start = "This activity has been saved in the ",
    .saved_end = " .  You can now open it with a word processor for further editing.",
    .resize_guarded = false,
    .about_opens = false,
};

}  // namespace

CodeForm::CodeForm(Program& owner) : WorksheetForm(owner, kDesign) {}

void CodeForm::Load() {
  PrepareWorksheet();
  if (shared.ActivityKind == kCryptoquip) Caption = "CryptoQuip Worksheet";
  ComposeCodeSheet(shared, runtime().random(), QuizBox);
  MakeCodeAnswers(shared, KeyBox());
  FinishWorksheetLoad();
}

}  // namespace brindlepage
