#include "riddle/riddle_sheet.h"

#include "core/marked_words.h"
#include "riddle/riddle_letters.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

const std::string kIndent(10, ' ');

// The line feed that the text is set to stays behind the name line, in the design font.
void WriteHeading(const SharedState& shared, RichText& box) {
  box.Text(compose::kLineFeed);
  box.SelFontSize(10);
  box.SelBold(true);
  box.SelAlignment(Alignment::Centre);
  compose::WriteNameDateLine(box, compose::NameLine::Narrow);
  compose::CaretToEnd(box);
  box.SelFontSize(18);
  box.SelBold(true);
  box.SelFontName(compose::kTimes);
  compose::WriteCentredLine(box, shared.WorksheetTitle);
  compose::CaretToEnd(box);
}

void WriteRiddleDirections(RichText& box) {
  box.SelAlignment(Alignment::Left);
  box.SelFontSize(10);
  compose::WriteDirections(box,
                           "\n\nDirections: Fill in the word that matches each definition, then "
                           "use the numbered letters to solve the riddle below.\n\n\n");
}

std::vector<std::string> ChooseRiddleWords(SharedState& shared, RandomSource& random) {
  std::vector<std::string> words;
  for (int place = 1; place <= shared.MarkedCount; ++place) {
    const int word = PickMarkedWord(shared, random);
    shared.WordMarks(word) = 0;
    shared.AnswerTable(place) = word;
    words.push_back(shared.ListWords(word));
  }
  return words;
}

void WriteRiddle(const SharedState& shared, RichText& box) {
  box.SelFontSize(12);
  box.SelUnderline(true);
  compose::AppendRun(box, "Riddle: " + shared.RiddleText + "\n\n\n");
  box.SelUnderline(false);
}

// The meaning of the word at a place, blanks for its letters, and what stands under them.
std::string WordLines(const SharedState& shared, const RiddleCells& cells, int place) {
  const int word = shared.AnswerTable(place);
  const int letters = static_cast<int>(shared.ListWords(word).size());
  std::string blanks = kIndent;
  std::string numbers = kIndent;
  for (int letter = 1; letter <= letters; ++letter) {
    blanks += " __ ";
    numbers += cells.words(place)(letter);
  }
  return DisplayForm(place) + ")   " + shared.ListMeanings(word) + "\n\n" + blanks + "\n" +
         numbers + "\n\n";
}

void WriteWordLines(const SharedState& shared, const RiddleCells& cells, RichText& box) {
  box.SelFontName(compose::kCourrier);
  box.SelFontSize(10);
  std::string lines;
  for (int place = 1; place <= shared.MarkedCount; ++place) {
    lines += WordLines(shared, cells, place);
  }
  compose::AppendRun(box, lines + "The Answer:\n\n");
}

// Letters that have no number stand in bold.
void WriteAnswerLine(const SharedState& shared, const RiddleCells& cells, RichText& box) {
  const int length = static_cast<int>(shared.RiddleAnswer.size());
  for (int place = 1; place <= length; ++place) {
    const std::string& cell = cells.answer(place);
    if (cell.size() == 1) box.SelBold(true);
    compose::AppendRun(box, cell);
    box.SelBold(false);
  }
}

}  // namespace

void ComposeRiddleSheet(SharedState& shared, RandomSource& random, RichText& box) {
  WriteHeading(shared, box);
  WriteRiddleDirections(box);
  const std::vector<std::string> words = ChooseRiddleWords(shared, random);
  const RiddleCells cells = NumberLetters(words, shared.RiddleAnswer, random);
  WriteRiddle(shared, box);
  WriteWordLines(shared, cells, box);
  WriteAnswerLine(shared, cells, box);
}

void BuildRiddleKey(const SharedState& shared, RichText& box) {
  compose::BeginKey(box, shared.WorksheetTitle);
  box.SelFontSize(12);
  std::string words = "Riddle: " + shared.RiddleText + "\n\n";
  for (int place = 1; place <= shared.MarkedCount; ++place) {
    words += DisplayForm(place) + ")  " + shared.ListWords(shared.AnswerTable(place)) + "\n\n";
  }
  compose::AppendRun(box, words);
  box.SelUnderline(true);
  box.SelFontSize(14);
  compose::AppendRun(box, "\nAnswer: " + shared.RiddleAnswer);
}

}  // namespace brindlepage
