#include "tests/random_teacher/list_file_model.h"

#include <algorithm>
#include <iterator>

namespace brindlepage {

namespace {

const std::string kSeparator = "<New List>";
const std::string kNone = "No Lists";

}  // namespace

ListFileModel::ListFileModel(std::string_view bytes) {
  for (std::size_t end; (end = bytes.find("\r\n")) != std::string_view::npos;) {
    Add(std::string(bytes.substr(0, end)));
    bytes.remove_prefix(end + 2);
  }
}

std::string ListFileModel::Bytes() const {
  std::string bytes;
  for (std::size_t i = 0; i < lists_.size(); ++i) {
    if (i > 0) bytes += kSeparator + "\r\n";
    for (const std::string& line : lists_[i]) bytes += line + "\r\n";
  }
  return bytes;
}

bool ListFileModel::HoldsNoList() const {
  const auto& first = lists_.front();
  return !first.empty() && (first.front().empty() || first.front() == kNone);
}

std::optional<ListFileModel::Pairs> ListFileModel::PairsOf(const std::string& name) const {
  const auto place = Find(name);
  if (!place) return std::nullopt;
  const auto& list = lists_[place->list];
  std::vector<std::string> lines(list.begin() + std::ptrdiff_t(place->line) + 1, list.end());

  // A word without a meaning takes the separator for one, and the next list follows on.
  std::size_t next = place->list + 1;
  for (; lines.size() % 2 != 0 && next < lists_.size(); ++next) {
    lines.push_back(kSeparator);
    lines.insert(lines.end(), lists_[next].begin(), lists_[next].end());
  }
  if (lines.size() % 2 != 0) return std::nullopt;
  // The end of a list shows only when a line behind the separator has been read as well.
  if (next + 1 == lists_.size() && lists_[next].empty()) return std::nullopt;

  Pairs pairs;
  for (std::size_t i = 0; i < lines.size(); i += 2) pairs.emplace_back(lines[i], lines[i + 1]);
  return pairs;
}

void ListFileModel::Append(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) Add(line);
  ClearTop();
  auto& first = lists_.front();
  if (!first.empty() && first.front() == kNone) first.erase(first.begin());
}

bool ListFileModel::Replace(const std::string& name, const std::string& caption,
                            const Pairs& pairs) {
  if (!Remove(name)) return false;
  Add(kSeparator);
  Add(caption);
  for (const auto& [word, meaning] : pairs) {
    Add(word);
    Add(meaning);
  }
  ClearTop();
  return true;
}

bool ListFileModel::Delete(const std::string& name) {
  if (!Remove(name)) return false;
  auto& first = lists_.front();
  if (first.empty() && lists_.size() == 1) first.push_back(kNone);
  if (!first.empty() && first.front().empty()) first.front() = kNone;
  return true;
}

// The first line that reads like the name, whether it is one or not.
std::optional<ListFileModel::Place> ListFileModel::Find(const std::string& name) const {
  for (std::size_t list = 0; list < lists_.size(); ++list) {
    const auto& lines = lists_[list];
    const auto line = std::find(lines.begin(), lines.end(), name);
    if (line != lines.end()) return Place{list, std::size_t(line - lines.begin())};
  }
  return std::nullopt;
}

void ListFileModel::Add(const std::string& line) {
  if (line == kSeparator) {
    lists_.emplace_back();
  } else {
    lists_.back().push_back(line);
  }
}

// Whether the list was found. What goes with it is the line in front of it: a separator as a rule.
bool ListFileModel::Remove(const std::string& name) {
  auto place = Find(name);
  // The name is the separator itself: nothing stands between it and the next.
  if (name == kSeparator && lists_.size() > 1) place = Place{0, lists_.front().size()};
  // Behind the last line everything reads as empty.
  if (!place && name.empty()) place = Place{lists_.size() - 1, lists_.back().size()};
  if (!place) return false;

  auto& list = lists_[place->list];
  list.erase(list.begin() + std::ptrdiff_t(place->line), list.end());
  if (!list.empty()) {
    list.pop_back();
  } else if (place->list > 0) {
    lists_.erase(lists_.begin() + std::ptrdiff_t(place->list));
  }
  return true;
}

// Empty lines and separators at the top go.
void ListFileModel::ClearTop() {
  for (;;) {
    auto& first = lists_.front();
    if (first.empty() && lists_.size() > 1) {
      lists_.erase(lists_.begin());
    } else if (!first.empty() && first.front().empty()) {
      first.erase(first.begin());
    } else {
      return;
    }
  }
}

}  // namespace brindlepage
