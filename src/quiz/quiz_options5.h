#pragma once

#include "core/program.h"

namespace brindlepage {

// The heading of the worksheet, with a proposal for each activity.
class QuizOptions5 : public ProgramForm {
 public:
  explicit QuizOptions5(Program& program);

  Label Label7{
      *this, "Label7",
      "Type in the heading as you want it to appear at the top of the page:", Look::Heading};
  TextBox Text1{*this, "Text1"};
  CommandButton Command1{*this, "Command1", "Continue"};
  CommandButton Command2{*this, "Command2", "Go Back"};

  std::optional<Screen> Successor() const override;

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void ProposeHeading();
  void Continue();
  void GoBack();
  bool WithoutList() const;
};

}  // namespace brindlepage
