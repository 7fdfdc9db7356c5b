#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "bench/clicks/hand.h"

struct Walk {
  std::string name;
  std::function<void(Hand&)> clicks;
};

// All that the program can do, at its limits: as many words as each activity takes, and words and
// meanings as long as it takes.
std::vector<Walk> AllWalks();

// Puts the walks' lists, riddles and a clipart picture into a copy of a fresh program folder.
void PrepareFolder(const std::filesystem::path& folder);
