#include "core/marked_words.h"

namespace brindlepage {

int PickMarkedWord(const SharedState& shared, RandomSource& random) {
  random.Reseed();
  int word;
  do {
    word = random.DrawIndex(shared.ListWordCount);
  } while (shared.WordMarks(word) == 0);
  return word;
}

}  // namespace brindlepage
