#pragma once

#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "tests/temp_folder.h"
#include "walk/walk.h"

namespace brindlepage {

// Lines of a walk, as docs/walk.md tells them.
using Lines = std::vector<std::string>;

Lines operator+(Lines lines, const Lines& more);

// What stands in a folder and below: names with slashes; of a file its bytes, of a folder and of a
// link what they are.
using Snapshot = std::map<std::string, std::string>;

Snapshot Look(const std::filesystem::path& folder);

// A snapshot's names and sizes, and those bytes that differ from the other's.
std::string Difference(const Snapshot& before, const Snapshot& after);

// A small program folder: two lists, two riddles, settings, pictures, a saved worksheet.
Snapshot SmallFolder();

// The whole program in a folder of its own, played by the lines of a walk.
class PlayedProgram {
 public:
  explicit PlayedProgram(const Snapshot& files = SmallFolder());

  // Plays lines and returns what they print. The program's folder stands as "FOLDER".
  std::string Play(const Lines& lines);

  const TempFolder& folder() const { return folder_; }
  Snapshot Files() const { return Look(folder_.Path()); }

 private:
  TempFolder folder_;
  std::ostringstream printed_;
  std::ostringstream wrong_;
  std::unique_ptr<walk::Walk> walk_;
};

}  // namespace brindlepage
