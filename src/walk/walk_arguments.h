#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "walk/walk.h"

namespace brindlepage::walk {

struct Arguments {
  std::optional<std::filesystem::path> folder;  // becomes the working directory
  std::optional<std::filesystem::path> script;  // standard input if there is none
  WalkSettings settings;
};

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads the arguments behind the program's name:
// [--folder DIR] [--screen WxH] [--draw-limit N] [SCRIPT]
Arguments ReadArguments(const std::vector<std::string>& arguments);

}  // namespace brindlepage::walk
