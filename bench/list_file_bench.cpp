#include <benchmark/benchmark.h>

#include <filesystem>
#include <optional>
#include <string>

#include "core/list_file.h"
#include "tests/temp_folder.h"
#include "toolkit/files.h"

namespace brindlepage {
namespace {

constexpr const char* kFile = "TheLists.dat";

// A list file at its limit of 32,767 lines: 528 lists of 30 words each, or as many as fit of
// another length, with meanings as teachers write them, and a last list that fills it up.
list_file::Lines LargestFile(int words = 30) {
  list_file::Lines lines;
  for (int list = 0; lines.size() < 32767; ++list) {
    if (list > 0) lines.emplace_back(list_file::kNewList);
    lines.push_back("List " + std::to_string(list));
    for (int word = 0; word < words; ++word) {
      lines.push_back("word" + std::to_string(word));
      lines.push_back("what a teacher says of word " + std::to_string(word));
    }
  }
  lines.resize(32767);
  return lines;
}

class ListFile : public benchmark::Fixture {
 public:
  void SetUp(benchmark::State&) override {
    // On the disk, as a teacher's list file is.
    folder_.emplace(std::filesystem::temp_directory_path());
    files::WriteAllLines(kFile, LargestFile());
  }
  void TearDown(benchmark::State&) override { folder_.reset(); }

 private:
  std::optional<TempFolder> folder_;
};

// The measure of the others: what the system takes to copy the same bytes.
BENCHMARK_F(ListFile, CopyByTheSystem)(benchmark::State& state) {
  for (auto _ : state) {
    std::filesystem::copy_file(kFile, "copy.dat",
                               std::filesystem::copy_options::overwrite_existing);
  }
}

BENCHMARK_F(ListFile, ReadAndRewrite)(benchmark::State& state) {
  for (auto _ : state) files::WriteAllLines("copy.dat", list_file::LoadWholeFile(kFile));
}

BENCHMARK_F(ListFile, ReadWholeFile)(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(list_file::LoadWholeFile(kFile));
}

BENCHMARK_F(ListFile, FillListNames)(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(list_file::FillListNames(kFile));
}

BENCHMARK_F(ListFile, CountAndLoadAListInTheMiddle)(benchmark::State& state) {
  for (auto _ : state) {
    Integer count = list_file::CountListWords(kFile, "List 264");
    benchmark::DoNotOptimize(list_file::LoadListWords(kFile, "List 264", count));
  }
}

// Each turn moves another list to the end of the file, so none is a special case.
BENCHMARK_F(ListFile, EditAndSaveAList)(benchmark::State& state) {
  int list = 0;
  for (auto _ : state) {
    std::string name = "List " + std::to_string(list++ % 500);
    Integer count;
    list_file::WordPairs pairs = list_file::LoadListForEdit(kFile, name, count);
    list_file::SaveEditedList(kFile, name, name, pairs.words, pairs.meanings);
  }
}

// The longest list that an activity takes, in the largest file. Aim: under 20 ms.
BENCHMARK_F(ListFile, EditAndSaveAListOfThreeHundredWords)(benchmark::State& state) {
  files::WriteAllLines(kFile, LargestFile(300));
  int list = 0;
  for (auto _ : state) {
    std::string name = "List " + std::to_string(list++ % 50);
    Integer count;
    list_file::WordPairs pairs = list_file::LoadListForEdit(kFile, name, count);
    pairs.meanings[150] = "what a teacher says of it now";
    list_file::SaveEditedList(kFile, name, name, pairs.words, pairs.meanings);
  }
}

// The search for a name that is not there, which runs until the counter overflows.
BENCHMARK_F(ListFile, SearchForAnUnknownName)(benchmark::State& state) {
  list_file::Lines data = list_file::LoadWholeFile(kFile);
  for (auto _ : state) {
    try {
      list_file::RemoveListLines(data, "no such list");
    } catch (const RunTimeError& overflow) {
      benchmark::DoNotOptimize(overflow.Number());
    }
  }
}

}  // namespace
}  // namespace brindlepage
