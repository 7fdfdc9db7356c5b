#include "wordsearch/word_search_sheet.h"

#include "toolkit/code_page.h"
#include "worksheet/compose.h"

namespace brindlepage::word_search {

namespace {

using compose::AppendRun;
using compose::CaretToEnd;
using compose::kLineFeed;

// Characters.
constexpr int kLineWidth = 90;
constexpr int kFirstColumn = 1;
constexpr int kColumnWidth = 25;

std::string Rule(std::size_t width) { return std::string(width, '_'); }

void WriteDirections(RichText& box) {
  box.SelAlignment(Alignment::Centre);
  AppendRun(box, "\nDirections: Find and circle each of the words listed below the puzzle.\n\n\n");
  box.SelAlignment(Alignment::Left);
}

char RandomCapital(RandomSource& random) {
  constexpr int kLetters = 26;
  return static_cast<char>('A' + random.DrawIndex(kLetters) - 1);
}

void WriteWordBankHeading(RichText& box) {
  const std::string heading = "Word Bank:";
  CaretToEnd(box);
  box.SelAlignment(Alignment::Left);
  box.SelBold(true);
  box.SelUnderline(true);
  AppendRun(box, kLineFeed + heading + Rule(kLineWidth - heading.size()) + kLineFeed);
  box.SelUnderline(false);
  box.SelBold(false);
}

void WriteMeanings(RichText& box, const SharedState& shared) {
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    AppendRun(box, DisplayForm(number) + ")  " + shared.ListMeanings(number) + kLineFeed);
  }
}

// A row of blanks with the caret in front of it.
int BeginRow(RichText& box) {
  const int row = box.SelStart();
  AppendRun(box, std::string(kLineWidth, ' '));
  box.SelStart(row);
  return row;
}

// Each word pushes the blanks behind it on, and those behind the last of a row go on into the
// next, where they are never seen.
void WriteWords(RichText& box, const SharedState& shared) {
  int row = BeginRow(box);
  int column = kFirstColumn;
  for (int word = 1; word <= shared.MarkedCount; ++word) {
    box.SelStart(row + column);
    AppendRun(box, shared.ListWords(word));
    column += kColumnWidth;
    if (column <= kLineWidth) continue;
    AppendRun(box, kLineFeed);
    row = BeginRow(box);
    column = kFirstColumn;
  }
  if (column > kFirstColumn) AppendRun(box, kLineFeed);
}

void WriteKeyCell(RichText& box, const PuzzleGrid& grid, int x, int y) {
  if (grid.IsEmpty(x, y)) {
    box.SelBold(false);
    AppendRun(box, " *");
    return;
  }
  box.SelBold(true);
  AppendRun(box, std::string{' ', grid.Letter(x, y)});
  box.SelBold(false);
}

}  // namespace

void WriteHeading(RichText& box, std::string_view title) {
  // All up to the title goes in front of this line end; the way behind it leads back to the design
  // font.
  box.Text(kLineFeed);
  box.SelFontSize(10);
  box.SelBold(true);
  box.SelAlignment(Alignment::Centre);
  compose::WriteNameDateLine(box, compose::NameLine::Narrow);
  AppendRun(box, kLineFeed);
  box.SelFontSize(18);
  box.SelBold(true);
  box.SelFontName(compose::kTimes);
  compose::WriteCentredLine(box, title);
  CaretToEnd(box);
  box.SelBold(true);
  box.SelItalic(true);
  WriteDirections(box);
}

void WritePuzzleRows(RichText& box, const SharedState& shared, const PuzzleGrid& grid,
                     RandomSource& random) {
  CaretToEnd(box);
  box.SelItalic(false);
  box.SelBold(false);
  box.SelFontSize(12);
  box.SelAlignment(Alignment::Centre);
  for (int y = 1; y <= shared.PuzzleDown; ++y) {
    random.Reseed();
    std::string row;
    for (int x = 1; x <= shared.PuzzleAcross; ++x) {
      row += ' ';
      row += grid.IsEmpty(x, y) ? RandomCapital(random) : code_page::UpperCase(grid.Letter(x, y));
    }
    AppendRun(box, row + kLineFeed);
  }
}

void MakeWordBank(RichText& box, const SharedState& shared) {
  box.SelFontSize(10);
  box.SelAlignment(Alignment::Left);
  WriteWordBankHeading(box);
  if (shared.WordBankKind == 2) WriteMeanings(box, shared);
  if (shared.WordBankKind == 1) WriteWords(box, shared);
  AppendRun(box, Rule(kLineWidth));
}

void MakePuzzleKey(RichText& box, const SharedState& shared, const PuzzleGrid& grid) {
  box.SelFontName(compose::kTimes);
  box.SelBold(true);
  box.SelAlignment(Alignment::Centre);
  // The new text has the design font again; only the alignment stays.
  box.Text("\n\n" + shared.WorksheetTitle + "\nAnswer Key\n\n");
  CaretToEnd(box);
  box.SelAlignment(Alignment::Centre);
  for (int y = 1; y <= shared.PuzzleDown; ++y) {
    for (int x = 1; x <= shared.PuzzleAcross; ++x) WriteKeyCell(box, grid, x, y);
    AppendRun(box, kLineFeed);
  }
}

}  // namespace brindlepage::word_search
