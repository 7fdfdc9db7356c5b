#pragma once

#include <string>

#include "core/list_file.h"
#include "tests/temp_folder.h"

namespace brindlepage::list_file {

inline constexpr const char* kFile = "TheLists.dat";

// The bytes of a file with these lines.
inline std::string FileOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// A folder with a list file in it.
class Folder {
 public:
  explicit Folder(const Lines& lines) { Put(FileOf(lines)); }
  explicit Folder(const std::string& bytes) { Put(bytes); }
  Folder() = default;

  void Put(const std::string& bytes) { folder_.Write(kFile, bytes); }
  std::string Bytes() const { return folder_.Read(kFile); }

 private:
  TempFolder folder_;
};

inline const Lines kThreeLists = {
    "Planets", "Mars", "red",   "Venus", "bright", "Saturn", "ringed", "<New List>",
    "Animals", "cat",  "purrs", "dog",   "barks",  "cow",    "moos",   "<New List>",
    "Colours", "red",  "hot",   "blue",  "cold",   "green",  "calm"};

}  // namespace brindlepage::list_file
