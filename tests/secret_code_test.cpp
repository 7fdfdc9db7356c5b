#include "scramble_code/secret_code.h"

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "tests/expect_fault.h"
#include "tests/told_draws.h"

namespace brindlepage {
namespace {

// A is 26, B is 25, ... Z is 1.
CodeTable Backwards() {
  CodeTable table;
  for (int place = 1; place <= 26; ++place) table(place) = 27 - place;
  return table;
}

TEST(CodeTable, ANumberThatIsTakenIsDrawnAgain) {
  ToldDraws random({kReseed, {5, 26}, {5, 26}, {26, 26}, {5, 26}, {26, 26}});
  for (int number = 1; number <= 25; ++number) {
    if (number != 5) random.Then({{number, 26}});
  }
  const CodeTable table = MakeCodeTable(random);
  EXPECT_EQ(table(0), 0);
  EXPECT_EQ(table(1), 5);
  EXPECT_EQ(table(2), 26);
  EXPECT_EQ(table(3), 1);
  EXPECT_EQ(table(6), 4);
  EXPECT_EQ(table(7), 6);
  EXPECT_EQ(table(26), 25);
}

TEST(CodeTable, ALetterMayGetItsOwnNumber) {
  ToldDraws random({kReseed});
  for (int number = 1; number <= 26; ++number) random.Then({{number, 26}});
  const CodeTable table = MakeCodeTable(random);
  for (int place = 1; place <= 26; ++place) EXPECT_EQ(table(place), place);
}

TEST(EncodeText, LettersBecomeNumbersInBracketsWithNothingBetween) {
  CodeTable table = Backwards();
  table(3) = 3;
  table(1) = 9;
  table(20) = 14;
  table(19) = 2;
  EXPECT_EQ(EncodeText("cat's", table, CodeStyle::Numbers), "[3][9][14]'[2]");
}

TEST(EncodeText, ASmallLetterIsCodedLikeItsCapital) {
  EXPECT_EQ(EncodeText("aAzZ", Backwards(), CodeStyle::Numbers), "[26][26][1][1]");
  EXPECT_EQ(EncodeText("aAzZ", Backwards(), CodeStyle::Letters), "ZZAA");
}

TEST(EncodeText, EveryBlankIsDoubled) {
  EXPECT_EQ(EncodeText(" a   b", Backwards(), CodeStyle::Numbers), "  [26]      [25]");
  EXPECT_EQ(EncodeText("a b", Backwards(), CodeStyle::Letters), "Z  Y");
}

TEST(EncodeText, ATabAndAHardBlankAreNoBlanks) {
  EXPECT_EQ(EncodeText("\t\xA0", Backwards(), CodeStyle::Numbers), "\t\xA0");
}

TEST(EncodeText, DigitsAndPunctuationStandInClear) {
  EXPECT_EQ(EncodeText("1902", Backwards(), CodeStyle::Numbers), "1902");
  EXPECT_EQ(EncodeText("@[`{-!", Backwards(), CodeStyle::Letters), "@[`{-!");
}

TEST(EncodeText, AccentedLettersComeOutAsCapitalsInClear) {
  EXPECT_EQ(EncodeText("\xE9\xFF\x9C", Backwards(), CodeStyle::Numbers), "\xC9\x9F\x8C");
}

TEST(EncodeText, ALetterWhoseCapitalIsMissingStaysAsItIs) {
  EXPECT_EQ(EncodeText("\xDF\x83\xB5", Backwards(), CodeStyle::Numbers), "\xDF\x83\xB5");
}

TEST(EncodeText, NothingGivesNothing) {
  EXPECT_EQ(EncodeText("", Backwards(), CodeStyle::Numbers), "");
}

TEST(KeyTable, TwentySixEntriesOfTenCharactersSixToALine) {
  EXPECT_EQ(KeyTableText(Backwards()),
            " 1=Z       2=Y       3=X       4=W       5=V       6=U      \n"
            " 7=T       8=S       9=R       10=Q      11=P      12=O     \n"
            " 13=N      14=M      15=L      16=K      17=J      18=I     \n"
            " 19=H      20=G      21=F      22=E      23=D      24=C     \n"
            " 25=B      26=A     \n");
}

TEST(CluePair, TwoDrawnLettersWithTheirCodes) {
  ToldDraws random({{1, 5}, {4, 5}});
  EXPECT_EQ(MakeCluePair("stone", Backwards(), random), "      Hint: H = S and M = N");
}

TEST(CluePair, TheSecondIsDrawnAgainUntilItDiffers) {
  ToldDraws random({{2, 4}, {2, 4}, {3, 4}, {1, 4}});
  EXPECT_EQ(MakeCluePair("noon", Backwards(), random), "      Hint: L = O and M = N");
}

TEST(CluePair, APairWithABlankADigitOrAnAccentIsDrawnAgainWhole) {
  ToldDraws random({{3, 6}, {1, 6}, {1, 6}, {4, 6}, {5, 6}, {6, 6}, {6, 6}, {2, 6}});
  EXPECT_EQ(MakeCluePair("ab 2\xE9z", Backwards(), random), "      Hint: A = Z and Y = B");
}

TEST(CluePair, TwoDifferentLettersGiveBothOfThemInEitherOrder) {
  std::set<std::string> clues;
  for (std::uint64_t seed = 0; seed < 50; ++seed) {
    SeededRandom random(seed);
    clues.insert(MakeCluePair("a b!", Backwards(), random));
  }
  EXPECT_EQ(clues,
            (std::set<std::string>{"      Hint: Z = A and Y = B", "      Hint: Y = B and Z = A"}));
}

TEST(CluePair, AnAtSignStandsForItself) {
  ToldDraws random({{1, 2}, {2, 2}});
  EXPECT_EQ(MakeCluePair("@k", Backwards(), random), "      Hint: @ = @ and P = K");
}

TEST(CluePair, AnOpeningBracketPointsPastTheTable) {
  ToldDraws first({{1, 2}, {2, 2}});
  EXPECT_FAULT(9, MakeCluePair("[k", Backwards(), first));
  ToldDraws second({{2, 2}, {1, 2}});
  EXPECT_FAULT(9, MakeCluePair("[k", Backwards(), second));
}

TEST(CluePair, TheCharactersOneFurtherOutAreDrawnAgain) {
  ToldDraws random({{1, 4}, {3, 4}, {3, 4}, {2, 4}, {4, 4}, {3, 4}});
  EXPECT_EQ(MakeCluePair("?\\ab", Backwards(), random), "      Hint: Y = B and Z = A");
}

TEST(CluePair, WithoutTwoDifferentLettersTheDrawNeverEnds) {
  for (const char* answer : {"a", "Aa", "a a", "a1", "12", "a\xE9", ""}) {
    EndlessDraws random;
    EXPECT_THROW(MakeCluePair(answer, Backwards(), random), EndlessDraws::NeverEnds) << answer;
  }
}

// What a pupil does with the key.
std::map<int, char> ReadKeyTable(const std::string& text) {
  std::map<int, char> letters;
  for (std::size_t equals = text.find('='); equals != std::string::npos;
       equals = text.find('=', equals + 1)) {
    const std::size_t blank = text.rfind(' ', equals);
    letters[std::stoi(text.substr(blank + 1, equals - blank - 1))] = text[equals + 1];
  }
  return letters;
}

std::string DecodeNumbers(const std::string& coded, const std::map<int, char>& letters) {
  std::string text;
  for (std::size_t i = 0; i < coded.size(); ++i) {
    if (coded[i] == '[') {
      const std::size_t end = coded.find(']', i);
      text += letters.at(std::stoi(coded.substr(i + 1, end - i - 1)));
      i = end;
    } else {
      text += coded[i];
      if (coded[i] == ' ') ++i;  // doubled
    }
  }
  return text;
}

TEST(SecretCode, EveryCodeIsAPermutationAndDecodesToTheText) {
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    SeededRandom random(seed);
    const CodeTable table = MakeCodeTable(random);
    std::vector<int> numbers;
    for (int place = 1; place <= 26; ++place) numbers.push_back(table(place));
    std::sort(numbers.begin(), numbers.end());
    for (int i = 0; i < 26; ++i) ASSERT_EQ(numbers[static_cast<std::size_t>(i)], i + 1);

    const auto key = ReadKeyTable(KeyTableText(table));
    ASSERT_EQ(key.size(), 26u);
    const std::string coded =
        EncodeText("Pack my box with five dozen jugs, 12 liquid.", table, CodeStyle::Numbers);
    ASSERT_EQ(DecodeNumbers(coded, key), "PACK MY BOX WITH FIVE DOZEN JUGS, 12 LIQUID.")
        << "seed " << seed;
  }
}

TEST(SecretCode, EveryCluePairNamesTwoLettersOfTheAnswerAndTheirCodes) {
  const std::string answer = "It's a 2-way tie";
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    SeededRandom random(seed);
    const CodeTable table = MakeCodeTable(random);
    const std::string clue = MakeCluePair(answer, table, random);
    // "      Hint: C = L and C = L"
    ASSERT_EQ(clue.size(), 27u) << clue;
    const char first = clue[16];
    const char second = clue[26];
    ASSERT_NE(first, second) << clue;
    for (const auto& [letter, code] : {std::pair(first, clue[12]), std::pair(second, clue[22])}) {
      ASSERT_NE(std::string("ITSAWYE").find(letter), std::string::npos) << clue;
      ASSERT_EQ(table(letter - 'A' + 1), code - 'A' + 1) << clue;
    }
  }
}

}  // namespace
}  // namespace brindlepage
