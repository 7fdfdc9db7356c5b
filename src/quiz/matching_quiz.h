#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// Numbered words above the meanings, a blank beside each for the number. Writes both at the caret,
// uses the marks up, and leaves each question's number in AnswerTable.
//
// The numbers take the place of word numbers there one after the other, in all entries, those
// that already hold a number included. So an entry can end with a later number than the right one,
// and two equal words both have the number of the one that stands first in the bank.
void MakeMatchingQuiz(SharedState& shared, RandomSource& random, RichText& box);

}  // namespace brindlepage
