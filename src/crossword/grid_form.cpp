#include "crossword/grid_form.h"

#include "crossword/cls_keyboard.h"

namespace brindlepage {

namespace {
constexpr int kSettle = 500;  // milliseconds between the photograph and what follows
enum VirtualKeys { kAlt = 18, kPrintScreen = 44 };
}  // namespace

GridForm::GridForm(Program& owner, Screen id, std::string name)
    : ProgramForm(owner, id, std::move(name), "Crossword") {
  CrossImage.Visible = false;
  for (int index = 0; index <= kLastSquare; ++index) {
    Label& square = Square(index);
    square.Visible = false;
    square.BorderStyle = 1;
    square.Alignment = 2;
    square.FontName = "Times New Roman";
  }
  PlaceControls();
}

void GridForm::ShowSquare(int column, int row, bool visible, std::string caption) {
  const int index = CrosswordGrid::SquareIndex(column, row);
  Square(index).Visible = visible;
  Square(index).Caption = std::move(caption);
  BackImage(index).Visible = false;
}

int GridForm::LastVisibleSquare() {
  for (int index = kLastSquare; index > 0; --index) {
    if (Square(index).Visible) return index;
  }
  return 0;
}

void GridForm::SpreadCrossImage() {
  CrossImage.Width = Width;
  CrossImage.Height = Height;
}

CapturedGridForm::CapturedGridForm(Program& owner, Screen id, std::string name)
    : GridForm(owner, id, std::move(name)) {
  Timer1.Tick = [this] { Tick(); };
}

void CapturedGridForm::Closing() {
  const Form* finished = forms().Find(Screen::CrossPrint);
  if (finished == nullptr || !finished->Visible) runtime().End();
}

void CapturedGridForm::Tick() {
  if (shared.CaptureRequest) {
    shared.CaptureRequest = false;
    Timer1.Interval = kSettle;
    PhotographWindow();
  } else {
    forms().Hide(id());
    forms().Show(Screen::CrosswordWorksheet);
    Timer1.Enabled = false;
  }
}

void CapturedGridForm::PhotographWindow() {
  clsKeyboard keyboard(runtime().keyboard());
  keyboard.PressKeyVK(kAlt, {.key_up = true});
  keyboard.PressKeyVK(kPrintScreen);
  keyboard.PressKeyVK(kAlt, {.key_down = true});
}

}  // namespace brindlepage
