#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "worksheet/rich_text.h"
#include "worksheet/rtf_tokenizer.h"
#include "worksheet/rtf_words.h"

// Pictures as rich text files hold them: the data of the picture's file without the header in front
// of it, which bitmaps (14 bytes) and placeable metafiles (22 bytes) have. A header that doesn't
// follow from the data stands beside them.
namespace brindlepage {

// Twips, beyond which no picture is shown.
inline constexpr int kLongestPictureSide = 100'000;

struct RtfPictureKind {
  const char* format;  // as in RichPicture
  const char* word;    // that tells the kind in the file, with its number
};
// Readers that don't know of the last kind, which is ours, go by the data or show nothing.
inline constexpr RtfPictureKind kRtfPictureKinds[] = {
    {"png", "pngblip"},    {"jpg", "jpegblip"}, {"bmp", "dibitmap0"},
    {"wmf", "wmetafile8"}, {"emf", "emfblip"},  {"gif", "gifblip"},
};

// A picture as its \pict tells it, piece by piece.
struct RtfPicture {
  std::string format;  // as in RichPicture; "" if the file names none
  std::string data;
  std::optional<std::string> header;
  int width = 0;  // pixels, of a metafile hundredths of a millimetre; 0 if not told
  int height = 0;
  int goal_width = 0;  // twips; 0 if not told
  int goal_height = 0;
  int scale_width = 100;  // per cent
  int scale_height = 100;

  // Does what a word says of the picture, if anything.
  void Take(RtfWord word, const RtfToken& token);
};

// The picture for a document; none if its kind is unknown. Data that make no picture are kept as
// they are.
std::shared_ptr<const RichPicture> PictureFromRtf(RtfPicture&& told);

// A document's picture in pieces; these point into it.
struct RtfPictureParts {
  std::string_view header;
  std::string_view data;
  bool header_follows;  // from the data
  int width;            // twips, 1 to kLongestPictureSide
  int height;
  int file_width;  // the same as RtfPicture::width
  int file_height;
};
RtfPictureParts PictureToRtf(const RichPicture& picture);

}  // namespace brindlepage
