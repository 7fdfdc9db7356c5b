#include "toolkit/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace brindlepage::code_page {
namespace {

constexpr std::size_t Code(char byte) { return static_cast<unsigned char>(byte); }

// Everywhere but here a byte is the character of the same number.
constexpr std::size_t kFirstOdd = 0x80;
constexpr std::array<char16_t, 32> kOddCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80: € . ‚ ƒ „ … † ‡
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88: ˆ ‰ Š ‹ Œ . Ž .
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90: . ‘ ’ “ ” • – —
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};  // 98: ˜ ™ š › œ . ž Ÿ

constexpr char32_t kReplacement = 0xFFFD;

using Fold = std::array<char, 256>;

struct Folds {
  Fold upper{};
  Fold lower{};
};

constexpr Folds MakeFolds() {
  Folds folds;
  for (std::size_t i = 0; i < 256; ++i) folds.upper[i] = folds.lower[i] = static_cast<char>(i);
  auto pair = [&folds](std::size_t small, std::size_t capital) {
    folds.upper[small] = static_cast<char>(capital);
    folds.lower[capital] = static_cast<char>(small);
  };
  for (std::size_t small = 'a'; small <= 'z'; ++small) pair(small, small - 0x20);
  for (std::size_t small = 0xE0; small <= 0xFE; ++small) {
    if (small != 0xF7) pair(small, small - 0x20);  // not the division sign
  }
  pair(0x9A, 0x8A);  // š
  pair(0x9C, 0x8C);  // œ
  pair(0x9E, 0x8E);  // ž
  pair(0xFF, 0x9F);  // ÿ
  return folds;
}

constexpr Folds kFolds = MakeFolds();

std::string Folded(std::string_view bytes, const Fold& fold) {
  std::string result(bytes);
  for (char& byte : result) byte = fold[Code(byte)];
  return result;
}

// What a byte counts for in the order of a sorted list. `first` and `second` are what it is
// alphabetized as; `second` is 0 unless it stands for two letters. The others break ties.
struct Weight {
  std::uint16_t first = 0;
  std::uint16_t second = 0;
  std::uint8_t accent = 0;
  bool capital = false;
};

using Weights = std::array<Weight, 256>;

constexpr std::uint16_t kControl = 1;
constexpr std::uint16_t kBlank = kControl + 256;
constexpr std::uint16_t kSymbol = kBlank + 1;
constexpr std::uint16_t kDigit = kSymbol + 256;
constexpr std::uint16_t kLetter = kDigit + 10;

constexpr bool IsControl(std::size_t code) {
  return code < 0x20 || code == 0x7F || code == 0x81 || code == 0x8D || code == 0x8F ||
         code == 0x90 || code == 0x9D;
}

enum Accent : std::uint8_t {
  kPlain,
  kGrave,
  kAcute,
  kCircumflex,
  kTilde,
  kDiaeresis,
  kRing,
  kCedilla,
  kCaron,
  kStroke,
  kJoined,
  kRaised,
};

struct Variant {
  std::uint8_t code;
  char first;
  char second;
  Accent accent;
};

constexpr Variant kVariants[] = {
    {0xE0, 'a', 0, kGrave},     {0xE1, 'a', 0, kAcute},      {0xE2, 'a', 0, kCircumflex},
    {0xE3, 'a', 0, kTilde},     {0xE4, 'a', 0, kDiaeresis},  {0xE5, 'a', 0, kRing},
    {0xE6, 'a', 'e', kJoined},  {0xE7, 'c', 0, kCedilla},    {0xE8, 'e', 0, kGrave},
    {0xE9, 'e', 0, kAcute},     {0xEA, 'e', 0, kCircumflex}, {0xEB, 'e', 0, kDiaeresis},
    {0xEC, 'i', 0, kGrave},     {0xED, 'i', 0, kAcute},      {0xEE, 'i', 0, kCircumflex},
    {0xEF, 'i', 0, kDiaeresis}, {0xF0, 'd', 0, kStroke},     {0xF1, 'n', 0, kTilde},
    {0xF2, 'o', 0, kGrave},     {0xF3, 'o', 0, kAcute},      {0xF4, 'o', 0, kCircumflex},
    {0xF5, 'o', 0, kTilde},     {0xF6, 'o', 0, kDiaeresis},  {0xF8, 'o', 0, kStroke},
    {0xF9, 'u', 0, kGrave},     {0xFA, 'u', 0, kAcute},      {0xFB, 'u', 0, kCircumflex},
    {0xFC, 'u', 0, kDiaeresis}, {0xFD, 'y', 0, kAcute},      {0xFE, 't', 'h', kJoined},
    {0xFF, 'y', 0, kDiaeresis}, {0x9A, 's', 0, kCaron},      {0x9C, 'o', 'e', kJoined},
    {0x9E, 'z', 0, kCaron},     {0xDF, 's', 's', kJoined},   {0x83, 'f', 0, kStroke},
    {0xAA, 'a', 0, kRaised},    {0xBA, 'o', 0, kRaised},
};

constexpr std::uint16_t LetterWeight(char letter) {
  return letter == 0 ? std::uint16_t{0} : static_cast<std::uint16_t>(kLetter + letter - 'a');
}

constexpr Weights MakeWeights() {
  Weights weights;
  for (std::size_t code = 0; code < 256; ++code) {
    weights[code].first = static_cast<std::uint16_t>((IsControl(code) ? kControl : kSymbol) + code);
  }

  weights[' '].first = kBlank;
  weights[0xA0] = {kBlank, 0, kRaised, false};

  for (std::uint16_t digit = 0; digit < 10; ++digit) {
    weights['0' + std::size_t{digit}].first = static_cast<std::uint16_t>(kDigit + digit);
  }
  weights[0xB9] = {kDigit + 1, 0, kRaised, false};
  weights[0xB2] = {kDigit + 2, 0, kRaised, false};
  weights[0xB3] = {kDigit + 3, 0, kRaised, false};

  for (char letter = 'a'; letter <= 'z'; ++letter) {
    weights[Code(letter)] = {LetterWeight(letter), 0, kPlain, false};
  }
  for (const Variant& variant : kVariants) {
    weights[variant.code] = {LetterWeight(variant.first), LetterWeight(variant.second),
                             variant.accent, false};
  }
  for (std::size_t code = 0; code < 256; ++code) {
    std::size_t small = Code(kFolds.lower[code]);
    if (small == code) continue;
    weights[code] = weights[small];
    weights[code].capital = true;
  }
  return weights;
}

constexpr Weights kWeights = MakeWeights();

// Gives the letters of a text one after the other, "ß" as two; 0 at its end.
class Letters {
 public:
  explicit Letters(std::string_view text) : text_(text) {}

  std::uint16_t Next() {
    if (pending_ != 0) {
      std::uint16_t second = pending_;
      pending_ = 0;
      return second;
    }
    if (position_ == text_.size()) return 0;
    const Weight& weight = kWeights[Code(text_[position_++])];
    pending_ = weight.second;
    return weight.first;
  }

 private:
  std::string_view text_;
  std::size_t position_ = 0;
  std::uint16_t pending_ = 0;
};

int CompareLetters(std::string_view left, std::string_view right) {
  Letters left_letters(left);
  Letters right_letters(right);
  for (;;) {
    int l = left_letters.Next();
    int r = right_letters.Next();
    if (l != r || l == 0) return l - r;
  }
}

template <class Key>
int CompareBy(std::string_view left, std::string_view right, Key key) {
  std::size_t common = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < common; ++i) {
    int difference = static_cast<int>(key(Code(left[i]))) - static_cast<int>(key(Code(right[i])));
    if (difference != 0) return difference;
  }
  return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

void AppendUtf8(std::string& utf8, char32_t character) {
  if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) {
    character = kReplacement;
  }
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
    return;
  }
  auto continuation = [&utf8, character](int shift) {
    utf8 += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
  };
  if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | (character >> 6));
  } else if (character < 0x10000) {
    utf8 += static_cast<char>(0xE0 | (character >> 12));
    continuation(6);
  } else {
    utf8 += static_cast<char>(0xF0 | (character >> 18));
    continuation(12);
    continuation(6);
  }
  continuation(0);
}

// The character at `position`, which moves behind it. A malformed sequence gives one U+FFFD for
// its longest well-formed beginning (the Unicode Standard, section 3.9).
char32_t NextUtf8(std::string_view utf8, std::size_t& position) {
  std::size_t lead = Code(utf8[position++]);
  if (lead < 0x80) return static_cast<char32_t>(lead);
  int more = lead >= 0xC2 && lead <= 0xDF   ? 1
             : lead >= 0xE0 && lead <= 0xEF ? 2
             : lead >= 0xF0 && lead <= 0xF4 ? 3
                                            : 0;
  if (more == 0) return kReplacement;

  // The bounds of the second byte shut out overlong forms, surrogates and what is past U+10FFFF.
  std::size_t lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  std::size_t highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  std::size_t character = lead & (0x3Fu >> more);
  for (; more > 0; --more) {
    if (position == utf8.size()) return kReplacement;
    std::size_t next = Code(utf8[position]);
    if (next < lowest || next > highest) return kReplacement;
    character = character << 6 | (next & 0x3F);
    ++position;
    lowest = 0x80;
    highest = 0xBF;
  }
  return static_cast<char32_t>(character);
}

}  // namespace

char32_t ToUnicode(char byte) {
  std::size_t code = Code(byte);
  std::size_t odd = code - kFirstOdd;
  return odd < kOddCharacters.size() ? kOddCharacters[odd] : static_cast<char32_t>(code);
}

std::optional<char> FromUnicode(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  auto found = std::find(kOddCharacters.begin(), kOddCharacters.end(), character);
  if (found == kOddCharacters.end()) return std::nullopt;
  return static_cast<char>(kFirstOdd + static_cast<std::size_t>(found - kOddCharacters.begin()));
}

std::u32string ToUnicode(std::string_view bytes) {
  std::u32string text;
  text.reserve(bytes.size());
  for (char byte : bytes) text += ToUnicode(byte);
  return text;
}

std::string ToUtf8(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (char byte : bytes) AppendUtf8(utf8, ToUnicode(byte));
  return utf8;
}

std::string FromUnicode(std::u32string_view text, char substitute) {
  std::string bytes;
  bytes.reserve(text.size());
  for (char32_t character : text) bytes += FromUnicode(character).value_or(substitute);
  return bytes;
}

std::string FromUtf8(std::string_view utf8, char substitute) {
  std::string bytes;
  bytes.reserve(utf8.size());
  for (std::size_t position = 0; position < utf8.size();) {
    bytes += FromUnicode(NextUtf8(utf8, position)).value_or(substitute);
  }
  return bytes;
}

std::u32string Utf8ToUnicode(std::string_view utf8) {
  std::u32string text;
  text.reserve(utf8.size());
  for (std::size_t position = 0; position < utf8.size();) text += NextUtf8(utf8, position);
  return text;
}

std::string UnicodeToUtf8(std::u32string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (char32_t character : text) AppendUtf8(utf8, character);
  return utf8;
}

std::string KeepTypeable(std::u32string_view text) {
  std::string kept;
  for (const char32_t character : text) {
    const auto byte = FromUnicode(character);
    if (byte && character >= 0x20 && character != 0x7F) kept.push_back(*byte);
  }
  return kept;
}

char UpperCase(char byte) { return kFolds.upper[Code(byte)]; }
char LowerCase(char byte) { return kFolds.lower[Code(byte)]; }
std::string UpperCase(std::string_view bytes) { return Folded(bytes, kFolds.upper); }
std::string LowerCase(std::string_view bytes) { return Folded(bytes, kFolds.lower); }

int Compare(std::string_view left, std::string_view right) {
  if (int by_letters = CompareLetters(left, right)) return by_letters;
  if (int by_accent = CompareBy(left, right, [](auto c) { return kWeights[c].accent; })) {
    return by_accent;
  }
  if (int by_case = CompareBy(left, right, [](auto c) { return kWeights[c].capital; })) {
    return by_case;
  }
  return CompareBy(left, right, [](auto c) { return c; });
}

}  // namespace brindlepage::code_page
