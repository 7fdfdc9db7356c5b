#include "worksheet/pasted_rtf.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

#include "toolkit/run_time_error.h"
#include "worksheet/rtf_reader.h"

namespace brindlepage {

namespace {

bool EndsLine(std::u32string_view words) {
  return words.empty() || words.back() == U'\n' || words.back() == U'\r';
}

bool IsBlank(std::u32string_view text) {
  return text.find_first_not_of(U" \t\n\u00A0") == text.npos;
}

void Narrow(std::shared_ptr<const RichPicture>& picture, int widest) {
  if (!picture || picture->width <= widest) return;
  auto narrow = std::make_shared<RichPicture>(*picture);
  const std::int64_t height = std::int64_t{picture->height} * widest / picture->width;
  narrow->width = widest;
  narrow->height = static_cast<int>(std::max<std::int64_t>(height, 1));
  picture = std::move(narrow);
}

}  // namespace

std::optional<RichContent> PastedRtf(std::string_view bytes, std::u32string_view words,
                                     int widest) {
  RichContent stretch;
  try {
    stretch = ReadRtfStretch(bytes, EndsLine(words));
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
  if (IsBlank(stretch.text)) return std::nullopt;
  for (CharFormat& format : stretch.formats) Narrow(format.picture, widest);
  return stretch;
}

}  // namespace brindlepage
