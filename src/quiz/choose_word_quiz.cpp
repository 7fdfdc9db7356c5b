#include "quiz/choose_word_quiz.h"

#include "quiz/quiz_draws.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

constexpr int kRowBlanks = 90;
constexpr int kLeftColumn = 10;
constexpr int kRightColumn = 40;

void DrawChoices(const SharedState& shared, RandomSource& random, const std::string& answer,
                 Choices& choices) {
  for (int slot = 1; slot <= Choices::high; ++slot) {
    const std::string* candidate;
    do {
      candidate = &shared.ListWords(random.DrawIndex(shared.ListWordCount));
    } while (IsRefused(*candidate, choices, answer));
    choices(slot) = *candidate;
  }
}

void WriteQuestion(RichText& box, int number, const std::string& meaning) {
  compose::AppendRun(box, "_____" + DisplayForm(number) + ")  " + meaning + compose::kLineFeed);
}

// Puts two choices into a row of blanks, which give way to the right. What is left of the blanks
// stays behind the caret and so ends at the end of the document.
void WriteRow(RichText& box, const std::string& left, const std::string& right) {
  const Integer row_start = box.SelStart();
  compose::AppendRun(box, std::string(kRowBlanks, ' '));
  box.SelStart(Integer(row_start + kLeftColumn));
  compose::AppendRun(box, left);
  box.SelStart(Integer(row_start + kRightColumn));
  compose::AppendRun(box, right);
}

void WriteChoices(RichText& box, const Choices& choices) {
  box.SelFontName(compose::kCourrier);
  box.SelFontSize(10);
  WriteRow(box, "A) " + choices(1), "B) " + choices(2) + "\n");
  WriteRow(box, "C) " + choices(3), "D) " + choices(4) + "\n\n");
  box.SelFontSize(12);
  box.SelFontName(compose::kTimes);
}

}  // namespace

void MakeChooseWordQuiz(SharedState& shared, RandomSource& random, RichText& box) {
  Choices choices;
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    const int word = PickQuestionWord(shared, random);
    const std::string& answer = shared.ListWords(word);
    DrawChoices(shared, random, answer, choices);
    const int place = random.DrawIndex(Choices::high);
    choices(place) = answer;
    WriteQuestion(box, number, shared.ListMeanings(word));
    WriteChoices(box, choices);
    shared.WordMarks(word) = 0;
    shared.AnswerTable(number) = place;
  }
}

}  // namespace brindlepage
