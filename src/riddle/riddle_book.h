#pragma once

#include "core/program.h"
#include "toolkit/lists.h"

namespace brindlepage {

// The riddles of the file as a book, a riddle with its answer on each page. What is on show can be
// changed, or typed anew. What the screens that leaf through it have in common.
class RiddleBook : public ProgramForm {
 public:
  RiddleBook(Program& program, Screen id, const char* name, const char* caption);

  Label Label1{*this, "Label1", "Choose a riddle for this activity or type your own...",
               Look::Heading};
  ListBox RiddleList{*this, "RiddleList"};
  ListBox PunchList{*this, "PunchList"};
  Image Image2{*this, "Image2", "page-previous", Key::PageUp};
  Label Label2{*this, "Label2", "Q", Look::Heading};
  TextBox RiddleBox{*this, "RiddleBox", "", true};
  Label Label3{*this, "Label3", "A", Look::Heading};
  TextBox Punchbox{*this, "Punchbox", "", true};
  Image Image1{*this, "Image1", "page-next", Key::PageDown};
  Label PageLabel{*this, "PageLabel", "", Look::Note};

 protected:
  static constexpr int kCentred = 2;  // of a label

  // The page on show, from 0.
  int RiddleIndex = 0;

  void Load() override;

  virtual void NextRiddle() = 0;
  virtual void PreviousRiddle() = 0;

  bool BehindTheLast() const { return RiddleIndex > RiddleList.ListCount() - 1; }
  // The page at RiddleIndex; a page that isn't there is blank.
  void ShowRiddle();

  // The open book: the riddle on its left leaf, the answer on the right.
  Arrangement Leaves();
};

}  // namespace brindlepage
