#include "quiz/fill_in_quiz.h"

#include "tests/quiz_fixture.h"

namespace brindlepage {
namespace {

const std::string kDirections =
    "Directions: Fill in the word that best matches the meaning provided.";

using FillInQuiz = QuizTest;

TEST_F(FillInQuiz, ThreeQuestionsInDrawnOrderWithTheirKey) {
  UseVolcanoes();
  Mark({1, 4, 6});
  GivenDraws draws;
  draws.Of(6, {2, 4}).Of(6, {4, 6}).Of(6, {6, 5, 1});
  Compose(kFillIn, draws);
  ExpectSheet(kDirections, {kBody + " 1)  ______________ -- a deep mouth\n", kBody + "\n",
                            kBody + " 2)  ______________ -- a hot spring\n", kBody + "\n",
                            kBody + " 3)  ______________ -- melted rock\n", kBody + "\n"});
  ExpectKey({" 1)  crater\n", "\n", " 2)  geyser\n", "\n", " 3)  lava\n", "\n"});
  EXPECT_EQ(shared.AnswerTable(1), 4);
  EXPECT_EQ(shared.AnswerTable(2), 6);
  EXPECT_EQ(shared.AnswerTable(3), 1);
  EXPECT_EQ(draws.Reseeds().size(), 3u);
}

TEST_F(FillInQuiz, OneMarkedWordOfALongListGivesOneQuestionAndOneKeyLine) {
  Pairs pairs;
  for (int i = 1; i <= 300; ++i) {
    pairs.emplace_back("word" + std::to_string(i), "meaning" + std::to_string(i));
  }
  UseList(pairs);
  Mark({300});
  GivenDraws draws;
  draws.Of(300, {1, 299, 300});
  Compose(kFillIn, draws);
  ExpectSheet(kDirections, {kBody + " 1)  ______________ -- meaning300\n", kBody + "\n"});
  ExpectKey({" 1)  word300\n", "\n"});
}

TEST_F(FillInQuiz, AnEmptyMeaningLeavesABlankBehindTheDashes) {
  EXPECT_EQ(FillInLine(12, ""), " 12)  ______________ -- \n\n");
}

TEST_F(FillInQuiz, AnEmptiedHeadingGivesEmptyTitleLines) {
  UseVolcanoes();
  Mark({1});
  GivenDraws draws;
  draws.Of(6, {1});
  Compose(kFillIn, draws, "");
  EXPECT_EQ(Runs(quiz)[3], "Times New Roman 360 b-- c|\n");
  ExpectKey({" 1)  lava\n", "\n"}, "");
}

}  // namespace
}  // namespace brindlepage
