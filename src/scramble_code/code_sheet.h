#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// The sheet of ActivityKind, from an empty box, in a code drawn for it:
//
// - secret code: the meanings of the marked words, in numbers, under the key to the code. Uses up
//   WordMarks and notes the word of each line in AnswerTable;
// - coded riddles: the riddles collected, their answers in numbers, under the key;
// - cryptoquip: the same with answers in letters, and two clues for each in place of the key.
void ComposeCodeSheet(SharedState& shared, RandomSource& random, RichText& box);

// The key of a finished sheet: the words, or the riddles with their answers in clear.
void MakeCodeAnswers(const SharedState& shared, RichText& box);

}  // namespace brindlepage
