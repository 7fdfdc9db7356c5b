#include "tests/faults/played_program.h"

#include <gtest/gtest.h>

#include "program/screens.h"
#include "tests/bitmaps.h"
#include "tests/file_bytes.h"
#include "worksheet/rich_text.h"
#include "worksheet/rtf_writer.h"

namespace brindlepage {

namespace {

namespace fs = std::filesystem;

std::string SavedWorksheet() {
  RichText text("Arial", 10);
  text.SelText("Mars is red.");
  return WriteRtf(text);
}

std::unique_ptr<Program> StartOn(Platform& platform, RandomSource& random) {
  auto program = std::make_unique<BrindlepageProgram>(platform, random);
  program->Start();
  return program;
}

}  // namespace

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

Snapshot Look(const fs::path& folder) {
  Snapshot seen;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().lexically_relative(folder).generic_string();
    if (entry.is_symlink()) {
      seen[name] = "link to " + fs::read_symlink(entry.path()).generic_string();
    } else {
      seen[name] = entry.is_directory() ? "folder" : FileBytes(entry.path()).value_or("");
    }
  }
  return seen;
}

std::string Difference(const Snapshot& before, const Snapshot& after) {
  std::string told;
  for (const auto& [name, bytes] : before) {
    const auto now = after.find(name);
    if (now == after.end()) {
      told += name + " is gone\n";
    } else if (now->second != bytes) {
      told += name + " was " + testing::PrintToString(bytes) + ", is " +
              testing::PrintToString(now->second) + "\n";
    }
  }
  for (const auto& [name, bytes] : after) {
    if (!before.contains(name)) told += name + " is new: " + testing::PrintToString(bytes) + "\n";
  }
  return told;
}

Snapshot SmallFolder() {
  const std::string jpeg = "\xFF\xD8\xFF\xE0...";
  return {
      {"brindlepage.dat", "a\r\nb\r\n*****\r\nlistpath\r\n"},
      {"TheLists.dat",
       "Fire\r\nlava\r\nhot rock\r\nash\r\ngrey dust\r\nmagma\r\nrock below\r\ncrater\r\na hole\r\n"
       "<New List>\r\nPets\r\ncat\r\nit purrs\r\ndog\r\nit barks\r\n"},
      {"TheLists.bak", "Old\r\nword\r\nmeaning\r\n"},
      {"Riddles.dat", "Who is it?\r\nNobody\r\nWhat is hot?\r\nlava\r\n"},
      {"titleback.jpg", jpeg},
      {"brindlepagebackground.jpg", jpeg},
      {"apple.bmp", BitmapFile(2, 2)},
      {"bell.jpg", jpeg},
      {"worksheets", "folder"},
      {"worksheets/Mars.rtf", SavedWorksheet()},
      {"school", "folder"},
      {"school/TheLists.dat", "School\r\npen\r\nit writes\r\n"},
  };
}

PlayedProgram::PlayedProgram(const Snapshot& files)
    : walk_(std::make_unique<walk::Walk>(walk::WalkedProgram{StartOn, ScreenNamed},
                                         walk::WalkSettings{}, printed_, wrong_)) {
  for (const auto& [name, bytes] : files) {
    if (bytes == "folder") {
      fs::create_directory(folder_.Path() / name);
    } else {
      folder_.Write(name, bytes);
    }
  }
}

std::string PlayedProgram::Play(const Lines& lines) {
  std::string script;
  for (const std::string& line : lines) script += line + '\n';
  std::istringstream stream(script);
  printed_.str("");
  walk_->Play(stream);
  EXPECT_EQ(wrong_.str(), "");
  std::string printed = printed_.str();
  const std::string path = folder_.Path().generic_string();
  for (auto at = printed.find(path); at != std::string::npos; at = printed.find(path, at)) {
    printed.replace(at, path.size(), "FOLDER");
  }
  return printed;
}

}  // namespace brindlepage
