#include "tests/random_teacher/fresh_folder.h"

#include <fstream>
#include <string>
#include <string_view>

#include "tests/file_bytes.h"

namespace brindlepage {

namespace {

namespace fs = std::filesystem;

// A bitmap of two by two pixels of 24 bits, its rows filled up to four bytes.
constexpr std::string_view kPicture{
    "BM\x46\0\0\0\0\0\0\0\x36\0\0\0"
    "\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x10\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
    "\xFF\0\0\0\xFF\0\0\0\0\0\xFF\xFF\xFF\xFF\0\0",
    70};

constexpr std::string_view kThreeLists =
    "Colours\r\nred\r\nlike a tomato\r\nblue\r\nlike the sky\r\n<New List>\r\n"
    "Empty\r\n<New List>\r\nVolcanoes\r\nlava\r\nhot rock\r\nash\r\nwhat falls\r\n";
constexpr std::string_view kOneList = "Planets\r\nMars\r\nred\r\nVenus\r\nhot\r\n";
constexpr std::string_view kNoList = "No Lists\r\n";

void Write(const fs::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), std::streamsize(bytes.size()));
}

}  // namespace

void FillFreshFolder(const fs::path& program_folder, const fs::path& folder, long round) {
  fs::copy(program_folder, folder, fs::copy_options::recursive);
  Write(folder / "sun.bmp", kPicture);
  fs::create_directory(folder / "class");
  Write(folder / "class" / "sun.bmp", kPicture);
  Write(folder / "class" / "TheLists.dat", kThreeLists);

  // As it comes is the rule.
  if (round % 5 == 1) Write(folder / "TheLists.dat", kThreeLists);
  if (round % 5 == 2) Write(folder / "TheLists.dat", kOneList);
  if (round % 5 == 3) Write(folder / "TheLists.dat", kNoList);
}

std::string SpoiltFile(const fs::path& program_folder, const fs::path& folder) {
  for (const char* name : {"Riddles.dat", "titleback.jpg", "brindlepagebackground.jpg"}) {
    if (FileBytes(folder / name) != FileBytes(program_folder / name)) {
      return std::string(name) + ", which no screen writes, was written to";
    }
  }
  return "";
}

}  // namespace brindlepage
