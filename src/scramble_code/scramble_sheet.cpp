#include "scramble_code/scramble_sheet.h"

#include "core/marked_words.h"
#include "scramble_code/scramble_word.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

const std::string kBlank(15, '_');

std::string HintAndSpace(const SharedState& shared, int word) {
  const bool hint = shared.ScrambleClues == 1;
  return (hint ? "\n     Hint: " + shared.ListMeanings(word) : "") + "\n\n";
}

void WriteLine(const SharedState& shared, RichText& box, int line, int word) {
  box.SelFontSize(12);
  compose::AppendRun(box, kBlank + DisplayForm(line) + ") ");
  box.SelFontSize(14);
  compose::AppendRun(box, shared.WorkWord);
  box.SelFontSize(12);
  box.SelItalic(true);
  compose::AppendRun(box, HintAndSpace(shared, word));
  box.SelItalic(false);
}

void MakeScrambleLines(SharedState& shared, RandomSource& random, RichText& box) {
  for (int line = 1; line <= shared.MarkedCount; ++line) {
    const int word = PickMarkedWord(shared, random);
    shared.WorkWord = ScrambleWord(shared.ListWords(word), random);
    shared.WordMarks(word) = 0;
    shared.AnswerTable(line) = word;
    WriteLine(shared, box, line, word);
  }
}

}  // namespace

void ComposeScrambleSheet(SharedState& shared, RandomSource& random, RichText& box) {
  compose::BeginSheet(box, compose::NameLine::Narrow, shared.WorksheetTitle);
  compose::WriteDirections(box, "\n\nDirections: Unscramble each vocabulary word.\n\n\n");
  box.SelAlignment(Alignment::Left);
  MakeScrambleLines(shared, random, box);
}

void MakeScrambleKey(const SharedState& shared, RichText& box) {
  compose::BeginKey(box, shared.WorksheetTitle);
  box.SelFontSize(12);
  std::string words;
  for (int line = 1; line <= shared.MarkedCount; ++line) {
    words += DisplayForm(line) + ")  " + shared.ListWords(shared.AnswerTable(line)) + "\n\n";
  }
  compose::AppendRun(box, words);
}

}  // namespace brindlepage
