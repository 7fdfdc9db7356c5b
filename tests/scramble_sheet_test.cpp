#include "scramble_code/scramble_sheet.h"

#include <algorithm>
#include <memory>

#include "tests/expect_fault.h"
#include "tests/sheet_runs.h"
#include "tests/told_draws.h"

namespace brindlepage {
namespace {

class ScrambleSheet : public testing::Test {
 protected:
  ScrambleSheet() {
    shared.WorksheetTitle = "Pets";
    Word(1, "cat", "furry");
    Word(2, "Dog", "barks");
    Word(3, "ant", "six legs");
    shared.ListWordCount = 3;
  }

  void Word(int number, const char* word, const char* meaning) {
    shared.ListWords(number) = word;
    shared.ListMeanings(number) = meaning;
  }
  void Mark(std::initializer_list<int> words) {
    for (const int word : words) shared.WordMarks(word) = 1;
    shared.MarkedCount = static_cast<int>(words.size());
  }

  std::unique_ptr<SharedState> state = std::make_unique<SharedState>();
  SharedState& shared = *state;
  RichText box{"Courier New", 9.75};
  RichText key{"Times New Roman", 14.25};
};

TEST_F(ScrambleSheet, SheetAndKeyWithHints) {
  Mark({1, 3});
  shared.ScrambleClues = 1;
  ToldDraws random({kReseed,
                    {2, 3},
                    {3, 3},
                    kReseed,
                    {2, 3},
                    {2, 3},
                    {3, 3},
                    {1, 3},  // "nta"
                    kReseed,
                    {3, 3},
                    {1, 3},
                    kReseed,
                    {3, 3},
                    {1, 3},
                    {2, 3}});  // "tca"
  ComposeScrambleSheet(shared, random, box);
  const std::vector<std::string> sheet = {
      "Times New Roman 200 --- c|\n",
      "Times New Roman 200 --- c|" + kNarrow + "\n",
      "Times New Roman 360 b-- c|\n",
      "Times New Roman 360 b-- c|Pets\n",
      "Times New Roman 240 bi- c|\n",
      "Times New Roman 240 bi- c|\n",
      "Times New Roman 240 bi- c|Directions: Unscramble each vocabulary word.\n",
      "Times New Roman 240 bi- c|\n",
      "Times New Roman 240 bi- c|\n",
      "Times New Roman 240 --- l|_______________ 1) ",
      "Times New Roman 280 --- l|nta",
      "Times New Roman 240 -i- l|\n",
      "Times New Roman 240 -i- l|     Hint: six legs\n",
      "Times New Roman 240 -i- l|\n",
      "Times New Roman 240 --- l|_______________ 2) ",
      "Times New Roman 280 --- l|tca",
      "Times New Roman 240 -i- l|\n",
      "Times New Roman 240 -i- l|     Hint: furry\n",
      "Times New Roman 240 -i- l|\n",
  };
  EXPECT_EQ(Runs(box), sheet);

  MakeScrambleKey(shared, key);
  const std::vector<std::string> answers = {
      "Times New Roman 320 --- c|\n",           "Times New Roman 320 --- c|Pets\n",
      "Times New Roman 280 --u c|Answer Key\n", "Times New Roman 280 --u c|\n",
      "Times New Roman 240 --- l| 1)  ant\n",   "Times New Roman 240 --- l|\n",
      "Times New Roman 240 --- l| 2)  cat\n",   "Times New Roman 240 --- l|\n",
  };
  EXPECT_EQ(Runs(key), answers);
  EXPECT_EQ(key.AlignmentAt(key.Length()), Alignment::Left);
}

TEST_F(ScrambleSheet, WithoutHintsOneEmptyLineFollowsEachWord) {
  Mark({2});
  shared.ScrambleClues = 0;
  ToldDraws random({kReseed, {2, 3}, kReseed, {2, 3}, {3, 3}, {1, 3}});
  ComposeScrambleSheet(shared, random, box);
  const auto runs = Runs(box);
  ASSERT_EQ(runs.size(), 13u);
  EXPECT_EQ(runs[9], "Times New Roman 240 --- l|_______________ 1) ");
  EXPECT_EQ(runs[10], "Times New Roman 280 --- l|ogD");
  EXPECT_EQ(runs[11], "Times New Roman 240 -i- l|\n");
  EXPECT_EQ(runs[12], "Times New Roman 240 -i- l|\n");
}

TEST_F(ScrambleSheet, TheMarksAreUsedUpAndTheLinesKeepTheirWordsNumbers) {
  Mark({1, 2, 3});
  SeededRandom random(3);
  ComposeScrambleSheet(shared, random, box);
  std::vector<int> numbers;
  for (int i = 1; i <= 3; ++i) {
    EXPECT_EQ(shared.WordMarks(i), 0);
    numbers.push_back(shared.AnswerTable(i));
  }
  std::sort(numbers.begin(), numbers.end());
  EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(shared.AnswerTable(4), 0);
}

TEST_F(ScrambleSheet, TheWordScrambledLastStaysInHand) {
  Mark({3});
  ToldDraws random({kReseed, {3, 3}, kReseed, {3, 3}, {2, 3}, {1, 3}});
  ComposeScrambleSheet(shared, random, box);
  EXPECT_EQ(shared.WorkWord, "tna");
}

TEST_F(ScrambleSheet, AnEntryOfTwoWordsMayBeginWithABlank) {
  Word(1, "a b", "");
  Mark({1});
  ToldDraws random({kReseed, {1, 3}, kReseed, {2, 3}, {3, 3}, {1, 3}});
  ComposeScrambleSheet(shared, random, box);
  EXPECT_EQ(Runs(box)[10], "Times New Roman 280 --- l| ba");
}

TEST_F(ScrambleSheet, AnEmptyWordHasNoRunOfItsOwn) {
  Word(1, "", "nothing");
  Mark({1});
  ToldDraws random({kReseed, {1, 3}, kReseed});
  ComposeScrambleSheet(shared, random, box);
  EXPECT_EQ(PlainBytes(box).substr(PlainBytes(box).find("_______________ 1)")),
            "_______________ 1) \n\n");
}

TEST_F(ScrambleSheet, AnEntryOfTwentySixCharactersIsFatal) {
  Word(1, "abcdefghijklmnopqrstuvwxyz", "");
  Mark({1});
  ToldDraws random({kReseed, {1, 3}});
  EXPECT_FAULT(9, ComposeScrambleSheet(shared, random, box));
}

TEST_F(ScrambleSheet, AnEntryWithAStarNeverEnds) {
  Word(1, "r*n", "");
  Mark({1});
  EndlessDraws random;
  EXPECT_THROW(ComposeScrambleSheet(shared, random, box), EndlessDraws::NeverEnds);
}

TEST_F(ScrambleSheet, ThreeHundredWordsAreAllOnTheSheet) {
  for (int i = 1; i <= 300; ++i) {
    Word(i, "word", "");
    shared.WordMarks(i) = 1;
  }
  shared.ListWordCount = 300;
  shared.MarkedCount = 300;
  SeededRandom random(5);
  ComposeScrambleSheet(shared, random, box);
  std::vector<bool> seen(301);
  for (int i = 1; i <= 300; ++i) seen[static_cast<std::size_t>(shared.AnswerTable(i))] = true;
  EXPECT_EQ(std::count(seen.begin(), seen.end(), true), 300);
  EXPECT_NE(PlainBytes(box).find("_______________ 300) "), std::string::npos);
}

}  // namespace
}  // namespace brindlepage
