#pragma once

#include <filesystem>

namespace brindlepage {

// PROGRAM_FOLDER [--seconds N] [--seed N] [--rounds N]
struct Options {
  std::filesystem::path program_folder;
  long seconds = 60;
  long seed = 1;  // of the first round; each further one has the next
  long rounds = 1'000'000'000;
};

// False, with a line on standard error, where they make no sense.
bool ReadOptions(int count, char** words, Options& options);

}  // namespace brindlepage
