#include "tests/faults/troubles.h"

namespace brindlepage {

namespace {

namespace fs = std::filesystem;

void Remove(const TempFolder&, const fs::path& file) { fs::remove(file); }

void PutFolder(const TempFolder&, const fs::path& file) {
  fs::remove(file);
  fs::create_directory(file);
}

void Close(const TempFolder& folder, const fs::path& file) {
  if (!fs::exists(file)) folder.Write(file, "");
  fs::permissions(file, fs::perms::none);
}

void Protect(const TempFolder& folder, const fs::path& file) {
  Close(folder, file);
  fs::permissions(file, fs::perms{0444});
}

void ProtectFolder(const TempFolder&, const fs::path& file) {
  fs::permissions(file.parent_path(), fs::perms{0555});
}

void CloseFolder(const TempFolder&, const fs::path& file) {
  fs::permissions(file.parent_path(), fs::perms::none);
}

void RemoveFolder(const TempFolder&, const fs::path& file) { fs::remove_all(file.parent_path()); }

void PutFileForFolder(const TempFolder& folder, const fs::path& file) {
  fs::remove_all(file.parent_path());
  folder.Write(file.parent_path(), "no folder");
}

void Link(const fs::path& target, const fs::path& file) {
  fs::remove(file);
  fs::create_symlink(target, file);
}

void LinkToNothing(const TempFolder&, const fs::path& file) { Link("nothing", file); }
void LinkToItself(const TempFolder&, const fs::path& file) { Link(file.filename(), file); }
void LinkToFullDevice(const TempFolder&, const fs::path& file) { Link("/dev/full", file); }
// The first page of a process is never there, and reading it fails.
void LinkToBrokenDevice(const TempFolder&, const fs::path& file) { Link("/proc/self/mem", file); }

}  // namespace

std::vector<Trouble> ReadingTroubles() {
  return {
      {"Missing", 53, Remove},
      {"AFolderInItsPlace", 75, PutFolder},
      {"Closed", 70, Close, true},
      {"ALinkToNothing", 53, LinkToNothing},
      {"ALinkToItself", 57, LinkToItself},
      {"ABrokenDevice", 57, LinkToBrokenDevice},
  };
}

std::vector<Trouble> WritingTroubles() {
  return {
      {"AFolderInItsPlace", 75, PutFolder},
      {"ReadOnly", 75, Protect, true},
      {"ALinkToItself", 57, LinkToItself},
  };
}

std::vector<Trouble> MakingTroubles() {
  std::vector<Trouble> troubles = WritingTroubles();
  troubles.push_back({"AFullDevice", 61, LinkToFullDevice});
  return troubles;
}

std::vector<Trouble> FolderTroubles() {
  return {
      {"AFolderThatMayNotBeChanged", 70, ProtectFolder, true},
      {"AClosedFolder", 70, CloseFolder, true},
      {"AMissingFolder", 76, RemoveFolder},
      {"AFileInTheFoldersPlace", 76, PutFileForFolder},
  };
}

void LetEveryoneIn(const TempFolder& folder) {
  fs::permissions(folder.Path(), fs::perms::all);
  for (const auto& entry : fs::recursive_directory_iterator(folder.Path())) {
    if (entry.is_symlink()) continue;
    fs::permissions(entry.path(), entry.is_directory() ? fs::perms::all : fs::perms{0666});
  }
}

}  // namespace brindlepage
