#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlepage {

// A command line of a program and what it is given:
//
//   C:\Programs\Writer.exe "C:\Lists\worksheets\Planets.rtf"
//   C:\Programs\Writer.exe /n"C:\Lists\worksheets\Planets.rtf"
//
// A quotation mark ends the word before it and begins a text that may hold blanks.
struct CommandLine {
  std::string program;
  std::vector<std::string> arguments;  // without quotation marks
};

// The program's path stands in quotation marks, or ends at the first of them or earlier: then it is
// the longest text of whole words that `is_program` takes, and the other words are arguments.
// With no such text all of it is the path.
CommandLine SplitCommandLine(std::string_view command_line,
                             const std::function<bool(const std::string&)>& is_program);

}  // namespace brindlepage
