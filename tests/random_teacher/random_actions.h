#pragma once

#include <string>

#include "core/program.h"
#include "tests/random_teacher/dice.h"

namespace brindlepage {

// What a teacher without a plan does next, as a line of a walk's script: a deed on anything that
// can be reached on the screens as they stand, and now and then on what can't.
class RandomActions : public Dice {
 public:
  using Dice::Dice;

  std::string Next(Program& program);

 private:
  const Control* Reach(const Form& form);
  std::string OnForm(const Form& form);
  std::string OnControl(const Control& control);
  std::string OnToolbar(const class Toolbar& bar);
  std::string OnTextBox(const std::string& name, const class TextBox& box);
  std::string OnList(const std::string& name, const class ListBox& list);
  std::string OnDocument(const std::string& name, const class RichTextBox& box);
};

}  // namespace brindlepage
