#include "desktop/command_line.h"

#include <algorithm>

namespace brindlepage {

namespace {

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

// The words and quoted texts, in order.
std::vector<std::string> SplitArguments(std::string_view text) {
  std::vector<std::string> arguments;
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.empty()) return arguments;
    const bool quoted = text.front() == '"';
    if (quoted) text.remove_prefix(1);
    const auto end = std::min(text.find_first_of(quoted ? "\"" : "\" "), text.size());
    arguments.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
    if (quoted && !text.empty()) text.remove_prefix(1);
  }
}

}  // namespace

CommandLine SplitCommandLine(std::string_view command_line,
                             const std::function<bool(const std::string&)>& is_program) {
  const auto quote = std::min(command_line.find('"'), command_line.size());
  const std::string path = Trimmed(command_line.substr(0, quote));
  if (path.empty()) {
    auto arguments = SplitArguments(command_line.substr(quote));
    if (arguments.empty()) return {};
    std::string program = std::move(arguments.front());
    arguments.erase(arguments.begin());
    return {std::move(program), std::move(arguments)};
  }
  std::string program = path;
  while (!is_program(program)) {
    const auto blank = program.rfind(' ');
    if (blank == std::string::npos) {
      program = path;
      break;
    }
    program = Trimmed(program.substr(0, blank));
  }
  const auto behind = command_line.find(program) + program.size();
  return {std::move(program), SplitArguments(command_line.substr(behind))};
}

}  // namespace brindlepage
