#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// Composes the quiz of QuizKind from the marked words, and its key, each in its box. WordMarks is
// used up and AnswerTable filled; MarkedCount words have to be marked.
void ComposeQuiz(SharedState& shared, RandomSource& random, RichText& quiz_box,
                 RichText& answer_box);

}  // namespace brindlepage
