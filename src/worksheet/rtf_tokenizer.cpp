#include "worksheet/rtf_tokenizer.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

#include "toolkit/run_time_error.h"

namespace brindlepage {

namespace {

enum Class : std::uint8_t { kText, kMeaningless, kOpen, kClose, kBackslash };

constexpr std::array<std::uint8_t, 256> kClasses = [] {
  std::array<std::uint8_t, 256> classes{};
  for (std::size_t code = 0; code < 0x20; ++code) classes[code] = kMeaningless;
  classes['\t'] = kText;
  classes['{'] = kOpen;
  classes['}'] = kClose;
  classes['\\'] = kBackslash;
  return classes;
}();

// Text comes in long stretches, so eight bytes are looked at as one number.
using Block = std::uint64_t;
constexpr Block kOnes = 0x0101010101010101;

// 0 where there is no such byte for sure.
constexpr Block Less(Block bytes, Block limit) {
  return (bytes - kOnes * limit) & ~bytes & kOnes * 0x80;
}
constexpr Block Equal(Block bytes, Block byte) { return Less(bytes ^ kOnes * byte, 1); }

bool IsTextBlock(const char* bytes) {
  Block block;
  std::memcpy(&block, bytes, sizeof block);
  return (Less(block, 0x20) | Equal(block, '\\') | Equal(block, '{') | Equal(block, '}')) == 0;
}

bool IsLetter(unsigned char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; }
bool IsDigit(unsigned char c) { return c >= '0' && c <= '9'; }

int Cut(std::int64_t number) {
  using Limits = std::numeric_limits<int>;
  if (number > Limits::max()) return Limits::max();
  if (number < Limits::min()) return Limits::min();
  return static_cast<int>(number);
}

}  // namespace

unsigned char RtfTokenizer::At(std::size_t position) const {
  return static_cast<unsigned char>(bytes_[position]);
}

RtfToken RtfTokenizer::Next() {
  while (position_ < bytes_.size() && kClasses[At(position_)] == kMeaningless) ++position_;
  if (position_ == bytes_.size()) return {RtfToken::Kind::End};

  switch (kClasses[At(position_)]) {
    case kOpen:
      ++position_;
      return {RtfToken::Kind::GroupOpen};
    case kClose:
      ++position_;
      return {RtfToken::Kind::GroupClose};
    case kBackslash:
      ++position_;
      return Control();
    default:
      return Text();
  }
}

RtfToken RtfTokenizer::Text() {
  const std::size_t start = position_;
  while (bytes_.size() - position_ >= sizeof(Block) && IsTextBlock(bytes_.data() + position_)) {
    position_ += sizeof(Block);
  }
  while (position_ < bytes_.size() && kClasses[At(position_)] == kText) ++position_;
  return {RtfToken::Kind::Text, bytes_.substr(start, position_ - start)};
}

RtfToken RtfTokenizer::Control() {
  if (position_ == bytes_.size()) throw RunTimeError(Fault::InvalidFormat);
  const unsigned char first = At(position_);
  if (IsLetter(first)) return Word();
  ++position_;
  if (first == '\'') return Hex();
  return {RtfToken::Kind::Symbol, {}, first};
}

RtfToken RtfTokenizer::Word() {
  const std::size_t start = position_;
  while (position_ < bytes_.size() && IsLetter(At(position_))) ++position_;
  RtfToken token{RtfToken::Kind::Word, bytes_.substr(start, position_ - start)};

  const bool negative = position_ < bytes_.size() && bytes_[position_] == '-';
  const std::size_t digits = position_ + negative;
  if (digits < bytes_.size() && IsDigit(At(digits))) {
    constexpr std::int64_t kBeyond = std::int64_t{1} << 40;
    std::int64_t number = 0;
    for (position_ = digits; position_ < bytes_.size() && IsDigit(At(position_)); ++position_) {
      if (number < kBeyond) number = number * 10 + (At(position_) - '0');
    }
    token.has_number = true;
    token.number = Cut(negative ? -number : number);
  }
  if (position_ < bytes_.size() && bytes_[position_] == ' ') ++position_;
  return token.text == "bin" ? Binary(token.number) : token;
}

// Two digits that are none leave a symbol that means nothing, and themselves as text.
RtfToken RtfTokenizer::Hex() {
  if (bytes_.size() - position_ < 2) throw RunTimeError(Fault::InvalidFormat);
  const int high = HexValue(At(position_));
  const int low = HexValue(At(position_ + 1));
  if (high < 0 || low < 0) return {RtfToken::Kind::Symbol, {}, '\''};
  position_ += 2;
  return {RtfToken::Kind::Hex, {}, static_cast<unsigned char>(high << 4 | low)};
}

RtfToken RtfTokenizer::Binary(int size) {
  const std::size_t left = bytes_.size() - position_;
  if (size < 0 || static_cast<std::size_t>(size) > left) throw RunTimeError(Fault::InvalidFormat);
  const RtfToken token{RtfToken::Kind::Binary,
                       bytes_.substr(position_, static_cast<std::size_t>(size))};
  position_ += token.text.size();
  return token;
}

}  // namespace brindlepage
