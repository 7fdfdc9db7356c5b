#include "quiz/choose_meaning_quiz.h"

#include "tests/quiz_fixture.h"

namespace brindlepage {
namespace {

const std::string kDirections = "Directions: Choose the meaning that best matches the word.";

class ChooseMeaningQuiz : public QuizTest {
 protected:
  Lines Question(const std::string& number, const std::string& word, const Lines& choices) {
    const std::string margin = Blanks(15);
    return {kBody + "_____ " + number + ")  ",
            kBoldBody + word + "\n",
            kBody + margin + "A) " + choices[0] + "\n",
            kBody + margin + "B) " + choices[1] + "\n",
            kBody + margin + "C) " + choices[2] + "\n",
            kBody + margin + "D) " + choices[3] + "\n",
            kBody + "\n"};
  }
  static Lines Join(const std::vector<Lines>& questions) {
    Lines all;
    for (const Lines& lines : questions) all.insert(all.end(), lines.begin(), lines.end());
    return all;
  }
};

TEST_F(ChooseMeaningQuiz, ThreeQuestionsWithTheirKey) {
  UseVolcanoes();
  Mark({2, 5, 6});
  GivenDraws draws;
  // vent: each slot throws a number away, and what the slot before took is refused. The right
  // meaning is drawn for slot 1 and stands in slot 3 as well.
  draws.Of(6, {5});
  draws.Unused().Of(6, {5});
  draws.Unused().Of(6, {1});
  draws.Unused().Of(6, {1, 3});
  draws.Unused().Of(6, {6});
  draws.Of(4, {3});
  // ash: the hot spring stood last and is refused, then its own meaning comes.
  draws.Of(6, {5, 2});
  draws.Unused().Of(6, {4});
  draws.Unused().Of(6, {2});
  draws.Unused().Of(6, {3});
  draws.Unused().Of(6, {6, 1});
  draws.Of(4, {4});
  // geyser: the melted rock was overwritten in slot 4 and comes first with no draw.
  draws.Of(6, {6});
  draws.Unused();
  draws.Unused().Of(6, {5});
  draws.Unused().Of(6, {4});
  draws.Unused().Of(6, {3});
  draws.Of(4, {2});
  Compose(kChooseMeaning, draws);
  ExpectSheet(
      kDirections,
      Join({Question("1", "vent", {"an opening", "melted rock", "an opening", "a hot spring"}),
            Question("2", "ash", {"a deep mouth", "grey dust", "rock below", "grey dust"}),
            Question("3", "geyser",
                     {"melted rock", "a hot spring", "a deep mouth", "rock below"})}));
  ExpectKey({" 1)  C\n", " 2)  D\n", " 3)  B\n"});
  EXPECT_EQ(shared.AnswerTable(1), 3);
  EXPECT_EQ(shared.AnswerTable(2), 4);
  EXPECT_EQ(shared.AnswerTable(3), 2);
  EXPECT_EQ(draws.Reseeds().size(), 3u);
}

TEST_F(ChooseMeaningQuiz, AMeaningThatIsTheWordAndAnEmptyOneAreRefused) {
  UseList({{"sun", "a star"},
           {"moon", ""},
           {"star", "sun"},
           {"comet", "ice"},
           {"orbit", "path"},
           {"axis", "line"}});
  Mark({1});
  GivenDraws draws;
  draws.Of(6, {1});
  draws.Unused().Of(6, {2, 3, 4});
  draws.Unused().Of(6, {2, 5});
  draws.Unused().Of(6, {6});
  draws.Unused().Of(6, {2, 1});
  draws.Of(4, {1});
  Compose(kChooseMeaning, draws);
  ExpectSheet(kDirections, Question("1", "sun", {"a star", "path", "line", "a star"}));
  ExpectKey({" 1)  A\n"});
}

// From the second question on no slot is unfilled.
TEST_F(ChooseMeaningQuiz, AnEmptyMeaningCanBeAChoiceInTheSecondQuestion) {
  UseVolcanoes();
  shared.ListMeanings(6) = "";
  Mark({1, 2});
  GivenDraws draws;
  draws.Of(6, {1});
  for (const int drawn : {2, 3, 4, 5}) draws.Unused().Of(6, {drawn});
  draws.Of(4, {1});
  // melted rock, rock below, a deep mouth, an opening
  draws.Of(6, {2});
  draws.Unused().Of(6, {6});
  draws.Unused().Of(6, {1});
  draws.Unused().Of(6, {3});
  draws.Unused().Of(6, {4});
  draws.Of(4, {4});
  Compose(kChooseMeaning, draws);
  ExpectSheet(
      kDirections,
      Join({Question("1", "lava", {"melted rock", "rock below", "a deep mouth", "an opening"}),
            Question("2", "ash", {"", "melted rock", "rock below", "grey dust"})}));
}

TEST_F(ChooseMeaningQuiz, WithThreeDifferentMeaningsTheDrawsNeverEnd) {
  UseVolcanoes();
  for (int word = 4; word <= 6; ++word) shared.ListMeanings(word) = "grey dust";
  Mark({1});
  GivenDraws draws;
  draws.Of(6, {1}).AllOf(6, 1000);
  EXPECT_THROW(Compose(kChooseMeaning, draws), DrawsUsedUp);
}

TEST_F(ChooseMeaningQuiz, FourDifferentMeaningsCanDoForOneQuestion) {
  UseVolcanoes();
  shared.ListWordCount = 4;
  Mark({1});
  GivenDraws draws;
  draws.Of(4, {1});
  for (const int drawn : {4, 3, 2, 1}) draws.Unused().Of(4, {drawn});
  draws.Of(4, {4});
  Compose(kChooseMeaning, draws);
  ExpectSheet(kDirections,
              Question("1", "lava", {"a deep mouth", "rock below", "grey dust", "melted rock"}));
}

// The answer fell on the slot where its meaning stood already, so that all four stand there.
TEST_F(ChooseMeaningQuiz, WithFourDifferentMeaningsTheLastQuestionCanCloseEveryWayOut) {
  UseVolcanoes();
  shared.ListWordCount = 4;
  Mark({1, 2});
  GivenDraws draws;
  draws.Of(4, {1});
  for (const int drawn : {4, 3, 2, 1}) draws.Unused().Of(4, {drawn});
  draws.Of(4, {4});
  draws.Of(4, {2}).AllOf(4, 1000);
  EXPECT_THROW(Compose(kChooseMeaning, draws), DrawsUsedUp);
}

}  // namespace
}  // namespace brindlepage
