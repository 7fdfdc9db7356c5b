#pragma once

#include <string>

namespace brindlepage {

struct RichContent;
class RichText;

// The document as a rich text file (RTF 1.9), pictures included. What ReadRtf makes of it is the
// same document, and writing that gives the same bytes. Sizes outside 1 to 1638 points, pictures
// longer than kLongestPictureSide and font names beyond RtfFonts::kLongestName are cut.
//
// What the format has no words for stands in words of our own, which other readers skip as they
// skip all that they don't know:
//   \fstwips195              the font size in twentieths of a point, beside the nearest \fs
//   {\*\fileheader 424d...}  the bytes in front of a picture's data in its own file, where they
//                            don't follow from the data
//   \gifblip                 a GIF picture; some readers know it by its data and show it
std::string WriteRtf(const RichText& document);

// A stretch, whose last paragraph the bytes leave open.
std::string WriteRtfStretch(RichContent stretch);

}  // namespace brindlepage
