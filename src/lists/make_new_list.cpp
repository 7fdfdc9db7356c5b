#include "lists/make_new_list.h"

#include "core/list_file.h"
#include "toolkit/arrangement.h"

namespace brindlepage {

namespace {

constexpr int kNamePlace = 1;  // in TempList

int WordPlace(int row) { return row * 2 + 2; }
int MeaningPlace(int row) { return row * 2 + 3; }

}  // namespace

MakeNewList::MakeNewList(Program& owner)
    : ProgramForm(owner, Screen::MakeNewList, "MakeNewList", "Make a New Vocabulatry List") {
  AddToolbarButtons();
  TheWord.Enter = [this] { EnterWord(); };
  TheMeaning.Enter = [this] { EnterMeaning(); };
  WordList1.DblClick = [this] { TakeBackPair(); };
  TempList.Visible = false;

  Arrange(Column(Toolbar1, WordLabel, TheWord, Label1, TheMeaning, Gap(), Fill(WordList1),
                 TotalWordsLabel));
}

void MakeNewList::AddToolbarButtons() {
  Toolbar1.Add("Add Word", "", "Add a word to the list", "add");
  Toolbar1.Add("Delete Word", "", "Delete Selected word", "delete");
  Toolbar1.Add("Edit Word", "", "Edit selected word", "edit");
  Toolbar1.Add("Foreign", "", "Insert Foreign Language Characters", "foreign");
  Toolbar1.Add("Rename List", "", "Rename this vocabulary list", "rename");
  Toolbar1.Add("Save and Quit", "", "Save changes and quit", "save");
  Toolbar1.Add("Quit", "", "Quit", "quit");
  Toolbar1.ButtonClick = [this](ToolbarButton& button) { ToolbarClick(button.Caption); };
}

void MakeNewList::Load() {
  CentreForm();
  LoadBackground();
  shared.CurrentListName = shared.NewListName;
  PairCount = 0;
  Caption = shared.NewListName;
  ShowCounts();
  FileWithoutLists = list_file::ReadFirstLine(shared.ListFilePath) ? 1 : 0;
  if (FileWithoutLists == 0) TempList.AddItem(std::string(list_file::kNewList));
  TempList.AddItem(shared.NewListName);
}

void MakeNewList::ToolbarClick(const std::string& caption) {
  if (caption == "Add Word") return AddWord();
  if (caption == "Delete Word") return DeleteWord();
  if (caption == "Edit Word") return EditWord();
  if (caption == "Foreign") return forms().Show(Screen::FLForm);
  if (caption == "Rename List") return RenameList();
  if (caption == "Save and Quit") return SaveAndQuit();
  if (caption == "Quit") return Quit();
}

void MakeNewList::AddWord() {
  if (BothFilled()) {
    AddPair();
  } else {
    runtime().MsgBox(
        "To add a word, you must first type a word and definition in the spaces below.", "Hey!");
  }
  TheWord.SetFocus();
}

void MakeNewList::DeleteWord() {
  const int row = WordList1.ListIndex;
  if (row < 0) {
    runtime().MsgBox("You must first choose a word to delete from the list below.", "Hey!");
    return;
  }
  shared.WorkWord = WordList1.Text();
  const BoxAnswer answer =
      runtime().MsgBox("Are you sure you want to delete the word " + shared.WorkWord,
                       "Confirm Delete", BoxButtons::YesNo);
  if (answer == BoxAnswer::Yes) RemovePair(row);
}

void MakeNewList::EditWord() {
  if (WordList1.ListIndex < 0) {
    runtime().MsgBox("You need to choose a word to edit from the list below.", "Hey!");
    return;
  }
  TakeBackPair();
}

void MakeNewList::RenameList() {
  shared.ReturnTag = "create";
  shared.CurrentListName = Caption;
  forms().Show(Screen::ChangeListName);
}

void MakeNewList::Rename(const std::string& name) {
  Caption = name;
  TempList.List(kNamePlace, name);
}

void MakeNewList::SaveAndQuit() {
  if (BothFilled()) AddPair();
  runtime().Beep();
  const BoxAnswer answer = runtime().MsgBox("Are you sure you want to save this list?",
                                            "Confirm Save", BoxButtons::YesNo);
  if (answer == BoxAnswer::Yes) Save();
}

void MakeNewList::Quit() {
  if (BothFilled()) AddPair();
  runtime().Beep();
  const BoxAnswer answer =
      runtime().MsgBox("Save this list before leaving?", "Save?", BoxButtons::YesNo);
  if (answer == BoxAnswer::Yes) return Save();
  TakeBoxAlong();
  StepTo(Screen::Title);
}

void MakeNewList::EnterWord() {
  if (BothFilled()) {
    AddPair();
    TheWord.SetFocus();
  } else {
    TheMeaning.SetFocus();
  }
}

void MakeNewList::EnterMeaning() {
  // With a box empty the keys go to a control that isn't there.
  if (!BothFilled()) throw RunTimeError(Fault::ObjectRequired);
  AddPair();
  TheWord.SetFocus();
}

void MakeNewList::AddPair() {
  TempList.AddItem(TheWord.Text);
  TempList.AddItem(TheMeaning.Text);
  WordList1.AddItem(TheWord.Text);
  ++PairCount;
  ShowCounts();
  TheWord.Text = "";
  TheMeaning.Text = "";
}

// Added again, the pair goes to the end of the list.
void MakeNewList::TakeBackPair() {
  const int row = WordList1.ListIndex;
  TheWord.Text = TempList.List(WordPlace(row));
  TheMeaning.Text = TempList.List(MeaningPlace(row));
  RemovePair(row);
  TheWord.SetFocus();
}

void MakeNewList::RemovePair(int row) {
  TempList.RemoveItem(WordPlace(row));
  TempList.RemoveItem(WordPlace(row));
  WordList1.RemoveItem(row);
  --PairCount;
  ShowCounts();
}

void MakeNewList::ShowCounts() {
  TotalWordsLabel.Caption = "Total words in this list: " + DisplayForm(PairCount);
  WordLabel.Caption = "Word Number: " + DisplayForm(PairCount + 1);
}

void MakeNewList::Save() {
  list_file::SaveNewList(shared.ListFilePath, TempList.Rows());
  TakeBoxAlong();
  LeaveFor(Screen::Title);
}

// A box that stands open over a screen that goes has nothing to speak to any more.
void MakeNewList::TakeBoxAlong() { forms().Unload(Screen::FLForm); }

}  // namespace brindlepage
