#include "toolkit/file_lists.h"

#include <filesystem>

#include "toolkit/files.h"

namespace brindlepage {

namespace {

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

// Without trailing separators, but for a root's own.
std::string Trimmed(std::string path) {
  while (path.size() > 1 && IsSeparator(path.back()) && path[path.size() - 2] != ':') {
    path.pop_back();
  }
  return path;
}

std::string Parent(const std::string& path) {
  const auto cut = path.find_last_of("\\/");
  if (cut == std::string::npos || cut + 1 == path.size()) return "";
  const bool root = cut == 0 || path[cut - 1] == ':';
  return path.substr(0, root ? cut + 1 : cut);
}

std::string Joined(const std::string& folder, const std::string& name) {
  return !folder.empty() && IsSeparator(folder.back()) ? folder + name : folder + "\\" + name;
}

std::vector<std::string> Drives() {
#ifdef _WIN32
  std::vector<std::string> drives;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    std::error_code ignored;
    if (std::filesystem::exists(std::string(1, letter) + ":\\", ignored)) {
      drives.push_back(std::string(1, letter) + ":");
    }
  }
  return drives;
#else
  return {"/"};
#endif
}

}  // namespace

DriveListBox::DriveListBox(Form& form, std::string name)
    : ListBox(form, std::move(name)), Drive(*this, "Drive", "", [this](const std::string& before) {
        if (Drive() != before) Change();
      }) {
  Fill(Drives());
  if (ListCount() > 0) {
    ListIndex.Put(0);
    Drive.Put(List(0));
  }
}

void DriveListBox::Move(std::string drive) { Drive = std::move(drive); }

void DriveListBox::UserClick() {
  if (ListIndex >= 0) Drive = Text();
}

DirListBox::DirListBox(Form& form, std::string name)
    : ListBox(form, std::move(name)),
      Path(*this, "Path", files::WorkingDirectory(), [this](const std::string& before) {
        Path.Put(Trimmed(Path));
        if (!files::FolderExists(Path())) {
          Path.Put(before);
          throw RunTimeError(Fault::PathNotFound);
        }
        Show();
        if (Path() != before) Change();
      }) {
  Show();
}

int DirListBox::FolderCount() const { return ListCount() - (HasParent() ? 1 : 0); }

std::string DirListBox::Folder(int index) const {
  return Joined(Path, List(index + (HasParent() ? 1 : 0)));
}

void DirListBox::OpenRow(int row) {
  if (row < 0 || row >= ListCount()) return;
  Path = List(row) == ".." ? Parent(Path) : Joined(Path, List(row));
}

void DirListBox::Show() {
  auto rows = files::SubFolders(Path());
  if (!Parent(Path).empty()) rows.insert(rows.begin(), "..");
  Fill(std::move(rows));
}

FileListBox::FileListBox(Form& form, std::string name, std::string pattern)
    : ListBox(form, std::move(name)),
      Path(*this, "Path", files::WorkingDirectory(),
           [this](const std::string& before) {
             if (!files::FolderExists(Path())) {
               Path.Put(before);
               throw RunTimeError(Fault::PathNotFound);
             }
             Path.Put(Trimmed(Path));
             Show();
           }),
      Pattern(*this, "Pattern", std::move(pattern), [this](const std::string&) { Show(); }) {
  Show();
}

std::optional<Value> FileListBox::Find(std::string_view property) const {
  if (property == "FileName") return Value(FileName());
  return ListBox::Find(property);
}

void FileListBox::Show() { Fill(files::FilesIn(Path(), Pattern())); }

}  // namespace brindlepage
