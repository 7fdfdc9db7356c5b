#include "tests/random_teacher/options.h"

#include <charconv>
#include <cstring>
#include <iostream>
#include <string_view>

namespace brindlepage {

namespace {

bool ReadOption(std::string_view name, const char* value, Options& options) {
  long* option = name == "--seconds"  ? &options.seconds
                 : name == "--seed"   ? &options.seed
                 : name == "--rounds" ? &options.rounds
                                      : nullptr;
  const char* end = value + std::strlen(value);
  return option != nullptr && std::from_chars(value, end, *option).ptr == end;
}

}  // namespace

bool ReadOptions(int count, char** words, Options& options) {
  bool known = count >= 2 && count % 2 == 0;
  for (int i = 2; known && i < count; i += 2) known = ReadOption(words[i], words[i + 1], options);
  if (known) {
    options.program_folder = std::filesystem::absolute(words[1]);
  } else {
    std::cerr << "usage: " << words[0] << " PROGRAM_FOLDER [--seconds N] [--seed N] [--rounds N]\n";
  }
  return known;
}

}  // namespace brindlepage
