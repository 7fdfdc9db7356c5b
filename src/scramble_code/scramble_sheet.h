#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// The scramble sheet, from an empty box: the marked words in random order, each scrambled behind a
// blank for the answer, with its meaning as a hint where ScrambleClues is 1. Uses up WordMarks and
// notes the word of each line in AnswerTable.
void ComposeScrambleSheet(SharedState& shared, RandomSource& random, RichText& box);

// The key of a finished sheet.
void MakeScrambleKey(const SharedState& shared, RichText& box);

}  // namespace brindlepage
