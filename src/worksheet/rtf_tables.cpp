#include "worksheet/rtf_tables.h"

#include <algorithm>
#include <utility>

#include "toolkit/code_page.h"

namespace brindlepage {

// --- Fonts

void RtfFonts::Begin(int number, const RtfCodePage& page) {
  number_ = number;
  font_ = {.name = "", .page = &page, .signs = false};
  name_.clear();
}

void RtfFonts::Charset(int charset) {
  if (charset == kRtfSignsCharset) {
    font_.page = &RtfSigns();
    font_.signs = true;
  } else if (const int number = RtfPageOfCharset(charset)) {
    font_.page = &RtfPageOf(number);
  }
}

void RtfFonts::CodePage(int number) { font_.page = &RtfPageOf(number); }

void RtfFonts::Name(std::string_view bytes) {
  for (const char byte : bytes) {
    if (byte == ';') {
      End();
    } else if (byte != ' ' || !name_.empty()) {
      NameByte(static_cast<unsigned char>(byte));
    }
  }
}

// The names of fonts of signs are in letters.
void RtfFonts::NameByte(unsigned char byte) {
  if (!font_.page) return;
  NameCharacter(font_.signs ? code_page::ToUnicode(static_cast<char>(byte)) : (*font_.page)[byte]);
}

void RtfFonts::NameCharacter(char32_t character) {
  if (font_.page && name_.size() < kLongestName) name_.push_back(character);
}

void RtfFonts::End() {
  if (!font_.page) return;
  font_.name = code_page::FromUnicode(name_);
  fonts_[number_] = std::exchange(font_, {});
  name_.clear();
}

const RtfFonts::Font* RtfFonts::Find(int number) const {
  const auto found = fonts_.find(number);
  return found == fonts_.end() ? nullptr : &found->second;
}

// --- Colours

void RtfColors::Set(int shift, int value) {
  const auto part = static_cast<std::uint32_t>(std::clamp(value, 0, 255));
  color_ = (color_ & ~(0xFFU << shift)) | part << shift;
}

void RtfColors::End() { colors_.push_back(std::exchange(color_, 0)); }

std::uint32_t RtfColors::At(int number) const {
  const auto index = static_cast<std::size_t>(number);
  return number >= 0 && index < colors_.size() ? colors_[index] : 0;
}

// --- Styles

bool RtfStyle::Take(RtfWord word, const RtfToken& token) {
  const bool on = token.NumberOr(1) != 0;
  switch (word.effect) {
    case RtfEffect::Plain:
      looks = {};
      return true;
    case RtfEffect::Font:
      looks.font = token.number;
      set |= kLookFont;
      return true;
    case RtfEffect::Size:
      looks.size =
          kRtfHalfPoint * std::clamp(token.NumberOr(RtfLooks::kDefaultSize / kRtfHalfPoint),
                                     kRtfSmallest / kRtfHalfPoint, kRtfBiggest / kRtfHalfPoint);
      set |= kLookSize;
      return true;
    case RtfEffect::ExactSize:
      looks.size = std::clamp(token.number, kRtfSmallest, kRtfBiggest);
      set |= kLookSize;
      return true;
    case RtfEffect::Bold:
      looks.bold = on;
      set |= kLookBold;
      return true;
    case RtfEffect::Italic:
      looks.italic = on;
      set |= kLookItalic;
      return true;
    case RtfEffect::Underline:
    case RtfEffect::NoUnderline:
      looks.underline = on && word.effect == RtfEffect::Underline;
      set |= kLookUnderline;
      return true;
    case RtfEffect::Hidden:
      looks.hidden = on;
      set |= kLookHidden;
      return true;
    case RtfEffect::Color:
      looks.color = token.number;
      set |= kLookColor;
      return true;
    case RtfEffect::PlainParagraph:
      alignment = Alignment::Left;
      return true;
    case RtfEffect::Align:
      alignment = static_cast<Alignment>(word.value);
      set |= kLookAlignment;
      return true;
    default:
      return false;
  }
}

void RtfStyle::LayOver(RtfStyle& under) const {
  under.set |= set;
  if (set & kLookFont) under.looks.font = looks.font;
  if (set & kLookSize) under.looks.size = looks.size;
  if (set & kLookColor) under.looks.color = looks.color;
  if (set & kLookBold) under.looks.bold = looks.bold;
  if (set & kLookItalic) under.looks.italic = looks.italic;
  if (set & kLookUnderline) under.looks.underline = looks.underline;
  if (set & kLookHidden) under.looks.hidden = looks.hidden;
  if (set & kLookAlignment) under.alignment = alignment;
}

}  // namespace brindlepage
