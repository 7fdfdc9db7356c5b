#pragma once

#include <string_view>

namespace brindlepage {

// Whether the program is meant to end like this. `end` is as a Tally tells it.
bool IsStatedEnd(std::string_view end);

}  // namespace brindlepage
