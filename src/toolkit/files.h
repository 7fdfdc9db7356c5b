#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// Files as the program names them: backslashes (a slash serves as well) between the parts, the
// text in Windows-1252. This is the one place that maps such a name to the machine's own path.
//
// What the teacher's desktop refuses in a file name (`: * ? " < > |` and control characters; a
// colon is allowed as the second character, behind a drive's letter) throws RunTimeError 52 on
// every system. The process's working directory may hold any character: a name that begins with
// WorkingDirectory() is mapped through the real one.
//
// Failures throw RunTimeError: 53 no such file, 76 no such folder on the way, 75 a folder where a
// file should be or a file that may be read only, 70 no permission, 61 the disk is full, 52 a name
// that is empty, of blanks alone or too long, 57 any other fault of the device, 62 reading past
// the end. A failed write leaves the file cut, as there is no temporary file.
namespace brindlepage::files {

// The working directory of the process in the machine's own form ("/home/ann", "C:\Lists"), without
// a trailing separator. Characters that the code page lacks show as "?".
std::string WorkingDirectory();

// Case tells no names apart: one that isn't there as written is mapped to the one that differs in
// case alone, the first of several.
std::filesystem::path NativePath(std::string_view name);

// Reads a text file by lines. A line ends with carriage return and line feed; a line feed or a
// carriage return alone ends one too; what follows the last line end is a line if it isn't empty.
class LineReader {
 public:
  explicit LineReader(std::string_view name);

  bool AtEnd() const { return position_ >= content_.size(); }
  // The next line without its end. Throws 62 at the end of the file.
  std::string_view ReadLine();

 private:
  std::string content_;
  std::size_t position_ = 0;
  std::size_t next_return_ = 0;
  std::size_t next_feed_ = 0;
};

std::vector<std::string> ReadAllLines(std::string_view name);

// Empties or makes the file and writes the lines, each ended by carriage return and line feed.
void WriteAllLines(std::string_view name, const std::vector<std::string>& lines);

// Whole files of bytes: pictures, saved worksheets.
std::string ReadBytes(std::string_view name);
void WriteBytes(std::string_view name, std::string_view bytes);

bool FolderExists(std::string_view name);
// Throws 75 if a file or folder of that name stands there, 76 if the folder above is missing.
void MakeFolder(std::string_view name);

// Names of the sub-folders, or of the files that match one of the patterns ("*.rtf;*.bmp", case
// ignored, "*.*" is every file), in the order of a sorted list. Throws 76 if the folder is missing.
// Names that the code page can't show or that a file name may not have are left out, since the
// program could not open them, and so are hidden ones, which begin with a dot.
std::vector<std::string> SubFolders(std::string_view folder);
std::vector<std::string> FilesIn(std::string_view folder, std::string_view patterns);

}  // namespace brindlepage::files
