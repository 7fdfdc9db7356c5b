#include "toolkit/code_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace brindlepage::code_page {
namespace {

using namespace std::string_literals;

char Byte(int code) { return static_cast<char>(code); }

int Sign(int number) { return (number > 0) - (number < 0); }

void ExpectOrder(const std::vector<std::string>& texts) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t j = 0; j < texts.size(); ++j) {
      int expected = (i > j) - (i < j);
      EXPECT_EQ(Sign(Compare(texts[i], texts[j])), expected) << texts[i] << " | " << texts[j];
    }
  }
}

TEST(CodePage, CodesFrom80To9FHaveTheCharactersOfWindows1252) {
  const std::pair<int, char32_t> characters[] = {
      {0x80, U'€'}, {0x82, U'‚'}, {0x83, U'ƒ'}, {0x84, U'„'}, {0x85, U'…'}, {0x86, U'†'},
      {0x87, U'‡'}, {0x88, U'ˆ'}, {0x89, U'‰'}, {0x8A, U'Š'}, {0x8B, U'‹'}, {0x8C, U'Œ'},
      {0x8E, U'Ž'}, {0x91, U'‘'}, {0x92, U'’'}, {0x93, U'“'}, {0x94, U'”'}, {0x95, U'•'},
      {0x96, U'–'}, {0x97, U'—'}, {0x98, U'˜'}, {0x99, U'™'}, {0x9A, U'š'}, {0x9B, U'›'},
      {0x9C, U'œ'}, {0x9E, U'ž'}, {0x9F, U'Ÿ'}};
  for (auto [code, character] : characters) {
    EXPECT_EQ(ToUnicode(Byte(code)), character) << code;
    EXPECT_EQ(FromUnicode(character), Byte(code)) << code;
  }
}

TEST(CodePage, OpenCodesStandForControlCharacters) {
  for (int code : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    EXPECT_EQ(ToUnicode(Byte(code)), static_cast<char32_t>(code));
    EXPECT_EQ(FromUnicode(static_cast<char32_t>(code)), Byte(code));
  }
}

TEST(CodePage, OtherCodesStandForTheCharacterOfTheSameNumber) {
  for (int code = 0; code < 256; ++code) {
    if (code >= 0x80 && code <= 0x9F) continue;
    EXPECT_EQ(ToUnicode(Byte(code)), static_cast<char32_t>(code));
  }
}

TEST(CodePage, EveryByteComesBack) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += Byte(code);
  for (char byte : all) EXPECT_EQ(FromUnicode(ToUnicode(byte)), byte);
  EXPECT_EQ(FromUnicode(ToUnicode(all)), all);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
}

TEST(CodePage, CharactersItLacksHaveNoByte) {
  for (char32_t character : {U'\x80', U'\x9F', U'Ā', U'Ω', U'☃', U'😀', char32_t{0x110000}}) {
    EXPECT_EQ(FromUnicode(character), std::nullopt);
  }
}

TEST(CodePage, CharactersItLacksBecomeTheSubstitute) {
  EXPECT_EQ(FromUnicode(U"aΩé"), "a?\xE9");
  EXPECT_EQ(FromUnicode(U"aΩé", '_'), "a_\xE9");
  EXPECT_EQ(FromUtf8("a\xCE\xA9\xC3\xA9"), "a?\xE9");
  EXPECT_EQ(FromUtf8("\xF0\x9F\x98\x80!", '_'), "_!");
}

TEST(CodePage, WritesUtf8) {
  EXPECT_EQ(ToUtf8("caf\xE9 \x80 \x93x\x94"), "caf\xC3\xA9 \xE2\x82\xAC \xE2\x80\x9Cx\xE2\x80\x9D");
  EXPECT_EQ(UnicodeToUtf8(U"a\u00E9\u20AC\U0001F600"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(UnicodeToUtf8(U"\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"),
            "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(CodePage, WritesWhatIsNoCharacterAsTheReplacement) {
  EXPECT_EQ(UnicodeToUtf8(std::u32string(1, char32_t{0xD800})), "\xEF\xBF\xBD");
  EXPECT_EQ(UnicodeToUtf8(std::u32string(1, char32_t{0xDFFF})), "\xEF\xBF\xBD");
  EXPECT_EQ(UnicodeToUtf8(std::u32string(1, char32_t{0x110000})), "\xEF\xBF\xBD");
}

TEST(CodePage, ReadsUtf8) {
  EXPECT_EQ(Utf8ToUnicode("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), U"a\u00E9\u20AC\U0001F600");
  EXPECT_EQ(Utf8ToUnicode("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80"),
            U"\u007F\u0080\u07FF\u0800\uFFFF\U00010000");
  EXPECT_EQ(Utf8ToUnicode(""), U"");
  EXPECT_EQ(Utf8ToUnicode("\0x"s), U"\0x"s);
}

TEST(CodePage, MalformedUtf8GivesTheReplacementAndGoesOn) {
  EXPECT_EQ(Utf8ToUnicode("\x80z"), U"\uFFFDz");                    // no lead byte
  EXPECT_EQ(Utf8ToUnicode("\xC3"), U"\uFFFD");                      // cut
  EXPECT_EQ(Utf8ToUnicode("\xE2\x82z"), U"\uFFFDz");                // cut by a letter
  EXPECT_EQ(Utf8ToUnicode("\xC0\xAF"), U"\uFFFD\uFFFD");            // overlong
  EXPECT_EQ(Utf8ToUnicode("\xE0\x80\x80"), U"\uFFFD\uFFFD\uFFFD");  // overlong
  EXPECT_EQ(Utf8ToUnicode("\xED\xA0\x80"), U"\uFFFD\uFFFD\uFFFD");  // surrogate
  EXPECT_EQ(Utf8ToUnicode("\xF4\x90\x80\x80"), U"\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(Utf8ToUnicode("\xFF\xFE"), U"\uFFFD\uFFFD");
  EXPECT_EQ(Utf8ToUnicode("\xF0\x9F\x98"), U"\uFFFD");
}

TEST(CodePage, AnyUnicodeTextComesBackThroughUtf8) {
  std::u32string all;
  for (char32_t character = 0; character <= 0x10FFFF; ++character) {
    if (character < 0xD800 || character > 0xDFFF) all += character;
  }
  EXPECT_TRUE(Utf8ToUnicode(UnicodeToUtf8(all)) == all);
}

TEST(CodePage, CapitalsOfAccentedLetters) {
  EXPECT_EQ(UpperCase("caf\xE9 na\xEFve \xFF \x9A\x9C\x9E \xF0\xFE\xF8\xE6"),
            "CAF\xC9 NA\xCFVE \x9F \x8A\x8C\x8E \xD0\xDE\xD8\xC6");
  EXPECT_EQ(LowerCase("CAF\xC9 NA\xCFVE \x9F \x8A\x8C\x8E \xD0\xDE\xD8\xC6"),
            "caf\xE9 na\xEFve \xFF \x9A\x9C\x9E \xF0\xFE\xF8\xE6");
  EXPECT_EQ(UpperCase('z'), 'Z');
  EXPECT_EQ(LowerCase('A'), 'a');
}

TEST(CodePage, LettersWithoutACapitalStayAsTheyAre) {
  std::string stay = "\xDF\x83\xB5\xAA\xBA\xD7\xF7";
  EXPECT_EQ(UpperCase(stay), stay);
  EXPECT_EQ(LowerCase(stay), stay);
  EXPECT_EQ(UpperCase("stra\xDF"
                      "e"),
            "STRA\xDF"
            "E");
}

TEST(CodePage, OnlyLettersHaveACase) {
  int changed_by_upper = 0;
  int changed_by_lower = 0;
  for (int code = 0; code < 256; ++code) {
    char byte = Byte(code);
    if (UpperCase(byte) != byte) {
      ++changed_by_upper;
      EXPECT_EQ(LowerCase(UpperCase(byte)), byte);
    }
    changed_by_lower += LowerCase(byte) != byte;
  }
  // 26 plain letters, 30 from 0xE0 to 0xFE without the division sign, and s, o, z, y from 0x9A up.
  EXPECT_EQ(changed_by_upper, 26 + 30 + 4);
  EXPECT_EQ(changed_by_lower, 26 + 30 + 4);
}

TEST(SortOrder, BlankBeforePunctuationBeforeDigitsBeforeLetters) {
  ExpectOrder({"", "\t", " ", "!", "-", "~", "\x80", "\xD7", "0", "1", "9", "a", "b", "z"});
}

TEST(SortOrder, CaseIsIgnoredUnlessNothingElseDiffers) {
  ExpectOrder({"apple", "Apple", "APPLE", "apples", "Banana", "cherry"});
}

TEST(SortOrder, AccentedLettersStandBesideTheirBaseLetter) {
  ExpectOrder({"cot", "cote", "cot\xE9", "c\xF4te", "coton"});
  ExpectOrder({"eclair",
               "\xE9"
               "clair",
               "\xC9"
               "clair",
               "edge", "zebra"});
  ExpectOrder({"n", "N", "\xF1", "\xD1", "o"});
}

TEST(SortOrder, JoinedLettersSortAsTwo) {
  ExpectOrder({"strasse",
               "stra\xDF"
               "e",
               "straw"});
  ExpectOrder({"ad", "ae", "\xE6", "\xC6", "af"});
  ExpectOrder({"od", "oeuf", "\x9Cuf", "of"});
  ExpectOrder({"tg", "th", "\xFE", "\xDE", "ti"});
}

TEST(SortOrder, NordicAndSlavicLettersStandBesideTheirBaseLetter) {
  ExpectOrder({"d", "\xF0", "e"});
  ExpectOrder({"o", "\xF8", "p"});
  ExpectOrder({"s", "\x9A", "t"});
  ExpectOrder({"y", "\xFF", "\x9F", "z", "\x9E", "\x8E"});
}

TEST(SortOrder, LettersCountBeforeAccentsAndAccentsBeforeCase) {
  ExpectOrder({"re", "RE", "r\xE9", "R\xC9", "rea"});
  ExpectOrder({"Resume a", "r\xE9sum\xE9 b"});
}

TEST(CodePage, ABoxOfWordsKeepsWhatTheCodePageHasAndNoLineEnds) {
  EXPECT_EQ(KeepTypeable(U"na\u00EFve \u20AC\u00FF~"), "na\xEFve \x80\xFF~");
  EXPECT_EQ(KeepTypeable(U"a\u4E2Db\u0100\U0001F600c\uFFFD"), "abc");
  EXPECT_EQ(KeepTypeable(std::u32string_view(U"one\r\ntwo\tthree\x7F")), "onetwothree");
  EXPECT_EQ(KeepTypeable(U""), "");
}

TEST(SortOrder, ShorterTextComesFirst) { ExpectOrder({"sun", "sun dial", "sunday"}); }

TEST(SortOrder, IsTotalOverAllBytes) {
  std::vector<std::string> texts;
  for (int code = 0; code < 256; ++code) texts.push_back({1, Byte(code)});
  std::sort(texts.begin(), texts.end(),
            [](const auto& left, const auto& right) { return Compare(left, right) < 0; });
  ExpectOrder(texts);
}

TEST(SortOrder, IsTotalOverRandomTexts) {
  // Few letters, with their accents and joined forms, so that near ties are many.
  const std::string letters = "aAe\xE6\xC6\xE9\xE8s\xDFS -1\xB9";
  std::mt19937 random(5);
  std::vector<std::string> texts;
  for (int i = 0; i < 150; ++i) {
    std::string text;
    for (std::size_t length = random() % 5; length > 0; --length) {
      text += letters[random() % letters.size()];
    }
    texts.push_back(text);
  }
  for (const std::string& a : texts) {
    for (const std::string& b : texts) {
      int ab = Sign(Compare(a, b));
      ASSERT_EQ(ab, -Sign(Compare(b, a)));
      ASSERT_EQ(ab == 0, a == b);
      if (ab > 0) continue;
      for (const std::string& c : texts) {
        if (Compare(b, c) <= 0) {
          ASSERT_LE(Compare(a, c), 0);
        }
      }
    }
  }
}

}  // namespace
}  // namespace brindlepage::code_page
