#pragma once

#include <string>

#include "toolkit/lists.h"

namespace brindlepage {

// The machine's drives ("c:"), or on a system without drives its root folder ("/").
class DriveListBox : public ListBox {
 public:
  DriveListBox(Form& form, std::string name);

  Property<std::string> Drive;  // another one assigned raises Change
  Event<> Change;

  // The teacher chose a row, or named a drive.
  void Move(std::string drive);
  void UserClick() override;
};

// A folder and the names of its sub-folders, with ".." above them where there is one. It begins
// at the working directory.
class DirListBox : public ListBox {
 public:
  DirListBox(Form& form, std::string name);

  // Assigning another folder shows it and raises Change; a missing one throws RunTimeError 76.
  Property<std::string> Path;
  Event<> Change;

  int FolderCount() const;
  // The full path of a sub-folder, from 0, without the ".." row.
  std::string Folder(int index) const;

  void Move(std::string path) { Path = std::move(path); }
  // Opens a row: ".." or a sub-folder.
  void OpenRow(int row);
  void UserDoubleClick() override { OpenRow(ListIndex); }

 private:
  void Show();
  bool HasParent() const { return ListCount() > 0 && List(0) == ".."; }
};

// The files of a folder that match the pattern, sorted.
class FileListBox : public ListBox {
 public:
  FileListBox(Form& form, std::string name, std::string pattern = "*.*");

  Property<std::string> Path;     // a missing folder throws RunTimeError 76
  Property<std::string> Pattern;  // "*.bmp;*.jpg"
  // The selected file's name without its folder, or "".
  const std::string& FileName() const { return Text(); }

  std::optional<Value> Find(std::string_view property) const override;

  void Move(std::string path) { Path = std::move(path); }

 private:
  void Show();
};

}  // namespace brindlepage
