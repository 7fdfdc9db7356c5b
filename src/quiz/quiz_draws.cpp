#include "quiz/quiz_draws.h"

namespace brindlepage {

bool IsRefused(const std::string& candidate, const Choices& choices, const std::string& word) {
  for (int slot = 1; slot <= Choices::high; ++slot) {
    if (candidate == choices(slot)) return true;
  }
  return candidate == word;
}

}  // namespace brindlepage
