#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "core/program.h"

namespace brindlepage {

// What a teacher without a plan does next, as a line of a walk's script: a deed on anything that
// can be reached on the screens as they stand, and now and then on what can't.
class RandomActions {
 public:
  explicit RandomActions(std::uint64_t seed) : random_(seed) {}

  std::string Next(Program& program);

  int Below(int limit);
  bool OneIn(int chances) { return Below(chances) == 0; }
  // Something to type, in UTF-8.
  std::string Text();

 private:
  std::string OnForm(const Form& form);
  std::string OnControl(const Control& control);
  std::string OnList(const std::string& name, const class ListBox& list);
  std::string OnDocument(const std::string& name, const class RichTextBox& box);

  template <class T>
  const T& AnyOf(const std::vector<T>& things) {
    return things[static_cast<std::size_t>(Below(static_cast<int>(things.size())))];
  }

  std::mt19937_64 random_;
};

}  // namespace brindlepage
