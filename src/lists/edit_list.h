#pragma once

#include "core/program.h"
#include "toolkit/lists.h"

namespace brindlepage {

// A list as two parallel lists of words and meanings. All changes stay here until they are saved,
// which moves the list to the end of the list file.
//
// The screens on top of it hand over through WorkWord, WorkMeaning and the flags WordEdited and
// WordAdded, which are read when this one becomes active again.
class EditList : public ProgramForm {
 public:
  explicit EditList(Program& program);

  Toolbar Toolbar1{*this, "Toolbar1"};
  ListBox WordList{*this, "WordList"};
  ListBox DefList{*this, "DefList"};
  Label DefLabel{*this, "DefLabel", "Meaning"};
  Label TotalLabel{*this, "TotalLabel", "Total Words In This List:", Look::Note};

  // Shows how many words the list has, the shared ListWordCount.
  void ShowTotal();

 private:
  void Load() override;
  void Activate() override;
  void Closing() override { runtime().End(); }

  void AddToolbarButtons();
  void LoadListForEdit();
  void SelectMeaning();
  void WordClicked();

  void ToolbarClick(const std::string& caption);
  void AddWord();
  void DeleteWord();
  void EditWord();
  void RenameList();
  void SaveOrLeave();
  void Cancel();

  void ApplyEdit();
  void ApplyAdd();
  void DeleteRow();
  void TakeBoxesAlong();
};

}  // namespace brindlepage
