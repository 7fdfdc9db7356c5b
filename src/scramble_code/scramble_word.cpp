#include "scramble_code/scramble_word.h"

#include "toolkit/numbers.h"

namespace brindlepage {

namespace {

using LetterSlots = BoundedArray<char, 0, 25>;
constexpr char kUsed = '*';

LetterSlots PutIntoSlots(std::string_view word) {
  LetterSlots slots;
  int place = 0;
  for (const char letter : word) slots(++place) = letter;
  return slots;
}

}  // namespace

std::string ScrambleWord(std::string_view word, RandomSource& random) {
  LetterSlots slots = PutIntoSlots(word);
  random.Reseed();
  std::string scrambled;
  while (scrambled.size() < word.size()) {
    char& slot = slots(random.DrawIndex(static_cast<int>(word.size())));
    if (slot == kUsed) continue;
    scrambled += slot;
    slot = kUsed;
  }
  return scrambled;
}

}  // namespace brindlepage
