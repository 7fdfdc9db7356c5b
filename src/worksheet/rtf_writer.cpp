#include "worksheet/rtf_writer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "toolkit/code_page.h"
#include "worksheet/rich_text.h"
#include "worksheet/rtf_fonts.h"
#include "worksheet/rtf_pictures.h"
#include "worksheet/rtf_tables.h"

namespace brindlepage {

namespace {

// Letter, in twips, with a text column of seven and a half inches. Blanks side by side keep their
// width, instead of being made as wide as a character of another script.
constexpr char kPage[] =
    "\\paperw12240\\paperh15840\\margl720\\margr720\\margt1080\\margb1080\\dntblnsbdb\n";
constexpr char kUsualFont[] = "Courier New";  // of an empty document

constexpr std::string_view kDigits = "0123456789abcdef";

// What stands in a file as it is.
constexpr std::array<bool, 128> kPlain = [] {
  std::array<bool, 128> plain{};
  for (std::size_t code = 0x20; code < 0x7F; ++code) plain[code] = true;
  plain['\\'] = plain['{'] = plain['}'] = false;
  return plain;
}();
bool IsPlain(char32_t c) { return c < kPlain.size() && kPlain[c]; }

// Keys, numbered in the order of their first use.
template <class Key>
class Numbered {
 public:
  int Of(const Key& key) {
    const auto [entry, is_new] = numbers_.try_emplace(key, static_cast<int>(keys_.size()));
    if (is_new) keys_.push_back(key);
    return entry->second;
  }
  const std::vector<Key>& Keys() const { return keys_; }

 private:
  std::unordered_map<Key, int> numbers_;
  std::vector<Key> keys_;
};

class Writer {
 public:
  explicit Writer(RichContent&& content) : content_(std::move(content)) {}

  std::string Write(bool ends_last);

 private:
  void NumberLooks();
  void ReserveRoom();
  void WriteTables();
  void WriteFont(std::size_t number, const std::string& name);
  void WriteLooks(const RtfLooks& looks);
  void WriteSpan(std::u32string_view text, std::size_t format);
  void WriteAlignment();
  void EndParagraph();
  void WritePlain(std::u32string_view text);
  void WriteOdd(char32_t character);
  void WritePicture(const RichPicture& picture);
  void WriteHex(std::string_view bytes);

  void Add(std::string_view text) { rtf_ += text; }
  void Byte(unsigned char byte) { rtf_ += {'\\', '\'', kDigits[byte >> 4], kDigits[byte & 15]}; }
  // A blank ends a control word in front of a text.
  void Word(std::string_view name) {
    rtf_ += name;
    behind_word_ = true;
  }
  void Word(std::string_view name, int number) {
    Word(name);
    rtf_ += std::to_string(number);
  }
  void Flag(std::string_view name, bool old, bool now) {
    if (old == now) return;
    Word(name);
    if (!now) rtf_ += '0';
  }
  void BeginText() {
    if (behind_word_) rtf_ += ' ';
    behind_word_ = false;
  }

  const RichContent content_;
  Numbered<std::string> fonts_;
  Numbered<std::uint32_t> colors_;
  std::vector<RtfLooks> numbered_;  // of each format

  std::string rtf_;
  RtfLooks looks_{.font = -1, .size = 0};  // none that a text can have
  std::size_t paragraph_ = 0;
  Alignment alignment_ = Alignment::Left;
  bool behind_word_ = false;
};

std::string Writer::Write(bool ends_last) {
  NumberLooks();
  ReserveRoom();
  WriteTables();
  Add(kPage);
  Word("\\pard\\plain");
  WriteAlignment();
  std::u32string_view rest = content_.text;
  for (const RichContent::Span& span : content_.spans) {
    WriteSpan(rest.substr(0, span.length), span.format);
    rest.remove_prefix(span.length);
  }
  if (ends_last) EndParagraph();
  Add("}");
  return std::move(rtf_);
}

// --- What the document holds

void Writer::NumberLooks() {
  colors_.Of(0);  // the automatic colour
  for (const CharFormat& format : content_.formats) {
    numbered_.push_back({.font = fonts_.Of(format.font.substr(0, RtfFonts::kLongestName)),
                         .size = std::clamp(format.size, kRtfSmallest, kRtfBiggest),
                         .color = colors_.Of(format.color & 0xFFFFFF),
                         .bold = format.bold,
                         .italic = format.italic,
                         .underline = format.underline});
  }
  if (content_.formats.empty()) fonts_.Of(kUsualFont);
}

void Writer::ReserveRoom() {
  std::size_t room = 4096 + content_.text.size() + content_.text.size() / 8 +
                     16 * content_.spans.size() + 8 * content_.alignments.size();
  for (const RichContent::Span& span : content_.spans) {
    const auto& picture = content_.formats[span.format].picture;
    if (picture) room += span.length * (256 + picture->bytes.size() * 33 / 16);
  }
  rtf_.reserve(room);
}

// --- Head

void Writer::WriteTables() {
  Add("{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\n{\\fonttbl");
  for (std::size_t i = 0; i < fonts_.Keys().size(); ++i) WriteFont(i, fonts_.Keys()[i]);
  Add("}\n{\\colortbl;");
  for (std::size_t i = 1; i < colors_.Keys().size(); ++i) {
    const std::uint32_t color = colors_.Keys()[i];
    Word("\\red", color & 0xFF);
    Word("\\green", color >> 8 & 0xFF);
    Word("\\blue", color >> 16 & 0xFF);
    Add(";");
  }
  Add("}\n");
}

void Writer::WriteFont(std::size_t number, const std::string& name) {
  const RtfFontKind kind = RtfKindOfFont(name);
  Word("{\\f", static_cast<int>(number));
  Add(kind.words);
  Add("\\fcharset0 ");
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto byte = static_cast<unsigned char>(name[i]);
    // A blank in front and a semicolon would not be taken for a part of the name.
    const bool ends = byte == ';' || (i == 0 && byte == ' ');
    if (IsPlain(byte) && !ends) {
      rtf_ += name[i];
    } else {
      Byte(byte);
    }
  }
  if (!kind.alternative.empty()) {
    Add("{\\*\\falt ");
    Add(kind.alternative);
    Add("}");
  }
  Add(";}");
}

// --- Text

void Writer::WriteLooks(const RtfLooks& looks) {
  if (looks.font != looks_.font) Word("\\f", looks.font);
  if (looks.size != looks_.size) {
    Word("\\fs", (looks.size + kRtfHalfPoint / 2) / kRtfHalfPoint);
    if (looks.size % kRtfHalfPoint != 0) Word("\\fstwips", looks.size);
  }
  if (looks.color != looks_.color) Word("\\cf", looks.color);
  Flag("\\b", looks_.bold, looks.bold);
  Flag("\\i", looks_.italic, looks.italic);
  Flag("\\ul", looks_.underline, looks.underline);
  looks_ = looks;
}

void Writer::WriteSpan(std::u32string_view text, std::size_t format) {
  WriteLooks(numbered_[format]);
  const RichPicture* const picture = content_.formats[format].picture.get();
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t start = i;
    while (i < text.size() && IsPlain(text[i])) ++i;
    if (i > start) WritePlain(text.substr(start, i - start));
    if (i == text.size()) return;
    const char32_t odd = text[i++];
    if (odd == U'\n') {
      EndParagraph();
      ++paragraph_;
      WriteAlignment();
    } else if (odd == kPictureCharacter && picture) {
      WritePicture(*picture);
    } else {
      WriteOdd(odd);
    }
  }
}

void Writer::WriteAlignment() {
  const Alignment alignment = content_.alignments[paragraph_];
  if (alignment == alignment_) return;
  alignment_ = alignment;
  Word(alignment == Alignment::Left ? "\\ql" : alignment == Alignment::Right ? "\\qr" : "\\qc");
}

void Writer::EndParagraph() {
  Add("\\par\n");
  behind_word_ = false;
}

void Writer::WritePlain(std::u32string_view text) {
  BeginText();
  const std::size_t start = rtf_.size();
  rtf_.resize(start + text.size());
  char* to = rtf_.data() + start;
  for (const char32_t character : text) *to++ = static_cast<char>(character);
}

void Writer::WriteOdd(char32_t character) {
  const auto unicode = [this](char32_t unit) {
    const int number = static_cast<int>(unit);
    Word("\\u", number < 0x8000 ? number : number - 0x10000);
    Add("?");
    behind_word_ = false;
  };
  const auto symbol = [this](std::string_view name) {
    Add(name);
    behind_word_ = false;
  };
  switch (character) {
    case U'\t':
      return Word("\\tab");
    case U'\\':
      return symbol("\\\\");
    case U'{':
      return symbol("\\{");
    case U'}':
      return symbol("\\}");
    case 0xA0:
      return symbol("\\~");
    case 0xAD:
      return symbol("\\-");
    case 0x2011:
      return symbol("\\_");
    default:
      break;
  }
  const auto byte = code_page::FromUnicode(character);
  if (character >= 0xA0 && byte) {
    Byte(static_cast<unsigned char>(*byte));
    behind_word_ = false;
  } else if (character < 0x10000) {
    unicode(character);
  } else {
    unicode(0xD800 + ((character - 0x10000) >> 10));
    unicode(0xDC00 + (character & 0x3FF));
  }
}

// --- Pictures

void Writer::WritePicture(const RichPicture& picture) {
  const RtfPictureParts parts = PictureToRtf(picture);
  Add("{\\pict");
  for (const RtfPictureKind& kind : kRtfPictureKinds) {
    if (kind.format != picture.format) continue;
    Add("\\");
    Add(kind.word);
  }
  Word("\\picw", parts.file_width);
  Word("\\pich", parts.file_height);
  Word("\\picwgoal", parts.width);
  Word("\\pichgoal", parts.height);
  if (!parts.header_follows) {
    Add("{\\*\\fileheader ");
    WriteHex(parts.header);
    Add("}");
  }
  Add("\n");
  WriteHex(parts.data);
  Add("}");
  behind_word_ = false;
}

void Writer::WriteHex(std::string_view bytes) {
  constexpr std::size_t kLine = 64;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(kLine, bytes.size()))) {
    const std::string_view line = bytes.substr(0, kLine);
    const std::size_t start = rtf_.size();
    rtf_.resize(start + 2 * line.size() + 1);
    char* to = rtf_.data() + start;
    for (const char c : line) {
      const auto byte = static_cast<unsigned char>(c);
      *to++ = kDigits[byte >> 4];
      *to++ = kDigits[byte & 15];
    }
    *to = '\n';
  }
}

}  // namespace

std::string WriteRtf(const RichText& document) { return Writer(document.Content()).Write(true); }

std::string WriteRtfStretch(RichContent stretch) { return Writer(std::move(stretch)).Write(false); }

}  // namespace brindlepage
