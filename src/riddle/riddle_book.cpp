#include "riddle/riddle_book.h"

#include "riddle/riddle_file.h"

namespace brindlepage {

namespace {

std::string PageText(int index, int count) {
  if (count == 0) return "No riddles in the book";
  if (index < 0 || index >= count) return "";
  return "Riddle " + std::to_string(index + 1) + " of " + std::to_string(count);
}

}  // namespace

RiddleBook::RiddleBook(Program& owner, Screen screen, const char* name, const char* caption)
    : ProgramForm(owner, screen, name, caption) {
  RiddleList.Visible = false;
  PunchList.Visible = false;
  PageLabel.Alignment = kCentred;
  Image1.ToolTipText = "Next Riddle (Page Down)";
  Image2.ToolTipText = "Previous Riddle (Page Up)";
  Image1.Click = [this] { NextRiddle(); };
  Image2.Click = [this] { PreviousRiddle(); };
}

void RiddleBook::Load() {
  CentreForm();
  LoadBackground();
  for (riddle_file::Riddle& page : riddle_file::ReadRiddles()) {
    RiddleList.AddItem(std::move(page.riddle));
    PunchList.AddItem(std::move(page.answer));
  }
  ShowRiddle();
}

void RiddleBook::ShowRiddle() {
  RiddleBox.Text = RiddleList.List(RiddleIndex);
  Punchbox.Text = PunchList.List(RiddleIndex);
  PageLabel.Caption = PageText(RiddleIndex, RiddleList.ListCount());
}

Arrangement RiddleBook::Leaves() {
  return Fill(Row(Fill(Column(Label2, Fill(RiddleBox))), Fill(Column(Label3, Fill(Punchbox)))));
}

}  // namespace brindlepage
