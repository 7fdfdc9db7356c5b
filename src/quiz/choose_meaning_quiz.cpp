#include "quiz/choose_meaning_quiz.h"

#include "quiz/quiz_draws.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

// Each slot throws one number away and tries the candidate of the slot before first; only when
// that is refused, as it is where it was just taken, are meanings drawn.
void DrawChoices(const SharedState& shared, RandomSource& random, const std::string& word,
                 std::string& candidate, Choices& choices) {
  for (int slot = 1; slot <= Choices::high; ++slot) {
    random.NextRandom();
    while (IsRefused(candidate, choices, word)) {
      candidate = shared.ListMeanings(random.DrawIndex(shared.ListWordCount));
    }
    choices(slot) = candidate;
  }
}

void WriteQuestion(RichText& box, int number, const std::string& word) {
  compose::AppendRun(box, "_____" + DisplayForm(number) + ")  ");
  box.SelBold(true);
  compose::AppendRun(box, word + compose::kLineFeed);
  box.SelBold(false);
}

void WriteChoices(RichText& box, const Choices& choices) {
  const std::string margin(15, ' ');
  std::string lines;
  for (int slot = 1; slot <= Choices::high; ++slot) {
    lines += margin + "ABCD"[slot - 1] + ") " + choices(slot) + compose::kLineFeed;
  }
  compose::AppendRun(box, lines + compose::kLineFeed);
}

}  // namespace

void MakeChooseMeaningQuiz(SharedState& shared, RandomSource& random, RichText& box) {
  Choices choices;
  std::string candidate;
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    const int word = PickQuestionWord(shared, random);
    DrawChoices(shared, random, shared.ListWords(word), candidate, choices);
    const int place = random.DrawIndex(Choices::high);
    choices(place) = shared.ListMeanings(word);
    WriteQuestion(box, number, shared.ListWords(word));
    WriteChoices(box, choices);
    shared.WordMarks(word) = 0;
    shared.AnswerTable(number) = place;
  }
}

}  // namespace brindlepage
