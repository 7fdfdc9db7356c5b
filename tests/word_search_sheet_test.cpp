#include "wordsearch/word_search_sheet.h"

#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <string>
#include <vector>

#include "tests/given_draws.h"
#include "tests/sheet_runs.h"
#include "wordsearch/puzzle_builder.h"

namespace brindlepage {
namespace {

std::vector<std::string> LinesOf(const RichText& box) {
  std::vector<std::string> lines{""};
  for (const char32_t c : box.PlainText()) {
    if (c == U'\n') {
      lines.emplace_back();
    } else {
      lines.back() += static_cast<char>(c);
    }
  }
  return lines;
}

std::string Blanks(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

class WordSearchSheetTest : public ::testing::Test {
 protected:
  void UseWords(const std::vector<std::string>& words) {
    int number = 0;
    for (const std::string& word : words) {
      shared.ListWords(++number) = word;
      shared.ListMeanings(number) = "meaning of " + word;
    }
    shared.MarkedCount = number;
  }
  void UseSize(int across, int down) {
    shared.PuzzleAcross = across;
    shared.PuzzleDown = down;
  }
  // Where the word bank's rows begin: behind its heading's two line ends.
  std::vector<std::string> WordBank(int kind) {
    shared.WordBankKind = kind;
    word_search::MakeWordBank(box, shared);
    auto lines = LinesOf(box);
    EXPECT_EQ(lines[0], "");
    EXPECT_EQ(lines[1], "Word Bank:" + std::string(80, '_'));
    return {lines.begin() + 2, lines.end()};
  }

  SharedState shared;
  PuzzleGrid grid;
  GivenDraws draws;
  RichText box{"Courier New", 9.75};
  RichText key{"Courier New", 12};
  const std::string rule = std::string(90, '_');
};

// --- Heading

TEST_F(WordSearchSheetTest, TheTitleAloneIsInTimesNewRoman) {
  word_search::WriteHeading(box, "Planets Word Search");
  EXPECT_EQ(Runs(box),
            (std::vector<std::string>{
                "Courier New 200 b-- c|\n",
                "Courier New 200 b-- c|Name_____________________________     "
                "Date_______________\n",
                "Courier New 200 b-- c|\n",
                "Times New Roman 360 b-- c|Planets Word Search\n",
                "Courier New 195 --- r|\n",
                "Courier New 195 bi- c|\n",
                "Courier New 195 bi- c|Directions: Find and circle each of the words listed below "
                "the puzzle.\n",
                "Courier New 195 bi- c|\n",
                "Courier New 195 bi- c|\n",
            }));
}

TEST_F(WordSearchSheetTest, AnEmptiedHeadingGivesAnEmptyTitleLine) {
  word_search::WriteHeading(box, "");
  EXPECT_EQ(Runs(box)[3], "Times New Roman 360 b-- c|\n");
}

// --- Rows

TEST_F(WordSearchSheetTest, ARowHasABlankBeforeEachLetterAndNoneAtItsEnd) {
  UseSize(4, 3);
  grid.Write("Cat", {1, 2, Direction::Across});
  draws.Letters("ABYZ");
  draws.Letters("Q");
  draws.Letters("MNOP");
  word_search::WritePuzzleRows(box, shared, grid, draws);
  EXPECT_EQ(Runs(box), (std::vector<std::string>{
                           "Courier New 240 --- c| A B Y Z\n",
                           "Courier New 240 --- c| C A T Q\n",
                           "Courier New 240 --- c| M N O P\n",
                       }));
  // Anew for each row.
  EXPECT_EQ(draws.Reseeds(), (std::vector<std::size_t>{0, 4, 5}));
  EXPECT_EQ(draws.Left(), 0U);
}

TEST_F(WordSearchSheetTest, AccentedLettersAreCapitalsOnTheSheetAndAsInTheListInTheKey) {
  UseSize(4, 1);
  grid.Write("\xE9t\xE9", {1, 1, Direction::Across});
  draws.Letters("Z");
  word_search::WritePuzzleRows(box, shared, grid, draws);
  word_search::MakePuzzleKey(key, shared, grid);
  EXPECT_EQ(box.PlainText(), U" \u00C9 T \u00C9 Z\n");
  EXPECT_EQ(key.PlainText(), U"\n\n\nAnswer Key\n\n \u00E9 t \u00E9 *\n");
}

TEST_F(WordSearchSheetTest, AKeptBlankIsAGapOnTheSheetAndABoldBlankInTheKey) {
  UseSize(5, 1);
  grid.Write("a b", {1, 1, Direction::Across});
  draws.Letters("YZ");
  word_search::WritePuzzleRows(box, shared, grid, draws);
  word_search::MakePuzzleKey(key, shared, grid);
  EXPECT_EQ(LinesOf(box)[0], " A   B Y Z");
  const auto runs = Runs(key);
  EXPECT_EQ(runs[runs.size() - 2], "Courier New 240 b-- c| a   b");
  EXPECT_EQ(runs.back(), "Courier New 240 --- c| * *\n");
}

TEST_F(WordSearchSheetTest, HyphensApostrophesAndDigitsStandAsTheyAre) {
  UseSize(6, 1);
  grid.Write("o'3-x", {1, 1, Direction::Across});
  draws.Letters("K");
  word_search::WritePuzzleRows(box, shared, grid, draws);
  EXPECT_EQ(LinesOf(box)[0], " O ' 3 - X K");
}

TEST_F(WordSearchSheetTest, TheFillersReachFromAToZ) {
  UseSize(2, 1);
  class Ends : public DrawByDraw {
   public:
    float Draw() override { return ++count_ == 1 ? 0.0F : 0x1.FFFFFEp-1F; }
    void Reseed() override {}

   private:
    int count_ = 0;
  } ends;
  word_search::WritePuzzleRows(box, shared, grid, ends);
  EXPECT_EQ(LinesOf(box)[0], " A Z");
}

// --- Key

TEST_F(WordSearchSheetTest, TheKeyShowsTheWordsInBoldBetweenStars) {
  UseSize(4, 3);
  shared.WorksheetTitle = "Pets";
  grid.Write("Cat", {1, 2, Direction::Across});
  grid.Write("at", {4, 1, Direction::Down});
  word_search::MakePuzzleKey(key, shared, grid);
  EXPECT_EQ(Runs(key), (std::vector<std::string>{
                           "Courier New 240 --- c|\n",
                           "Courier New 240 --- c|\n",
                           "Courier New 240 --- c|Pets\n",
                           "Courier New 240 --- c|Answer Key\n",
                           "Courier New 240 --- c|\n",
                           "Courier New 240 --- c| * * *",
                           "Courier New 240 b-- c| a",
                           "Courier New 240 --- c|\n",
                           "Courier New 240 b-- c| C a t t",
                           "Courier New 240 --- c|\n",
                           "Courier New 240 --- c| * * * *\n",
                       }));
}

// --- Word bank

TEST_F(WordSearchSheetTest, TheWordBankHeadingFillsItsLineInBoldAndUnderlined) {
  UseWords({"lava"});
  shared.WordBankKind = 2;
  word_search::MakeWordBank(box, shared);
  EXPECT_EQ(Runs(box), (std::vector<std::string>{
                           "Courier New 200 b-u l|\n",
                           "Courier New 200 b-u l|Word Bank:" + std::string(80, '_') + "\n",
                           "Courier New 200 --- l| 1)  meaning of lava\n",
                           "Courier New 200 --- l|" + rule,
                       }));
}

TEST_F(WordSearchSheetTest, MeaningsAreNumberedInTheOrderOfTheWords) {
  UseWords({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"});
  shared.ListMeanings(2) = "";
  const auto lines = WordBank(2);
  EXPECT_EQ(lines[0], " 1)  meaning of a");
  EXPECT_EQ(lines[1], " 2)  ");
  EXPECT_EQ(lines[9], " 10)  meaning of j");
  EXPECT_EQ(lines[10], rule);
  EXPECT_EQ(lines.size(), 11U);
}

TEST_F(WordSearchSheetTest, NoBreakIsPutIntoALongMeaning) {
  UseWords({"lava"});
  shared.ListMeanings(1) = std::string(400, 'm');
  EXPECT_EQ(WordBank(2)[0], " 1)  " + std::string(400, 'm'));
}

TEST_F(WordSearchSheetTest, WordsStandAtOffsets1And26And51And76AsTheListHasThem) {
  UseWords({"Lava", "ash", "CRATER", "magma"});
  const auto lines = WordBank(1);
  EXPECT_EQ(lines[0], " Lava" + Blanks(21) + "ash" + Blanks(22) + "CRATER" + Blanks(19) + "magma");
  EXPECT_EQ(lines[0].find("ash"), 26U);
  EXPECT_EQ(lines[0].find("CRATER"), 51U);
  EXPECT_EQ(lines[0].find("magma"), 76U);
}

TEST_F(WordSearchSheetTest, OneWordHasTheRuleOnTheNextLineInFrontOfWhatIsLeftOfTheBlanks) {
  UseWords({"lava"});
  const auto lines = WordBank(1);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], " lava");
  EXPECT_EQ(lines[1], rule + Blanks(89));
  EXPECT_EQ(box.SelStart(), box.Length() - 89);
}

TEST_F(WordSearchSheetTest, NineWordsMakeThreeLinesAndTheRuleComesAfterTheLastWord) {
  UseWords({"aa", "bb", "cc", "dd", "ee", "ff", "gg", "hh", "ii"});
  const auto lines = WordBank(1);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0], " aa" + Blanks(23) + "bb" + Blanks(23) + "cc" + Blanks(23) + "dd");
  EXPECT_EQ(lines[1], " ee" + Blanks(23) + "ff" + Blanks(23) + "gg" + Blanks(23) + "hh");
  EXPECT_EQ(lines[2], " ii");
  // Of the blanks of a full row 90 - 76 and the letters of its first three words stay behind it.
  EXPECT_EQ(lines[3], rule + Blanks(20 + 20 + 89));
}

TEST_F(WordSearchSheetTest, EightWordsHaveTheRuleAtTheHeadOfAFreshRowOfBlanks) {
  UseWords({"aa", "bb", "cc", "dd", "ee", "ff", "gg", "hh"});
  const auto lines = WordBank(1);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1], " ee" + Blanks(23) + "ff" + Blanks(23) + "gg" + Blanks(23) + "hh");
  EXPECT_EQ(lines[2], rule + Blanks(90 + 20 + 20));
  EXPECT_EQ(box.SelStart(), box.Length() - 130);
}

TEST_F(WordSearchSheetTest, TheWordsAndTheRuleArePlainAndOnTheLeft) {
  UseWords({"aa", "bb", "cc", "dd"});
  shared.WordBankKind = 1;
  word_search::MakeWordBank(box, shared);
  const auto runs = Runs(box);
  ASSERT_EQ(runs.size(), 4U);
  EXPECT_EQ(runs[2].substr(0, 22), "Courier New 200 --- l|");
  EXPECT_EQ(runs[3].substr(0, 23), "Courier New 200 --- l|_");
}

TEST_F(WordSearchSheetTest, SeventyFiveWordsMakeNineteenRows) {
  std::vector<std::string> words;
  for (int i = 1; i <= 75; ++i) words.push_back("word" + std::to_string(i));
  UseWords(words);
  const auto lines = WordBank(1);
  ASSERT_EQ(lines.size(), 20U);
  for (int row = 0; row < 19; ++row) {
    const std::string& line = lines[static_cast<std::size_t>(row)];
    for (int column = 0; column < 4 && row * 4 + column < 75; ++column) {
      const std::string& word = words[static_cast<std::size_t>(row * 4 + column)];
      EXPECT_EQ(line.substr(static_cast<std::size_t>(1 + 25 * column), word.size()), word);
    }
  }
  EXPECT_EQ(lines[18].size(), 51 + std::string("word75").size());
  EXPECT_EQ(lines[19].substr(0, 91), rule + " ");
}

// --- Ten thousand sheets

constexpr std::size_t kAcross = 8;
constexpr std::size_t kDown = 9;
constexpr std::size_t kRowLength = 2 * kAcross + 1;  // with the line end

// Whether sheet, key and grid hold the same in that cell; a filler is put among the fillers.
bool Agree(const std::u32string& sheet, const std::u32string& key, bool bold,
           const PuzzleGrid& grid, int x, int y, std::array<int, 26>& fillers) {
  const std::size_t at =
      static_cast<std::size_t>(y - 1) * kRowLength + 2 * static_cast<std::size_t>(x) - 1;
  if (sheet[at - 1] != U' ' || key[at - 1] != U' ') return false;
  if (!grid.IsEmpty(x, y)) {
    const auto letter = static_cast<char32_t>(grid.Letter(x, y));
    const char32_t capital = letter >= U'a' ? letter - U'a' + U'A' : letter;
    return key[at] == letter && bold && sheet[at] == capital;
  }
  if (key[at] != U'*' || bold || sheet[at] < U'A' || sheet[at] > U'Z') return false;
  ++fillers[sheet[at] - U'A'];
  return true;
}

TEST(TenThousandSheets, AgreeWithTheirKeysAndFillTheOtherCellsEvenly) {
  std::array<int, 26> fillers{};
  SharedState shared;
  for (const char* word : {"lava", "Ash", "crater", "magma", "geyser", "ember"}) {
    shared.MarkedCount += 1;
    shared.ListWords(shared.MarkedCount) = word;
  }
  int sheets = 0;
  for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
    SeededRandom random(seed);
    shared.PuzzleAcross = kAcross;
    shared.PuzzleDown = kDown;
    PuzzleGrid grid;
    if (!PlaceWords(shared, random, grid)) continue;
    ++sheets;
    RichText box("Courier New", 9.75);
    RichText key("Courier New", 12);
    word_search::WritePuzzleRows(box, shared, grid, random);
    word_search::MakePuzzleKey(key, shared, grid);

    const std::u32string sheet_rows = box.PlainText();
    ASSERT_EQ(sheet_rows.size(), kDown * kRowLength);
    const std::size_t key_start = static_cast<std::size_t>(key.Length()) - kDown * kRowLength;
    const std::u32string key_rows = key.PlainText().substr(key_start);
    for (int y = 1; y <= static_cast<int>(kDown); ++y) {
      for (int x = 1; x <= static_cast<int>(kAcross); ++x) {
        const auto cell =
            static_cast<int>(key_start) + (y - 1) * static_cast<int>(kRowLength) + 2 * x - 1;
        const bool bold = key.FormatAt(cell).bold;
        ASSERT_TRUE(Agree(sheet_rows, key_rows, bold, grid, x, y, fillers))
            << "cell " << x << ", " << y << " of seed " << seed;
      }
    }
  }
  EXPECT_GT(sheets, 9000);
  const int filled = std::accumulate(fillers.begin(), fillers.end(), 0);
  ASSERT_GT(filled, 300'000);
  double chi_squared = 0;
  for (const int count : fillers) {
    const double expected = filled / 26.0;
    chi_squared += (count - expected) * (count - expected) / expected;
  }
  // 25 degrees of freedom: above 60 in one of ten thousand even sources.
  EXPECT_LT(chi_squared, 60);
}

}  // namespace
}  // namespace brindlepage
