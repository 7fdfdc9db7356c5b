#pragma once

#include "core/program.h"
#include "crossword/crossword_grid.h"
#include "crossword/grid_form.h"
#include "toolkit/controls.h"
#include "toolkit/timer.h"

namespace brindlepage {

class CrossWord;
class NewCross1;

// The finished puzzle. Its load builds the grid; from here the puzzle is looked at, coloured, made
// anew and turned into a worksheet.
class CrossPrint : public ProgramForm {
 public:
  static constexpr int kGraphic = 8;  // the option of a background graphic

  explicit CrossPrint(Program& program);

  Label WordsUsedLabel{*this, "WordsUsedLabel", "Words used for this puzzle:", Look::Heading};
  Frame Frame1{*this, "Frame1", "Puzzle Background"};
  ControlArray<OptionButton> Coloroption{*this, "Coloroption", 0, kGraphic};
  ControlArray<Label> ColorLabel{*this,
                                 "ColorLabel",
                                 {{0, "No Color"},
                                  {1, "Black"},
                                  {2, "Grey"},
                                  {3, "Green"},
                                  {4, "Blue"},
                                  {5, "Red"},
                                  {6, "Yellow"},
                                  {7, "Purple"},
                                  {kGraphic, "Add Background Graphic"}}};
  CommandButton Command4{*this, "Command4", "Choose picture..."};
  CheckBox AutoS{*this, "AutoS"};
  Label Label2{*this, "Label2", "Autosize Squares (Make squares bigger to fit worksheet)  "};
  Label Label1{*this, "Label1",
               "Note: Once you choose \"Edit as Worksheet\", you will not be able to change the "
               "puzzle background or use the \"Remake Puzzle\" option for this puzzle.",
               Look::Note};
  CommandButton Command1{*this, "Command1", "Preview Puzzle"};
  CommandButton Command6{*this, "Command6", "Remake Puzzle"};
  CommandButton Command5{*this, "Command5", "Edit as Worksheet"};
  CommandButton Command3{*this, "Command3", "Quit"};
  Timer Timer1{*this, "Timer1", 1000, true};

  // Prints the puzzle without the worksheet, after asking. No control leads here.
  void ConfirmQuickPrint();

 private:
  void Load() override;
  void Activate() override;
  void Closing() override { runtime().End(); }

  void BuildGrid();
  void GiveUp();
  void FillPreviewGrid();
  void FillNumberedGrid();
  void FillClues();

  void Tick();
  void Preview();
  void Remake();
  void ChooseBackground(int index);
  void ApplyBackground();

  void EditAsWorksheet();
  void LayOutSolvedGrid();
  void LayOutNumberedGrid();
  void ShowNumberedGrid();

  void QuickPrint();

  // Filled anew if its frame has been closed.
  CrossWord& SolvedGrid();
  NewCross1& NumberedGrid();

  CrosswordGrid grid_;
  bool GaveUp = false;
  Integer BackgroundIndex;
};

}  // namespace brindlepage
