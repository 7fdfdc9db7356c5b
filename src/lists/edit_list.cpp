#include "lists/edit_list.h"

#include "core/list_file.h"
#include "toolkit/arrangement.h"

namespace brindlepage {

EditList::EditList(Program& owner)
    : ProgramForm(owner, Screen::EditList, "EditList", "View/Edit List") {
  AddToolbarButtons();
  WordList.Click = [this] { WordClicked(); };
  WordList.KeyUp = [this] { SelectMeaning(); };
  WordList.DblClick = [this] { EditWord(); };
  DefList.KeyUp = [this] { WordList.ListIndex = DefList.ListIndex; };

  Arrange(Column(Toolbar1, Fill(Row(Fill(WordList, 2), Fill(DefList, 3))), DefLabel, TotalLabel));
}

void EditList::AddToolbarButtons() {
  Toolbar1.Add("Add Word", "", "Add a word to the list", "add");
  Toolbar1.Add("Delete Word", "", "Delete Selected word", "delete");
  Toolbar1.Add("Edit Word", "", "Edit selected word", "edit");
  Toolbar1.Add("Rename List", "", "Rename this vocabulary list", "rename");
  Toolbar1.Add("Save and Quit", "", "Save changes and quit", "save");
  Toolbar1.Add("Cancel", "", "Quit without saving changes", "quit");
  Toolbar1.ButtonClick = [this](ToolbarButton& button) { ToolbarClick(button.Caption); };
}

void EditList::Load() {
  CentreForm();
  LoadBackground();
  shared.ListDisplayName = shared.CurrentListName;
  shared.WordEdited = 0;
  shared.WordDeleted = 0;
  shared.WordAdded = 0;
  Caption = shared.ListDisplayName;
  LoadListForEdit();
}

void EditList::LoadListForEdit() {
  auto pairs =
      list_file::LoadListForEdit(shared.ListFilePath, shared.CurrentListName, shared.ListWordCount);
  WordList.AddItems(std::move(pairs.words));
  DefList.AddItems(std::move(pairs.meanings));
  ShowTotal();
}

void EditList::Activate() {
  if (shared.WordEdited == 1) ApplyEdit();
  Caption = shared.ListDisplayName;
  if (shared.WordAdded == 1) ApplyAdd();
}

void EditList::SelectMeaning() {
  DefList.ListIndex = WordList.ListIndex;
  shared.SelectedRow = WordList.ListIndex();
}

void EditList::WordClicked() {
  SelectMeaning();
  DefLabel.Caption = DefList.Text();
}

void EditList::ToolbarClick(const std::string& caption) {
  if (caption == "Add Word") return AddWord();
  if (caption == "Delete Word") return DeleteWord();
  if (caption == "Edit Word") return EditWord();
  if (caption == "Rename List") return RenameList();
  if (caption == "Save and Quit") return SaveOrLeave();
  if (caption == "Cancel") return Cancel();
}

void EditList::AddWord() {
  shared.WordAdded = 0;
  forms().Show(Screen::AddWord);
}

void EditList::DeleteWord() {
  shared.WorkWord = WordList.Text();
  const BoxAnswer answer =
      runtime().MsgBox("Are you sure you want to delete the word " + shared.WorkWord + "?",
                       "Confirm Delete", BoxButtons::YesNo);
  if (answer == BoxAnswer::Yes) DeleteRow();
}

void EditList::EditWord() {
  shared.WorkWord = WordList.Text();
  shared.WorkMeaning = DefList.Text();
  forms().Show(Screen::EditWord);
}

void EditList::RenameList() {
  shared.CurrentListName = Caption;
  forms().Show(Screen::ChangeListName);
}

// The file is searched for CurrentListName, which a new name has replaced by then.
void EditList::SaveOrLeave() {
  const BoxAnswer answer =
      runtime().MsgBox("Save changes to list?", "Save and quit?", BoxButtons::YesNoCancel);
  if (answer == BoxAnswer::Cancel) return;
  if (answer == BoxAnswer::Yes) {
    list_file::SaveEditedList(shared.ListFilePath, shared.CurrentListName, Caption(),
                              WordList.Rows(), DefList.Rows());
  }
  TakeBoxesAlong();
  LeaveFor(Screen::Title);
}

void EditList::Cancel() {
  const BoxAnswer answer =
      runtime().MsgBox("Quit without saving changes?", "Quit?", BoxButtons::YesNo);
  if (answer != BoxAnswer::Yes) return;
  TakeBoxesAlong();
  StepTo(Screen::Title);
}

void EditList::ApplyEdit() {
  const int row = shared.SelectedRow;
  WordList.ListIndex = row;
  DefList.ListIndex = row;
  WordList.List(row, shared.WorkWord);
  DefList.List(row, shared.WorkMeaning);
  DefLabel.Caption = DefList.Text();
  shared.WordEdited = 0;
}

void EditList::ApplyAdd() {
  WordList.AddItem(shared.WorkWord);
  DefList.AddItem(shared.WorkMeaning);
  shared.WordAdded = 0;
  WordList.ListIndex = WordList.ListCount() - 1;
  DefList.ListIndex = DefList.ListCount() - 1;
  DefLabel.Caption = DefList.Text();
}

// The row selected last goes, also if none is selected now.
void EditList::DeleteRow() {
  const int row = shared.SelectedRow;
  --shared.ListWordCount;
  WordList.RemoveItem(row);
  DefList.RemoveItem(row);
  shared.WordDeleted = 1;
  DefLabel.Caption = DefList.Text();
  if (row < WordList.ListCount()) {
    WordList.ListIndex = row;
  } else if (shared.ListWordCount >= 1) {
    WordList.ListIndex = row - 1;
  }
  DefLabel.Caption = DefList.Text();
  ShowTotal();
}

void EditList::ShowTotal() {
  TotalLabel.Caption = "Total Words In This List: " + DisplayForm(shared.ListWordCount);
}

// A box that stands open over a screen that goes has nothing to speak to any more.
void EditList::TakeBoxesAlong() {
  forms().Unload(Screen::FLForm);
  forms().Unload(Screen::EditWord);
}

}  // namespace brindlepage
