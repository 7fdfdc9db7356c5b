#pragma once

#include "core/list_file.h"
#include "core/program.h"
#include "toolkit/lists.h"

namespace brindlepage {

// Removes whole lists from the list file, each at once. It either offers the lists or asks
// whether the selected one shall go, which shows in what is visible alone.
class DeleteList : public ProgramForm {
 public:
  explicit DeleteList(Program& program);

  Label Label1{*this, "Label1", "To Delete A List:", Look::Heading};
  Label Label2{*this, "Label2",
               "Choose the List Name in the Box Below and Click the \"Delete\" Button."};
  ListBox TheLists{*this, "TheLists"};
  Label Sure{*this, "Sure", "Are you sure you want to permenantly delete this list?",
             Look::Warning};
  CommandButton Yes{*this, "Yes", "Yes"};
  CommandButton No{*this, "No", "No"};
  CommandButton Command1{*this, "Command1", "Delete"};
  CommandButton Command2{*this, "Command2", "Finished"};

 private:
  void Load() override;
  void Closing() override { runtime().End(); }
  void Ask();
  void Delete();
  void ShowQuestion(bool shown);

  list_file::Lines Data;  // all lines of the file
};

}  // namespace brindlepage
