#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "worksheet/rich_text.h"
#include "worksheet/rtf_code_pages.h"
#include "worksheet/rtf_tokenizer.h"
#include "worksheet/rtf_words.h"

namespace brindlepage {

// The looks of a text as a rich text file tells them: fonts and colours by their numbers in the
// file's tables.
struct RtfLooks {
  static constexpr int kDefaultFont = -1;
  static constexpr int kDefaultSize = 240;  // twentieths of a point

  int font = kDefaultFont;
  int size = kDefaultSize;
  int color = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool hidden = false;

  bool operator==(const RtfLooks&) const = default;
};

struct RtfLooksHash {
  std::size_t operator()(const RtfLooks& looks) const noexcept {
    constexpr std::size_t kFactor = 1000003;
    const auto font = static_cast<std::size_t>(static_cast<unsigned>(looks.font));
    const auto size = static_cast<std::size_t>(static_cast<unsigned>(looks.size));
    const auto color = static_cast<std::size_t>(static_cast<unsigned>(looks.color));
    const std::size_t style =
        8U * looks.bold + 4U * looks.italic + 2U * looks.underline + 1U * looks.hidden;
    return ((font * kFactor + size) * kFactor + color) * 16 + style;
  }
};

// The font table, filled in the order of the file: an entry's number, its words, its name, its end.
class RtfFonts {
 public:
  static constexpr std::size_t kLongestName = 128;

  struct Font {
    std::string name;  // Windows-1252
    const RtfCodePage* page = nullptr;
    bool signs = false;  // in place of letters
  };

  // `page` serves the fonts that name no other.
  void Begin(int number, const RtfCodePage& page);
  void Charset(int charset);
  void CodePage(int number);
  void Name(std::string_view bytes);
  void NameByte(unsigned char byte);
  void NameCharacter(char32_t character);
  void End();

  // None if the table lacks it.
  const Font* Find(int number) const;

 private:
  std::unordered_map<int, Font> fonts_;
  int number_ = 0;
  Font font_;
  std::u32string name_;
};

class RtfColors {
 public:
  void Red(int value) { Set(0, value); }
  void Green(int value) { Set(8, value); }
  void Blue(int value) { Set(16, value); }
  void End();

  // 0xBBGGRR; black for the automatic colour and for those that the table lacks.
  std::uint32_t At(int number) const;

 private:
  void Set(int shift, int value);

  std::vector<std::uint32_t> colors_;
  std::uint32_t color_ = 0;
};

// Sizes in a file: half points, and twentieths of a point as far as a document can hold them.
inline constexpr int kRtfHalfPoint = 10;
inline constexpr int kRtfSmallest = 20;
inline constexpr int kRtfBiggest = 32760;

// Which of the looks a style sets.
enum RtfLook : unsigned {
  kLookFont = 1,
  kLookSize = 2,
  kLookColor = 4,
  kLookBold = 8,
  kLookItalic = 16,
  kLookUnderline = 32,
  kLookHidden = 64,
  kLookAlignment = 128,
};

struct RtfStyle {
  unsigned set = 0;  // of RtfLook
  RtfLooks looks;
  Alignment alignment = Alignment::Left;

  // Does what a word says to looks and alignment; false if it says nothing of them.
  bool Take(RtfWord word, const RtfToken& token);
  // Lays what this style sets over another.
  void LayOver(RtfStyle& under) const;
};

}  // namespace brindlepage
