#include "scramble_code/scramble.h"

#include "scramble_code/scramble_sheet.h"

namespace brindlepage {

namespace {

constexpr WorksheetDesign kDesign = {
    .id = Screen::Scramble,
    .name = "Scramble",
    .caption = "Scamble Worksheet",
    .tag = "scramble",
    .saved_start = "This activity has been saved in the ",
    .saved_end = " .",
    .about_caption = "About this program",
    .about_opens = false,
};

}  // namespace

Scramble::Scramble(Program& owner) : WorksheetForm(owner, kDesign) {}

void Scramble::Load() {
  PrepareWorksheet();
  ComposeScrambleSheet(shared, runtime().random(), QuizBox);
  MakeScrambleKey(shared, KeyBox());
  FinishWorksheetLoad();
}

}  // namespace brindlepage
