#pragma once

#include <string_view>

#include "toolkit/control.h"

namespace brindlepage {

// How much a teacher who has no plan, but is at work, is drawn to a thing on the screen; 0 not at
// all. Who takes any button as soon as another is soon outside again and never sees the deeper
// screens.
int Inclination(const Control& control);
// The same for a button by its caption.
int Inclination(std::string_view caption);

}  // namespace brindlepage
