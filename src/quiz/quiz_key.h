#pragma once

#include "core/shared_state.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// Composes the answer key of a finished sheet in its box, from AnswerTable: letters, numbers or
// words by question, or the alphabetized words.
void MakeQuizKey(const SharedState& shared, RichText& answer_box);

}  // namespace brindlepage
