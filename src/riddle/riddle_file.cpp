#include "riddle/riddle_file.h"

#include "toolkit/files.h"

namespace brindlepage::riddle_file {

std::vector<Riddle> ReadRiddles(std::string_view name) {
  files::LineReader lines(name);
  std::vector<Riddle> riddles;
  while (!lines.AtEnd()) {
    std::string riddle(lines.ReadLine());
    std::string answer(lines.ReadLine());
    riddles.push_back({std::move(riddle), std::move(answer)});
  }
  return riddles;
}

}  // namespace brindlepage::riddle_file
