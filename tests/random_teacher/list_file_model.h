#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brindlepage {

// What a list file holds, told as lists. It shares nothing with the program, so that each can be
// measured against the other.
//
// A list is its name and then word and meaning in turn. "<New List>" between two lists is no line
// of either; typed as a word it begins a list all the same. An empty list at the top is the
// separator that a deleted first list has left behind.
class ListFileModel {
 public:
  using Pairs = std::vector<std::pair<std::string, std::string>>;

  explicit ListFileModel(std::string_view bytes);
  std::string Bytes() const;

  bool HoldsNoList() const;  // as the first line tells
  // The words of a list with their meanings; nothing where the program fails to read it.
  std::optional<Pairs> PairsOf(const std::string& name) const;

  // A new list: what goes to the end of the file, separators among it.
  void Append(const std::vector<std::string>& lines);
  // The list goes, and comes back at the end under that caption. Without such a list the program
  // fails and nothing changes: false, here and in Delete.
  bool Replace(const std::string& name, const std::string& caption, const Pairs& pairs);
  bool Delete(const std::string& name);

 private:
  struct Place {
    std::size_t list;
    std::size_t line;
  };
  std::optional<Place> Find(const std::string& name) const;
  void Add(const std::string& line);
  bool Remove(const std::string& name);
  void ClearTop();

  std::vector<std::vector<std::string>> lists_{1};
};

}  // namespace brindlepage
