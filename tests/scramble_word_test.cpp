#include "scramble_code/scramble_word.h"

#include <algorithm>
#include <set>

#include "tests/expect_fault.h"
#include "tests/told_draws.h"

namespace brindlepage {
namespace {

TEST(ScrambleWord, LettersComeAsTheirPlacesAreDrawnAndAPlaceTwiceIsDrawnAgain) {
  ToldDraws random({kReseed, {3, 4}, {3, 4}, {1, 4}, {4, 4}, {1, 4}, {2, 4}});
  EXPECT_EQ(ScrambleWord("lava", random), "vlaa");
}

TEST(ScrambleWord, AWordMayComeOutUnchanged) {
  ToldDraws random({kReseed, {1, 3}, {2, 3}, {3, 3}});
  EXPECT_EQ(ScrambleWord("ash", random), "ash");
}

TEST(ScrambleWord, OneLetterStaysItself) {
  ToldDraws random({kReseed, {1, 1}});
  EXPECT_EQ(ScrambleWord("a", random), "a");
}

TEST(ScrambleWord, AnEmptyWordIsReseededForAndDrawsNothing) {
  ToldDraws random({kReseed});
  EXPECT_EQ(ScrambleWord("", random), "");
}

TEST(ScrambleWord, CaseBlanksAndAccentsAreShuffledLikeLetters) {
  ToldDraws random({kReseed, {3, 5}, {5, 5}, {4, 5}, {1, 5}, {2, 5}});
  EXPECT_EQ(ScrambleWord("A\xE9 -b", random), " b-A\xE9");
}

TEST(ScrambleWord, AWordOfEqualLettersLooksUnchanged) {
  SeededRandom random(1);
  EXPECT_EQ(ScrambleWord("zzz", random), "zzz");
}

TEST(ScrambleWord, TwentyFiveCharactersFit) {
  SeededRandom random(1);
  EXPECT_EQ(ScrambleWord(std::string(25, 'x'), random), std::string(25, 'x'));
}

TEST(ScrambleWord, TwentySixCharactersBreakTheBoundBeforeAnyDraw) {
  ToldDraws random({});
  EXPECT_FAULT(9, ScrambleWord(std::string(26, 'x'), random));
}

TEST(ScrambleWord, AWordWithAStarNeverEnds) {
  EndlessDraws random;
  EXPECT_THROW(ScrambleWord("a*b", random), EndlessDraws::NeverEnds);
}

TEST(ScrambleWord, EveryScrambleIsAPermutation) {
  const std::string alphabet = "abcdefghijklmnopqrstuvwxy";
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    SeededRandom random(seed);
    const std::string word = alphabet.substr(0, seed % 26);
    std::string scrambled = ScrambleWord(word, random);
    std::sort(scrambled.begin(), scrambled.end());
    ASSERT_EQ(scrambled, word) << "seed " << seed;
  }
}

TEST(ScrambleWord, EveryOrderOfThreeLettersComes) {
  SeededRandom random(1);
  std::set<std::string> orders;
  for (int i = 0; i < 200; ++i) orders.insert(ScrambleWord("abc", random));
  EXPECT_EQ(orders, (std::set<std::string>{"abc", "acb", "bac", "bca", "cab", "cba"}));
}

}  // namespace
}  // namespace brindlepage
