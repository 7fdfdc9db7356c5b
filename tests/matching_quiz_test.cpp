#include "quiz/matching_quiz.h"

#include "tests/quiz_fixture.h"

namespace brindlepage {
namespace {

const std::string kDirections =
    "Directions: Write the number of each word beside the meaning it best matches.";

class MatchingQuiz : public QuizTest {
 protected:
  // The sheet around the rows of its choices, with the blanks that are left of them.
  Lines Sheet(const Lines& rows, const Lines& meanings, int blanks_left) {
    Lines lines = {kHeader + "Matching Choices:" + Underscores(53), kBody + "\n"};
    for (const std::string& row : rows) lines.push_back(kRow + row + "\n");
    lines.insert(lines.end(), {kRule + Underscores(70) + "\n", kBody + "\n"});
    int number = 0;
    for (const std::string& meaning : meanings) {
      lines.push_back(kBody + "____ " + std::to_string(++number) + ")  " + meaning + "\n");
      lines.push_back(kBody + "\n");
    }
    lines.push_back(kRow + Blanks(blanks_left));
    return lines;
  }
  void ExpectAnswers(const std::vector<int>& answers) {
    for (int i = 0; i < static_cast<int>(answers.size()); ++i) {
      EXPECT_EQ(shared.AnswerTable(i + 1), answers[i]) << "question " << i + 1;
    }
  }
};

TEST_F(MatchingQuiz, OneWordWithItsKey) {
  UseList({{"lava", "melted rock"}});
  Mark({1});
  GivenDraws draws;
  draws.Of(1, {1}).Of(1, {1});
  Compose(kMatching, draws);
  ExpectSheet(kDirections, Sheet({"  1) lava"}, {"melted rock"}, 69));
  ExpectKey({" 1)   1\n", "\n"});
}

// Draws above the number of marked words hit empty entries.
TEST_F(MatchingQuiz, ThreeWordsOfSixWithTheRightKey) {
  UseVolcanoes();
  Mark({2, 4, 6});
  GivenDraws draws;
  draws.Of(6, {4}).Of(6, {6}).Of(6, {2});
  draws.Of(6, {5, 2}).Of(6, {2, 6, 3}).Of(6, {1});
  Compose(kMatching, draws);
  ExpectSheet(kDirections,
              Sheet({"  1) geyser" + Blanks(15) + " 2) ash" + Blanks(18) + " 3) crater"},
                    {"a deep mouth", "a hot spring", "grey dust"}, 36));
  ExpectKey({" 1)   3\n", "\n", " 2)   1\n", "\n", " 3)   2\n", "\n"});
  ExpectAnswers({3, 1, 2});
  EXPECT_EQ(draws.Reseeds().size(), 6u);
}

// The right numbers are 3, 2 and 1. Magma's question gets 1, which is the number of the word lava
// and becomes 2 with it; that is the number of the word ash, and all three become 3.
TEST_F(MatchingQuiz, ThreeWordsWhoseNumbersAreTakenForWordNumbersAllHaveTheLast) {
  UseVolcanoes();
  shared.ListWordCount = 3;
  Mark({1, 2, 3});
  GivenDraws draws;
  draws.Of(3, {2}).Of(3, {1}).Of(3, {3});
  draws.Of(3, {3}).Of(3, {2}).Of(3, {1});
  Compose(kMatching, draws);
  ExpectSheet(kDirections, Sheet({"  1) magma" + Blanks(16) + " 2) lava" + Blanks(17) + " 3) ash"},
                                 {"grey dust", "melted rock", "rock below"}, 36));
  ExpectKey({" 1)   3\n", "\n", " 2)   3\n", "\n", " 3)   3\n", "\n"});
  ExpectAnswers({3, 3, 3});
}

TEST_F(MatchingQuiz, FiveWordsMakeASecondRow) {
  UseVolcanoes();
  Mark({1, 2, 3, 4, 5});
  GivenDraws draws;
  for (const int word : {1, 2, 3, 4, 5}) draws.Of(6, {word});
  for (const int entry : {1, 2, 3, 4, 5}) draws.Of(6, {entry});
  Compose(kMatching, draws);
  ExpectSheet(
      kDirections,
      Sheet({"  1) lava" + Blanks(17) + " 2) ash" + Blanks(18) + " 3) magma" + Blanks(16) +
                 " 4) crater",
             "  5) vent"},
            {"melted rock", "grey dust", "rock below", "a deep mouth", "an opening"}, 69 + 18));
  ExpectAnswers({1, 2, 3, 4, 5});
}

TEST_F(MatchingQuiz, TwoEqualWordsBothHaveTheNumberOfTheFirstThatComesUp) {
  UseList({{"ash", "grey dust"}, {"vent", "an opening"}, {"vent", "a hole"}});
  Mark({2, 3});
  GivenDraws draws;
  draws.Of(3, {3}).Of(3, {2});
  draws.Of(3, {2}).Of(3, {1});
  Compose(kMatching, draws);
  ExpectAnswers({1, 1});
}

TEST_F(MatchingQuiz, WordsThatDifferInCaseAreDifferentWords) {
  UseList({{"ash", "grey dust"}, {"vent", "an opening"}, {"Vent", "a wind"}});
  Mark({2, 3});
  GivenDraws draws;
  draws.Of(3, {3}).Of(3, {2});
  draws.Of(3, {1}).Of(3, {2});
  Compose(kMatching, draws);
  // Vent is 1; vent is 2, a word's number no more.
  ExpectAnswers({1, 2});
}

}  // namespace
}  // namespace brindlepage
