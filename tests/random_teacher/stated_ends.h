#pragma once

#include <string>
#include <string_view>

#include "tests/random_teacher/tally.h"

namespace brindlepage {

// Whether the program is meant to end like this. `end` is as a Tally tells it.
bool IsStatedEnd(std::string_view end);
// The first that isn't, or "".
std::string FirstUnstatedEnd(const Tally& tally);

}  // namespace brindlepage
