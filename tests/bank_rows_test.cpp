#include "quiz/bank_rows.h"

#include "tests/quiz_fixture.h"
#include "worksheet/compose.h"

namespace brindlepage {
namespace {

class BankRowsTest : public QuizTest {
 protected:
  std::string Rows(const Lines& words) {
    BankRows rows(quiz);
    for (const std::string& word : words) rows.PutBankWord(word);
    rows.Close();
    return PlainBytes(quiz);
  }
};

TEST_F(BankRowsTest, WordsStandAtOffsets1And26And51And76) {
  EXPECT_EQ(
      Rows({"lava", "ash", "magma", "vent"}),
      " lava" + Blanks(21) + "ash" + Blanks(22) + "magma" + Blanks(20) + "vent\n" + Blanks(6 + 70));
}

// The row's own 64 blanks, and no line end but the row's.
TEST_F(BankRowsTest, FourWordsFillARowExactlyAndABlankRowFollows) {
  Rows({"lava", "ash", "magma", "vent"});
  EXPECT_EQ(quiz.SelStart(), 1 + 4 + 21 + 3 + 22 + 5 + 20 + 4 + 1);
  EXPECT_EQ(quiz.Paragraphs().size(), 2u);
}

TEST_F(BankRowsTest, AFifthWordStandsAloneInASecondRowThatIsClosed) {
  EXPECT_EQ(Rows({"lava", "ash", "magma", "vent", "geyser"}),
            " lava" + Blanks(21) + "ash" + Blanks(22) + "magma" + Blanks(20) + "vent\n" +
                " geyser\n" + Blanks(69 + 6));
  EXPECT_EQ(quiz.SelStart(), 81 + 8);
}

// With three words of five characters in all the row ends at 75, before the fourth column.
TEST_F(BankRowsTest, AFirstRowOfVeryShortWordsTakesTheFourthAtItsEnd) {
  EXPECT_EQ(Rows({"a", "bb", "cc", "four"}),
            " a" + Blanks(24) + "bb" + Blanks(23) + "cc" + Blanks(22) + "four\n" + Blanks(70));
}

TEST_F(BankRowsTest, AFirstRowOfSixCharactersTakesTheFourthAtItsColumn) {
  EXPECT_EQ(Rows({"aa", "bb", "cc", "four"}),
            " aa" + Blanks(23) + "bb" + Blanks(23) + "cc" + Blanks(23) + "four\n" + Blanks(70));
}

TEST_F(BankRowsTest, AWordOf24CharactersLeavesTheColumnsStraight) {
  EXPECT_EQ(Rows({"abcdefghijklmnopqrstuvwx", "ash"}),
            " abcdefghijklmnopqrstuvwx" + Blanks(1) + "ash\n" + Blanks(68));
}

TEST_F(BankRowsTest, AWordOf26CharactersGetsTheNextInsertedInsideIt) {
  EXPECT_EQ(Rows({"abcdefghijklmnopqrstuvwxyz", "ash"}),
            " abcdefghijklmnopqrstuvwxyash\nz" + Blanks(69));
}

TEST_F(BankRowsTest, AHeaderAndItsUnderscoresMake70Characters) {
  WriteBankHeader(quiz, "Word Bank:");
  EXPECT_EQ(PlainBytes(quiz), "Word Bank:" + Underscores(60) + "\n");
  quiz.Text("");
  WriteBankHeader(quiz, "Matching Choices:");
  EXPECT_EQ(PlainBytes(quiz), "Matching Choices:" + Underscores(53) + "\n");
}

TEST_F(BankRowsTest, AHeaderGoesToTheEndOfTheSheet) {
  compose::AppendRun(quiz, "above\n");
  quiz.SelStart(0);
  WriteBankHeader(quiz, "Word Bank:");
  EXPECT_EQ(PlainBytes(quiz), "above\nWord Bank:" + Underscores(60) + "\n");
}

TEST_F(BankRowsTest, ABankEntryReseedsOnceAndIsDrawnUntilItIsNotEmpty) {
  Bank bank;
  bank(3) = "lava";
  GivenDraws draws;
  draws.Of(6, {1, 6, 3});
  EXPECT_EQ(PickBankWord(bank, 6, draws), 3);
  EXPECT_EQ(draws.Reseeds().size(), 1u);
}

}  // namespace
}  // namespace brindlepage
