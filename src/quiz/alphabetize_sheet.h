#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// The words in any order, and numbered blanks to write them on in alphabetical order. Writes both
// at the caret, uses the marks up, and leaves the number of each word in AnswerTable, in the order
// of the sheet.
void MakeAlphabetizeSheet(SharedState& shared, RandomSource& random, RichText& box);

}  // namespace brindlepage
