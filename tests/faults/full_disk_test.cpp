// The disk is full after any number of bytes: the told message, and on the disk what fitted.

#include "tests/faults/full_disk.h"

#include <gtest/gtest.h>

#include "tests/faults/steps.h"

namespace brindlepage {
namespace {

// The steps with all the files that they write, in their order.
struct Write {
  Step step;
  std::vector<std::string> files;
  std::size_t stride;  // bytes from one limit to the next
};

void PrintTo(const Write& write, std::ostream* out) { *out << write.step.name; }

std::string CaseName(const testing::TestParamInfo<Write>& info) {
  return NameOf(info.param.step) + "_" + std::to_string(info.index);
}

class FullDiskTest : public testing::TestWithParam<Write> {
 protected:
  // Plays the step on a disk with room for so many bytes in a file. `order` is the writes on a disk
  // with room enough.
  void ExpectCut(const Snapshot& whole, std::size_t room) {
    SCOPED_TRACE("room for " + std::to_string(room) + " bytes");
    const auto& [step, files, stride] = GetParam();
    PlayedProgram program(FolderFor(step));
    program.Play(step.way);
    Snapshot expected = program.Files();
    const std::string* failing = nullptr;
    for (const std::string& file : files) {
      expected[file] = whole.at(file).substr(0, room);
      if (whole.at(file).size() > room) failing = &file;
      if (failing != nullptr) break;
    }
    ASSERT_NE(failing, nullptr);
    std::string printed;
    {
      FullDisk disk(room);
      printed = program.Play({step.deed});
    }
    if (*failing == step.file) {
      EXPECT_EQ(printed, Told(step, 61));
    }
    EXPECT_EQ(Difference(expected, program.Files()), "");
  }
};

TEST_P(FullDiskTest, HoldsWhatFittedAndNothingElseIsTouched) {
  const auto& [step, files, stride] = GetParam();
  PlayedProgram program(FolderFor(step));
  program.Play(step.way);
  program.Play({step.deed});
  const Snapshot whole = program.Files();
  std::size_t largest = 0;
  for (const std::string& file : files) largest = std::max(largest, whole.at(file).size());
  ASSERT_GT(largest, 0u);
  for (std::size_t room = 0; room < largest; room += stride) ExpectCut(whole, room);
  ExpectCut(whole, largest - 1);
}

std::vector<Write> ShortFiles() {
  std::vector<Write> writes;
  for (const Step& step : WritingSteps()) writes.push_back({step, {step.file}, 1});
  return writes;
}

// A sheet and its key, of a thousand bytes and more.
std::vector<Write> Worksheets() {
  std::vector<Write> writes;
  for (const Step& step : WorksheetSteps()) {
    std::vector<std::string> files(step.written.begin(), step.written.end());
    files.push_back(step.file);
    const bool crossword = step.name == std::string("CrosswordWorksheet");
    writes.push_back({step, files, crossword ? 4999u : 97u});
  }
  return writes;
}

INSTANTIATE_TEST_SUITE_P(OfTheProgram, FullDiskTest, testing::ValuesIn(ShortFiles()), CaseName);
INSTANTIATE_TEST_SUITE_P(OfWorksheets, FullDiskTest, testing::ValuesIn(Worksheets()), CaseName);

}  // namespace
}  // namespace brindlepage
