#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brindlepage {

// A command line of a program's path and quoted files:
//
//   C:\Programs\Writer.exe "C:\Lists\worksheets\Planets.rtf"
//
// The path may hold blanks; it ends at the first quotation mark, or stands in quotation marks
// itself.
struct CommandLine {
  std::string program;
  std::vector<std::string> files;
};

CommandLine SplitCommandLine(std::string_view command_line);

}  // namespace brindlepage
