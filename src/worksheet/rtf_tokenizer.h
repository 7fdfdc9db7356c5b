#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace brindlepage {

struct RtfToken {
  enum class Kind {
    GroupOpen,
    GroupClose,
    Word,    // \name, with or without a number
    Symbol,  // a backslash and one byte that is no letter
    Hex,     // \'hh, one byte of text
    Text,    // bytes that stand for themselves
    Binary,  // the data of a \bin
    End,     // of the bytes; any number of these
  };

  Kind kind;
  std::string_view text = {};  // the word's letters, the text, the data; points into the file
  unsigned char byte = 0;      // of a Symbol or a Hex
  bool has_number = false;
  int number = 0;  // cut to the range of an int

  // The word's number, or what stands for it when there is none.
  int NumberOr(int missing) const { return has_number ? number : missing; }
};

// A rich text file (RTF 1.9) as a row of tokens. Line ends and control characters of the file,
// which mean nothing, and the one blank that ends a control word are left out; a tab is text. The
// bytes must outlive the tokens.
class RtfTokenizer {
 public:
  explicit RtfTokenizer(std::string_view bytes) : bytes_(bytes) {}

  // Throws RunTimeError 321 for a token that is cut, or a \bin that claims more data than there is.
  RtfToken Next();

 private:
  RtfToken Text();
  RtfToken Control();
  RtfToken Word();
  RtfToken Hex();
  RtfToken Binary(int size);

  unsigned char At(std::size_t position) const;

  std::string_view bytes_;
  std::size_t position_ = 0;
};

// The value of a hexadecimal digit, or -1.
inline int HexValue(unsigned char digit) {
  static constexpr auto kValues = [] {
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (int value = 0; value < 16; ++value) {
      values[static_cast<unsigned char>("0123456789abcdef"[value])] =
          static_cast<signed char>(value);
      values[static_cast<unsigned char>("0123456789ABCDEF"[value])] =
          static_cast<signed char>(value);
    }
    return values;
  }();
  return kValues[digit];
}

}  // namespace brindlepage
