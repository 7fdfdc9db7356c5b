#include "lists/edit_list.h"

#include "lists/add_word.h"
#include "lists/change_list_name.h"
#include "lists/edit_choose_list.h"
#include "lists/edit_word.h"
#include "lists/fl_form.h"
#include "tests/list_screens.h"

namespace brindlepage {
namespace {

class EditListTest : public ListKeeper {
 protected:
  EditListTest() {
    UseFile({"Planets", "Mars", "red", "Venus", "hot", "Earth", "home", "<New List>", "Animals",
             "cat", "purrs"});
  }

  EditList& Editor() { return On<EditList>(Screen::EditList); }
  AddWord& Adder() { return On<AddWord>(Screen::AddWord); }
  EditWord& Changer() { return On<EditWord>(Screen::EditWord); }
  ChangeListName& Namer() { return On<ChangeListName>(Screen::ChangeListName); }

  void Begin(const std::string& list = "Planets") {
    Open("Edit");
    Select(On<EditChooseList>(Screen::EditChooseList).TheLists, list);
    Click(Screen::EditChooseList, "Command1");
  }
  void Tool(const char* caption) { ClickTool(Screen::EditList, caption); }
  void Add(std::u32string_view word, std::u32string_view meaning) {
    Tool("Add Word");
    Type(Adder().Text1, word);
    Type(Adder().Text2, meaning);
    Click(Adder().Command1);
  }
  void Change(std::u32string_view word, std::u32string_view meaning) {
    Tool("Edit Word");
    Type(Changer().TheWord, word);
    Type(Changer().TheMeaning, meaning);
    Click(Changer().Command1);
  }
};

// --- The choice of the list.

TEST_F(EditListTest, TheListsAreOfferedInTheirOrderOfNames) {
  Open("Edit");
  auto& choice = On<EditChooseList>(Screen::EditChooseList);
  EXPECT_EQ(choice.Caption(), "View/Edit Vocabulary List");
  EXPECT_EQ(choice.Frame2.Caption(), "Choose a List to View or Edit");
  EXPECT_EQ(choice.TheLists.Rows(), (Rows{"Animals", "Planets"}));
  Click(choice.Command2);
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::EditChooseList));
}

TEST_F(EditListTest, NoListsIsNotOffered) {
  UseFile({"No Lists"});
  Open("Edit");
  EXPECT_EQ(On<EditChooseList>(Screen::EditChooseList).TheLists.ListCount(), 0);
}

TEST_F(EditListTest, NoListsIsOfferedBehindAnotherName) {
  UseFile({"No Lists", "<New List>", "Birds"});
  Open("Edit");
  EXPECT_EQ(On<EditChooseList>(Screen::EditChooseList).TheLists.Rows(),
            (Rows{"Birds", "No Lists"}));
}

TEST_F(EditListTest, OkWithNothingChosenEndsTheProgramBeforeItsBeep) {
  Open("Edit");
  program.shared.CurrentListName = "x";
  Click(Screen::EditChooseList, "Command1");
  EXPECT_EQ(platform.log, (Log{"error 424 Object required"}));
  ExpectFatal("424 Object required");
  EXPECT_EQ(program.shared.CurrentListName, "");
}

TEST_F(EditListTest, EnterOpensNothingBeforeAListIsChosenAndADoubleClickOpensOne) {
  Open("Edit");
  auto& lists = On<EditChooseList>(Screen::EditChooseList).TheLists;
  Press(lists, Key::Enter);
  DoubleClick(lists, -1);
  EXPECT_TRUE(Active(Screen::EditChooseList));
  Press(lists, Key::Down);
  Press(lists, Key::Enter);
  EXPECT_EQ(Editor().Caption(), "Animals");
}

TEST_F(EditListTest, TheSeparatorOfferedAsAListEndsTheProgram) {
  UseFile({"<New List>", "Rocks", "flint", "hard"});
  Begin("<New List>");
  ExpectFatal("5 Invalid procedure call or argument");
}

// --- What shows.

TEST_F(EditListTest, ShowsTheWordsBesideTheirMeanings) {
  program.shared.WordEdited = program.shared.WordAdded = program.shared.WordDeleted = 1;
  Begin();
  EXPECT_FALSE(Loaded(Screen::EditChooseList));
  EXPECT_EQ(Editor().Caption(), "Planets");
  EXPECT_EQ(program.shared.ListDisplayName, "Planets");
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"Mars", "Venus", "Earth"}));
  EXPECT_EQ(Editor().DefList.Rows(), (Rows{"red", "hot", "home"}));
  EXPECT_EQ(Editor().DefLabel.Caption(), "Meaning");
  EXPECT_EQ(Editor().TotalLabel.Caption(), "Total Words In This List:  3");
  EXPECT_EQ(program.shared.ListWordCount, 3);
  EXPECT_EQ(program.shared.WordEdited, 0);
  EXPECT_EQ(program.shared.WordAdded, 0);
  EXPECT_EQ(program.shared.WordDeleted, 0);
}

TEST_F(EditListTest, TheToolbarNamesItsButtons) {
  Begin();
  const std::vector<std::pair<std::string, std::string>> wanted = {
      {"Add Word", "Add a word to the list"},     {"Delete Word", "Delete Selected word"},
      {"Edit Word", "Edit selected word"},        {"Rename List", "Rename this vocabulary list"},
      {"Save and Quit", "Save changes and quit"}, {"Cancel", "Quit without saving changes"}};
  ASSERT_EQ(Editor().Toolbar1.ButtonCount(), 6);
  for (int i = 0; i < 6; ++i) {
    const auto& [caption, tip] = wanted[static_cast<std::size_t>(i)];
    EXPECT_EQ(Editor().Toolbar1.Button(i + 1).Caption(), caption);
    EXPECT_EQ(Editor().Toolbar1.Button(i + 1).ToolTipText(), tip);
  }
}

TEST_F(EditListTest, AClickOnAWordSelectsItsMeaningAndShowsItInFull) {
  Begin();
  Select(Editor().WordList, 1);
  EXPECT_EQ(Editor().DefList.ListIndex, 1);
  EXPECT_EQ(Editor().DefLabel.Caption(), "hot");
  EXPECT_EQ(program.shared.SelectedRow, 1);
}

TEST_F(EditListTest, AKeyAmongTheWordsDoesTheSameButForTheMeaningInFull) {
  Begin();
  Select(Editor().WordList, 0);
  Press(Editor().WordList, Key::Down);
  EXPECT_EQ(Editor().DefList.ListIndex, 1);
  EXPECT_EQ(program.shared.SelectedRow, 1);
  EXPECT_EQ(Editor().DefLabel.Caption(), "red");
}

TEST_F(EditListTest, AKeyAmongTheMeaningsSelectsTheWord) {
  Begin();
  Select(Editor().WordList, 0);
  Press(Editor().DefList, Key::End);
  EXPECT_EQ(Editor().WordList.ListIndex, 2);
  EXPECT_EQ(program.shared.SelectedRow, 2);
  EXPECT_EQ(Editor().DefLabel.Caption(), "home");
}

// --- Adding.

TEST_F(EditListTest, AnAddedWordGoesToTheEndAndIsSelected) {
  Begin();
  Add(U"Pluto", U"small");
  EXPECT_FALSE(Loaded(Screen::AddWord));
  EXPECT_TRUE(Active(Screen::EditList));
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"Mars", "Venus", "Earth", "Pluto"}));
  EXPECT_EQ(Editor().DefList.Rows(), (Rows{"red", "hot", "home", "small"}));
  EXPECT_EQ(Editor().WordList.ListIndex, 3);
  EXPECT_EQ(Editor().DefList.ListIndex, 3);
  EXPECT_EQ(Editor().DefLabel.Caption(), "small");
  EXPECT_EQ(Editor().TotalLabel.Caption(), "Total Words In This List:  4");
  EXPECT_EQ(program.shared.WordAdded, 0);
  EXPECT_EQ(program.shared.SelectedRow, 3);
}

TEST_F(EditListTest, TheBoxForANewWordBeginsEmpty) {
  Begin();
  program.shared.WorkWord = program.shared.WorkMeaning = "x";
  Tool("Add Word");
  EXPECT_EQ(Adder().Caption(), "Add A Word To This List");
  EXPECT_EQ(Adder().Text1.Text() + Adder().Text2.Text(), "");
  EXPECT_EQ(program.shared.WorkWord + program.shared.WorkMeaning, "");
  EXPECT_FALSE(Adder().Foreign.Frame1.Visible);
  EXPECT_FALSE(Adder().Foreign.LScroll.OnScreen());
}

TEST_F(EditListTest, EnterLeadsFromTheWordToTheMeaningAndThenAdds) {
  Begin();
  Tool("Add Word");
  Type(Adder().Text1, U"Pluto");
  Press(Adder().Text1, Key::Enter);
  EXPECT_EQ(FocusOf(Screen::AddWord), "Text2");
  Type(Adder().Text2, U"small");
  Press(Adder().Text2, Key::Enter);
  EXPECT_EQ(Editor().WordList.List(3), "Pluto");
  Tool("Add Word");
  Type(Adder().Text2, U"rings");
  Type(Adder().Text1, U"Saturn");
  Press(Adder().Text1, Key::Enter);
  EXPECT_EQ(Editor().DefList.List(4), "rings");
}

TEST_F(EditListTest, WithABoxEmptyAddAndEnterInTheMeaningBeep) {
  Begin();
  Tool("Add Word");
  Click(Adder().Command1);
  Type(Adder().Text2, U"small");
  Press(Adder().Text2, Key::Enter);
  EXPECT_EQ(TakeLog(), (Log{"beep", "beep"}));
  EXPECT_TRUE(Active(Screen::AddWord));
  EXPECT_EQ(program.shared.ListWordCount, 3);
}

TEST_F(EditListTest, CancelAndTheLossOfTheActivationAddNothing) {
  Begin();
  for (const int way : {0, 1, 2}) {
    Tool("Add Word");
    Type(Adder().Text1, U"Pluto");
    Type(Adder().Text2, U"small");
    if (way == 0) Click(Adder().Command2);
    if (way == 1) Activate(Screen::EditList);
    if (way == 2) Do([&] { program.forms().Deactivate(Adder()); });
    EXPECT_FALSE(Loaded(Screen::AddWord)) << way;
    Activate(Screen::EditList);
    EXPECT_EQ(Editor().WordList.ListCount(), 3) << way;
    EXPECT_EQ(Editor().TotalLabel.Caption(), "Total Words In This List:  3") << way;
  }
}

TEST_F(EditListTest, ThePanelOfLettersStaysOpenAndAppendsWhereverTheCaretIs) {
  Begin();
  Tool("Add Word");
  Type(Adder().Text1, U"caf");
  Click(Adder().Command3);
  EXPECT_TRUE(Adder().Foreign.Frame1.Visible);
  EXPECT_FALSE(Adder().Command3.Visible);
  Click(Adder().Foreign.FLButton(0));
  EXPECT_EQ(Adder().Text1.Text(), "cafA");
  Do([&] { Adder().Foreign.LScroll.Move(0xE9); });
  Click(Adder().Foreign.FLButton(0));
  Click(Adder().Foreign.FLButton(1));
  Click(Adder().Foreign.FLButton(1));
  EXPECT_EQ(Adder().Text1.Text(), "cafA\xE9");
  EXPECT_EQ(Adder().Text2.Text(), "\xE9\xE9");
  Click(Adder().Command1);
  EXPECT_EQ(Editor().WordList.List(3), "cafA\xE9");
}

// --- Changing.

TEST_F(EditListTest, AChangedWordTakesThePlaceOfTheOld) {
  Begin();
  DoubleClick(Editor().WordList, 1);
  EXPECT_EQ(Changer().Caption(), "Edit");
  EXPECT_EQ(Changer().Label3.Caption(), "Insert Foreign Language Character");
  EXPECT_EQ(Changer().TheWord.Text(), "Venus");
  EXPECT_EQ(Changer().TheMeaning.Text(), "hot");
  Type(Changer().TheWord, U"Saturn");
  Type(Changer().TheMeaning, U"rings");
  Click(Changer().Command1);
  EXPECT_FALSE(Loaded(Screen::EditWord));
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"Mars", "Saturn", "Earth"}));
  EXPECT_EQ(Editor().DefList.Rows(), (Rows{"red", "rings", "home"}));
  EXPECT_EQ(Editor().WordList.ListIndex, 1);
  EXPECT_EQ(Editor().DefLabel.Caption(), "rings");
  EXPECT_EQ(program.shared.WordEdited, 0);
}

TEST_F(EditListTest, CancelChangesNothing) {
  Begin();
  DoubleClick(Editor().WordList, 1);
  Type(Changer().TheWord, U"Saturn");
  Click(Changer().Command2);
  EXPECT_FALSE(Loaded(Screen::EditWord));
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"Mars", "Venus", "Earth"}));
}

TEST_F(EditListTest, TheBoxForAChangeStaysWhenItLosesTheActivation) {
  Begin();
  DoubleClick(Editor().WordList, 1);
  Type(Changer().TheWord, U"Saturn");
  Activate(Screen::EditList);
  EXPECT_TRUE(Loaded(Screen::EditWord));
  Click(Changer().Command1);
  EXPECT_EQ(Editor().WordList.List(1), "Saturn");
}

TEST_F(EditListTest, WithNoRowSelectedTheBoxIsEmptyAndDoneWritesToTheRowSelectedLast) {
  Begin();
  Tool("Edit Word");
  EXPECT_EQ(Changer().TheWord.Text() + Changer().TheMeaning.Text(), "");
  Type(Changer().TheWord, U"Pluto");
  Click(Changer().Command1);
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"Pluto", "Venus", "Earth"}));
  EXPECT_EQ(Editor().DefList.Rows(), (Rows{"", "hot", "home"}));
}

TEST_F(EditListTest, DoneInAListWithoutWordsEndsTheProgram) {
  UseFile({"Empty"});
  Begin("Empty");
  EXPECT_EQ(Editor().TotalLabel.Caption(), "Total Words In This List:  0");
  Change(U"x", U"y");
  ExpectFatal("5 Invalid procedure call or argument");
}

TEST_F(EditListTest, ALetterGoesToTheWordOrTheMeaningUnderChange) {
  Begin();
  DoubleClick(Editor().WordList, 0);
  for (const int target : {0, 1}) {
    Click(Changer().Label3);
    EXPECT_EQ(program.shared.ReturnTag, "editword");
    auto& letters = On<FLForm>(Screen::FLForm);
    Do([&] { letters.Foreign.LScroll.Move(0xF1 + target); });
    Click(letters.Foreign.FLButton(target));
    EXPECT_FALSE(Loaded(Screen::FLForm));
    EXPECT_TRUE(Active(Screen::EditWord));
  }
  EXPECT_EQ(Changer().TheWord.Text(), "Mars\xF1");
  EXPECT_EQ(Changer().TheMeaning.Text(), "red\xF2");
}

TEST_F(EditListTest, TheMenuForgetsThatALetterWasForAChange) {
  Begin();
  DoubleClick(Editor().WordList, 0);
  Click(Changer().Label3);
  Tool("Cancel");
  EXPECT_FALSE(Loaded(Screen::FLForm));
  EXPECT_FALSE(Loaded(Screen::EditWord));
  EXPECT_EQ(program.shared.ReturnTag, "");
}

// --- Deleting.

TEST_F(EditListTest, DeleteAsksWithAQuestionMark) {
  Begin();
  Select(Editor().WordList, 1);
  platform.answers = {BoxAnswer::No};
  Tool("Delete Word");
  EXPECT_EQ(TakeLog(), (Log{"Confirm Delete|Are you sure you want to delete the word Venus?"}));
  EXPECT_EQ(Editor().WordList.ListCount(), 3);
}

TEST_F(EditListTest, TheRowBehindTheDeletedOneIsSelected) {
  Begin();
  Select(Editor().WordList, 1);
  Tool("Delete Word");
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"Mars", "Earth"}));
  EXPECT_EQ(Editor().DefList.Rows(), (Rows{"red", "home"}));
  EXPECT_EQ(Editor().WordList.ListIndex, 1);
  EXPECT_EQ(Editor().DefLabel.Caption(), "home");
  EXPECT_EQ(Editor().TotalLabel.Caption(), "Total Words In This List:  2");
  EXPECT_EQ(program.shared.WordDeleted, 1);
}

TEST_F(EditListTest, DeletingTheLastRowSelectsTheOneBeforeIt) {
  Begin();
  Select(Editor().WordList, 2);
  Tool("Delete Word");
  EXPECT_EQ(Editor().WordList.ListIndex, 1);
  EXPECT_EQ(Editor().DefLabel.Caption(), "hot");
  EXPECT_EQ(program.shared.SelectedRow, 1);
}

TEST_F(EditListTest, DeletingTheOnlyRowLeavesBothListsEmpty) {
  Begin("Animals");
  Select(Editor().WordList, 0);
  Tool("Delete Word");
  EXPECT_EQ(Editor().WordList.ListCount() + Editor().DefList.ListCount(), 0);
  EXPECT_EQ(Editor().TotalLabel.Caption(), "Total Words In This List:  0");
  EXPECT_EQ(Editor().DefLabel.Caption(), "");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot", "Earth", "home", "<New List>",
                            "Animals"}));
}

TEST_F(EditListTest, WithNoRowSelectedTheQuestionNamesNoWordAndTheRowSelectedLastGoes) {
  Begin();
  Tool("Delete Word");
  EXPECT_EQ(TakeLog(), (Log{"Confirm Delete|Are you sure you want to delete the word ?"}));
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"Venus", "Earth"}));
}

TEST_F(EditListTest, DeletingFromAnEmptyListEndsTheProgram) {
  UseFile({"Empty"});
  Begin("Empty");
  Tool("Delete Word");
  ExpectFatal("5 Invalid procedure call or argument");
}

// --- Leaving.

TEST_F(EditListTest, SavingWithoutAChangeMovesTheListToTheEnd) {
  Begin();
  Tool("Save and Quit");
  EXPECT_EQ(TakeLog(), (Log{"Save and quit?|Save changes to list?"}));
  EXPECT_EQ(File(), AsFile({"Animals", "cat", "purrs", "<New List>", "Planets", "Mars", "red",
                            "Venus", "hot", "Earth", "home"}));
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::EditList));
}

TEST_F(EditListTest, AddedChangedAndDeletedWordsAreSavedTogether) {
  Begin();
  Add(U"Pluto", U"small, \"cold\" ");
  Change(U"Ceres", U"smaller");
  Select(Editor().WordList, 0);
  Tool("Delete Word");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Animals", "cat", "purrs", "<New List>", "Planets", "Venus", "hot",
                            "Earth", "home", "Ceres", "smaller"}));
}

TEST_F(EditListTest, NoLeavesTheFileAndCancelStays) {
  const std::string before = File();
  Begin();
  Add(U"Pluto", U"small");
  platform.answers = {BoxAnswer::Cancel, BoxAnswer::No};
  Tool("Save and Quit");
  EXPECT_TRUE(Active(Screen::EditList));
  Tool("Save and Quit");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_EQ(File(), before);
}

TEST_F(EditListTest, TheToolbarsCancelAsksFirst) {
  const std::string before = File();
  Begin();
  Add(U"Pluto", U"small");
  TakeLog();
  platform.answers = {BoxAnswer::No};
  Tool("Cancel");
  EXPECT_EQ(TakeLog(), (Log{"Quit?|Quit without saving changes?"}));
  EXPECT_TRUE(Active(Screen::EditList));
  Tool("Cancel");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_EQ(File(), before);
}

TEST_F(EditListTest, ALeadingSeparatorIsRepairedBySaving) {
  UseFile({"<New List>", "Rocks", "flint", "hard", "<New List>", "Animals", "cat", "purrs"});
  Begin("Animals");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Rocks", "flint", "hard", "<New List>", "Animals", "cat", "purrs"}));
}

TEST_F(EditListTest, TheOnlyListComesBackWithoutASeparator) {
  UseFile({"Animals", "cat", "purrs"});
  Begin("Animals");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Animals", "cat", "purrs"}));
}

TEST_F(EditListTest, OfTwoListsOfOneNameEachSavingReachesTheOther) {
  UseFile({"Twins", "a", "1", "<New List>", "Twins", "b", "2"});
  Begin("Twins");
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"a"}));
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Twins", "b", "2", "<New List>", "Twins", "a", "1"}));
  Begin("Twins");
  EXPECT_EQ(Editor().WordList.Rows(), (Rows{"b"}));
}

TEST_F(EditListTest, AWordThatIsTheSeparatorCutsTheListInTwo) {
  Begin("Animals");
  Add(U"<New List>", U"Birds");
  Add(U"owl", U"hoots");
  Tool("Save and Quit");
  Open("Edit");
  EXPECT_EQ(On<EditChooseList>(Screen::EditChooseList).TheLists.Rows(),
            (Rows{"Animals", "Birds", "Planets"}));
}

TEST_F(EditListTest, AFullDiskEndsTheProgramAndLeavesTheFileCut) {
  Begin();
  {
    const FullDisk full(16);
    Tool("Save and Quit");
  }
  ExpectFatal("61 Disk full");
  EXPECT_EQ(File(), "Animals\r\ncat\r\npu");
}

TEST_F(EditListTest, AFileThatMayBeReadOnlyEndsTheProgramAndStays) {
  const std::string before = File();
  Begin();
  WithReadOnly("TheLists.dat", [this] { Tool("Save and Quit"); });
  ExpectFatal("75 Path/File access error");
  EXPECT_EQ(File(), before);
}

TEST_F(EditListTest, ClosingTheFrameEndsTheProgramAndSavesNothing) {
  const std::string before = File();
  Begin();
  Add(U"Pluto", U"small");
  Do([&] { program.forms().Close(Editor()); });
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 0);
  EXPECT_EQ(File(), before);
}

// --- Another name.

TEST_F(EditListTest, ANameTakenByOkShowsAndItsSavingEndsTheProgram) {
  const std::string before = File();
  Begin();
  Tool("Rename List");
  EXPECT_EQ(Namer().TheName.Text(), "Planets");
  Type(Namer().TheName, U"Worlds");
  Click(Namer().Command1);
  EXPECT_EQ(Editor().Caption(), "Worlds");
  EXPECT_EQ(program.shared.ListDisplayName, "Worlds");
  EXPECT_EQ(program.shared.CurrentListName, "Worlds");
  EXPECT_EQ(program.shared.NewListName, "Worlds");
  Tool("Save and Quit");
  ExpectFatal("6 Overflow");
  EXPECT_EQ(File(), before);
}

TEST_F(EditListTest, ANameThatAnotherListBearsReplacesThatList) {
  Begin();
  Tool("Rename List");
  Type(Namer().TheName, U"Animals");
  Click(Namer().Command1);
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot", "Earth", "home", "<New List>",
                            "Animals", "Mars", "red", "Venus", "hot", "Earth", "home"}));
}

TEST_F(EditListTest, ANameTakenByEnterKeepsTheCaption) {
  Begin();
  Tool("Rename List");
  Type(Namer().TheName, U"Animals");
  Press(Namer().TheName, Key::Enter);
  EXPECT_FALSE(Loaded(Screen::ChangeListName));
  EXPECT_EQ(Editor().Caption(), "Planets");
  EXPECT_EQ(program.shared.CurrentListName, "Animals");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot", "Earth", "home", "<New List>",
                            "Planets", "Mars", "red", "Venus", "hot", "Earth", "home"}));
}

TEST_F(EditListTest, AskingForANewNameAgainUndoesTheOneTakenByEnter) {
  Begin();
  Tool("Rename List");
  Type(Namer().TheName, U"Animals");
  Press(Namer().TheName, Key::Enter);
  Tool("Rename List");
  EXPECT_EQ(Namer().TheName.Text(), "Planets");
  EXPECT_EQ(program.shared.CurrentListName, "Planets");
}

}  // namespace
}  // namespace brindlepage
