#include "crossword/numbering.h"

#include <algorithm>

#include "toolkit/code_page.h"

namespace brindlepage {

namespace {

// What stands in RepeatList before any meaning does: a meaning of this very text is never listed.
constexpr const char* kNoMeaning = "-----";

// The positions found at the start cells, by their clue number.
class ClueMap {
 public:
  // Throws RunTimeError 9 for the hundred and first.
  void Add(int position) { positions_(++count_) = position; }

  // The clue number of a position; 0 stays 0.
  int NewNumber(int position) const {
    for (int number = 1; number <= count_; ++number) {
      if (positions_(number) == position) return number;
    }
    return position;
  }

 private:
  BoundedArray<int, 0, 100> positions_;
  int count_ = 0;
};

template <class Visit>
void DownTheColumns(Visit visit) {
  for (int column = 1; column <= CrosswordGrid::kColumns; ++column) {
    for (int row = 1; row <= CrosswordGrid::kRows; ++row) visit(column, row);
  }
}

std::string TitlePad(const std::string& title) {
  constexpr std::size_t kTitleWidth = 50;
  if (title.size() >= kTitleWidth) return "";
  return std::string((kTitleWidth - title.size()) / 2 * 3, ' ');
}

// Numbers below 10 have a blank more in front, so that 2 sorts before 10.
std::string ClueLine(int number, const std::string& meaning) {
  return (number < 10 ? " " : "") + DisplayForm(number) + ") " + meaning;
}

struct DirectionClues {
  std::vector<std::string> lines;
  std::vector<std::string> meanings = {kNoMeaning};
};

bool Holds(const std::vector<std::string>& rows, const std::string& text) {
  return std::find(rows.begin(), rows.end(), text) != rows.end();
}

DirectionClues ListClues(const SharedState& shared, const CrosswordGrid& grid,
                         WordDirection direction) {
  DirectionClues clues;
  for (int p = 1; p <= shared.MarkedCount; ++p) {
    const PlacedWord& word = grid.PlacedWords(p);
    if (word.Direction != direction) continue;
    const std::string& meaning = shared.ListMeanings(shared.AnswerTable(p));
    if (Holds(clues.meanings, meaning)) continue;
    clues.lines.push_back(ClueLine(word.Number, meaning));
    clues.meanings.push_back(meaning);
  }
  std::stable_sort(clues.lines.begin(), clues.lines.end(),
                   [](const std::string& left, const std::string& right) {
                     return code_page::Compare(left, right) < 0;
                   });
  return clues;
}

std::string ClueText(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line.front() == ' ' ? line.substr(1) : line;
    text += '\n';
  }
  return text;
}

}  // namespace

void NumberGrid(CrosswordGrid& grid, int marked_count) {
  ClueMap clues;
  DownTheColumns([&](int column, int row) {
    const int position = grid.StartNumbers(column, row);
    if (position > 0) clues.Add(position);
  });
  DownTheColumns([&](int column, int row) {
    grid.StartNumbers(column, row, clues.NewNumber(grid.StartNumbers(column, row)));
  });
  for (int p = 1; p <= marked_count; ++p) {
    int& number = grid.PlacedWords(p).Number;
    number = clues.NewNumber(number);
  }
}

ClueLists BuildClueLists(const SharedState& shared, const CrosswordGrid& grid) {
  DirectionClues across = ListClues(shared, grid, WordDirection::Across);
  DirectionClues down = ListClues(shared, grid, WordDirection::Down);
  const int used = static_cast<int>(across.lines.size() + down.lines.size());

  ClueLists lists;
  lists.ClueBox = TitlePad(shared.WorksheetTitle);
  lists.ClueBox.insert(std::min<std::size_t>(1, lists.ClueBox.size()), ClueText(across.lines));
  lists.ClueBox2 = ClueText(down.lines);
  lists.AcrossList = std::move(across.lines);
  lists.DownList = std::move(down.lines);
  lists.RepeatList = std::move(down.meanings);
  lists.WordsUsed = "Total words used for this puzzle: " + DisplayForm(used);
  return lists;
}

}  // namespace brindlepage
