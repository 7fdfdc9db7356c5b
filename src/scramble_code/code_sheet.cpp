#include "scramble_code/code_sheet.h"

#include "core/marked_words.h"
#include "scramble_code/secret_code.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

// Of the rules around the code key, in characters.
constexpr std::size_t kLineWidth = 70;
const std::string kIndent(6, ' ');

const char* Directions(int activity) {
  switch (activity) {
    case kCodedRiddles:
      return "Directions: Use the code key to decypher the riddles below.";
    case kCryptoquip:
      return "Directions: Try to decypher the riddles below. Each letter represents another. Two "
             "clues are given for each riddle to get you started. Good luck!";
    default:
      return "Directions: Use the code key to decypher the word's meaning, then write the "
             "vocabulary word in the blank.";
  }
}

CodeStyle StyleOf(const SharedState& shared) {
  return shared.ActivityKind == kCryptoquip ? CodeStyle::Letters : CodeStyle::Numbers;
}

std::string CodedMeanings(SharedState& shared, const CodeTable& table, RandomSource& random) {
  std::string lines;
  for (int line = 1; line <= shared.MarkedCount; ++line) {
    const int word = PickMarkedWord(shared, random);
    lines += DisplayForm(line) + ")  " + std::string(16, '_');
    shared.WorkMeaning = EncodeText(shared.ListMeanings(word), table, CodeStyle::Numbers);
    lines += " -- " + shared.WorkMeaning + "\n\n\n\n";
    shared.WordMarks(word) = 0;
    shared.AnswerTable(line) = word;
  }
  return lines;
}

std::string CodedRiddleLines(SharedState& shared, const CodeTable& table, RandomSource& random) {
  const CodeStyle style = StyleOf(shared);
  std::string lines;
  for (int line = 1; line <= shared.CodedRiddleCount; ++line) {
    const std::string& riddle = shared.CodedRiddles(line);
    const std::string& answer = shared.CodedAnswers(line);
    lines += DisplayForm(line) + ")  ";
    lines += shared.CodedRiddleHint == 1 ? EncodeText(riddle, table, style) : riddle;
    if (shared.ActivityKind == kCryptoquip) lines += "\n" + MakeCluePair(answer, table, random);
    shared.WorkMeaning = EncodeText(answer, table, style);
    lines += "\n\n" + kIndent + shared.WorkMeaning + "\n\n\n";
  }
  return lines;
}

void WriteKeyBlock(RichText& box, const CodeTable& table) {
  const std::string heading = "Code Key:";
  box.SelUnderline(true);
  compose::AppendRun(box, heading + std::string(kLineWidth - heading.size(), '_'));
  box.SelUnderline(false);
  compose::AppendRun(box, "\n" + KeyTableText(table) + std::string(kLineWidth, '_'));
}

void MakeCodeSheet(SharedState& shared, const CodeTable& table, RandomSource& random,
                   RichText& box) {
  const std::string lines = shared.ActivityKind == kSecretCode
                                ? CodedMeanings(shared, table, random)
                                : CodedRiddleLines(shared, table, random);
  box.SelFontName(compose::kCourrier);
  box.SelFontSize(10);
  box.SelBold(true);
  if (shared.ActivityKind != kCryptoquip) WriteKeyBlock(box, table);
  compose::AppendRun(box, "\n");
  box.SelFontName(compose::kTimes);
  box.SelBold(false);
  compose::AppendRun(box, "\n" + lines);
}

std::string AnswerText(const SharedState& shared, int line) {
  if (shared.ActivityKind == kSecretCode) return shared.ListWords(shared.AnswerTable(line));
  return shared.CodedRiddles(line) + "\n" + kIndent + shared.CodedAnswers(line);
}

}  // namespace

void ComposeCodeSheet(SharedState& shared, RandomSource& random, RichText& box) {
  compose::BeginSheet(box, compose::NameLine::Narrow, shared.WorksheetTitle);
  box.SelAlignment(Alignment::Left);
  compose::WriteDirections(box, "\n" + std::string(Directions(shared.ActivityKind)) + "\n\n");
  const CodeTable table = MakeCodeTable(random);
  MakeCodeSheet(shared, table, random, box);
}

void MakeCodeAnswers(const SharedState& shared, RichText& box) {
  compose::BeginKey(box, shared.WorksheetTitle);
  const int lines =
      shared.ActivityKind == kSecretCode ? int(shared.MarkedCount) : shared.CodedRiddleCount;
  std::string answers;
  for (int line = 1; line <= lines; ++line) {
    answers += DisplayForm(line) + ")  " + AnswerText(shared, line) + "\n\n";
  }
  compose::AppendRun(box, answers);
}

}  // namespace brindlepage
