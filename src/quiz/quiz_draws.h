#pragma once

#include <string>

#include "core/marked_words.h"
#include "core/shared_state.h"
#include "toolkit/random_source.h"

// What the generators of all quizzes draw.
namespace brindlepage {

// The start of every question: the number of a word that is still marked.
inline int PickQuestionWord(const SharedState& shared, RandomSource& random) {
  return PickMarkedWord(shared, random);
}

// The four choices of a question, used from element 1. A generator keeps them from question to
// question.
using Choices = BoundedArray<std::string, 0, 4>;

// Whether a text can't be a wrong choice in the question on a word: it is that word, or it stands
// among the choices. In slots that are not filled yet these are the last question's, so that
// neighbouring questions offer different choices.
bool IsRefused(const std::string& candidate, const Choices& choices, const std::string& word);

}  // namespace brindlepage
