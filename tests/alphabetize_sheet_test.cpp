#include "quiz/alphabetize_sheet.h"

#include "tests/quiz_fixture.h"

namespace brindlepage {
namespace {

const std::string kDirections = "Directions: Put the words below in alphabetical order.";

class AlphabetizeSheet : public QuizTest {
 protected:
  // The sheet around the rows of its words, with the blanks that are left of them.
  Lines Sheet(const Lines& rows, int words, int blanks_left) {
    Lines lines;
    for (const std::string& row : rows) lines.push_back(kBoldRow + row + "\n");
    lines.push_back("Courrier New 200 b-u c|" + Underscores(70) + "\n");
    lines.insert(lines.end(), {kBody + "\n", kBody + "\n"});
    for (int number = 1; number <= words; ++number) {
      lines.push_back(kBody + " " + std::to_string(number) + ") ______________________\n");
      lines.push_back(kBody + "\n");
    }
    lines.push_back(kBoldRow + Blanks(blanks_left));
    return lines;
  }
};

TEST_F(AlphabetizeSheet, FourWordsInDrawnOrderAndTheKeySorted) {
  UseList({{"zebra", "1"}, {"Apple", "2"}, {"banana", "3"}, {"cherry", "4"}});
  Mark({1, 2, 3, 4});
  GivenDraws draws;
  draws.Of(4, {1}).Of(4, {1, 3}).Of(4, {4}).Of(4, {3, 2});
  Compose(kAlphabetizeSheet, draws);
  ExpectSheet(kDirections, Sheet({" zebra" + Blanks(20) + "banana" + Blanks(19) + "cherry" +
                                  Blanks(19) + "Apple"},
                                 4, 11 + 70));
  ExpectKey(
      {" 1)  Apple\n", "\n", " 2)  banana\n", "\n", " 3)  cherry\n", "\n", " 4)  zebra\n", "\n"});
  EXPECT_EQ(shared.AnswerTable(1), 1);
  EXPECT_EQ(shared.AnswerTable(2), 3);
  EXPECT_EQ(shared.AnswerTable(3), 4);
  EXPECT_EQ(shared.AnswerTable(4), 2);
  EXPECT_EQ(draws.Reseeds().size(), 4u);
}

TEST_F(AlphabetizeSheet, FiveWordsMakeASecondRowAndAccentsStandBesideTheirLetters) {
  UseList({{"pear", ""}, {"Apple", ""}, {"\xE9t\xE9", ""}, {"egg", ""}, {"apple pie", ""}});
  Mark({1, 2, 3, 4, 5});
  GivenDraws draws;
  for (const int word : {3, 1, 5, 4, 2}) draws.Of(5, {word});
  Compose(kAlphabetizeSheet, draws);
  ExpectSheet(kDirections, Sheet({" \xE9t\xE9" + Blanks(22) + "pear" + Blanks(21) + "apple pie" +
                                      Blanks(16) + "egg",
                                  " Apple"},
                                 5, 69 + 10));
  ExpectKey({" 1)  Apple\n", "\n", " 2)  apple pie\n", "\n", " 3)  egg\n", "\n", " 4)  \xE9t\xE9\n",
             "\n", " 5)  pear\n", "\n"});
}

}  // namespace
}  // namespace brindlepage
