#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "worksheet/rich_text.h"
#include "worksheet/rtf_code_pages.h"

namespace brindlepage {

// The text of a rich text file on its way into a document: what comes in takes the format chosen
// last, and each paragraph the alignment in force at its end.
class RtfContent {
 public:
  // The index of a format for UseFormat.
  std::size_t AddFormat(CharFormat format);
  void UseFormat(std::size_t format);

  void Text(std::string_view bytes, const RtfCodePage& page);
  // A line end character ends the line. The halves of a pair of surrogates join.
  void Character(char32_t character, Alignment alignment);
  void Picture(std::shared_ptr<const RichPicture> picture);

  void EndParagraph(Alignment alignment);
  void EndLine(Alignment alignment);
  // A new page or section begins a line.
  void BreakLine(Alignment alignment);
  // Cells stand behind tabs, a row on a line.
  void EndCell() { ++cells_; }
  void EndRow();

  // A paragraph's end that is the last thing in the file begins no further paragraph, unless it is
  // kept. Throws RunTimeError 321 for a document taller than a view can show.
  RichContent Take(Alignment last, bool keep_last_end) &&;

 private:
  void EndSpan();
  void StartCells();
  // On paper, in twips, roughly.
  std::int64_t HeightAtMost() const;
  std::int64_t Height() const;

  RichContent content_;
  std::size_t format_ = 0;
  std::size_t span_start_ = 0;
  int cells_ = 0;  // ended since the last text
  bool paragraph_ended_ = false;
};

}  // namespace brindlepage
