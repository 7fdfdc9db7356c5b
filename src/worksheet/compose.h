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

// How most sheets begin, from an empty box: the name line and the title, centred. What follows is
// centred as well, in 12 points, plain.
void BeginSheet(RichText& box, NameLine width, std::string_view title);
// One run, bold and italic; plain behind it.
void WriteDirections(RichText& box, std::string_view run);
// How most keys begin, from an empty box: the title in 16 points and "Answer Key", underlined, in
// 14, centred. What follows is left and not underlined.
void BeginKey(RichText& box, std::string_view title);

}  // namespace brindlepage::compose
