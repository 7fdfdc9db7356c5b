// A file that a step opens can't be read, written or made: the told message, no crash, and no file
// touched that the step hasn't written before.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <tuple>

#include "tests/faults/steps.h"
#include "tests/faults/troubles.h"
#include "tests/ordinary_teacher.h"

namespace brindlepage {
namespace {

namespace fs = std::filesystem;

using Case = std::tuple<Step, Trouble>;

std::string CaseName(const testing::TestParamInfo<Case>& info) {
  const auto& [step, trouble] = info.param;
  return NameOf(step) + "_" + trouble.name + "_" + std::to_string(info.index);
}

// What the step leaves with every file in order.
Snapshot LeftByFaultless(const Step& step) {
  PlayedProgram program(FolderFor(step));
  EXPECT_EQ(program.Play(step.way).find("error"), std::string::npos);
  EXPECT_EQ(program.Play({step.deed}).find("error"), std::string::npos);
  return program.Files();
}

void ExpectGoesOn(PlayedProgram& program, const Step& step) {
  if (*step.stays == '\0') return;
  const std::string forms = program.Play({"forms"});
  EXPECT_NE(forms.find(std::string(step.stays) + " shown active\n"), std::string::npos) << forms;
}

// Those that write no other file before.
std::vector<Step> FirstOf(const std::vector<Step>& steps) {
  std::vector<Step> first;
  std::copy_if(steps.begin(), steps.end(), std::back_inserter(first),
               [](const Step& step) { return step.written.empty(); });
  return first;
}

class BrokenFile : public testing::TestWithParam<Case> {};

TEST_P(BrokenFile, IsToldAndNothingElseIsTouched) {
  const auto& [step, trouble] = GetParam();
  PlayedProgram program(FolderFor(step));
  program.Play(step.way);
  LetEveryoneIn(program.folder());
  trouble.make(program.folder(), step.file);
  Snapshot before = program.Files();
  {
    std::optional<OrdinaryTeacher> teacher;
    if (trouble.keeps_away) teacher.emplace();
    EXPECT_EQ(program.Play({step.deed}), Told(step, trouble.number));
    ExpectGoesOn(program, step);
  }
  LetEveryoneIn(program.folder());
  if (!step.written.empty()) {
    const Snapshot faultless = LeftByFaultless(step);
    for (const char* name : step.written) before[name] = faultless.at(name);
  }
  EXPECT_EQ(Difference(before, program.Files()), "");
}

using testing::Combine;
using testing::ValuesIn;

INSTANTIATE_TEST_SUITE_P(Read, BrokenFile,
                         Combine(ValuesIn(ReadingSteps()), ValuesIn(ReadingTroubles())), CaseName);
INSTANTIATE_TEST_SUITE_P(Background, BrokenFile,
                         Combine(ValuesIn(ScreensWithBackground()), ValuesIn(ReadingTroubles())),
                         CaseName);
INSTANTIATE_TEST_SUITE_P(Written, BrokenFile,
                         Combine(ValuesIn(WritingSteps()), ValuesIn(WritingTroubles())), CaseName);
INSTANTIATE_TEST_SUITE_P(Made, BrokenFile,
                         Combine(ValuesIn(WorksheetSteps()), ValuesIn(MakingTroubles())), CaseName);

INSTANTIATE_TEST_SUITE_P(MadeInAFolder, BrokenFile,
                         Combine(ValuesIn(FirstOf(WorksheetSteps())), ValuesIn(FolderTroubles())),
                         CaseName);

}  // namespace
}  // namespace brindlepage
