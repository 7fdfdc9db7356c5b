#include "worksheet/rtf_tokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "expect_fault.h"

namespace brindlepage {
namespace {

using namespace std::string_view_literals;

std::string Told(const RtfToken& token) {
  using Kind = RtfToken::Kind;
  switch (token.kind) {
    case Kind::GroupOpen:
      return "open";
    case Kind::GroupClose:
      return "close";
    case Kind::Word:
      return "word " + std::string(token.text) +
             (token.has_number ? "=" + std::to_string(token.number) : "");
    case Kind::Symbol:
      return std::string("symbol ") + static_cast<char>(token.byte);
    case Kind::Hex:
      return "hex " + std::to_string(token.byte);
    case Kind::Text:
      return "text " + std::string(token.text);
    case Kind::Binary:
      return "data " + std::string(token.text);
    case Kind::End:
      return "end";
  }
  return "";
}

// The tokens, a bar between them.
std::string Tokens(std::string_view bytes) {
  RtfTokenizer tokenizer(bytes);
  std::string told;
  while (true) {
    const RtfToken token = tokenizer.Next();
    if (token.kind == RtfToken::Kind::End) return told;
    if (!told.empty()) told += '|';
    told += Told(token);
  }
}

TEST(RtfTokenizer, BracesOpenAndCloseGroups) {
  EXPECT_EQ(Tokens("{a{b}}"), "open|text a|open|text b|close|close");
}

TEST(RtfTokenizer, TheBlankBehindAControlWordBelongsToIt) {
  EXPECT_EQ(Tokens("\\b lava"), "word b|text lava");
  EXPECT_EQ(Tokens("\\b  lava"), "word b|text  lava");
  EXPECT_EQ(Tokens("\\b0 lava"), "word b=0|text lava");
}

TEST(RtfTokenizer, AControlWordEndsAtWhatIsNoLetter) {
  EXPECT_EQ(Tokens("\\par\\b;{\\i}"), "word par|word b|text ;|open|word i|close");
  EXPECT_EQ(Tokens("\\b1x"), "word b=1|text x");
  EXPECT_EQ(Tokens("\\i"), "word i");
}

TEST(RtfTokenizer, NumbersMayBeNegative) {
  EXPECT_EQ(Tokens("\\u-3913?"), "word u=-3913|text ?");
  EXPECT_EQ(Tokens("\\li-x"), "word li|text -x");
}

TEST(RtfTokenizer, NumbersBeyondAnIntAreCutToIt) {
  EXPECT_EQ(Tokens("\\fs99999999999999999999999999 x"), "word fs=2147483647|text x");
  EXPECT_EQ(Tokens("\\fs-99999999999999999999999999 x"), "word fs=-2147483648|text x");
}

TEST(RtfTokenizer, SymbolsAreOneByteAndTakeNoBlank) {
  EXPECT_EQ(Tokens("\\~ \\{\\}\\\\\\*\\_"),
            "symbol ~|text  |symbol {|symbol }|symbol \\|symbol *|symbol _");
  EXPECT_EQ(Tokens("\\\nx"), "symbol \n|text x");
}

TEST(RtfTokenizer, HexadecimalBytesMayBeInCapitals) {
  EXPECT_EQ(Tokens("\\'e9\\'E9x"), "hex 233|hex 233|text x");
}

TEST(RtfTokenizer, HexadecimalDigitsThatAreNoneStayText) {
  EXPECT_EQ(Tokens("\\'zz"), "symbol '|text zz");
  EXPECT_EQ(Tokens("\\'4}"), "symbol '|text 4|close");
}

TEST(RtfTokenizer, LineEndsAndControlCharactersOfTheFileMeanNothing) {
  EXPECT_EQ(Tokens("la\r\nva\x01!\0?\n"sv), "text la|text va|text !|text ?");
  EXPECT_EQ(Tokens("\\b\r\nx"), "word b|text x");
  EXPECT_EQ(Tokens("a\tb"), "text a\tb");
}

TEST(RtfTokenizer, BinaryDataAreNotLookedInto) {
  EXPECT_EQ(Tokens("\\bin4 {}\\\n}x"), "data {}\\\n|close|text x");
  EXPECT_EQ(Tokens("\\bin0 x"), "data |text x");
  EXPECT_EQ(Tokens("\\bin x"), "data |text x");
}

TEST(RtfTokenizer, BinaryDataThatAreNotThereAreRefused) {
  EXPECT_FAULT(321, Tokens("\\bin5 abcd"));
  EXPECT_FAULT(321, Tokens("\\bin2147483647 abcd"));
  EXPECT_FAULT(321, Tokens("\\bin-1 abcd"));
}

TEST(RtfTokenizer, CutTokensAreRefused) {
  EXPECT_FAULT(321, Tokens("lava\\"));
  EXPECT_FAULT(321, Tokens("lava\\'"));
  EXPECT_FAULT(321, Tokens("lava\\'e"));
}

TEST(RtfTokenizer, TheEndComesAgainAndAgain) {
  RtfTokenizer tokenizer("x");
  EXPECT_EQ(Told(tokenizer.Next()), "text x");
  EXPECT_EQ(Told(tokenizer.Next()), "end");
  EXPECT_EQ(Told(tokenizer.Next()), "end");
}

}  // namespace
}  // namespace brindlepage
