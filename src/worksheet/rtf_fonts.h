#pragma once

#include <string_view>

namespace brindlepage {

// What a rich text file tells of a font, so that a word processor that lacks it takes one alike.
struct RtfFontKind {
  std::string_view words;        // family and pitch
  std::string_view alternative;  // a font that does as well, or ""
};

// `name` in any case.
RtfFontKind RtfKindOfFont(std::string_view name);

}  // namespace brindlepage
