#pragma once

#include <string_view>

namespace brindlepage {

struct RichContent;
class RichText;

// Replaces the document by a rich text file (RTF 1.9), in one change; the caret goes to 0 and takes
// the format there. Shown is what a document can hold: text, fonts, sizes, bold, italic, underline,
// colours, alignment, styles, pictures, tables as lines with tabs, lists and fields as their text.
// Pictures whose data are broken are kept as they are, those of an unknown kind left out.
//
// Bytes that are no rich text, that are cut, nest deeper than a thousand groups, claim data that
// they don't have, or make a document too tall for a view (some 700,000 lines) throw RunTimeError
// 321 and leave the document as it was.
void ReadRtf(std::string_view bytes, RichText& document);

// The same of a stretch that is to be inserted somewhere. With `ends_paragraph` a paragraph's end
// that is the last thing in the bytes ends a line of the stretch.
RichContent ReadRtfStretch(std::string_view bytes, bool ends_paragraph);

}  // namespace brindlepage
