#pragma once

#include <cstdint>
#include <numeric>
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
  const Control* Reach(const Form& form);
  std::string OnForm(const Form& form);
  std::string OnToolbar(const class Toolbar& bar);
  std::string Typed(const Control& box);
  std::string OnControl(const Control& control);
  std::string OnList(const std::string& name, const class ListBox& list);
  std::string OnDocument(const std::string& name, const class RichTextBox& box);

  template <class T>
  const T& AnyOf(const std::vector<T>& things) {
    return things[static_cast<std::size_t>(Below(static_cast<int>(things.size())))];
  }

  // One of the things, each as likely as its weight says; at least one has a weight.
  template <class T>
  const T& AnyOf(const std::vector<T>& things, const std::vector<int>& weights) {
    int left = Below(std::accumulate(weights.begin(), weights.end(), 0));
    std::size_t place = 0;
    while (left >= weights[place]) left -= weights[place++];
    return things[place];
  }

  std::mt19937_64 random_;
};

}  // namespace brindlepage
