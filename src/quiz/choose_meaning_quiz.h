#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// Multiple choice: a word, and four meanings to choose from. Writes the questions at the caret,
// uses the marks up, and leaves the place of the right answer, 1 to 4, in AnswerTable.
//
// The wrong choices come from all meanings of the list, the right one included, which can
// therefore stand among the choices twice. With fewer than four different meanings the draws never
// end; five always suffice.
void MakeChooseMeaningQuiz(SharedState& shared, RandomSource& random, RichText& box);

}  // namespace brindlepage
