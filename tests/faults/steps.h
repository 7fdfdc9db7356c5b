#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tests/faults/played_program.h"

namespace brindlepage {

// Something that a teacher does, and what comes of it when a file that it opens is at fault.
struct Step {
  const char* name;
  Lines way;         // to the step, with every file in order
  std::string deed;  // the line of the walk that is the step
  const char* file;  // in the program's folder, with slashes
  // What the deed prints when the file is at fault. "@" is the fault's message and the end.
  std::string told = "@";
  // What the deed has written before it comes to the file.
  std::vector<const char*> written = {};
  // The form that is active behind it when the program goes on.
  const char* stays = "";
  // Files of the program's folder that aren't the usual ones.
  Snapshot files = {};
};

inline void PrintTo(const Step& step, std::ostream* out) { *out << step.name; }
// For a test's name.
std::string NameOf(const Step& step);
// The program's folder for it.
Snapshot FolderFor(const Step& step);

// Each screen, as the step that opens it, with the background picture as its file.
std::vector<Step> ScreensWithBackground();
// Each step that reads a file, but for those pictures.
std::vector<Step> ReadingSteps();
// Each step that writes a file; `told` is for a disk that is full.
std::vector<Step> WritingSteps();
// The same of the worksheets and their keys.
std::vector<Step> WorksheetSteps();

// `told` with the fault in it: error 61 "Disk full".
std::string Told(const Step& step, int number);

}  // namespace brindlepage
