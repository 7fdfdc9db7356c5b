#include "desktop/command_line.h"

namespace brindlepage {

namespace {

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

}  // namespace

CommandLine SplitCommandLine(std::string_view command_line) {
  CommandLine split;
  const auto quote = command_line.find('"');
  split.program = Trimmed(command_line.substr(0, quote));
  auto open = quote;
  while (open != std::string_view::npos) {
    const auto close = command_line.find('"', open + 1);
    const auto length = close == std::string_view::npos ? close : close - open - 1;
    std::string quoted(command_line.substr(open + 1, length));
    if (split.program.empty()) {
      split.program = std::move(quoted);
    } else {
      split.files.push_back(std::move(quoted));
    }
    if (close == std::string_view::npos) break;
    open = command_line.find('"', close + 1);
  }
  return split;
}

}  // namespace brindlepage
