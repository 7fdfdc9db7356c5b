#include "crossword/numbering.h"

#include <gtest/gtest.h>

#include "crossword/grid_builder.h"
#include "tests/crossword_words.h"
#include "tests/expect_fault.h"

namespace brindlepage {
namespace {

using Lines = std::vector<std::string>;

// A puzzle as a build leaves it. Words are told in the order of their positions.
struct Puzzle {
  SharedState shared;
  CrosswordGrid grid;

  explicit Puzzle(const std::string& title = std::string(50, 'T')) {
    shared.WorksheetTitle = title;
  }

  // The next position's word, which starts in that cell.
  void Add(WordDirection direction, int column, int row, const std::string& meaning) {
    const int position = ++shared.MarkedCount;
    // The order is another one than the list's, to tell positions from list words.
    const int word = 300 - position;
    shared.AnswerTable(position) = word;
    shared.ListMeanings(word) = meaning;
    if (grid.StartNumbers(column, row) == 0) grid.StartNumbers(column, row, position);
    grid.PlacedWords(position) = {.Number = grid.StartNumbers(column, row), .Direction = direction};
  }

  ClueLists Number() {
    NumberGrid(grid, shared.MarkedCount);
    return BuildClueLists(shared, grid);
  }
};

constexpr WordDirection kAcross = WordDirection::Across;
constexpr WordDirection kDown = WordDirection::Down;

TEST(Numbering, NumbersRunDownTheColumns) {
  Puzzle puzzle;
  puzzle.Add(kDown, 11, 14, "a");
  puzzle.Add(kAcross, 2, 20, "b");
  puzzle.Add(kAcross, 11, 3, "c");
  puzzle.Add(kDown, 2, 19, "d");
  puzzle.Add(kDown, 37, 1, "e");
  puzzle.Number();
  EXPECT_EQ(puzzle.grid.StartNumbers(2, 19), 1);
  EXPECT_EQ(puzzle.grid.StartNumbers(2, 20), 2);
  EXPECT_EQ(puzzle.grid.StartNumbers(11, 3), 3);
  EXPECT_EQ(puzzle.grid.StartNumbers(11, 14), 4);
  EXPECT_EQ(puzzle.grid.StartNumbers(37, 1), 5);
  EXPECT_EQ(puzzle.grid.PlacedWords(1).Number, 4);
  EXPECT_EQ(puzzle.grid.PlacedWords(2).Number, 2);
  EXPECT_EQ(puzzle.grid.PlacedWords(3).Number, 3);
  EXPECT_EQ(puzzle.grid.PlacedWords(4).Number, 1);
  EXPECT_EQ(puzzle.grid.PlacedWords(5).Number, 5);
}

TEST(Numbering, WordsFromOneCellShareTheClueNumber) {
  Puzzle puzzle;
  puzzle.Add(kDown, 20, 5, "down");
  puzzle.Add(kAcross, 20, 5, "across");
  puzzle.Add(kAcross, 19, 8, "first");
  const ClueLists lists = puzzle.Number();
  EXPECT_EQ(puzzle.grid.PlacedWords(1).Number, 2);
  EXPECT_EQ(puzzle.grid.PlacedWords(2).Number, 2);
  EXPECT_EQ(lists.AcrossList, (Lines{"  1) first", "  2) across"}));
  EXPECT_EQ(lists.DownList, (Lines{"  2) down"}));
}

void AddStartCells(Puzzle& puzzle, int count) {
  for (int i = 0; i < count; ++i) puzzle.Add(kAcross, 1 + i / 29, 1 + i % 29, std::to_string(i));
}

TEST(Numbering, AHundredStartCellsAreNumbered) {
  Puzzle puzzle;
  AddStartCells(puzzle, 100);
  puzzle.Number();
  EXPECT_EQ(puzzle.grid.StartNumbers(4, 13), 100);
}

TEST(Numbering, TheHundredAndFirstStartCellIsOutOfRange) {
  Puzzle puzzle;
  AddStartCells(puzzle, 101);
  EXPECT_FAULT(9, puzzle.Number());
}

TEST(Numbering, ABestPuzzleOfAnEasyLongListHasMoreStartCellsThanThereAreNumbers) {
  // Short words of three letters in all cross each other by the hundred.
  SharedState shared =
      StateFor({.words = WordMaker(4).Words(300, 3, 2, 3), .slider = 200, .best = true});
  CrosswordDraws draws({DrawOf(1, 300)}, 9);
  GridBuilder builder(shared, draws);
  builder.Build();
  EXPECT_FAULT(9, NumberGrid(builder.grid(), shared.MarkedCount));
}

TEST(Numbering, LinesSortAsTextWithNumbersBelow10First) {
  Puzzle puzzle;
  AddStartCells(puzzle, 100);
  const ClueLists lists = puzzle.Number();
  ASSERT_EQ(lists.AcrossList.size(), 100u);
  EXPECT_EQ(lists.AcrossList[0], "  1) 0");
  EXPECT_EQ(lists.AcrossList[1], "  2) 1");
  EXPECT_EQ(lists.AcrossList[8], "  9) 8");
  EXPECT_EQ(lists.AcrossList[9], " 10) 9");
  EXPECT_EQ(lists.AcrossList[10], " 100) 99");
  EXPECT_EQ(lists.AcrossList[11], " 11) 10");
  EXPECT_EQ(lists.AcrossList[99], " 99) 98");
}

TEST(Numbering, ALineOfTheBoxKeepsOneBlankBelow10AndNoneFrom10On) {
  Puzzle puzzle;
  for (int i = 1; i <= 10; ++i) puzzle.Add(kDown, i, 4, "m" + std::to_string(i));
  const ClueLists lists = puzzle.Number();
  EXPECT_EQ(lists.ClueBox2,
            " 1) m1\n 2) m2\n 3) m3\n 4) m4\n 5) m5\n 6) m6\n 7) m7\n 8) m8\n 9) m9\n10) m10\n");
}

TEST(Numbering, AcrossLinesStandBehindTheFirstBlankOfThePad) {
  Puzzle puzzle("Planets");  // 43 short of 50: 21 times three blanks
  puzzle.Add(kAcross, 5, 5, "red");
  puzzle.Add(kAcross, 6, 7, "blue");
  puzzle.Add(kDown, 5, 5, "hot");
  const ClueLists lists = puzzle.Number();
  EXPECT_EQ(lists.ClueBox, "  1) red\n 2) blue\n" + std::string(62, ' '));
  EXPECT_EQ(lists.ClueBox2, " 1) hot\n");
}

TEST(Numbering, ThePadEndsWithTitlesOf48Characters) {
  Puzzle puzzle;
  puzzle.Add(kAcross, 5, 5, "red");
  NumberGrid(puzzle.grid, 1);
  const auto box_for_title_of = [&](std::size_t characters) {
    puzzle.shared.WorksheetTitle = std::string(characters, 'T');
    return BuildClueLists(puzzle.shared, puzzle.grid).ClueBox;
  };
  EXPECT_EQ(box_for_title_of(0), "  1) red\n" + std::string(74, ' '));
  EXPECT_EQ(box_for_title_of(47), "  1) red\n  ");
  EXPECT_EQ(box_for_title_of(48), "  1) red\n  ");
  EXPECT_EQ(box_for_title_of(49), " 1) red\n");
  EXPECT_EQ(box_for_title_of(50), " 1) red\n");
  EXPECT_EQ(box_for_title_of(51), " 1) red\n");
}

TEST(Numbering, OneWordOnlyLeavesThePadAloneAndOneLineDown) {
  Puzzle puzzle("Planets");
  puzzle.Add(kDown, 15, 14, "the star");
  const ClueLists lists = puzzle.Number();
  EXPECT_TRUE(lists.AcrossList.empty());
  EXPECT_EQ(lists.ClueBox, std::string(63, ' '));
  EXPECT_EQ(lists.ClueBox2, " 1) the star\n");
  EXPECT_EQ(lists.WordsUsed, "Total words used for this puzzle:  1");
}

TEST(Numbering, AMeaningIsListedOnceInADirection) {
  Puzzle puzzle;
  puzzle.Add(kAcross, 3, 3, "planet");
  puzzle.Add(kAcross, 3, 9, "planet");
  puzzle.Add(kAcross, 3, 6, "Planet");
  const ClueLists lists = puzzle.Number();
  EXPECT_EQ(lists.AcrossList, (Lines{"  1) planet", "  2) Planet"}));
  EXPECT_EQ(puzzle.grid.StartNumbers(3, 9), 3) << "it stands on the grid without a clue";
  EXPECT_EQ(lists.WordsUsed, "Total words used for this puzzle:  2");
}

TEST(Numbering, OfEqualMeaningsTheOneWithTheEarlierPositionHasTheClue) {
  Puzzle puzzle;
  puzzle.Add(kDown, 9, 3, "planet");
  puzzle.Add(kDown, 3, 3, "planet");
  EXPECT_EQ(puzzle.Number().DownList, (Lines{"  2) planet"}));
}

TEST(Numbering, AMeaningAcrossAndDownIsListedAndCountedTwice) {
  Puzzle puzzle;
  puzzle.Add(kAcross, 3, 3, "planet");
  puzzle.Add(kDown, 4, 3, "planet");
  const ClueLists lists = puzzle.Number();
  EXPECT_EQ(lists.AcrossList, (Lines{"  1) planet"}));
  EXPECT_EQ(lists.DownList, (Lines{"  2) planet"}));
  EXPECT_EQ(lists.WordsUsed, "Total words used for this puzzle:  2");
  EXPECT_EQ(lists.RepeatList, (Lines{"-----", "planet"}));
}

TEST(Numbering, AMeaningOfFiveDashesIsNeverListed) {
  Puzzle puzzle;
  puzzle.Add(kAcross, 3, 3, "-----");
  puzzle.Add(kAcross, 3, 6, "----");
  EXPECT_EQ(puzzle.Number().AcrossList, (Lines{"  2) ----"}));
}

TEST(Numbering, WordsThatAreNotOnTheGridHaveNoClue) {
  Puzzle puzzle;
  puzzle.Add(kAcross, 3, 3, "planet");
  const int left_out = ++puzzle.shared.MarkedCount;
  puzzle.shared.AnswerTable(left_out) = 7;
  puzzle.shared.ListMeanings(7) = "left out";
  const ClueLists lists = puzzle.Number();
  EXPECT_EQ(lists.AcrossList, (Lines{"  1) planet"}));
  EXPECT_TRUE(lists.DownList.empty());
  EXPECT_EQ(puzzle.grid.PlacedWords(left_out).Number, 0);
}

TEST(Numbering, AGridWithoutWordsHasNoClues) {
  Puzzle puzzle;
  const ClueLists lists = puzzle.Number();
  EXPECT_EQ(lists.ClueBox, "");
  EXPECT_EQ(lists.ClueBox2, "");
  EXPECT_EQ(lists.RepeatList, (Lines{"-----"}));
  EXPECT_EQ(lists.WordsUsed, "Total words used for this puzzle:  0");
}

TEST(Numbering, TheTwiceListedWordOfABestPuzzleHasOneClue) {
  // Word 3 first, so that positions 2 and 3 both hold word 2. One goes across from the first T of
  // TACT's column, the other on top of it.
  SharedState shared = StateFor({.words = {"x", "at", "tact"}, .slider = 20, .best = true});
  shared.WorksheetTitle = std::string(50, 'T');
  CrosswordDraws draws({DrawOf(3, 3), 0, 0, 0, 0, 0});
  GridBuilder builder(shared, draws);
  builder.Build();
  ASSERT_TRUE(draws.AllUsed());
  ASSERT_EQ(builder.grid().PlacedWords(2).Number, 3);
  ASSERT_EQ(builder.grid().PlacedWords(3).Number, 3);
  NumberGrid(builder.grid(), shared.MarkedCount);
  const ClueLists lists = BuildClueLists(shared, builder.grid());
  EXPECT_EQ(lists.AcrossList, (Lines{"  1) meaning of word 2"}));
  EXPECT_EQ(lists.DownList, (Lines{"  2) meaning of word 3"}));
  EXPECT_EQ(lists.WordsUsed, "Total words used for this puzzle:  2");
}

}  // namespace
}  // namespace brindlepage
