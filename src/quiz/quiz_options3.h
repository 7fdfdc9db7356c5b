#pragma once

#include "core/program.h"

namespace brindlepage {

// Which kind of quiz.
class QuizOptions3 : public ProgramForm {
 public:
  explicit QuizOptions3(Program& program);

  Frame Frame2{*this, "Frame2", "What Type of Quiz?"};
  OptionButton MC{*this, "MC", "", true};
  OptionButton Match{*this, "Match"};
  OptionButton FillNo{*this, "FillNo"};
  OptionButton FillYes{*this, "FillYes"};
  OptionButton MC2{*this, "MC2"};
  ControlArray<Label> Label3{*this,
                             "Label3",
                             {{0, "Multiple Choice (Choose the word)"},
                              {1, "Matching"},
                              {2, "Fill-in WITHOUT a word bank"},
                              {3, "Multiple Choice (Choose the meaning)"},
                              {5, "Fill-in WITH a word bank"}}};
  CommandButton Command1{*this, "Command1", "Continue"};
  CommandButton Command2{*this, "Command2", "Go Back"};

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void LabelClick(int index);
  int ChosenKind() const;
};

}  // namespace brindlepage
