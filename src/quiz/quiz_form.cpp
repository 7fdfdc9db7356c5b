#include "quiz/quiz_form.h"

#include "quiz/quiz_sheet.h"

namespace brindlepage {

namespace {

constexpr WorksheetDesign kDesign = {
    .id = Screen::QuizForm,
    .name = "QuizForm",
    .caption = "Quiz Form",
    .tag = "quizform",
    .saved_start = "This quiz has been saved in the ",
    .saved_end = ".",
    .name_line = compose::NameLine::Wide,
    .has_back_to_options = true,
};

}  // namespace

QuizForm::QuizForm(Program& owner) : WorksheetForm(owner, kDesign) {}

void QuizForm::Load() {
  PrepareWorksheet();
  if (shared.ActivityKind == kSavedWorksheet) return OpenSavedWorksheet();
  ComposeQuiz(shared, runtime().random(), QuizBox, AnswerBox);
  FinishWorksheetLoad();
}

void QuizForm::OpenSavedWorksheet() {
  QuizBox.LoadFile(shared.ProgramDir + "\\worksheets\\" + shared.SavedWorksheetName);
  Toolbar1.Button(kKey).Enabled = false;
  FinishWorksheetLoad();
  Caption = shared.SavedWorksheetName;
}

}  // namespace brindlepage
