#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brindlepage::riddle_file {

inline constexpr std::string_view kFileName = "Riddles.dat";

struct Riddle {
  std::string riddle;
  std::string answer;
};

// The riddles of a file, each a line with its answer on the next. Throws what files:: throws: 53
// if the file is missing, 62 if the last riddle has no answer.
std::vector<Riddle> ReadRiddles(std::string_view name = kFileName);

}  // namespace brindlepage::riddle_file
