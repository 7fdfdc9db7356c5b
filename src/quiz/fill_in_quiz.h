#pragma once

#include <string>

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// A blank to write the word on beside each meaning. Writes the questions at the caret, uses the
// marks up, and leaves the number of each question's word in AnswerTable.
void MakeFillInQuiz(SharedState& shared, RandomSource& random, RichText& box);

// One question of it: the number, the blank and the meaning, and an empty line.
std::string FillInLine(int number, const std::string& meaning);

}  // namespace brindlepage
