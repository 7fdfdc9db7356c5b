#pragma once

#include "core/program.h"
#include "toolkit/lists.h"

namespace brindlepage {

// Collects the words and meanings of a new list and appends them to the list file in one go.
//
// The list file gets what stands in TempList: a separator, the name, then word and meaning in
// turn. A file that holds no list gets no separator; everything then stands one place further up,
// which the rows' arithmetic takes no notice of.
class MakeNewList : public ProgramForm {
 public:
  explicit MakeNewList(Program& program);

  Toolbar Toolbar1{*this, "Toolbar1"};
  Label WordLabel{*this, "WordLabel"};
  TextBox TheWord{*this, "TheWord"};
  Label Label1{*this, "Label1", "The Meaning of This Word is:"};
  TextBox TheMeaning{*this, "TheMeaning"};
  ListBox WordList1{*this, "WordList1"};
  Label TotalWordsLabel{*this, "TotalWordsLabel", "", Look::Note};
  ListBox TempList{*this, "TempList"};

  // The name as the teacher has changed it.
  void Rename(const std::string& name);

 private:
  void Load() override;
  void Closing() override { runtime().End(); }

  void AddToolbarButtons();
  void ToolbarClick(const std::string& caption);
  void AddWord();
  void DeleteWord();
  void EditWord();
  void RenameList();
  void SaveAndQuit();
  void Quit();

  void EnterWord();
  void EnterMeaning();
  bool BothFilled() const { return !TheWord.Text().empty() && !TheMeaning.Text().empty(); }
  void AddPair();
  void TakeBackPair();
  void RemovePair(int row);
  void ShowCounts();
  void Save();
  void TakeBoxAlong();

  Integer PairCount;  // rows of WordList1
  Integer FileWithoutLists;
};

}  // namespace brindlepage
