#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "toolkit/run_time_error.h"
#include "worksheet/rich_text.h"
#include "worksheet/rtf_reader.h"
#include "worksheet/rtf_writer.h"

// What must hold for any bytes that are opened as a rich text file. The fuzzer and the tests share
// it; a breach ends the process.
namespace brindlepage {

inline bool SamePicture(const RichPicture* left, const RichPicture* right) {
  if (!left || !right) return left == right;
  return left->format == right->format && left->bytes == right->bytes &&
         left->width == right->width && left->height == right->height;
}

inline bool SameFormat(const CharFormat& left, const CharFormat& right) {
  CharFormat plain_left = left;
  CharFormat plain_right = right;
  plain_left.picture = plain_right.picture = nullptr;
  return plain_left == plain_right && SamePicture(left.picture.get(), right.picture.get());
}

// Text, the format of every character and the alignment of every paragraph; pictures by content.
inline bool SameDocument(const RichText& left, const RichText& right) {
  if (left.PlainText() != right.PlainText()) return false;
  const auto paragraphs = left.Paragraphs();
  const auto others = right.Paragraphs();
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    if (paragraphs[i].alignment != others[i].alignment) return false;
  }
  for (int i = 0; i < left.Length();) {
    const auto id = left.FormatIdAt(i);
    const auto other = right.FormatIdAt(i);
    if (!SameFormat(left.Format(id), right.Format(other))) return false;
    while (i < left.Length() && left.FormatIdAt(i) == id && right.FormatIdAt(i) == other) ++i;
  }
  return true;
}

// Bytes that are no rich text file give run-time error 321 and leave the document as it was. Of
// those that are, the document comes back from its own file, which is written the same again.
inline void CheckRtf(std::string_view bytes) {
  const auto require = [](bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "rich text: %s\n", what);
    std::abort();
  };
  constexpr char kBefore[] = "what stood here before";
  RichText document("Courier New", 9.75);
  document.Text(kBefore);
  try {
    ReadRtf(bytes, document);
  } catch (const RunTimeError& error) {
    require(error.fault() == Fault::InvalidFormat, "another error than 321");
    RichText before("Courier New", 9.75);
    before.Text(kBefore);
    require(SameDocument(document, before), "a file that was refused changed the document");
    return;
  }
  const std::string saved = WriteRtf(document);
  RichText again("Times New Roman", 14.25);
  ReadRtf(saved, again);
  require(SameDocument(document, again), "the document differs from what was saved");
  require(WriteRtf(again) == saved, "the second save differs from the first");
}

}  // namespace brindlepage
