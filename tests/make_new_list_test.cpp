#include "lists/make_new_list.h"

#include "lists/change_list_name.h"
#include "lists/create_list.h"
#include "lists/fl_form.h"
#include "tests/list_screens.h"

namespace brindlepage {
namespace {

class MakeNewListTest : public ListKeeper {
 protected:
  MakeNewListTest() { UseFile({"Planets", "Mars", "red", "Venus", "hot"}); }

  MakeNewList& Editor() { return On<MakeNewList>(Screen::MakeNewList); }
  void Begin(std::u32string_view name = U"Animals") {
    Open("Create");
    Type(On<CreateList>(Screen::CreateList).NewName, name);
    Click(Screen::CreateList, "Command2");
  }
  void FillBoxes(std::u32string_view word, std::u32string_view meaning) {
    Type(Editor().TheWord, word);
    Type(Editor().TheMeaning, meaning);
  }
  void Add(std::u32string_view word, std::u32string_view meaning) {
    FillBoxes(word, meaning);
    Press(Editor().TheMeaning, Key::Enter);
  }
  void AddThree() {
    Add(U"cat", U"purrs");
    Add(U"dog", U"barks");
    Add(U"owl", U"hoots");
  }
  void Tool(const char* caption) { ClickTool(Screen::MakeNewList, caption); }
};

// --- The name.

TEST_F(MakeNewListTest, WithoutANameOkAndEnterBeepAndStay) {
  Open("Create");
  auto& create = On<CreateList>(Screen::CreateList);
  EXPECT_EQ(create.Caption(), "Create New Vocabulary List");
  EXPECT_EQ(create.Label1.Caption(), "Type in the Name of your New List");
  EXPECT_EQ(create.NewName.Text(), "");
  Click(create.Command2);
  Press(create.NewName, Key::Enter);
  EXPECT_EQ(TakeLog(), (Log{"beep", "beep"}));
  EXPECT_TRUE(Active(Screen::CreateList));
}

TEST_F(MakeNewListTest, OkAndEnterTakeTheNameToTheEditor) {
  Begin(U"Animals");
  EXPECT_TRUE(Active(Screen::MakeNewList));
  EXPECT_FALSE(Loaded(Screen::CreateList));
  EXPECT_EQ(program.shared.NewListName, "Animals");
  EXPECT_EQ(program.shared.CurrentListName, "Animals");
  EXPECT_EQ(Editor().Caption(), "Animals");
  Tool("Quit");
  Open("Create");
  Type(On<CreateList>(Screen::CreateList).NewName, U" ");
  Press(On<CreateList>(Screen::CreateList).NewName, Key::Enter);
  EXPECT_EQ(Editor().Caption(), " ");
}

TEST_F(MakeNewListTest, CancelLeadsBackToTheMenu) {
  Open("Create");
  Type(On<CreateList>(Screen::CreateList).NewName, U"Animals");
  Click(Screen::CreateList, "Command1");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::CreateList));
  EXPECT_EQ(program.shared.NewListName, "");
}

TEST_F(MakeNewListTest, ClosingTheFrameEndsTheProgram) {
  for (const bool further : {false, true}) {
    BrindlepageProgram other(platform, random);
    other.Start();
    other.Dispatch([&] {
      other.shared.NewListName = "x";
      other.forms().Show(further ? Screen::MakeNewList : Screen::CreateList);
      other.forms().Close(*other.forms().Active());
    });
    EXPECT_TRUE(other.Ended());
    EXPECT_EQ(other.Status(), 0);
  }
}

// --- Adding.

TEST_F(MakeNewListTest, TheEditorBeginsWithTheNameBehindASeparator) {
  Begin();
  EXPECT_EQ(Editor().TempList.Rows(), (Rows{"<New List>", "Animals"}));
  EXPECT_EQ(Editor().WordLabel.Caption(), "Word Number:  1");
  EXPECT_EQ(Editor().TotalWordsLabel.Caption(), "Total words in this list:  0");
  EXPECT_EQ(Editor().Label1.Caption(), "The Meaning of This Word is:");
}

TEST_F(MakeNewListTest, TheToolbarNamesItsButtons) {
  Begin();
  const std::vector<std::pair<std::string, std::string>> wanted = {
      {"Add Word", "Add a word to the list"},
      {"Delete Word", "Delete Selected word"},
      {"Edit Word", "Edit selected word"},
      {"Foreign", "Insert Foreign Language Characters"},
      {"Rename List", "Rename this vocabulary list"},
      {"Save and Quit", "Save changes and quit"},
      {"Quit", "Quit"}};
  ASSERT_EQ(Editor().Toolbar1.ButtonCount(), 7);
  for (int i = 0; i < 7; ++i) {
    const auto& [caption, tip] = wanted[static_cast<std::size_t>(i)];
    EXPECT_EQ(Editor().Toolbar1.Button(i + 1).Caption(), caption);
    EXPECT_EQ(Editor().Toolbar1.Button(i + 1).ToolTipText(), tip);
  }
}

TEST_F(MakeNewListTest, EnterInTheWordMovesOnToTheMeaning) {
  Begin();
  Type(Editor().TheWord, U"cat");
  Press(Editor().TheWord, Key::Enter);
  EXPECT_EQ(FocusOf(Screen::MakeNewList), "TheMeaning");
  EXPECT_EQ(Editor().WordList1.ListCount(), 0);
}

TEST_F(MakeNewListTest, EnterInAnEmptyWordMovesOnToo) {
  Begin();
  Type(Editor().TheMeaning, U"purrs");
  Press(Editor().TheWord, Key::Enter);
  EXPECT_EQ(FocusOf(Screen::MakeNewList), "TheMeaning");
}

TEST_F(MakeNewListTest, EnterWithBothBoxesFilledAddsThePairAndReturnsToTheWord) {
  Begin();
  FillBoxes(U"cat", U"purrs");
  Press(Editor().TheMeaning, Key::Enter);
  EXPECT_EQ(FocusOf(Screen::MakeNewList), "TheWord");
  FillBoxes(U"dog", U"barks");
  Press(Editor().TheWord, Key::Enter);
  EXPECT_EQ(FocusOf(Screen::MakeNewList), "TheWord");
  EXPECT_EQ(Editor().WordList1.Rows(), (Rows{"cat", "dog"}));
  EXPECT_EQ(Editor().TempList.Rows(),
            (Rows{"<New List>", "Animals", "cat", "purrs", "dog", "barks"}));
  EXPECT_EQ(Editor().WordLabel.Caption(), "Word Number:  3");
  EXPECT_EQ(Editor().TotalWordsLabel.Caption(), "Total words in this list:  2");
  EXPECT_EQ(Editor().TheWord.Text(), "");
  EXPECT_EQ(Editor().TheMeaning.Text(), "");
}

TEST_F(MakeNewListTest, EnterInTheMeaningWithABoxEmptyEndsTheProgram) {
  Begin();
  Type(Editor().TheMeaning, U"purrs");
  Press(Editor().TheMeaning, Key::Enter);
  ExpectFatal("424 Object required");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot"}));
}

TEST_F(MakeNewListTest, EnterInAnEmptyMeaningEndsTheProgramAlsoBehindAWord) {
  Begin();
  Type(Editor().TheWord, U"cat");
  Press(Editor().TheMeaning, Key::Enter);
  ExpectFatal("424 Object required");
}

TEST_F(MakeNewListTest, AddWordAsksForWhatIsMissingAndAddsWhatIsThere) {
  Begin();
  Type(Editor().TheWord, U"cat");
  Tool("Add Word");
  EXPECT_EQ(TakeLog(),
            (Log{"Hey!|To add a word, you must first type a word and definition in the spaces "
                 "below."}));
  EXPECT_EQ(FocusOf(Screen::MakeNewList), "TheWord");
  Type(Editor().TheMeaning, U"purrs");
  Tool("Add Word");
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(FocusOf(Screen::MakeNewList), "TheWord");
  EXPECT_EQ(Editor().WordList1.Rows(), (Rows{"cat"}));
}

// --- Taking away and changing.

TEST_F(MakeNewListTest, DeleteAndEditWantARowFirst) {
  Begin();
  Tool("Delete Word");
  Tool("Edit Word");
  EXPECT_EQ(TakeLog(), (Log{"Hey!|You must first choose a word to delete from the list below.",
                            "Hey!|You need to choose a word to edit from the list below."}));
}

TEST_F(MakeNewListTest, DeleteAsksWithoutAQuestionMarkAndTakesThePairAway) {
  Begin();
  AddThree();
  Select(Editor().WordList1, 1);
  platform.answers = {BoxAnswer::No};
  Tool("Delete Word");
  EXPECT_EQ(TakeLog(), (Log{"Confirm Delete|Are you sure you want to delete the word dog"}));
  EXPECT_EQ(Editor().WordList1.ListCount(), 3);
  EXPECT_EQ(program.shared.WorkWord, "dog");
  Tool("Delete Word");
  EXPECT_EQ(Editor().WordList1.Rows(), (Rows{"cat", "owl"}));
  EXPECT_EQ(Editor().TempList.Rows(),
            (Rows{"<New List>", "Animals", "cat", "purrs", "owl", "hoots"}));
  EXPECT_EQ(Editor().TotalWordsLabel.Caption(), "Total words in this list:  2");
  EXPECT_EQ(Editor().WordLabel.Caption(), "Word Number:  3");
}

TEST_F(MakeNewListTest, EditTakesThePairBackAndItsAddingPutsItAtTheEnd) {
  Begin();
  AddThree();
  Select(Editor().WordList1, 0);
  Tool("Edit Word");
  EXPECT_EQ(Editor().TheWord.Text(), "cat");
  EXPECT_EQ(Editor().TheMeaning.Text(), "purrs");
  EXPECT_EQ(FocusOf(Screen::MakeNewList), "TheWord");
  EXPECT_EQ(Editor().TotalWordsLabel.Caption(), "Total words in this list:  2");
  Press(Editor().TheWord, Key::Enter);
  EXPECT_EQ(Editor().WordList1.Rows(), (Rows{"dog", "owl", "cat"}));
  EXPECT_EQ(Editor().TempList.Rows(),
            (Rows{"<New List>", "Animals", "dog", "barks", "owl", "hoots", "cat", "purrs"}));
}

TEST_F(MakeNewListTest, ADoubleClickTakesThePairBack) {
  Begin();
  AddThree();
  DoubleClick(Editor().WordList1, 2);
  EXPECT_EQ(Editor().TheWord.Text(), "owl");
  EXPECT_EQ(Editor().TheMeaning.Text(), "hoots");
  EXPECT_EQ(Editor().WordList1.Rows(), (Rows{"cat", "dog"}));
}

TEST_F(MakeNewListTest, ADoubleClickOnNoRowEndsTheProgram) {
  Begin();
  DoubleClick(Editor().WordList1, -1);
  ExpectFatal("5 Invalid procedure call or argument");
}

TEST_F(MakeNewListTest, RenamingChangesTheCaptionAndWhatWillBeSaved) {
  Begin();
  Add(U"cat", U"purrs");
  Tool("Rename List");
  EXPECT_EQ(program.shared.ReturnTag, "create");
  auto& box = On<ChangeListName>(Screen::ChangeListName);
  EXPECT_EQ(box.Caption(), "Change List Name");
  EXPECT_EQ(box.TheName.Text(), "Animals");
  Type(box.TheName, U"Pets");
  Click(box.Command1);
  EXPECT_FALSE(Loaded(Screen::ChangeListName));
  EXPECT_EQ(Editor().Caption(), "Pets");
  EXPECT_EQ(program.shared.NewListName, "Pets");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot", "<New List>", "Pets", "cat",
                            "purrs"}));
}

TEST_F(MakeNewListTest, ANameTakenByEnterLeavesTheNewListsNameAsItWas) {
  Begin();
  Tool("Rename List");
  Type(On<ChangeListName>(Screen::ChangeListName).TheName, U"Pets");
  Press(On<ChangeListName>(Screen::ChangeListName).TheName, Key::Enter);
  EXPECT_FALSE(Loaded(Screen::ChangeListName));
  EXPECT_EQ(program.shared.CurrentListName, "Pets");
  EXPECT_EQ(Editor().Caption(), "Animals");
  EXPECT_EQ(Editor().TempList.List(1), "Animals");
}

TEST_F(MakeNewListTest, CancelAndTheLossOfTheActivationRenameNothing) {
  Begin();
  for (const bool cancel : {true, false}) {
    Tool("Rename List");
    auto& box = On<ChangeListName>(Screen::ChangeListName);
    Type(box.TheName, U"Pets");
    if (cancel) {
      Click(box.Command2);
    } else {
      Activate(Screen::MakeNewList);
    }
    EXPECT_FALSE(Loaded(Screen::ChangeListName));
    EXPECT_EQ(Editor().Caption(), "Animals");
    EXPECT_EQ(program.shared.CurrentListName, "Animals");
  }
}

// --- Saving.

TEST_F(MakeNewListTest, SavingAppendsTheListAndLeadsToTheMenu) {
  Begin();
  AddThree();
  Tool("Save and Quit");
  EXPECT_EQ(TakeLog(), (Log{"beep", "Confirm Save|Are you sure you want to save this list?"}));
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot", "<New List>", "Animals",
                            "cat", "purrs", "dog", "barks", "owl", "hoots"}));
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::MakeNewList));
}

TEST_F(MakeNewListTest, NoToTheSavingStays) {
  Begin();
  platform.answers = {BoxAnswer::No};
  Tool("Save and Quit");
  EXPECT_TRUE(Active(Screen::MakeNewList));
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot"}));
}

TEST_F(MakeNewListTest, QuitSavesOrDrops) {
  Begin();
  Add(U"cat", U"purrs");
  platform.answers = {BoxAnswer::No};
  Tool("Quit");
  EXPECT_EQ(TakeLog(), (Log{"beep", "Save?|Save this list before leaving?"}));
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot"}));
  Begin();
  Add(U"cat", U"purrs");
  Tool("Quit");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot", "<New List>", "Animals",
                            "cat", "purrs"}));
}

TEST_F(MakeNewListTest, WhatStandsInBothBoxesIsAddedWhenSaving) {
  for (const char* way : {"Save and Quit", "Quit"}) {
    UseFile({"Planets"});
    Begin();
    FillBoxes(U"cat", U"purrs");
    Tool(way);
    EXPECT_EQ(File(), AsFile({"Planets", "<New List>", "Animals", "cat", "purrs"})) << way;
  }
}

TEST_F(MakeNewListTest, WhatStandsInOneBoxIsNot) {
  Begin();
  Type(Editor().TheWord, U"cat");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot", "<New List>", "Animals"}));
}

TEST_F(MakeNewListTest, SavingWithNoWordsWritesANameLineAlone) {
  UseFile({"No Lists"});
  Begin();
  Tool("Save and Quit");
  EXPECT_EQ(File(), "Animals\r\n");
}

TEST_F(MakeNewListTest, ANameThatIsThereAlreadyIsTakenAgain) {
  Begin(U"Planets");
  Add(U"Pluto", U"small");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot", "<New List>", "Planets",
                            "Pluto", "small"}));
}

TEST_F(MakeNewListTest, CommasQuotesBlanksAndForeignLettersAreKeptByteForByte) {
  UseFile({"No Lists"});
  Begin(U"\u00C9t\u00E9 ");
  Add(U"a, \"b\" ", U" \u00E7a\u20AC");
  Tool("Save and Quit");
  EXPECT_EQ(File(),
            "\xC9t\xE9 \r\na, \"b\" \r\n \xE7"
            "a\x80\r\n");
}

TEST_F(MakeNewListTest, ALeadingSeparatorIsRepairedBySaving) {
  UseFile({"<New List>", "Rocks", "flint", "hard"});
  Begin();
  EXPECT_EQ(Editor().TempList.Rows(), (Rows{"<New List>", "Animals"}));
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Rocks", "flint", "hard", "<New List>", "Animals"}));
}

TEST_F(MakeNewListTest, AMissingListFileEndsTheProgram) {
  std::filesystem::remove("TheLists.dat");
  Begin();
  ExpectFatal("53 File not found");
}

TEST_F(MakeNewListTest, AFullDiskEndsTheProgramAndLeavesTheFileCut) {
  Begin();
  Add(U"cat", U"purrs");
  {
    const FullDisk full(20);
    Tool("Save and Quit");
  }
  ExpectFatal("61 Disk full");
  EXPECT_EQ(File(), "Planets\r\nMars\r\nred\r\n");
}

TEST_F(MakeNewListTest, AFileThatMayBeReadOnlyEndsTheProgramAndStays) {
  Begin();
  Add(U"cat", U"purrs");
  WithReadOnly("TheLists.dat", [this] { Tool("Save and Quit"); });
  ExpectFatal("75 Path/File access error");
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "Venus", "hot"}));
}

// --- A file without lists: all stands one place further up than the rows are taken for.

class FirstListTest : public MakeNewListTest {
 protected:
  FirstListTest() {
    UseFile({"No Lists"});
    Begin();
    EXPECT_EQ(Editor().TempList.Rows(), (Rows{"Animals"}));
    AddThree();
  }
};

TEST_F(FirstListTest, StandsAtLineOneWithoutASeparator) {
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Animals", "cat", "purrs", "dog", "barks", "owl", "hoots"}));
}

TEST_F(FirstListTest, AnEmptyFirstLineMeansTheSame) {
  Tool("Quit");
  UseFile({"", "x"});
  Begin();
  EXPECT_EQ(Editor().TempList.Rows(), (Rows{"Animals"}));
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"x", "Animals"}));
}

TEST_F(FirstListTest, DeleteTakesTheRowsMeaningAndTheNextWord) {
  Select(Editor().WordList1, 0);
  Tool("Delete Word");
  EXPECT_EQ(Editor().WordList1.Rows(), (Rows{"dog", "owl"}));
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Animals", "cat", "barks", "owl", "hoots"}));
}

TEST_F(FirstListTest, EditBringsUpTheMeaningForTheWordAndTheNextWordForTheMeaning) {
  Select(Editor().WordList1, 1);
  Tool("Edit Word");
  EXPECT_EQ(Editor().TheWord.Text(), "barks");
  EXPECT_EQ(Editor().TheMeaning.Text(), "owl");
  EXPECT_EQ(Editor().TempList.Rows(), (Rows{"Animals", "cat", "purrs", "dog", "hoots"}));
}

TEST_F(FirstListTest, RenamingOverwritesTheFirstWord) {
  Tool("Rename List");
  Type(On<ChangeListName>(Screen::ChangeListName).TheName, U"Pets");
  Click(Screen::ChangeListName, "Command1");
  EXPECT_EQ(Editor().Caption(), "Pets");
  Tool("Save and Quit");
  EXPECT_EQ(File(), AsFile({"Animals", "Pets", "purrs", "dog", "barks", "owl", "hoots"}));
}

TEST_F(FirstListTest, DeletingTheLastRowEndsTheProgram) {
  Select(Editor().WordList1, 2);
  Tool("Delete Word");
  ExpectFatal("5 Invalid procedure call or argument");
  EXPECT_EQ(File(), "No Lists\r\n");
}

// --- Foreign letters.

class ForeignLetterTest : public MakeNewListTest {
 protected:
  FLForm& Box() { return On<FLForm>(Screen::FLForm); }
};

TEST_F(ForeignLetterTest, BeforeTheBarIsMovedTheLetterIsAnA) {
  Begin();
  Type(Editor().TheWord, U"ol");
  Tool("Foreign");
  EXPECT_EQ(Box().Caption(), "Foreign Language Characters");
  EXPECT_EQ(Box().Foreign.Frame1.Caption(), "Foreign Language Characters");
  EXPECT_EQ(Box().Foreign.CharLabel.Caption(), "A");
  EXPECT_EQ(Box().Foreign.LScroll.Value, 191);
  Click(Box().Foreign.FLButton(0));
  EXPECT_EQ(Editor().TheWord.Text(), "olA");
  EXPECT_FALSE(Loaded(Screen::FLForm));
  EXPECT_TRUE(Active(Screen::MakeNewList));
}

TEST_F(ForeignLetterTest, TheBarShowsTheSixtyFiveLettersOfTheCodePage) {
  Begin();
  Tool("Foreign");
  EXPECT_EQ(Box().Foreign.LScroll.Min, 191);
  EXPECT_EQ(Box().Foreign.LScroll.Max, 255);
  for (int code = 192; code <= 255; ++code) {
    Do([&] { Box().Foreign.LScroll.Move(code); });
    EXPECT_EQ(Box().Foreign.CharLabel.Caption(), std::string(1, static_cast<char>(code)));
  }
  Press(Box().Foreign.LScroll, Key::Home);
  EXPECT_EQ(Box().Foreign.CharLabel.Caption(), "\xBF");
}

TEST_F(ForeignLetterTest, EachOpeningGivesOneLetter) {
  Begin();
  FillBoxes(U"t", U"x");
  Tool("Foreign");
  Do([&] { Box().Foreign.LScroll.Move(0xE9); });
  Click(Box().Foreign.FLButton(0));
  Tool("Foreign");
  EXPECT_EQ(Box().Foreign.CharLabel.Caption(), "A");
  Do([&] { Box().Foreign.LScroll.Move(0xFF); });
  Click(Box().Foreign.FLButton(1));
  EXPECT_EQ(Editor().TheWord.Text(), "t\xE9");
  EXPECT_EQ(Editor().TheMeaning.Text(), "x\xFF");
  EXPECT_FALSE(Loaded(Screen::FLForm));
}

TEST_F(ForeignLetterTest, CancelGivesNone) {
  Begin();
  Tool("Foreign");
  Click(Box().Command1);
  EXPECT_FALSE(Loaded(Screen::FLForm));
  EXPECT_EQ(Editor().TheWord.Text(), "");
}

TEST_F(ForeignLetterTest, TheBoxStaysWhenTheEditorIsClickedAndGoesWithTheEditor) {
  Begin();
  Tool("Foreign");
  Activate(Screen::MakeNewList);
  EXPECT_TRUE(Loaded(Screen::FLForm));
  Tool("Save and Quit");
  EXPECT_FALSE(Loaded(Screen::FLForm));
}

}  // namespace
}  // namespace brindlepage
