#include "worksheet/study_guide_form.h"

namespace brindlepage {

namespace {

constexpr WorksheetDesign kDesign = {
    .id = Screen::StudyGuideForm,
    .name = "StudyGuideForm",
    .caption = "Study Guide",
    .has_key_button = false,
    .tag = "studyform",
    .saved_start = "This Study Sheet has been saved in the ",
    .saved_end = " . ",
    .name_line = compose::NameLine::Widest,
    .resize_key_box = false,
};

void MoveMarkedWordsToFront(SharedState& shared) {
  int place = 1;
  for (int word = 1; word <= shared.ListWordCount; ++word) {
    if (shared.WordMarks(word) != 1) continue;
    shared.ListWords(place) = shared.ListWords(word);
    shared.ListMeanings(place) = shared.ListMeanings(word);
    ++place;
  }
}

void WriteEntry(RichText& box, int number, const std::string& word, const std::string& meaning) {
  compose::AppendRun(box, DisplayForm(number) + ")  ");
  box.SelUnderline(true);
  box.SelBold(true);
  compose::AppendRun(box, word + ":");
  box.SelUnderline(false);
  box.SelBold(false);
  compose::AppendRun(box, "  " + meaning + "\n\n");
}

}  // namespace

StudyGuideForm::StudyGuideForm(Program& owner) : WorksheetForm(owner, kDesign) {}

void StudyGuideForm::Load() {
  PrepareWorksheet();
  ComposeStudySheet(shared, QuizBox);
  FinishWorksheetLoad();
}

void ComposeStudySheet(SharedState& shared, RichText& box) {
  compose::BeginSheet(box, kDesign.name_line, shared.WorksheetTitle);
  box.SelAlignment(Alignment::Left);
  BuildStudyList(shared, box);
}

void BuildStudyList(SharedState& shared, RichText& box) {
  MoveMarkedWordsToFront(shared);
  compose::AppendRun(box, "\n\n\n");
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    WriteEntry(box, number, shared.ListWords(number), shared.ListMeanings(number));
  }
}

}  // namespace brindlepage
