#pragma once

#include "core/program.h"
#include "toolkit/controls.h"

namespace brindlepage {

// Who chooses the crossword's words: the program or the teacher.
class CrossOption2 : public ProgramForm {
 public:
  explicit CrossOption2(Program& program);

  Image Image1{*this, "Image1", "crossword"};
  Label Label1{*this, "Label1",
               "To create a random puzzle using as many words as possible from the selected "
               "vocabulary list, choose \"Make Best Puzzle\". Otherwise, choose \"Let me choose "
               "the words\" to select only the words you would like to include."};
  CommandButton Command1{*this, "Command1", "Make Best Puzzle"};
  CommandButton Command2{*this, "Command2", "Let me choose the words"};
  CommandButton Command3{*this, "Command3", "Back to last screen"};

 private:
  void Load() override;
  void MakeBestPuzzle();
  void LetTeacherChoose();
};

}  // namespace brindlepage
