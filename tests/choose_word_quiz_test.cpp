#include "quiz/choose_word_quiz.h"

#include "tests/expect_fault.h"
#include "tests/quiz_fixture.h"

namespace brindlepage {
namespace {

const std::string kDirections = "Directions: Choose the word that best matches the meaning.";

using ChooseWordQuiz = QuizTest;

// Of the rows' blanks 57, 59, 58 and 57 stay behind the caret.
TEST_F(ChooseWordQuiz, TwoQuestionsWithTheirKey) {
  UseVolcanoes();
  Mark({2, 5});
  GivenDraws draws;
  // vent: not itself, not lava twice; the answer takes magma's place.
  draws.Of(6, {1, 5}).Of(6, {5, 1}).Of(6, {1, 3}).Of(6, {4}).Of(6, {6}).Of(4, {2});
  // ash: nothing that stood in the same or a later slot one question before.
  draws.Of(6, {5, 2}).Of(6, {1, 6, 2, 3}).Of(6, {1}).Of(6, {5}).Of(6, {6, 4}).Of(4, {4});
  Compose(kChooseWord, draws);
  ExpectSheet(
      kDirections,
      {kBody + "_____ 1)  an opening\n", kRow + Blanks(10) + "A) lava" + Blanks(23) + "B) vent\n",
       kRow + Blanks(10) + "C) crater" + Blanks(21) + "D) geyser\n", kRow + "\n",
       kBody + "_____ 2)  grey dust\n", kRow + Blanks(10) + "A) magma" + Blanks(22) + "B) lava\n",
       kRow + Blanks(10) + "C) vent" + Blanks(23) + "D) ash\n", kRow + "\n",
       kRow + Blanks(57 + 59 + 58 + 57)});
  ExpectKey({" 1)  B\n", " 2)  D\n"});
  EXPECT_EQ(shared.AnswerTable(1), 2);
  EXPECT_EQ(shared.AnswerTable(2), 4);
  EXPECT_EQ(draws.Reseeds().size(), 2u);
}

// Its last letter ends among the blanks at the end of the sheet.
TEST_F(ChooseWordQuiz, AWordOf28CharactersInSlotAGetsTheBTextInsertedInsideIt) {
  UseVolcanoes();
  shared.ListWords(1) = "abcdefghijklmnopqrstuvwxyz01";
  Mark({3});
  GivenDraws draws;
  draws.Of(6, {3}).Of(6, {1, 2, 5, 4}).Of(4, {3});
  Compose(kChooseWord, draws);
  ExpectSheet(kDirections, {kBody + "_____ 1)  rock below\n",
                            kRow + Blanks(10) + "A) abcdefghijklmnopqrstuvwxyz0B) ash\n",
                            kRow + Blanks(10) + "C) magma" + Blanks(22) + "D) crater\n",
                            kRow + "\n", kRow + Blanks(58) + "1" + Blanks(80)});
  ExpectKey({" 1)  C\n"});
}

TEST_F(ChooseWordQuiz, AWordOf28CharactersInSlotCGetsTheDTextInsertedInsideIt) {
  UseVolcanoes();
  shared.ListWords(1) = "abcdefghijklmnopqrstuvwxyz01";
  Mark({3});
  GivenDraws draws;
  draws.Of(6, {3}).Of(6, {2, 5, 1, 4}).Of(4, {1});
  Compose(kChooseWord, draws);
  ExpectSheet(kDirections, {kBody + "_____ 1)  rock below\n",
                            kRow + Blanks(10) + "A) magma" + Blanks(22) + "B) vent\n",
                            kRow + Blanks(10) + "C) abcdefghijklmnopqrstuvwxyz0D) crater\n",
                            kRow + "\n", kRow + "1" + Blanks(80 + 58)});
  ExpectKey({" 1)  A\n"});
}

TEST_F(ChooseWordQuiz, AWordOf27CharactersStandsWholeWithTheBTextRightBehindIt) {
  UseVolcanoes();
  shared.ListWords(1) = "abcdefghijklmnopqrstuvwxyz0";
  Mark({3});
  GivenDraws draws;
  draws.Of(6, {3}).Of(6, {1, 2, 5, 4}).Of(4, {4});
  Compose(kChooseWord, draws);
  EXPECT_EQ(Runs(quiz)[9], kRow + Blanks(10) + "A) abcdefghijklmnopqrstuvwxyz0B) ash\n");
  EXPECT_EQ(Runs(quiz).back(), kRow + Blanks(57 + 80));
}

TEST_F(ChooseWordQuiz, WordsThatAreNotMarkedServeAsWrongChoices) {
  UseVolcanoes();
  Mark({1});
  GivenDraws draws;
  draws.Of(6, {1}).Of(6, {6, 5, 4, 3}).Of(4, {1});
  Compose(kChooseWord, draws);
  const std::string text = PlainBytes(quiz);
  for (const char* choice : {"A) lava", "B) vent", "C) crater", "D) magma"}) {
    EXPECT_NE(text.find(choice), std::string::npos) << choice;
  }
}

TEST_F(ChooseWordQuiz, WithFourDifferentWordsTheDrawsNeverEnd) {
  UseVolcanoes();
  shared.ListWords(5) = "lava";
  shared.ListWords(6) = "ash";
  Mark({1});
  GivenDraws draws;
  draws.Of(6, {1}).AllOf(6, 1000);
  EXPECT_THROW(Compose(kChooseWord, draws), DrawsUsedUp);
}

// All five stood in the first question but ash, which is the second one's word.
TEST_F(ChooseWordQuiz, WithFiveDifferentWordsTheLastQuestionCanCloseEveryWayOut) {
  UseVolcanoes();
  shared.ListWordCount = 5;
  Mark({1, 2});
  GivenDraws draws;
  draws.Of(5, {1}).Of(5, {2, 3, 4, 5}).Of(4, {1});
  draws.Of(5, {2}).AllOf(5, 1000);
  EXPECT_THROW(Compose(kChooseWord, draws), DrawsUsedUp);
}

// Each slot takes what the slot before gave up; vent, which can't be used, is the last to be freed.
TEST_F(ChooseWordQuiz, WithFiveDifferentWordsThereCanBeAWayOut) {
  UseVolcanoes();
  shared.ListWordCount = 5;
  Mark({1, 5});
  GivenDraws draws;
  draws.Of(5, {1}).Of(5, {2, 3, 4, 5}).Of(4, {1});
  draws.Of(5, {5}).Of(5, {1, 3, 4, 5, 2}).Of(5, {2, 1}).Of(5, {3}).Of(5, {4}).Of(4, {2});
  Compose(kChooseWord, draws);
  ExpectKey({" 1)  A\n", " 2)  B\n"});
  const std::string text = PlainBytes(quiz);
  EXPECT_NE(text.find("A) ash"), std::string::npos);
  EXPECT_NE(text.rfind("C) magma"), std::string::npos);
}

// --- The caret is kept in 16 bits.

class ChooseWordCaret : public QuizTest {
 protected:
  // In an otherwise empty box the second row starts behind "_____ 1)  ", the meaning, a line end,
  // 40 characters of the first row and "B) vent" with its line end.
  void ComposeSecondRowAt(int row_start) {
    UseVolcanoes();
    shared.ListMeanings(3) = std::string(row_start - 10 - 1 - 40 - 8, 'x');
    Mark({3});
    GivenDraws draws;
    draws.Of(6, {3}).Of(6, {1, 5, 2, 4}).Of(4, {4});
    MakeChooseWordQuiz(shared, draws, quiz);
  }
};

TEST_F(ChooseWordCaret, ARowThatStartsAt32727IsWritten) {
  ComposeSecondRowAt(32727);
  EXPECT_EQ(quiz.SelStart(), 32727 + 40 + 8 + 2);  // behind "D) magma" and two line ends
  EXPECT_EQ(shared.AnswerTable(1), 4);
}

TEST_F(ChooseWordCaret, ARowThatStartsBeyond32727OverflowsAtItsRightColumn) {
  EXPECT_FAULT(6, ComposeSecondRowAt(32728));
  EXPECT_TRUE(PlainBytes(quiz).find("C) ash") != std::string::npos);
}

TEST_F(ChooseWordCaret, ARowThatStartsBeyond32757OverflowsAtItsLeftColumn) {
  EXPECT_FAULT(6, ComposeSecondRowAt(32758));
  EXPECT_TRUE(PlainBytes(quiz).find("C) ash") == std::string::npos);
}

TEST_F(ChooseWordCaret, ARowThatStartsBeyond32767OverflowsAtOnce) {
  EXPECT_FAULT(6, ComposeSecondRowAt(32768));
  // The blanks of the first row alone.
  EXPECT_EQ(quiz.Length(), 32768 + 90 - 33);
}

}  // namespace
}  // namespace brindlepage
