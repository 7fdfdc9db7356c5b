#include "quiz/quiz_key.h"

#include <algorithm>
#include <string>
#include <vector>

#include "toolkit/code_page.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

void WriteKeyHeading(RichText& box, const std::string& title) {
  box.Text("");
  box.SelAlignment(Alignment::Centre);
  box.SelFontSize(16);
  compose::AppendRun(box, compose::kLineFeed + title + compose::kLineFeed);
  box.SelFontSize(14);
  box.SelUnderline(true);
  compose::AppendRun(box, "Answer Key\n\n");
  box.SelAlignment(Alignment::Left);
  box.SelUnderline(false);
}

std::vector<std::string> AnswerWords(const SharedState& shared) {
  std::vector<std::string> words;
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    words.push_back(shared.ListWords(shared.AnswerTable(number)));
  }
  return words;
}

std::vector<std::string> AlphabetizeList(const SharedState& shared) {
  std::vector<std::string> words = AnswerWords(shared);
  std::sort(words.begin(), words.end(), [](const std::string& left, const std::string& right) {
    return code_page::Compare(left, right) < 0;
  });
  return words;
}

std::vector<std::string> AnswerLetters(const SharedState& shared) {
  std::vector<std::string> letters;
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    letters.emplace_back(1, "ABCD"[shared.AnswerTable(number) - 1]);
  }
  return letters;
}

std::vector<std::string> AnswerNumbers(const SharedState& shared) {
  std::vector<std::string> numbers;
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    numbers.push_back(DisplayForm(shared.AnswerTable(number)));
  }
  return numbers;
}

std::string KeyLines(const std::vector<std::string>& answers, const char* line_end) {
  std::string lines;
  int number = 0;
  for (const std::string& answer : answers) {
    lines += DisplayForm(++number) + ")  " + answer + line_end;
  }
  return lines;
}

std::string Answers(const SharedState& shared) {
  switch (shared.QuizKind) {
    case kChooseWord:
    case kChooseMeaning:
      return KeyLines(AnswerLetters(shared), "\n");
    case kMatching:
      return KeyLines(AnswerNumbers(shared), "\n\n");
    case kFillIn:
    case kWordBank:
      return KeyLines(AnswerWords(shared), "\n\n");
    case kAlphabetizeSheet:
      return KeyLines(AlphabetizeList(shared), "\n\n");
    default:
      return "";
  }
}

}  // namespace

void MakeQuizKey(const SharedState& shared, RichText& answer_box) {
  WriteKeyHeading(answer_box, shared.WorksheetTitle);
  compose::AppendRun(answer_box, Answers(shared));
}

}  // namespace brindlepage
