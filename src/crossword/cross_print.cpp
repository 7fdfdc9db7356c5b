#include "crossword/cross_print.h"

#include <array>

#include "crossword/cross_word.h"
#include "crossword/cross_word_fill.h"
#include "crossword/grid_builder.h"
#include "crossword/grid_packing.h"
#include "crossword/new_cross1.h"
#include "crossword/numbering.h"
#include "crossword/please_wait.h"
#include "crossword/quick_print.h"
#include "toolkit/platform.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

constexpr int kWhite = 0xFFFFFF;
// By option; blue, green, red.
constexpr int kBackgrounds[] = {kWhite,   0x000000, 0xC0C0C0, 0x00C000,
                                0xFF0000, 0x8080FF, 0x80FFFF, 0xFF00FF};

}  // namespace

CrossPrint::CrossPrint(Program& owner)
    : ProgramForm(owner, Screen::CrossPrint, "CrossPrint", "Success!") {
  Coloroption(0).Value.Put(true);
  Command4.Visible = false;
  Command5.Default = true;

  Coloroption.Click = [this](int index) { ChooseBackground(index); };
  ColorLabel.Click = [this](int index) {
    Coloroption(index).Value = true;
    ChooseBackground(index);
  };
  Label2.Click = [this] { AutoS.Value = !AutoS.Value; };
  Command1.Click = [this] { Preview(); };
  Command3.Click = [this] { runtime().End(); };
  Command4.Click = [this] { forms().Show(Screen::AddPic); };
  Command5.Click = [this] { EditAsWorksheet(); };
  Command6.Click = [this] { Remake(); };
  Timer1.Tick = [this] { Tick(); };

  const auto option = [this](int index) {
    return Row(Coloroption(index), ColorLabel(index), Spring());
  };
  Arrange(Column(WordsUsedLabel,
                 Framed(Frame1, Column(Grid(4, option(0), option(1), option(2), option(3),
                                            option(4), option(5), option(6), option(7)),
                                       Row(Coloroption(kGraphic), ColorLabel(kGraphic), Gap(),
                                           Command4, Spring()))),
                 Row(AutoS, Label2, Spring()), Label1, Spring(),
                 Row(Command3, Spring(), Command1, Command6, Command5)));
}

void CrossPrint::Load() {
  CentreForm();
  LoadBackground();
  BuildGrid();
  FillPreviewGrid();
  NumberGrid(grid_, shared.MarkedCount);
  FillNumberedGrid();
  FillClues();
}

void CrossPrint::BuildGrid() {
  shared.OrphansFlag = false;
  forms().Get<CrossWord>(Screen::CrossWord).TitleLabel.Caption = shared.WorksheetTitle;
  auto& wait = forms().Get<PleaseWait>(Screen::PleaseWait);
  GridBuilder builder(shared, runtime().random(),
                      [&wait](int value) { wait.ProgressBar1.Value = value; });
  builder.Build();
  if (builder.GaveUp()) GiveUp();
  grid_ = builder.grid();
}

void CrossPrint::GiveUp() {
  GaveUp = true;
  forms().Get<PleaseWait>(Screen::PleaseWait).ShowFailure();
  forms().Unload(Screen::CrossWord);
  forms().Unload(Screen::CrossWordFill);
}

void CrossPrint::FillPreviewGrid() {
  forms().Get<CrossWord>(Screen::CrossWord).FillPreviewGrid(grid_);
}

void CrossPrint::FillNumberedGrid() { NumberedGrid().ShowNumbers(grid_); }

void CrossPrint::FillClues() {
  const ClueLists clues = BuildClueLists(shared, grid_);
  auto& fill = forms().Get<CrossWordFill>(Screen::CrossWordFill);
  fill.ClueBox.Text(clues.ClueBox);
  fill.ClueBox.SelStart(1);
  fill.ClueBox2.Text(clues.ClueBox2);
  WordsUsedLabel.Caption = clues.WordsUsed;
}

// The flag falls before the box opens, behind which the timers go on.
void CrossPrint::Activate() {
  if (!shared.OrphansFlag) return;
  shared.OrphansFlag = false;
  runtime().MsgBox(
      "Because of the words selected, this puzzle contains \"orphans\" (uncrossed words). You can "
      "click the <Remake Puzzle> button to try making the puzzle again if you wish. For the best "
      "results, you may need to use less words. If the orphans don't bother you, then proceed as "
      "usual.",
      "Puzzle Made");
}

void CrossPrint::Tick() {
  if (GaveUp) return Unload();
  forms().Hide(Screen::PleaseWait);
  forms().Unload(Screen::PickWords);
}

void CrossPrint::Preview() {
  CrossWord& solved = SolvedGrid();
  solved.WindowState = kMaximised;
  forms().Show(Screen::CrossWord);
  solved.SpreadCrossImage();
}

void CrossPrint::Remake() {
  for (const Screen screen :
       {Screen::NewCross1, Screen::CrosswordWorksheet, Screen::CrossWord, Screen::CrossWordFill}) {
    forms().Unload(screen);
  }
  shared.RemakeRequest = true;
  forms().Show(Screen::PleaseWait);
  auto& wait = forms().Get<PleaseWait>(Screen::PleaseWait);
  wait.ProgressBar1.Value = 0;
  wait.Timer1.Enabled = true;
  Unload();
}

void CrossPrint::ChooseBackground(int index) {
  BackgroundIndex = index;
  ApplyBackground();
}

void CrossPrint::ApplyBackground() {
  auto& fill = forms().Get<CrossWordFill>(Screen::CrossWordFill);
  CrossWord& solved = SolvedGrid();
  NewCross1& numbered = NumberedGrid();
  const std::array<GridForm*, 3> grids = {&fill, &solved, &numbered};

  const bool graphic = BackgroundIndex == kGraphic;
  for (GridForm* grid : grids) {
    grid->BackColor = kWhite;
    grid->CrossImage.Visible = graphic;
  }
  Command4.Visible = graphic;
  if (graphic) return;
  const int color = kBackgrounds[BackgroundIndex];
  solved.BackColor = color;
  numbered.BackColor = color;
  fill.ColorShape.BackColor = color;
}

void CrossPrint::EditAsWorksheet() {
  runtime().MsgBox(
      "It will take a few seconds to compile the worksheet. During that time, do not use the "
      "keyboard or mouse. Click OK when you are ready to begin.",
      "Create Worksheet");
  LayOutSolvedGrid();
  LayOutNumberedGrid();
  ShowNumberedGrid();
  forms().Hide(id());
  shared.CaptureRequest = true;
  NumberedGrid().Timer1.Enabled = true;
}

// The key keeps its plain squares.
void CrossPrint::LayOutSolvedGrid() {
  PackGrid(SolvedGrid(), PlainSquareSize(runtime().platform().ScreenSize()));
}

void CrossPrint::LayOutNumberedGrid() {
  NewCross1& numbered = NumberedGrid();
  for (int index = 0; index <= GridForm::kLastSquare; ++index) {
    Label& square = numbered.Square(index);
    square.FontSize = 6;
    square.FontName = compose::kCourrier;
    square.Alignment = 0;
  }
  const Size screen = runtime().platform().ScreenSize();
  PackGrid(numbered, PlainSquareSize(screen));
  if (!AutoS.Value) return;
  const AutoSize used = MeasureGrid(numbered);
  shared.AutoRows = used.rows;
  shared.AutoCols = used.cols;
  PackGrid(numbered, AutoSquareSize(screen, used));
}

void CrossPrint::ShowNumberedGrid() {
  constexpr int kBelow = 100;
  NewCross1& numbered = NumberedGrid();
  const Label& last = numbered.Square(numbered.LastVisibleSquare());
  numbered.SpreadCrossImage();
  numbered.WindowState = kNormal;
  forms().Show(Screen::NewCross1);
  numbered.FitAround(last.Top + last.Height + kBelow);
}

void CrossPrint::ConfirmQuickPrint() {
  const auto ask = [this](const char* question, const char* title) {
    return runtime().MsgBox(question, title, BoxButtons::YesNo) == BoxAnswer::Yes;
  };
  if (!ask("The Quick-Print results will not be as good as if you printed this crossword as a "
           "worksheet. For the best format, you should first click the <Edit as Worksheet> button "
           "and print from there. Would you like to Quick-Print anyway?",
           "Confirm Print")) {
    return;
  }
  QuickPrint();
  if (ask("Also print answer key?", "Answer Key?")) {
    PrintPicture(runtime().platform(), SolvedGrid());
  }
  runtime().MsgBox("Puzzle has been sent to the printer", "Puzzle printed.");
}

void CrossPrint::QuickPrint() {
  auto& fill = forms().Get<CrossWordFill>(Screen::CrossWordFill);
  PrintCrossword(runtime().platform(), fill, shared.WorksheetTitle);
}

CrossWord& CrossPrint::SolvedGrid() {
  const bool closed = forms().Find(Screen::CrossWord) == nullptr;
  auto& solved = forms().Get<CrossWord>(Screen::CrossWord);
  if (closed) {
    const NewCross1& numbered = NumberedGrid();
    solved.TitleLabel.Caption = shared.WorksheetTitle;
    solved.FillPreviewGrid(grid_);
    solved.BackColor = numbered.BackColor;
    solved.CrossImage.Picture = numbered.CrossImage.Picture;
    solved.CrossImage.Visible = numbered.CrossImage.Visible;
  }
  return solved;
}

NewCross1& CrossPrint::NumberedGrid() { return forms().Get<NewCross1>(Screen::NewCross1); }

}  // namespace brindlepage
