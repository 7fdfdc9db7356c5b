// A teacher without a plan, who acts at random on whatever is on the screen and looks for ends of
// the program that nobody has stated.
//
//     random_teacher PROGRAM_FOLDER [--seconds N] [--seed N] [--rounds N]
//
// Each round acts in a fresh copy of the folder, and starts the program again when it has ended.
// The status is 1 if it found an end that nobody has stated, a list file that is not as a simple
// model of it says, or, given time enough, a form that never comes up.

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstring>
#include <fstream>
#include <iostream>

#include "tests/random_teacher/fresh_folder.h"
#include "tests/random_teacher/round.h"
#include "tests/random_teacher/stated_ends.h"
#include "tests/temp_folder.h"

namespace {

namespace fs = std::filesystem;
using namespace brindlepage;

constexpr int kLinesOfARound = 1500;

struct Options {
  fs::path program_folder;
  long seconds = 60;
  long seed = 1;
  long rounds = 1'000'000'000;
};

bool Read(int count, char** words, Options& options) {
  if (count < 2 || count % 2 != 0) return false;
  options.program_folder = fs::absolute(words[1]);
  for (int i = 2; i < count; i += 2) {
    const std::string_view name = words[i];
    long* option = name == "--seconds"  ? &options.seconds
                   : name == "--seed"   ? &options.seed
                   : name == "--rounds" ? &options.rounds
                                        : nullptr;
    if (option == nullptr) return false;
    const char* end = words[i + 1] + std::strlen(words[i + 1]);
    if (std::from_chars(words[i + 1], end, *option).ptr != end) return false;
  }
  return true;
}

// What is wrong with this round, or nothing.
std::string PlayInFreshFolder(const fs::path& program_folder, Round& round, Tally& tally) {
  TempFolder folder;
  FillFreshFolder(program_folder, folder.Path());
  Tally met;
  try {
    round.Play(met);
  } catch (const std::exception& fault) {
    return fault.what();
  }
  tally.Add(met);
  for (const auto& [end, count] : met.ends) {
    if (!IsStatedEnd(end)) return end;
  }
  const std::string spoilt = SpoiltFile(program_folder, folder.Path());
  return spoilt.empty() ? "" : spoilt + " was written to";
}

void TellFinding(long seed, const Round& round, const std::string& finding) {
  constexpr std::size_t kLast = 20;
  const auto& script = round.script();
  std::ofstream file("random_teacher.walk");
  for (const std::string& line : script) file << line << '\n';
  std::cout << "seed " << seed << ": " << finding << "\nThe last deeds:\n";
  for (std::size_t i = script.size() - std::min(script.size(), kLast); i < script.size(); ++i) {
    std::cout << "  " << script[i] << '\n';
  }
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
  if (!Read(count, words, options)) {
    std::cerr << "usage: random_teacher PROGRAM_FOLDER [--seconds N] [--seed N] [--rounds N]\n";
    return 2;
  }
  using Clock = std::chrono::steady_clock;
  const auto until = Clock::now() + std::chrono::seconds(options.seconds);
  Tally tally;
  long rounds = 0;
  for (; rounds < options.rounds && Clock::now() < until; ++rounds) {
    const long seed = options.seed + rounds;
    Round round(static_cast<std::uint64_t>(seed), kLinesOfARound);
    const std::string finding = PlayInFreshFolder(options.program_folder, round, tally);
    if (finding.empty()) continue;
    TellFinding(seed, round, finding);
    return 1;
  }
  tally.Print(std::cout);
  std::cout << rounds << " rounds\n";
  return SawEverything(tally) ? 0 : 1;
}
