#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// Multiple choice: a meaning, and four words to choose from. Writes the questions at the caret,
// uses the marks up, and leaves the place of each right answer, 1 to 4, in AnswerTable.
//
// The wrong choices come from all words of the list. With fewer than five different words the
// draws never end; six always suffice.
//
// The caret is kept in 16 bits: a sheet on which it comes past 32,727 at the start of a row ends
// in RunTimeError 6.
void MakeChooseWordQuiz(SharedState& shared, RandomSource& random, RichText& box);

}  // namespace brindlepage
