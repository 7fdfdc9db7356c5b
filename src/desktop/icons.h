#pragma once

#include <QIcon>
#include <string_view>

namespace brindlepage {

// The program's own drawing of that name ("word-search", "print", ...), sharp at any size, faded
// when it is disabled. A name without a drawing gives the icon of the desktop's theme, which may
// be none.
QIcon NamedIcon(std::string_view name);

}  // namespace brindlepage
