#include "quiz/word_bank_quiz.h"

#include "tests/quiz_fixture.h"

namespace brindlepage {
namespace {

const std::string kDirections =
    "Directions: Using the words provided, fill in each blank with the most appropriate answer.";

class WordBankQuiz : public QuizTest {
 protected:
  // The sheet around the rows of its bank, with the blanks that are left of them.
  Lines Sheet(const Lines& rows, const Lines& meanings, int blanks_left) {
    Lines lines = {kHeader + "Word Bank:" + Underscores(60), kBody + "\n"};
    for (const std::string& row : rows) lines.push_back(kBoldRow + row + "\n");
    lines.insert(lines.end(), {kRule + Underscores(70) + "\n", kBody + "\n", kBody + "\n"});
    int number = 0;
    for (const std::string& meaning : meanings) {
      lines.push_back(kBody + " " + std::to_string(++number) + ")  ______________ -- " + meaning +
                      "\n");
      lines.push_back(kBody + "\n");
    }
    lines.push_back(kBoldRow + Blanks(blanks_left));
    return lines;
  }
};

TEST_F(WordBankQuiz, FourWordsFillOneRowWithTheirKey) {
  UseVolcanoes();
  Mark({1, 2, 3, 5});
  GivenDraws draws;
  draws.Of(6, {3}).Of(6, {3, 1}).Of(6, {5}).Of(6, {4, 2});
  // The bank holds magma, lava, vent, ash, and is drawn from four.
  draws.Of(4, {2}).Of(4, {2, 4}).Of(4, {1}).Of(4, {4, 3});
  Compose(kWordBank, draws);
  ExpectSheet(kDirections,
              Sheet({" lava" + Blanks(21) + "ash" + Blanks(22) + "magma" + Blanks(20) + "vent"},
                    {"rock below", "melted rock", "an opening", "grey dust"}, 6 + 70));
  ExpectKey({" 1)  magma\n", "\n", " 2)  lava\n", "\n", " 3)  vent\n", "\n", " 4)  ash\n", "\n"});
  EXPECT_EQ(shared.AnswerTable(1), 3);
  EXPECT_EQ(shared.AnswerTable(4), 2);
  EXPECT_EQ(draws.Reseeds().size(), 8u);
}

TEST_F(WordBankQuiz, FiveWordsMakeASecondRowWithTheirKey) {
  UseVolcanoes();
  Mark({1, 2, 3, 4, 5});
  GivenDraws draws;
  for (const int word : {1, 2, 3, 4, 5}) draws.Of(6, {word});
  for (const int entry : {5, 4, 3, 2, 1}) draws.Of(5, {entry});
  Compose(kWordBank, draws);
  ExpectSheet(
      kDirections,
      Sheet({" vent" + Blanks(21) + "crater" + Blanks(19) + "magma" + Blanks(20) + "ash", " lava"},
            {"melted rock", "grey dust", "rock below", "a deep mouth", "an opening"}, 69 + 9));
  ExpectKey({" 1)  lava\n", "\n", " 2)  ash\n", "\n", " 3)  magma\n", "\n", " 4)  crater\n", "\n",
             " 5)  vent\n", "\n"});
}

// An emptied entry of the bank and an empty word look alike.
TEST_F(WordBankQuiz, AnEmptyWordIsDrawnForeverFromTheBank) {
  UseVolcanoes();
  shared.ListWords(2) = "";
  Mark({2});
  GivenDraws draws;
  draws.Of(6, {2}).AllOf(1, 1000);
  EXPECT_THROW(Compose(kWordBank, draws), DrawsUsedUp);
}

}  // namespace
}  // namespace brindlepage
