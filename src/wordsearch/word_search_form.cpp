#include "wordsearch/word_search_form.h"

#include "wordsearch/puzzle_builder.h"
#include "wordsearch/word_search_sheet.h"

namespace brindlepage {

namespace {

constexpr WorksheetDesign kDesign = {
    .id = Screen::WordSearchForm,
    .name = "WordSearchForm",
    .caption = "WordSearch",
    .key_font = "Courier New",
    .key_points = 12,
    .tag = "WordSearchForm",
    .saved_start = "This word search has been saved in the ",
    .saved_end = " . ",
    .about_caption = "About this program",
};

void MoveMarkedWordsToFront(SharedState& shared) {
  int place = 1;
  for (int word = 1; word <= SharedState::Words<Integer>::high; ++word) {
    if (shared.WordMarks(word) != 1) continue;
    shared.ListWords(place) = shared.ListWords(word);
    shared.ListMeanings(place) = shared.ListMeanings(word);
    ++place;
  }
}

}  // namespace

WordSearchForm::WordSearchForm(Program& owner) : WorksheetForm(owner, kDesign) {}

void WordSearchForm::Load() {
  PrepareWorksheet();
  MoveMarkedWordsToFront(shared);
  word_search::WriteHeading(QuizBox, shared.WorksheetTitle);
  if (!MakePuzzle()) return;
  word_search::MakeWordBank(QuizBox, shared);
  word_search::MakePuzzleKey(AnswerBox, shared, grid_);
  compose::AppendRun(QuizBox, compose::kLineFeed);
  FinishWorksheetLoad();
}

bool WordSearchForm::MakePuzzle() {
  RandomSource& random = runtime().random();
  if (!BuildPuzzle(shared, random, grid_)) {
    runtime().MsgBox("Unable to create this puzzle. Try using less words.", "Error!");
    StepTo(Screen::Title);
    return false;
  }
  word_search::WritePuzzleRows(QuizBox, shared, grid_, random);
  return true;
}

}  // namespace brindlepage
