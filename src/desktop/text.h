#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "toolkit/code_page.h"
#include "toolkit/property.h"

// The logic's texts, which are in Windows-1252, and Qt's.
namespace brindlepage {

inline QString ToQString(std::string_view bytes) {
  return QString::fromStdU32String(code_page::ToUnicode(bytes));
}

inline QString ToQString(const Property<std::string>& text) { return ToQString(text()); }

// Characters that the code page lacks become '?'.
inline std::string FromQString(const QString& text) {
  return code_page::FromUnicode(text.toStdU32String());
}

}  // namespace brindlepage
