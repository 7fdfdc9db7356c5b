#include "scramble_code/code_sheet.h"

#include <memory>

#include "scramble_code/secret_code.h"
#include "tests/expect_fault.h"
#include "tests/sheet_runs.h"
#include "tests/told_draws.h"

namespace brindlepage {
namespace {

const std::string kRule61(61, '_');
const std::string kRule70(70, '_');

class CodeSheet : public testing::Test {
 protected:
  CodeSheet() { shared.WorksheetTitle = "Our Code"; }

  // The draws of a table in which A is 26, B is 25, ... Z is 1.
  static std::vector<ToldDraws::Step> BackwardsTable() {
    std::vector<ToldDraws::Step> steps = {kReseed};
    for (int number = 26; number >= 1; --number) steps.push_back({number, 26});
    return steps;
  }
  void Riddle(const char* riddle, const char* answer) {
    ++shared.CodedRiddleCount;
    shared.CodedRiddles(shared.CodedRiddleCount) = riddle;
    shared.CodedAnswers(shared.CodedRiddleCount) = answer;
  }

  // Name line and title, and the directions under them.
  static std::vector<std::string> Top(const std::string& directions) {
    return {
        "Times New Roman 200 --- c|\n", "Times New Roman 200 --- c|" + kNarrow + "\n",
        "Times New Roman 360 b-- c|\n", "Times New Roman 360 b-- c|Our Code\n",
        "Times New Roman 240 bi- l|\n", "Times New Roman 240 bi- l|" + directions + "\n",
        "Times New Roman 240 bi- l|\n",
    };
  }
  static std::vector<std::string> KeyBlock() {
    return {
        "Courrier New 200 b-u l|Code Key:" + kRule61,
        "Courrier New 200 b-- l|\n",
        "Courrier New 200 b-- l| 1=Z       2=Y       3=X       4=W       5=V       6=U      \n",
        "Courrier New 200 b-- l| 7=T       8=S       9=R       10=Q      11=P      12=O     \n",
        "Courrier New 200 b-- l| 13=N      14=M      15=L      16=K      17=J      18=I     \n",
        "Courrier New 200 b-- l| 19=H      20=G      21=F      22=E      23=D      24=C     \n",
        "Courrier New 200 b-- l| 25=B      26=A     \n",
        "Courrier New 200 b-- l|" + kRule70 + "\n",
    };
  }
  static std::vector<std::string> KeyTop() {
    return {
        "Times New Roman 320 --- c|\n",
        "Times New Roman 320 --- c|Our Code\n",
        "Times New Roman 280 --u c|Answer Key\n",
        "Times New Roman 280 --u c|\n",
    };
  }
  static std::vector<std::string> Joined(std::vector<std::vector<std::string>> parts) {
    std::vector<std::string> all;
    for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
  }
  static std::vector<std::string> Lines(const char* format, std::vector<std::string> lines) {
    for (std::string& line : lines) line = format + ("|" + line) + "\n";
    return lines;
  }

  std::unique_ptr<SharedState> state = std::make_unique<SharedState>();
  SharedState& shared = *state;
  RichText box{"Courier New", 9.75};
  RichText key{"Times New Roman", 14.25};
};

constexpr char kPlain10[] = "Times New Roman 200 --- l";
constexpr char kPlain14[] = "Times New Roman 280 --- l";

TEST_F(CodeSheet, SecretCodeSheetAndKey) {
  shared.ActivityKind = kSecretCode;
  shared.ListWordCount = 3;
  shared.ListWords(1) = "lava";
  shared.ListMeanings(1) = "Hot rock!";
  shared.ListWords(2) = "steam";
  shared.ListMeanings(2) = "not marked";
  shared.ListWords(3) = "ash";
  shared.ListMeanings(3) = "1902";
  shared.WordMarks(1) = 1;
  shared.WordMarks(3) = 1;
  shared.MarkedCount = 2;
  ToldDraws random(BackwardsTable());
  random.Then({kReseed, {2, 3}, {3, 3}, kReseed, {3, 3}, {2, 3}, {1, 3}});
  ComposeCodeSheet(shared, random, box);
  EXPECT_EQ(
      Runs(box),
      Joined({Top("Directions: Use the code key to decypher the word's meaning, then write the "
                  "vocabulary word in the blank."),
              KeyBlock(),
              Lines(kPlain10,
                    {"", " 1)  ________________ -- 1902", "", "", "",
                     " 2)  ________________ -- [19][12][7]  [9][12][24][16]!", "", "", ""})}));
  EXPECT_EQ(shared.WordMarks(1), 0);
  EXPECT_EQ(shared.WordMarks(3), 0);
  EXPECT_EQ(shared.AnswerTable(1), 3);
  EXPECT_EQ(shared.AnswerTable(2), 1);
  EXPECT_EQ(shared.WorkMeaning, "[19][12][7]  [9][12][24][16]!");

  MakeCodeAnswers(shared, key);
  EXPECT_EQ(Runs(key), Joined({KeyTop(), Lines(kPlain14, {" 1)  ash", "", " 2)  lava", ""})}));
}

TEST_F(CodeSheet, CodedRiddlesSheetAndKey) {
  shared.ActivityKind = kCodedRiddles;
  Riddle("How did the race end?", "In a tie");
  Riddle("What has a spine?", "2 Books");
  ToldDraws random(BackwardsTable());
  ComposeCodeSheet(shared, random, box);
  EXPECT_EQ(
      Runs(box),
      Joined({Top("Directions: Use the code key to decypher the riddles below."), KeyBlock(),
              Lines(kPlain10,
                    {"", " 1)  How did the race end?", "", "      [18][13]  [26]  [7][18][22]", "",
                     "", " 2)  What has a spine?", "", "      2  [25][12][12][16][8]", "", ""})}));

  MakeCodeAnswers(shared, key);
  EXPECT_EQ(Runs(key),
            Joined({KeyTop(), Lines(kPlain14, {" 1)  How did the race end?", "      In a tie", "",
                                               " 2)  What has a spine?", "      2 Books", ""})}));
}

TEST_F(CodeSheet, CryptoquipSheetAndKey) {
  shared.ActivityKind = kCryptoquip;
  Riddle("How did the race end?", "In a tie");
  Riddle("What has a spine?", "2 Books");
  ToldDraws random(BackwardsTable());
  // The pairs: N with the blank behind it, again, N and T; then O, O again, K.
  random.Then({{2, 8}, {3, 8}, {2, 8}, {6, 8}, {4, 7}, {5, 7}, {6, 7}});
  ComposeCodeSheet(shared, random, box);
  EXPECT_EQ(
      Runs(box),
      Joined({Top("Directions: Try to decypher the riddles below. Each letter represents another. "
                  "Two clues are given for each riddle to get you started. Good luck!"),
              {"Courrier New 200 b-- l|\n"},
              Lines(kPlain10, {"", " 1)  How did the race end?", "      Hint: M = N and G = T", "",
                               "      RM  Z  GRV", "", "", " 2)  What has a spine?",
                               "      Hint: L = O and P = K", "", "      2  YLLPH", "", ""})}));

  MakeCodeAnswers(shared, key);
  EXPECT_EQ(Runs(key),
            Joined({KeyTop(), Lines(kPlain14, {" 1)  How did the race end?", "      In a tie", "",
                                               " 2)  What has a spine?", "      2 Books", ""})}));
}

TEST_F(CodeSheet, ARiddleIsCodedOnlyWhereTheHintIsSet) {
  shared.ActivityKind = kCodedRiddles;
  shared.CodedRiddleHint = 1;
  Riddle("Who?", "I");
  ToldDraws random(BackwardsTable());
  ComposeCodeSheet(shared, random, box);
  EXPECT_NE(PlainBytes(box).find("\n 1)  [4][19][12]?\n\n      [18]\n\n\n"), std::string::npos);
}

TEST_F(CodeSheet, AMeaningKeepsItsBlanksEachDoubled) {
  shared.ActivityKind = kSecretCode;
  shared.ListWordCount = 1;
  shared.ListMeanings(1) = "a   b";
  shared.WordMarks(1) = 1;
  shared.MarkedCount = 1;
  ToldDraws random(BackwardsTable());
  random.Then({kReseed, {1, 1}});
  ComposeCodeSheet(shared, random, box);
  EXPECT_NE(PlainBytes(box).find(" -- [26]      [25]\n\n\n\n"), std::string::npos);
}

TEST_F(CodeSheet, AnEmptyMeaningLeavesTheLineOpen) {
  shared.ActivityKind = kSecretCode;
  shared.ListWordCount = 1;
  shared.WordMarks(1) = 1;
  shared.MarkedCount = 1;
  ToldDraws random(BackwardsTable());
  random.Then({kReseed, {1, 1}});
  ComposeCodeSheet(shared, random, box);
  EXPECT_NE(PlainBytes(box).find("\n 1)  ________________ -- \n\n\n\n"), std::string::npos);
}

TEST_F(CodeSheet, TwentyRiddlesStandInTheOrderOfAdding) {
  shared.ActivityKind = kCodedRiddles;
  for (int i = 1; i <= 20; ++i) Riddle(i % 2 ? "odd" : "even", "yes");
  SeededRandom random(1);
  ComposeCodeSheet(shared, random, box);
  const std::string text = PlainBytes(box);
  EXPECT_NE(text.find(" 19)  odd\n"), std::string::npos);
  EXPECT_NE(text.find(" 20)  even\n"), std::string::npos);
}

TEST_F(CodeSheet, ACryptoquipAnswerOfOneLetterNeverEnds) {
  shared.ActivityKind = kCryptoquip;
  Riddle("Who is it?", "I");
  EndlessDraws random;
  EXPECT_THROW(ComposeCodeSheet(shared, random, box), EndlessDraws::NeverEnds);
}

TEST_F(CodeSheet, TheSameAnswerIsNoTroubleInNumbers) {
  shared.ActivityKind = kCodedRiddles;
  Riddle("Who is it?", "I");
  EndlessDraws random;
  ComposeCodeSheet(shared, random, box);
}

TEST_F(CodeSheet, ABracketInACryptoquipAnswerIsFatalWhenItIsDrawn) {
  shared.ActivityKind = kCryptoquip;
  Riddle("Who is it?", "[a");
  ToldDraws random(BackwardsTable());
  random.Then({{1, 2}, {2, 2}});
  EXPECT_FAULT(9, ComposeCodeSheet(shared, random, box));
}

// Decodes what stands behind " -- " with the table printed on the sheet.
std::string Decode(const std::string& coded, const std::string& sheet) {
  std::string text;
  for (std::size_t i = 0; i < coded.size(); ++i) {
    if (coded[i] != '[') {
      text += coded[i];
      if (coded[i] == ' ') ++i;
      continue;
    }
    const std::size_t end = coded.find(']', i);
    const std::string entry = " " + coded.substr(i + 1, end - i - 1) + "=";
    text += sheet[sheet.find(entry) + entry.size()];
    i = end;
  }
  return text;
}

TEST_F(CodeSheet, EverySheetIsDecodedByTheKeyPrintedOnIt) {
  shared.ActivityKind = kSecretCode;
  shared.ListWordCount = 3;
  const std::string meanings[] = {"", "sphinx of black quartz", "judge my vow", "hot, 2 wet"};
  const std::string capitals[] = {"", "SPHINX OF BLACK QUARTZ", "JUDGE MY VOW", "HOT, 2 WET"};
  for (int i = 1; i <= 3; ++i) shared.ListMeanings(i) = meanings[i];
  shared.MarkedCount = 3;
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    for (int i = 1; i <= 3; ++i) shared.WordMarks(i) = 1;
    SeededRandom random(seed);
    ComposeCodeSheet(shared, random, box);
    const std::string sheet = PlainBytes(box);
    std::size_t at = 0;
    for (int line = 1; line <= 3; ++line) {
      at = sheet.find(" -- ", at) + 4;
      const std::string coded = sheet.substr(at, sheet.find('\n', at) - at);
      const auto word = static_cast<std::size_t>(shared.AnswerTable(line));
      ASSERT_EQ(Decode(coded, sheet), capitals[word]) << "seed " << seed;
    }
  }
}

}  // namespace
}  // namespace brindlepage
