#pragma once

#include <string_view>

namespace brindlepage {

class RichText;

// Replaces the document by a rich text file; the caret goes to 0. Bytes that are no rich text, or
// that are cut or nested beyond reason, throw RunTimeError 321 and leave the document as it was.
void ReadRtf(std::string_view bytes, RichText& document);

}  // namespace brindlepage
