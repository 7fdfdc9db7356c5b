#pragma once

#include <optional>
#include <string_view>

#include "worksheet/rich_text.h"

namespace brindlepage {

// The stretch that another program hands over as rich text (RTF 1.9), with the same as plain
// `words`, or "". Nothing if the bytes are refused, or show nothing but blanks.
//
// Some programs end the last paragraph of whatever is copied, others only if its end was copied; so
// the words tell whether it was. Pictures wider than `widest` twips are shown that wide.
std::optional<RichContent> PastedRtf(std::string_view bytes, std::u32string_view words, int widest);

}  // namespace brindlepage
