#include "riddle/riddle_form.h"

#include "riddle/riddle_sheet.h"

namespace brindlepage {

namespace {

constexpr WorksheetDesign kDesign = {
    .id = Screen::RiddleForm,
    .name = "RiddleForm",
    .caption = "Riddle Worksheet",
    .tag = "riddleform",
    .saved_start = "This activity has been saved in the ",
    .saved_end = " .",
};

}  // namespace

RiddleForm::RiddleForm(Program& owner) : WorksheetForm(owner, kDesign) {}

void RiddleForm::Load() {
  PrepareWorksheet();
  ComposeRiddleSheet(shared, runtime().random(), QuizBox);
  BuildRiddleKey(shared, KeyBox());
  FinishWorksheetLoad();
}

// The worksheet stays loaded behind the menu, so that the next riddle of the run finds it as it is.
void RiddleForm::BackToMenu() {
  forms().Show(Screen::Title);
  forms().Unload(Screen::Scramble);
}

}  // namespace brindlepage
