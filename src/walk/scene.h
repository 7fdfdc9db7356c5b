#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/program.h"
#include "core/screen.h"
#include "walk/script.h"

namespace brindlepage::walk {

// The id of a form's name, or nothing if the program has no such form.
using ScreenNames = std::function<std::optional<Screen>(std::string_view)>;

// Finds what a script names in the running program. A form that the program does not know, a
// control that a form lacks and a state that isn't there are a ScriptError; a form that isn't
// loaded, and what stands on it, is null.
class Scene {
 public:
  Scene(Program& program, const ScreenNames& screen_names)
      : program_(program), screen_names_(screen_names) {}

  Form* FindForm(const std::string& name) const;
  Control* FindControl(const Target& target) const;

  // The value of `Form.Control(3).Property`, `Form.Property`, `Variable` or `Variable(3)` as it is
  // printed, and without its quotation marks if it is a text.
  struct Answer {
    std::string printed;
    std::string bare;
  };
  std::optional<Answer> Ask(const std::string& expression) const;

 private:
  Answer AskVariable(const NamePart& variable) const;
  // The control, or the element of one; null if there is neither.
  const PropertyOwner* FindOwner(const Form& form, const NamePart& part) const;

  Program& program_;
  const ScreenNames& screen_names_;
};

// Whether acting on the control gives it the focus.
bool TakesFocus(const Control& control);

}  // namespace brindlepage::walk
