#include "riddle/riddle_sheet.h"

#include <memory>

#include "tests/expect_fault.h"
#include "tests/sheet_runs.h"
#include "tests/told_draws.h"

namespace brindlepage {
namespace {

class RiddleSheet : public testing::Test {
 protected:
  RiddleSheet() {
    shared.WorksheetTitle = "Bees";
    shared.RiddleText = "Who buzzes?";
    shared.RiddleAnswer = "abZ ab";
    Word(1, "cab", "a car");
    Word(2, "fly", "it isn't used");
    Word(3, "bee", "it buzzes");
  }
  void Word(int number, const char* word, const char* meaning) {
    shared.ListWords(number) = word;
    shared.ListMeanings(number) = meaning;
    shared.ListWordCount = std::max<int>(shared.ListWordCount, number);
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

TEST_F(RiddleSheet, SheetAndKey) {
  Mark({1, 3});
  ToldDraws random({kReseed, {2, 3}, {3, 3}, kReseed, {3, 3}, {1, 3}});  // bee, cab
  random.Then({kReseed, {1, 2}, {1, 3}, kReseed, {2, 2}, {2, 3}});       // a: cab
  random.Then({kReseed, {2, 2}, {3, 3}});                                // b: cab
  random.Then({kReseed, {1, 2}, {2, 3}}, 2000);                          // no Z, no blank
  random.Then({kReseed, {2, 2}, {2, 3}}, 1000);                          // that a has a number
  random.Then({kReseed, {1, 2}, {1, 3}});                                // b: bee
  ComposeRiddleSheet(shared, random, box);
  const std::vector<std::string> sheet = {
      "Courier New 200 b-- c|\n",
      "Courier New 200 b-- c|" + kNarrow + "\n",
      "Courier New 195 --- c|\n",
      "Times New Roman 360 b-- c|Bees\n",
      "Times New Roman 200 bi- l|\n",
      "Times New Roman 200 bi- l|\n",
      "Times New Roman 200 bi- l|Directions: Fill in the word that matches each definition, then "
      "use the numbered letters to solve the riddle below.\n",
      "Times New Roman 200 bi- l|\n",
      "Times New Roman 200 bi- l|\n",
      "Times New Roman 240 --u l|Riddle: Who buzzes?\n",
      "Times New Roman 240 --u l|\n",
      "Times New Roman 240 --u l|\n",
      "Courrier New 200 --- l| 1)   it buzzes\n",
      "Courrier New 200 --- l|\n",
      "Courrier New 200 --- l|           __  __  __ \n",
      "Courrier New 200 --- l|           (6)        \n",
      "Courrier New 200 --- l|\n",
      "Courrier New 200 --- l| 2)   a car\n",
      "Courrier New 200 --- l|\n",
      "Courrier New 200 --- l|           __  __  __ \n",
      "Courrier New 200 --- l|               (1) (2)\n",
      "Courrier New 200 --- l|\n",
      "Courrier New 200 --- l|The Answer:\n",
      "Courrier New 200 --- l|\n",
      "Courrier New 200 --- l|(1)(2)",
      "Courrier New 200 b-- l|Z ",
      "Courrier New 200 --- l|(1)(6)",
  };
  EXPECT_EQ(Runs(box), sheet);
  EXPECT_EQ(shared.AnswerTable(1), 3);
  EXPECT_EQ(shared.AnswerTable(2), 1);

  BuildRiddleKey(shared, key);
  const std::vector<std::string> answers = {
      "Times New Roman 320 --- c|\n",
      "Times New Roman 320 --- c|Bees\n",
      "Times New Roman 280 --u c|Answer Key\n",
      "Times New Roman 280 --u c|\n",
      "Times New Roman 240 --- l|Riddle: Who buzzes?\n",
      "Times New Roman 240 --- l|\n",
      "Times New Roman 240 --- l| 1)  bee\n",
      "Times New Roman 240 --- l|\n",
      "Times New Roman 240 --- l| 2)  cab\n",
      "Times New Roman 240 --- l|\n",
      "Times New Roman 280 --u l|\n",
      "Times New Roman 280 --u l|Answer: abZ ab",
  };
  EXPECT_EQ(Runs(key), answers);
}

TEST_F(RiddleSheet, AfterTheSheetNoWordIsMarked) {
  Mark({1, 2, 3});
  SeededRandom random(1);
  ComposeRiddleSheet(shared, random, box);
  for (int word = 1; word <= 3; ++word) EXPECT_EQ(shared.WordMarks(word), 0);
}

TEST_F(RiddleSheet, AnEmptyAnswerLeavesNothingBehindTheAnswer) {
  shared.RiddleAnswer = "";
  Mark({3});
  ToldDraws random({kReseed, {3, 3}});
  ComposeRiddleSheet(shared, random, box);
  const std::string text = PlainBytes(box);
  const std::string end =
      "           __  __  __ \n"
      "                      \n\nThe Answer:\n\n";
  ASSERT_GE(text.size(), end.size());
  EXPECT_EQ(text.substr(text.size() - end.size()), end);

  BuildRiddleKey(shared, key);
  const std::string answers = PlainBytes(key);
  EXPECT_EQ(answers.substr(answers.size() - 9), "\nAnswer: ");
}

TEST_F(RiddleSheet, AnAnswerInNoWordStandsInBold) {
  shared.RiddleAnswer = "12";
  Mark({3});
  SeededRandom random(1);
  ComposeRiddleSheet(shared, random, box);
  EXPECT_EQ(Runs(box).back(), "Courrier New 200 b-- l|12");
}

TEST_F(RiddleSheet, NumbersOfThreeDigitsPutTheRestOfTheirLineOutOfStep) {
  shared.RiddleAnswer = std::string(99, '?').append("cb");
  Mark({1});
  SeededRandom random(1);
  ComposeRiddleSheet(shared, random, box);
  EXPECT_NE(PlainBytes(box).find("\n          (100)    (101)\n"), std::string::npos);
}

TEST_F(RiddleSheet, BoundsOfTheSheetAreFatal) {
  SeededRandom random(1);
  Word(1, "abcdefghijklmnopqr", "eighteen letters");
  Mark({1});
  EXPECT_FAULT(9, ComposeRiddleSheet(shared, random, box));

  Word(1, "cab", "a car");
  Mark({1});
  shared.RiddleAnswer = std::string(301, '?');
  EXPECT_FAULT(9, ComposeRiddleSheet(shared, random, box));

  shared.RiddleAnswer = "a";
  for (int word = 1; word <= 151; ++word) {
    Word(word, "cab", "a car");
    Mark({word});
  }
  shared.MarkedCount = 151;
  EXPECT_FAULT(9, ComposeRiddleSheet(shared, random, box));
}

// Reads a sheet as a pupil does: under each blank of a word its number, in the answer line the
// numbers one behind the other.
TEST_F(RiddleSheet, EveryNumberStandsUnderTheLetterOfItsPlace) {
  Word(1, "grab", "");
  Word(2, "ice", "");
  Word(3, "stones", "");
  shared.RiddleAnswer = "abceis";
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    Mark({1, 2, 3});
    SeededRandom random(seed);
    ComposeRiddleSheet(shared, random, box);
    const std::string text = PlainBytes(box);
    std::string answer = shared.RiddleAnswer;
    std::size_t at = text.find("  __ ");
    for (int place = 1; place <= 3; ++place) {
      const std::string& word = shared.ListWords(shared.AnswerTable(place));
      at = text.find("\n          ", text.find(" __ ", at)) + 11;
      for (const char letter : word) {
        const std::string cell = text.substr(at, 4);
        at += 4;
        if (cell == "    ") continue;
        const auto number = static_cast<std::size_t>(std::stoi(cell.substr(2, 1)));
        ASSERT_EQ(cell, " (" + std::to_string(number) + ")") << text;
        ASSERT_EQ(letter, shared.RiddleAnswer[number - 1]) << text;
        answer[number - 1] = '.';
      }
    }
    // All are in the words.
    ASSERT_EQ(answer, "......") << text;
  }
}

}  // namespace
}  // namespace brindlepage
