#include "quiz/quiz_draws.h"

namespace brindlepage {

int PickQuestionWord(const SharedState& shared, RandomSource& random) {
  random.Reseed();
  int word;
  do {
    word = random.DrawIndex(shared.ListWordCount);
  } while (shared.WordMarks(word) == 0);
  return word;
}

bool IsRefused(const std::string& candidate, const Choices& choices, const std::string& word) {
  for (int slot = 1; slot <= Choices::high; ++slot) {
    if (candidate == choices(slot)) return true;
  }
  return candidate == word;
}

}  // namespace brindlepage
