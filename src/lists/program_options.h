#pragma once

#include "core/program.h"
#include "toolkit/lists.h"

namespace brindlepage {

// Backup and restore of the list file, and the ways to the other settings.
class ProgramOptions : public ProgramForm {
 public:
  explicit ProgramOptions(Program& program);

  Image Image1{*this, "Image1"};
  Label Label1{*this, "Label1", "Program Options", Look::Heading};
  CommandButton Command6{*this, "Command6", "Word List Back-Up", "backup"};
  CommandButton Command1{*this, "Command1", "Word List Restore", "restore"};
  CommandButton Command3{*this, "Command3", "Link to Alternate Vocabulary List File", "list-link"};
  CommandButton Command5{*this, "Command5", "Quick Word Processor Option", "word-processor"};
  CommandButton Command2{*this, "Command2", "Exit Program Options", "previous"};

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void BackUp();
  void Restore();
  // The list file's path with "bak" for its last three characters.
  std::string BackupPath() const;
  bool Confirmed(const char* question, const char* title);
};

}  // namespace brindlepage
