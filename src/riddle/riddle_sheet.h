#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// The riddle sheet, from an empty box: the riddle, the meanings of the marked words in random
// order with room for the words, numbers under some of the letters, and the answer as a row of
// those numbers. Uses up WordMarks and notes the word of each place in AnswerTable.
void ComposeRiddleSheet(SharedState& shared, RandomSource& random, RichText& box);

// The key of a finished sheet.
void BuildRiddleKey(const SharedState& shared, RichText& box);

}  // namespace brindlepage
