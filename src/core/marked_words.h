#pragma once

#include "core/shared_state.h"
#include "toolkit/random_source.h"

namespace brindlepage {

// The number of a word that is still marked. The source is reseeded first; then words of the whole
// list are drawn until one is marked, so with no word marked it never returns.
int PickMarkedWord(const SharedState& shared, RandomSource& random);

}  // namespace brindlepage
