#include "core/list_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "toolkit/files.h"

namespace brindlepage::list_file {
namespace {

constexpr std::size_t kMostLines = INT16_MAX;

// A file that has been read up to and including the name of a list.
files::LineReader OpenAtList(std::string_view path, std::string_view name) {
  files::LineReader reader(path);
  while (reader.ReadLine() != name) {
  }
  return reader;
}

// Gives each pair behind the name to `take` and returns their number. The end of a list shows
// only once its separator has been taken for a word and the next list's name for a meaning; that
// false pair is counted back, but `take` has seen it. `closed` tells that it has.
template <class Take>
Integer ReadPairs(files::LineReader& reader, std::string_view name, bool& closed, Take take) {
  Integer count;
  std::string_view current = name;
  while (current != kNewList && !reader.AtEnd()) {
    ++count;
    current = reader.ReadLine();
    take(current, reader.ReadLine());
  }
  closed = current == kNewList;
  if (closed) --count;
  return count;
}

std::string_view EntryAt(const Lines& data, std::size_t index) {
  return index < data.size() ? std::string_view(data[index]) : std::string_view();
}

void WriteWholeFile(std::string_view path, const Lines& data) {
  if (data.size() > kMostLines) throw RunTimeError(Fault::Overflow);
  files::WriteAllLines(path, data);
}

void RemoveLast(Lines& lines) {
  if (lines.empty()) throw RunTimeError(Fault::InvalidCall);
  lines.pop_back();
}

}  // namespace

Lines FillListNames(std::string_view path) {
  files::LineReader reader(path);
  Lines names;
  names.emplace_back(reader.ReadLine());
  while (!reader.AtEnd()) {
    if (reader.ReadLine() == kNewList) names.emplace_back(reader.ReadLine());
  }
  return names;
}

Integer CountListWords(std::string_view path, std::string_view name) {
  files::LineReader reader = OpenAtList(path, name);
  bool closed = false;
  return ReadPairs(reader, name, closed, [](std::string_view, std::string_view) {});
}

WordPairs LoadListWords(std::string_view path, std::string_view name, Integer count) {
  files::LineReader reader = OpenAtList(path, name);
  WordPairs pairs;
  for (int i = 0; i < count; ++i) {
    pairs.words.emplace_back(reader.ReadLine());
    pairs.meanings.emplace_back(reader.ReadLine());
  }
  return pairs;
}

WordPairs LoadListForEdit(std::string_view path, std::string_view name, Integer& count) {
  files::LineReader reader = OpenAtList(path, name);
  WordPairs pairs;
  bool closed = false;
  count =
      ReadPairs(reader, name, closed, [&pairs](std::string_view word, std::string_view meaning) {
        pairs.words.emplace_back(word);
        pairs.meanings.emplace_back(meaning);
      });
  if (closed) {
    RemoveLast(pairs.words);
    RemoveLast(pairs.meanings);
  }
  return pairs;
}

bool ReadFirstLine(std::string_view path) {
  files::LineReader reader(path);
  std::string_view line = reader.ReadLine();
  return line.empty() || line == kNoLists;
}

Lines LoadWholeFile(std::string_view path) {
  files::LineReader reader(path);
  Lines data;
  while (!reader.AtEnd()) {
    if (data.size() == kMostLines) throw RunTimeError(Fault::Overflow);
    data.emplace_back(reader.ReadLine());
  }
  return data;
}

void RemoveListLines(Lines& data, std::string_view name) {
  Integer first;
  while (EntryAt(data, static_cast<std::size_t>(first)) != name) ++first;

  auto begin = data.begin() + first;
  auto end = std::find(begin, data.end(), kNewList);
  if (first > 0) --begin;
  data.erase(begin, end);
}

void StripLeadingLines(Lines& data) {
  auto is_text = [](const std::string& line) { return !line.empty() && line != kNewList; };
  data.erase(data.begin(), std::find_if(data.begin(), data.end(), is_text));
}

void SaveNewList(std::string_view path, const Lines& temp_list) {
  Lines data = LoadWholeFile(path);
  data.insert(data.end(), temp_list.begin(), temp_list.end());
  StripLeadingLines(data);
  if (EntryAt(data, 0) == kNoLists) data.erase(data.begin());
  WriteWholeFile(path, data);
}

void SaveEditedList(std::string_view path, std::string_view current_name, std::string_view caption,
                    const Lines& words, const Lines& meanings) {
  Lines data = LoadWholeFile(path);
  RemoveListLines(data, current_name);
  data.emplace_back(kNewList);
  data.emplace_back(caption);
  for (std::size_t row = 0; row < words.size(); ++row) {
    data.push_back(words[row]);
    data.emplace_back(EntryAt(meanings, row));
  }
  StripLeadingLines(data);
  WriteWholeFile(path, data);
}

void DeleteListLines(std::string_view path, Lines& data, std::string_view name) {
  RemoveListLines(data, name);
  if (EntryAt(data, 0).empty()) {
    data.resize(std::max<std::size_t>(data.size(), 1));
    data[0] = kNoLists;
  }
  WriteWholeFile(path, data);
}

}  // namespace brindlepage::list_file
