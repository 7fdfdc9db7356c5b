#include "tests/random_teacher/stated_ends.h"

namespace brindlepage {

bool IsStatedEnd(std::string_view end) { return end.ends_with(": end"); }

}  // namespace brindlepage
