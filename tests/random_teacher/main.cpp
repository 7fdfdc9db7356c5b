// A teacher without a plan, who acts at random on whatever is on the screen and looks for ends of
// the program that nobody has stated.
//
//     random_teacher PROGRAM_FOLDER [--seconds N] [--seed N] [--rounds N]
//
// Each round acts in a fresh copy of the folder, and starts the program again when it has ended.
// At a finding the round's lines go into random_teacher.walk, which brindlepage-walk plays again
// with --draw-limit 2000000 in a fresh copy, and the status is 1.

#include <charconv>
#include <chrono>
#include <cstring>
#include <fstream>
#include <iostream>

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

void Keep(const Round& round) {
  std::ofstream file("random_teacher.walk");
  for (const std::string& line : round.script()) file << line << '\n';
}

// What is wrong with this round, or nothing.
std::string PlayInFreshFolder(const fs::path& program_folder, Round& round, Ends& ends) {
  TempFolder folder;
  fs::copy(program_folder, folder.Path(), fs::copy_options::recursive);
  fs::create_directory(folder.Path() / "class");
  Ends met;
  try {
    round.Play(met);
  } catch (const std::exception& fault) {
    return fault.what();
  }
  std::string unstated;
  for (const auto& [end, count] : met) {
    ends[end] += count;
    if (!IsStatedEnd(end)) unstated = end;
  }
  for (const char* name : {"Riddles.dat", "titleback.jpg", "brindlepagebackground.jpg"}) {
    std::ifstream before(program_folder / name, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(before), {});
    if (folder.Read(name) != bytes) unstated = std::string(name) + " was written to";
  }
  return unstated;
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
  Ends ends;
  long deeds = 0;
  long rounds = 0;
  while (rounds < options.rounds && Clock::now() < until) {
    Round round(static_cast<std::uint64_t>(options.seed + rounds), kLinesOfARound);
    const std::string finding = PlayInFreshFolder(options.program_folder, round, ends);
    deeds += static_cast<long>(round.script().size());
    ++rounds;
    if (finding.empty()) continue;
    Keep(round);
    std::cout << "seed " << options.seed + rounds - 1 << ": " << finding
              << "\nIts lines are in random_teacher.walk.\n";
    return 1;
  }
  for (const auto& [end, met] : ends) std::cout << met << "  " << end << '\n';
  std::cout << deeds << " deeds in " << rounds << " rounds\n";
}
