#include "riddle/riddle_letters.h"

#include <algorithm>

#include "tests/expect_fault.h"
#include "tests/told_draws.h"

namespace brindlepage {
namespace {

using Words = std::vector<std::string>;

// The cells of a word, joined with strokes.
std::string WordRow(const RiddleCells& cells, int word, int letters) {
  std::string row;
  for (int letter = 1; letter <= letters; ++letter) row += cells.words(word)(letter) + "|";
  return row;
}

std::string AnswerRow(const RiddleCells& cells, std::size_t length) {
  std::string row;
  for (int place = 1; place <= static_cast<int>(length); ++place) row += cells.answer(place) + "|";
  return row;
}

// Reseeds, draws word `word` of `words`, then its letter `letter` of `letters`.
std::vector<ToldDraws::Step> Try(int word, int words, int letter, int letters) {
  return {kReseed, {word, words}, {letter, letters}};
}

TEST(RiddleLetters, ALetterIsNumberedWhereTheFirstTryHits) {
  ToldDraws random({});
  random.Then(Try(1, 2, 1, 3));  // b is no a
  random.Then(Try(2, 2, 2, 3));
  random.Then(Try(2, 2, 3, 3));
  const RiddleCells cells = NumberLetters(Words{"bee", "cab"}, "ab", random);
  EXPECT_EQ(WordRow(cells, 1, 3), "    |    |    |");
  EXPECT_EQ(WordRow(cells, 2, 3), "    | (1)| (2)|");
  EXPECT_EQ(AnswerRow(cells, 2), "(1)|(2)|");
}

TEST(RiddleLetters, ALetterThatAThousandTriesMissStandsInClear) {
  ToldDraws random({});
  random.Then(Try(1, 1, 2, 2), 1000);
  const RiddleCells cells = NumberLetters(Words{"ab"}, "a", random);
  EXPECT_EQ(WordRow(cells, 1, 2), "    |    |");
  EXPECT_EQ(AnswerRow(cells, 1), "a|");
}

TEST(RiddleLetters, TheThousandthTryStillCounts) {
  ToldDraws random({});
  random.Then(Try(1, 1, 2, 2), 999);
  random.Then(Try(1, 1, 1, 2));
  const RiddleCells cells = NumberLetters(Words{"ab"}, "a", random);
  EXPECT_EQ(WordRow(cells, 1, 2), " (1)|    |");
  EXPECT_EQ(AnswerRow(cells, 1), "(1)|");
}

TEST(RiddleLetters, ARepeatedLetterMayHaveTwoCells) {
  ToldDraws random({});
  random.Then(Try(1, 1, 1, 3));
  random.Then(Try(1, 1, 3, 3));
  const RiddleCells cells = NumberLetters(Words{"aba"}, "aa", random);
  EXPECT_EQ(WordRow(cells, 1, 3), " (1)|    | (2)|");
  EXPECT_EQ(AnswerRow(cells, 2), "(1)|(2)|");
}

TEST(RiddleLetters, ARepeatedLetterThatMissesSharesTheNumberOfTheFirst) {
  ToldDraws random({});
  random.Then(Try(1, 1, 1, 1));
  random.Then(Try(1, 1, 1, 1), 1000);  // the cell has a number by now
  const RiddleCells cells = NumberLetters(Words{"a"}, "aa", random);
  EXPECT_EQ(WordRow(cells, 1, 1), " (1)|");
  EXPECT_EQ(AnswerRow(cells, 2), "(1)|(1)|");
}

TEST(RiddleLetters, ARepeatedLetterSharesThePlainFirstAsWell) {
  ToldDraws random({});
  random.Then(Try(1, 1, 2, 2), 2000);
  random.Then(Try(1, 1, 1, 2));
  // Missed twice; the third hits. The second takes what the first has, the letter itself.
  const RiddleCells cells = NumberLetters(Words{"ab"}, "aaa", random);
  EXPECT_EQ(AnswerRow(cells, 3), "a|a|(3)|");
  EXPECT_EQ(WordRow(cells, 1, 2), " (3)|    |");
}

TEST(RiddleLetters, CapitalsAndSmallLettersDiffer) {
  SeededRandom random(1);
  const RiddleCells cells = NumberLetters(Words{"aaa"}, "A", random);
  EXPECT_EQ(AnswerRow(cells, 1), "A|");
  EXPECT_EQ(WordRow(cells, 1, 3), "    |    |    |");
}

TEST(RiddleLetters, ABlankOfTheAnswerIsNumberedWhereAWordHasOne) {
  ToldDraws random({});
  random.Then(Try(1, 1, 2, 3));
  const RiddleCells cells = NumberLetters(Words{"a b"}, " ", random);
  EXPECT_EQ(WordRow(cells, 1, 3), "    | (1)|    |");
  EXPECT_EQ(AnswerRow(cells, 1), "(1)|");
}

TEST(RiddleLetters, NumbersAreBroughtToFourCharactersFromTheLeftAndThreeDigitsToFive) {
  // Blanks miss; the letters at 9, 10 and 100 are in the word.
  std::string answer(100, ' ');
  answer[8] = 'a';
  answer[9] = 'b';
  answer[99] = 'c';
  SeededRandom random(1);
  const RiddleCells cells = NumberLetters(Words{"abc"}, answer, random);
  EXPECT_EQ(WordRow(cells, 1, 3), " (9)|(10)|(100)|");
  EXPECT_EQ(cells.answer(9), "(9)");
  EXPECT_EQ(cells.answer(100), "(100)");
  EXPECT_EQ(cells.answer(1), " ");
}

TEST(RiddleLetters, AWordWithoutLettersCostsTwoDrawsATryAndHidesNothing) {
  ToldDraws random({});
  random.Then({kReseed, {1, 1}, {1, 2}}, 1000);
  const RiddleCells cells = NumberLetters(Words{""}, "a", random);
  EXPECT_EQ(AnswerRow(cells, 1), "a|");
}

TEST(RiddleLetters, AnEmptyAnswerDrawsNothing) {
  ToldDraws random({});
  const RiddleCells cells = NumberLetters(Words{"ab"}, "", random);
  EXPECT_EQ(WordRow(cells, 1, 2), "    |    |");
}

TEST(RiddleLetters, BoundsOfTheSheet) {
  SeededRandom random(1);
  const std::string seventeen(17, 'x');
  const std::string eighteen(18, 'x');
  NumberLetters(Words(150, "x"), "x", random);
  EXPECT_FAULT(9, NumberLetters(Words(151, "x"), "x", random));
  NumberLetters(Words{seventeen}, "x", random);
  EXPECT_FAULT(9, NumberLetters(Words{eighteen}, "x", random));
  NumberLetters(Words{"x"}, std::string(300, '?'), random);
  EXPECT_FAULT(9, NumberLetters(Words{"x"}, std::string(301, '?'), random));
}

TEST(RiddleLetters, EveryNumberOfTheAnswerLeadsToItsLetter) {
  const Words words = {"magma", "ash", "old lava in flow", "crater", "Vesuvius", "quill"};
  const std::string answer = "left at sea";
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    SeededRandom random(seed);
    const RiddleCells cells = NumberLetters(words, answer, random);
    int numbered = 0;
    for (int place = 1; place <= static_cast<int>(answer.size()); ++place) {
      const char letter = answer[static_cast<std::size_t>(place - 1)];
      const std::string& number = cells.answer(place);
      if (number.size() == 1) {
        ASSERT_EQ(number[0], letter) << "seed " << seed;
        continue;
      }
      int found = 0;
      for (std::size_t word = 0; word < words.size(); ++word) {
        for (std::size_t i = 0; i < words[word].size(); ++i) {
          std::string cell = cells.words(static_cast<int>(word) + 1)(static_cast<int>(i) + 1);
          cell.erase(0, cell.find_first_not_of(' '));
          if (cell != number) continue;
          ASSERT_EQ(words[word][i], letter) << "seed " << seed;
          ++found;
        }
      }
      ASSERT_EQ(found, 1) << "seed " << seed << ", place " << place;
      ++numbered;
    }
    // A thousand tries may miss the only "f".
    ASSERT_GE(numbered, 10) << "seed " << seed;
  }
}

}  // namespace
}  // namespace brindlepage
