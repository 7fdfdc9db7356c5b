#pragma once

#include <string>
#include <string_view>

#include "worksheet/rich_text.h"

// The operations with which every generator writes its sheet, run by run, front to back. What a
// routine sets stays set.
namespace brindlepage::compose {

// The only line end that generators write.
inline constexpr char kLineFeed[] = "\n";

inline constexpr char kTimes[] = "Times New Roman";
// As it is stored; every view shows it in a fixed pitch.
inline constexpr char kCourrier[] = "Courrier New";

// Room for a name and a date: "Name" and 29 underscores, blanks, "Date" and 15 underscores.
enum class NameLine { Narrow, Wide, Widest };
std::string NameAndDate(NameLine width);

// To the end of the text. A caret that stands there keeps its format.
void CaretToEnd(RichText& box);
void AppendRun(RichText& box, std::string_view text);
void WriteNameDateLine(RichText& box, NameLine width);
// 18 points, bold, on a line of its own.
void WriteTitleBlock(RichText& box, std::string_view title);
// A centred line; the alignment behind it is right.
void WriteCentredLine(RichText& box, std::string_view text);

}  // namespace brindlepage::compose
