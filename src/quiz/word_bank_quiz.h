#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// The fill-in quiz under a bank of its words, in an order of their own. Writes both at the caret,
// uses the marks up, and leaves the number of each question's word in AnswerTable.
void MakeWordBankQuiz(SharedState& shared, RandomSource& random, RichText& box);

}  // namespace brindlepage
