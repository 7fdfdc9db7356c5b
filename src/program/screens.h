#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace brindlepage {

// Makes the form behind an id, not yet loaded.
std::unique_ptr<Form> MakeForm(Screen id, Program& program);

// The id of a form's name, or nothing if the program has no such form.
std::optional<Screen> ScreenNamed(std::string_view name);

// The names of all forms.
std::vector<std::string_view> ScreenNames();

// The whole program on a window system: Start() loads and shows the menu.
class BrindlepageProgram : public Program {
 public:
  BrindlepageProgram(Platform& platform, RandomSource& random);

  void Start();
};

}  // namespace brindlepage
