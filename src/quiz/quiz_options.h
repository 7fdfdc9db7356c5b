#pragma once

#include "core/program.h"

namespace brindlepage {

// In spite of its name the word search's options: its word bank, and an easy puzzle.
class QuizOptions : public ProgramForm {
 public:
  explicit QuizOptions(Program& program);

  Label Label1{*this, "Label1", "How would you like the wordbank?", Look::Heading};
  Frame Frame1{*this, "Frame1"};
  OptionButton WordQuiz{*this, "WordQuiz", "", true};
  OptionButton DefinitionQuiz{*this, "DefinitionQuiz"};
  CheckBox Check1{*this, "Check1"};
  ControlArray<Label> Label3{*this,
                             "Label3",
                             {{0, "           Make puzzle easy. (No diagnal words.)"},
                              {3, "Give them the words"},
                              {4, "Give them the word meanings"}}};
  CommandButton Command1{*this, "Command1", "Continue"};
  CommandButton Command2{*this, "Command2", "Go Back"};

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void LabelClick(int index);
  void Continue();
};

}  // namespace brindlepage
