// A teacher without a plan, who acts at random on whatever is on the screen and looks for ends of
// the program that nobody has stated.
//
//     random_teacher PROGRAM_FOLDER [--seconds N] [--seed N] [--rounds N]
//
// Each round acts in a fresh copy of the folder, with a seed of its own, the first with that of the
// option, and starts the program again when it has ended. To use more than one processor, run it
// more than once, with seeds a million apart, each in a folder of its own: there a finding's deeds
// are left, in random_teacher.walk. Should the program crash, random_teacher.seed tells the seed.
// The status is 1 if it found an end that nobody has stated, a list file that is not as a simple
// model of it says, or, given time enough, a form that never comes up.

#include <chrono>
#include <fstream>
#include <iostream>

#include "tests/random_teacher/fresh_folder.h"
#include "tests/random_teacher/options.h"
#include "tests/random_teacher/round.h"
#include "tests/random_teacher/stated_ends.h"
#include "tests/temp_folder.h"

namespace {

namespace fs = std::filesystem;
using namespace brindlepage;

constexpr int kLinesOfARound = 1500;

// What is wrong with this round, or nothing.
std::string PlayInFreshFolder(const fs::path& program_folder, long seed, Round& round,
                              Tally& tally) {
  TempFolder folder;
  FillFreshFolder(program_folder, folder.Path(), seed);
  Tally met;
  try {
    round.Play(met);
  } catch (const std::exception& fault) {
    return fault.what();
  }
  tally.Add(met);
  const std::string end = FirstUnstatedEnd(met);
  return end.empty() ? SpoiltFile(program_folder, folder.Path()) : end;
}

void TellFinding(long seed, const Round& round, const std::string& finding) {
  std::ofstream file("random_teacher.walk");
  for (const std::string& line : round.script()) file << line << '\n';
  std::cout << "seed " << seed << ": " << finding << "\n";
  PrintLast(std::cout, round.script());
  std::cout << "All are in random_teacher.walk; --seed " << seed
            << " --rounds 1 does them again.\n";
}

// Whether every form came up, where there was time enough for that.
bool SawEverything(const Tally& tally) {
  constexpr long kTimeEnough = 60'000;  // deeds
  const auto missed = tally.Missed();
  if (missed.empty() || tally.deeds < kTimeEnough) return true;
  std::cout << "Never came up:";
  for (const std::string& form : missed) std::cout << ' ' << form;
  std::cout << '\n';
  return false;
}

}  // namespace

int main(int count, char** words) {
  Options options;
  if (!ReadOptions(count, words, options)) return 2;
  using Clock = std::chrono::steady_clock;
  const auto until = Clock::now() + std::chrono::seconds(options.seconds);
  Tally tally;
  long rounds = 0;
  for (; rounds < options.rounds && Clock::now() < until; ++rounds) {
    const long seed = options.seed + rounds;
    std::ofstream("random_teacher.seed") << seed << '\n';
    Round round(static_cast<std::uint64_t>(seed), kLinesOfARound);
    const std::string finding = PlayInFreshFolder(options.program_folder, seed, round, tally);
    if (finding.empty()) continue;
    TellFinding(seed, round, finding);
    return 1;
  }
  tally.Print(std::cout);
  std::cout << rounds << " rounds\n";
  return SawEverything(tally) ? 0 : 1;
}
