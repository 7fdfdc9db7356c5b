#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>

#include "core/list_file.h"
#include "tests/expect_fault.h"
#include "tests/list_file_folder.h"

namespace brindlepage::list_file {
namespace {

using namespace std::string_literals;

// --- Any file, beside a plain model of what each routine does, step by step ------------------

namespace model {

struct Fail {
  int number;
};

Lines Split(const std::string& bytes) {
  Lines lines;
  std::string line;
  bool open = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\r' || bytes[i] == '\n') {
      if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
      lines.push_back(line);
      line.clear();
      open = false;
    } else {
      line += bytes[i];
      open = true;
    }
  }
  if (open) lines.push_back(line);
  return lines;
}

class Input {
 public:
  explicit Input(const std::string& bytes) : lines_(Split(bytes)) {}
  bool Ended() const { return next_ == lines_.size(); }
  std::string Line() {
    if (Ended()) throw Fail{62};
    return lines_[next_++];
  }

 private:
  Lines lines_;
  std::size_t next_ = 0;
};

Lines Names(const std::string& bytes) {
  Input input(bytes);
  Lines names = {input.Line()};
  while (!input.Ended()) {
    if (input.Line() == "<New List>") names.push_back(input.Line());
  }
  return names;
}

int ForEdit(const std::string& bytes, const std::string& name, Lines& words, Lines& meanings) {
  Input input(bytes);
  std::string current = input.Line();
  while (current != name) current = input.Line();
  int n = 0;
  while (current != "<New List>" && !input.Ended()) {
    n = n + 1;
    current = input.Line();
    words.push_back(current);
    meanings.push_back(input.Line());
  }
  if (current == "<New List>") n = n - 1;
  return n;
}

Lines Words(const std::string& bytes, const std::string& name, int count) {
  Input input(bytes);
  while (input.Line() != name) {
  }
  Lines both;
  for (int i = 1; i <= 2 * count; ++i) both.push_back(input.Line());
  return both;
}

std::string Entry(const Lines& data, int i) {
  return i < static_cast<int>(data.size()) ? data[static_cast<std::size_t>(i)] : "";
}

void Remove(Lines& data, const std::string& name) {
  int i = 0;
  while (Entry(data, i) != name) {
    // Past the end there is nothing but "", up to the counter's overflow.
    if (i == static_cast<int>(data.size())) throw Fail{6};
    i = i + 1;
  }
  while (Entry(data, i) != "<New List>" && i != static_cast<int>(data.size())) {
    data.erase(data.begin() + i);
  }
  if (i > 0) data.erase(data.begin() + i - 1);
}

void Strip(Lines& data) {
  while (!data.empty() && (data[0] == "" || data[0] == "<New List>")) data.erase(data.begin());
}

std::string New(const std::string& bytes, const Lines& temp_list) {
  Lines data = Split(bytes);
  for (const std::string& line : temp_list) data.push_back(line);
  Strip(data);
  if (Entry(data, 0) == "No Lists") data.erase(data.begin());
  return FileOf(data);
}

std::string Edited(const std::string& bytes, const std::string& name) {
  Lines data = Split(bytes);
  Remove(data, name);
  for (const char* line : {"<New List>", "Caption", "w", "m"}) data.push_back(line);
  Strip(data);
  return FileOf(data);
}

std::string Deleted(const std::string& bytes, const std::string& name) {
  Lines data = Split(bytes);
  Remove(data, name);
  if (data.empty()) data.push_back("");
  if (data[0] == "") data[0] = "No Lists";
  return FileOf(data);
}

}  // namespace model

std::string Told(const Lines& lines) {
  std::string told = std::to_string(lines.size()) + " lines:";
  for (const std::string& line : lines) told += "[" + line + "]";
  return told;
}

// What a routine gave, or the error it ended with.
std::string Outcome(const std::function<std::string()>& routine) {
  try {
    return routine();
  } catch (const RunTimeError& error) {
    return "error " + std::to_string(error.Number());
  } catch (const model::Fail& error) {
    return "error " + std::to_string(error.number);
  }
}

void ExpectSameOutcome(const std::function<std::string()>& program,
                       const std::function<std::string()>& plain) {
  EXPECT_EQ(Outcome(program), Outcome(plain));
}

void CompareNameReaders(const std::string& bytes, const std::string& name) {
  auto count_words = [&] { return std::to_string(CountListWords(kFile, name)); };
  ExpectSameOutcome(count_words, [&] {
    Lines words, meanings;
    return std::to_string(model::ForEdit(bytes, name, words, meanings));
  });

  for (int count : {-1, 0, 1, 3}) {
    auto load = [&] {
      WordPairs pairs = LoadListWords(kFile, name, count);
      Lines both;
      for (std::size_t i = 0; i < pairs.words.size(); ++i) {
        both.push_back(pairs.words[i]);
        both.push_back(pairs.meanings.at(i));
      }
      return Told(both);
    };
    ExpectSameOutcome(load, [&] { return Told(model::Words(bytes, name, count)); });
  }

  auto load_for_edit = [&] {
    Integer count;
    WordPairs pairs = LoadListForEdit(kFile, name, count);
    return std::to_string(count) + Told(pairs.words) + Told(pairs.meanings);
  };
  ExpectSameOutcome(load_for_edit, [&] {
    Lines words, meanings;
    int count = model::ForEdit(bytes, name, words, meanings);
    if (count < 0) throw model::Fail{5};
    words.resize(static_cast<std::size_t>(count));
    meanings.resize(static_cast<std::size_t>(count));
    return std::to_string(count) + Told(words) + Told(meanings);
  });
}

// What a writer leaves in the file, and that it leaves the file alone when it fails.
void CompareWriter(Folder& folder, const std::string& bytes, const std::function<void()>& writer,
                   const std::function<std::string()>& plain) {
  std::string expected = Outcome(plain);
  std::string outcome = Outcome([&] {
    writer();
    return folder.Bytes();
  });
  EXPECT_EQ(outcome, expected);
  if (outcome.starts_with("error ")) {
    EXPECT_EQ(folder.Bytes(), bytes);
  } else {
    folder.Put(bytes);
  }
}

void CompareWithModel(Folder& folder, const std::string& bytes, const Lines& names) {
  folder.Put(bytes);
  ExpectSameOutcome([] { return Told(FillListNames(kFile)); },
                    [&] { return Told(model::Names(bytes)); });
  ExpectSameOutcome([] { return Told(LoadWholeFile(kFile)); },
                    [&] { return Told(model::Split(bytes)); });
  ExpectSameOutcome([] { return std::to_string(ReadFirstLine(kFile)); },
                    [&] {
                      std::string line = model::Input(bytes).Line();
                      return std::to_string(line == "" || line == "No Lists");
                    });

  const Lines temp_list = {"<New List>", "Fresh", "w", "m"};
  CompareWriter(
      folder, bytes, [&] { SaveNewList(kFile, temp_list); },
      [&] { return model::New(bytes, temp_list); });

  for (const std::string& name : names) {
    CompareNameReaders(bytes, name);
    CompareWriter(
        folder, bytes, [&] { SaveEditedList(kFile, name, "Caption", {"w"}, {"m"}); },
        [&] { return model::Edited(bytes, name); });
    CompareWriter(
        folder, bytes,
        [&] {
          Lines data = LoadWholeFile(kFile);
          DeleteListLines(kFile, data, name);
        },
        [&] { return model::Deleted(bytes, name); });
  }
}

TEST(AnyListFile, FilesOfLikelyLinesAreReadAndWrittenStepByStep) {
  const Lines texts = {"A", "B", "w", "<New List>", "<New List>", "No Lists", "", "two words"};
  const Lines ends = {"\r\n", "\r\n", "\r\n", "\n", "\r"};
  std::mt19937 random(1);
  Folder folder;
  for (int file = 0; file < 2000; ++file) {
    std::string bytes;
    for (std::size_t lines = random() % 14; lines > 0; --lines) {
      bytes += texts[random() % texts.size()];
      // One file in two has the ends of a well-formed file alone.
      bytes += ends[random() % (file % 2 == 0 ? 1 : ends.size())];
    }
    if (file % 3 == 0) bytes = bytes.substr(0, random() % (bytes.size() + 1));
    CompareWithModel(folder, bytes, {texts[random() % texts.size()]});
    ASSERT_FALSE(HasFailure()) << "file " << file << ":\n" << bytes;
  }
}

TEST(AnyListFile, FilesOfRandomBytesAreReadOrRefused) {
  std::mt19937 random(2);
  Folder folder;
  for (int file = 0; file < 100; ++file) {
    std::string bytes(random() % 3000, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    Lines lines = model::Split(bytes);
    Lines names = {"A"};
    if (!lines.empty()) names.push_back(lines[random() % lines.size()]);
    CompareWithModel(folder, bytes, names);
    ASSERT_FALSE(HasFailure()) << "file " << file;
  }
}

TEST(AnyListFile, FileCutAtAnyByteIsReadOrRefused) {
  std::string whole = FileOf({"Planets", "Mars", "red", "<New List>", "Animals", "<New List>",
                              "Twin", "cat", "purrs", "dog", ""});
  Folder folder;
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    CompareWithModel(folder, whole.substr(0, length), {"Planets", "Animals", "Twin", "<New List>"});
    ASSERT_FALSE(HasFailure()) << "cut at " << length;
  }
}

TEST(AnyListFile, OneEndlessLineIsOneName) {
  std::string endless(10 << 20, 'x');
  Folder folder(endless);
  EXPECT_EQ(FillListNames(kFile), Lines{endless});
  EXPECT_EQ(CountListWords(kFile, endless), 0);
  EXPECT_FAULT(62, CountListWords(kFile, "A"));
  EXPECT_FALSE(ReadFirstLine(kFile));
  SaveNewList(kFile, {"<New List>", "A"});
  EXPECT_EQ(folder.Bytes(), endless + "\r\n<New List>\r\nA\r\n");
  SaveEditedList(kFile, endless, "B", {}, {});
  EXPECT_EQ(folder.Bytes(), "A\r\n<New List>\r\nB\r\n");
}

TEST(AnyListFile, FileWithoutLineEndsIsOneName) {
  Folder folder("Planets<New List>No Lists\x1A\0\t"s);
  EXPECT_EQ(FillListNames(kFile), Lines{"Planets<New List>No Lists\x1A\0\t"s});
}

TEST(AnyListFile, FileOfLineEndsAloneIsReadOrRefused) {
  Folder folder(std::string(100000, '\n'));
  EXPECT_EQ(FillListNames(kFile), Lines{""});
  EXPECT_TRUE(ReadFirstLine(kFile));
  EXPECT_FAULT(6, LoadWholeFile(kFile));
  EXPECT_FAULT(6, CountListWords(kFile, ""));
}

}  // namespace
}  // namespace brindlepage::list_file
