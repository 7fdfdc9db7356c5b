#include "crossword/cross_word.h"

#include "toolkit/platform.h"

namespace brindlepage {

namespace {
constexpr int kTitleHeight = 660;  // twips, above the squares
}  // namespace

CrossWord::CrossWord(Program& owner) : CapturedGridForm(owner, Screen::CrossWord, "CrossWord") {
  TitleLabel.FontName = "Times New Roman";
  TitleLabel.FontSize = 18;
  TitleLabel.Alignment = 2;
  TitleLabel.Height = kTitleHeight;
  Square.Click = [this](int) { LeavePreview(); };
  CrossImage.Click = [this] { LeavePreview(); };
}

void CrossWord::Load() { CentreForm(); }

void CrossWord::FillPreviewGrid(const CrosswordGrid& grid) {
  const Size screen = runtime().platform().ScreenSize();
  const int height = screen.height - kTitleHeight;
  const int width = screen.width / CrosswordGrid::kColumns;
  for (int column = 1; column <= CrosswordGrid::kColumns; ++column) {
    for (int row = 1; row <= CrosswordGrid::kRows; ++row) {
      if (!grid.HasLetter(column, row)) {
        ShowSquare(column, row, false, "");
        continue;
      }
      ShowSquare(column, row, true, {grid.Grid(column, row)});
      Label& square = SquareAt(column, row);
      square.FontSize = 10;
      square.Height = height / CrosswordGrid::kRows;
      square.Top = row * height / CrosswordGrid::kRows + kTitleHeight;
      square.Width = width;
      square.Left = column * width;
    }
  }
}

// While it waits to be photographed it stays, whatever is clicked or pressed.
void CrossWord::LeavePreview() {
  if (!Timer1.Enabled) forms().Hide(id());
}

}  // namespace brindlepage
