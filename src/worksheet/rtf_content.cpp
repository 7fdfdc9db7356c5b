#include "worksheet/rtf_content.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "toolkit/run_time_error.h"

namespace brindlepage {

namespace {

constexpr std::int64_t kColumn = 10800;  // twips
// Views count in 64ths of a quarter point, up to 2 to the 31st.
constexpr std::int64_t kTallest = 160'000'000;  // twips; 700,000 lines of the usual size

bool IsHighSurrogate(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
bool IsLowSurrogate(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

bool IsAscii(std::string_view bytes) {
  unsigned char all = 0;
  for (const char byte : bytes) all |= static_cast<unsigned char>(byte);
  return all < 0x80;
}
// All code pages do, the signs in place of letters don't.
bool KeepsAscii(const RtfCodePage& page) { return &page != &RtfSigns(); }

// What a format's characters take on paper, roughly, in twips.
std::int64_t LineHeight(const CharFormat& format) {
  const std::int64_t height = std::int64_t{format.size} * 23 / 20;
  return format.picture ? std::max(height, std::int64_t{format.picture->height}) : height;
}

std::int64_t Width(const CharFormat& format) {
  return format.picture ? format.picture->width : format.size / 2;
}

}  // namespace

std::size_t RtfContent::AddFormat(CharFormat format) {
  content_.formats.push_back(std::move(format));
  return content_.formats.size() - 1;
}

void RtfContent::UseFormat(std::size_t format) {
  if (format == format_) return;
  EndSpan();
  format_ = format;
}

void RtfContent::Text(std::string_view bytes, const RtfCodePage& page) {
  StartCells();
  std::u32string& text = content_.text;
  const std::size_t start = text.size();
  text.resize(start + bytes.size());
  char32_t* to = text.data() + start;
  if (IsAscii(bytes) && KeepsAscii(page)) {
    for (const char byte : bytes) *to++ = static_cast<unsigned char>(byte);
  } else {
    for (const char byte : bytes) *to++ = page[static_cast<unsigned char>(byte)];
  }
}

void RtfContent::Character(char32_t character, Alignment alignment) {
  if (character == U'\n' || character == U'\r' || character == 0x2029) return EndLine(alignment);
  StartCells();
  std::u32string& text = content_.text;
  if (IsLowSurrogate(character) && !text.empty() && IsHighSurrogate(text.back())) {
    text.back() = 0x10000 + ((text.back() - 0xD800) << 10) + (character - 0xDC00);
  } else {
    text.push_back(character);
  }
}

void RtfContent::Picture(std::shared_ptr<const RichPicture> picture) {
  StartCells();
  const std::size_t text_format = format_;
  CharFormat format = content_.formats[text_format];
  format.picture = std::move(picture);
  UseFormat(AddFormat(std::move(format)));
  content_.text.push_back(kPictureCharacter);
  UseFormat(text_format);
}

void RtfContent::EndParagraph(Alignment alignment) {
  EndLine(alignment);
  paragraph_ended_ = true;
}

void RtfContent::EndLine(Alignment alignment) {
  StartCells();
  content_.text.push_back(U'\n');
  content_.alignments.push_back(alignment);
}

void RtfContent::BreakLine(Alignment alignment) {
  if (!content_.text.empty() && content_.text.back() != U'\n') EndLine(alignment);
}

void RtfContent::EndRow() {
  cells_ = 0;
  EndLine(Alignment::Left);
}

RichContent RtfContent::Take(Alignment last, bool keep_last_end) && {
  EndSpan();
  if (paragraph_ended_ && !keep_last_end) {
    content_.text.pop_back();
    if (--content_.spans.back().length == 0) content_.spans.pop_back();
  } else {
    content_.alignments.push_back(last);
  }
  if (HeightAtMost() > kTallest && Height() > kTallest) {
    throw RunTimeError(Fault::InvalidFormat);
  }
  return std::move(content_);
}

void RtfContent::EndSpan() {
  const std::size_t length = content_.text.size() - span_start_;
  if (length > 0) content_.spans.push_back({length, format_});
  span_start_ = content_.text.size();
}

void RtfContent::StartCells() {
  paragraph_ended_ = false;
  for (; cells_ > 0; --cells_) content_.text.push_back(U'\t');
}

// The height if every line were as high as the highest, which is bearable as a rule.
std::int64_t RtfContent::HeightAtMost() const {
  std::int64_t line_height = 0;
  std::int64_t width = 0;
  for (const CharFormat& format : content_.formats) {
    line_height = std::max(line_height, LineHeight(format));
  }
  for (const RichContent::Span& span : content_.spans) {
    width += static_cast<std::int64_t>(span.length) * Width(content_.formats[span.format]);
  }
  const auto lines = static_cast<std::int64_t>(content_.alignments.size());
  return line_height * (lines + width / kColumn);
}

std::int64_t RtfContent::Height() const {
  std::int64_t height = 0;
  std::int64_t line_height = 0;
  std::int64_t width = 0;
  std::u32string_view rest = content_.text;
  for (const RichContent::Span& span : content_.spans) {
    const CharFormat& format = content_.formats[span.format];
    std::u32string_view text = rest.substr(0, span.length);
    rest.remove_prefix(span.length);
    while (true) {
      line_height = std::max(line_height, LineHeight(format));
      const std::size_t end = text.find(U'\n');
      width += static_cast<std::int64_t>(std::min(end, text.size())) * Width(format);
      if (end == text.npos) break;
      height += line_height * (1 + width / kColumn);
      line_height = width = 0;
      text.remove_prefix(end + 1);
      if (text.empty()) break;
    }
  }
  height += line_height * (1 + width / kColumn);
  return height;
}

}  // namespace brindlepage
