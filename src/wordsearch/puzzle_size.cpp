#include "wordsearch/puzzle_size.h"

namespace brindlepage {

PuzzleSize::PuzzleSize(Program& owner)
    : ProgramForm(owner, Screen::PuzzleSize, "PuzzleSize", "Puzzle Size") {
  Command1.Default = true;
  Command2.Cancel = true;
  VScrollx.LargeChange = 5;
  VScrolly.LargeChange = 5;
  VScrollx.Change = [this] { ShowSize(); };
  VScrolly.Change = [this] { ShowSize(); };
  Command1.Click = [this] { Continue(); };
  Command2.Click = [this] { StepTo(Screen::QuizOptions); };

  constexpr int kCaption = 8;
  constexpr int kNumber = 4;
  Arrange(Column(Label1, Row(Wide(kCaption, Label3), Fill(VScrollx), Wide(kNumber, Labelx)),
                 Row(Wide(kCaption, Label4), Fill(VScrolly), Wide(kNumber, Labely)), Gap(), Label2,
                 Spring(), Row(Command2, Spring(), Command1)));
}

void PuzzleSize::Load() {
  CentreForm();
  LoadBackground();
  ShowSize();
}

void PuzzleSize::ShowSize() {
  Labelx.Caption = DisplayForm(VScrollx.Value);
  Labely.Caption = DisplayForm(VScrolly.Value);
}

void PuzzleSize::Continue() {
  shared.PuzzleAcross = VScrollx.Value();
  shared.PuzzleDown = VScrolly.Value();
  StepTo(*Successor());
}

}  // namespace brindlepage
