#include "lists/delete_list.h"

#include "tests/list_screens.h"

namespace brindlepage {
namespace {

class DeleteListTest : public ListKeeper {
 protected:
  DeleteListTest() {
    UseFile({"Planets", "Mars", "red", "<New List>", "Animals", "<New List>", "Rocks", "flint",
             "hard"});
  }
  DeleteList& Form() { return On<DeleteList>(Screen::DeleteList); }
  void Delete(int row) {
    Select(Form().TheLists, row);
    Click(Form().Command1);
    Click(Form().Yes);
  }
  void ExpectAsking(bool asking) {
    EXPECT_NE(Form().Command1.Visible(), asking);
    EXPECT_NE(Form().Command2.Visible(), asking);
    EXPECT_EQ(Form().Sure.Visible(), asking);
    EXPECT_EQ(Form().Yes.Visible(), asking);
    EXPECT_EQ(Form().No.Visible(), asking);
  }
};

TEST_F(DeleteListTest, OffersTheListsInFileOrder) {
  Open("Delete");
  EXPECT_EQ(Form().Caption(), "Delete A Word List");
  EXPECT_EQ(Form().Label1.Caption(), "To Delete A List:");
  EXPECT_EQ(Form().Label2.Caption(),
            "Choose the List Name in the Box Below and Click the \"Delete\" Button.");
  EXPECT_EQ(Form().Sure.Caption(), "Are you sure you want to permenantly delete this list?");
  EXPECT_EQ(Form().TheLists.Rows(), (Rows{"Planets", "Animals", "Rocks"}));
  ExpectAsking(false);
}

TEST_F(DeleteListTest, DeleteAsksOnTheScreenItselfAndNoTakesTheQuestionBack) {
  const std::string before = File();
  Open("Delete");
  Select(Form().TheLists, 1);
  Click(Form().Command1);
  EXPECT_EQ(TakeLog(), Log{"beep"});
  ExpectAsking(true);
  Click(Form().No);
  ExpectAsking(false);
  EXPECT_EQ(File(), before);
  EXPECT_EQ(Form().TheLists.ListCount(), 3);
}

TEST_F(DeleteListTest, DeleteWithNothingSelectedEndsTheProgram) {
  Open("Delete");
  Click(Form().Command1);
  EXPECT_EQ(platform.log, Log{"error 424 Object required"});
  ExpectFatal("424 Object required");
}

TEST_F(DeleteListTest, AListInTheMiddleGoesWithItsSeparator) {
  Open("Delete");
  Delete(1);
  ExpectAsking(false);
  EXPECT_EQ(Form().TheLists.Rows(), (Rows{"Planets", "Rocks"}));
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "<New List>", "Rocks", "flint", "hard"}));
}

TEST_F(DeleteListTest, DeletingTheLastListOfSeveralLeavesAWellFormedFile) {
  Open("Delete");
  Delete(2);
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "<New List>", "Animals"}));
}

TEST_F(DeleteListTest, DeletingTheFirstListLeavesASeparatorAtTheTop) {
  Open("Delete");
  Delete(0);
  EXPECT_EQ(Form().TheLists.Rows(), (Rows{"Animals", "Rocks"}));
  EXPECT_EQ(File(), AsFile({"<New List>", "Animals", "<New List>", "Rocks", "flint", "hard"}));
  Click(Form().Command2);
  EXPECT_FALSE(Loaded(Screen::DeleteList));
  Open("Delete");
  EXPECT_EQ(Form().TheLists.Rows(), (Rows{"<New List>", "Rocks"}));
}

TEST_F(DeleteListTest, DeletingAllLeavesTheOneLineNoLists) {
  Open("Delete");
  Delete(0);
  Delete(0);
  EXPECT_EQ(File(), AsFile({"<New List>", "Rocks", "flint", "hard"}));
  Delete(0);
  EXPECT_EQ(File(), "No Lists\r\n");
  EXPECT_EQ(Form().TheLists.ListCount(), 0);
}

TEST_F(DeleteListTest, NoListsIsDeletedLikeAListAndWrittenBack) {
  UseFile({"No Lists"});
  Open("Delete");
  EXPECT_EQ(Form().TheLists.Rows(), (Rows{"No Lists"}));
  Delete(0);
  EXPECT_EQ(File(), "No Lists\r\n");
  EXPECT_EQ(Form().TheLists.ListCount(), 0);
}

TEST_F(DeleteListTest, TheListSelectedWhenYesIsClickedIsTheOneThatGoes) {
  Open("Delete");
  Select(Form().TheLists, 0);
  Click(Form().Command1);
  Select(Form().TheLists, 2);
  Click(Form().Yes);
  EXPECT_EQ(File(), AsFile({"Planets", "Mars", "red", "<New List>", "Animals"}));
  EXPECT_EQ(Form().TheLists.Rows(), (Rows{"Planets", "Animals"}));
}

TEST_F(DeleteListTest, OfTwoListsOfOneNameTheFirstGoes) {
  UseFile({"Twins", "a", "1", "<New List>", "Twins", "b", "2"});
  Open("Delete");
  Delete(1);
  EXPECT_EQ(File(), AsFile({"<New List>", "Twins", "b", "2"}));
  EXPECT_EQ(Form().TheLists.Rows(), (Rows{"Twins"}));
}

TEST_F(DeleteListTest, EscapeTakesTheWayThatDeletesNothing) {
  Open("Delete");
  Select(Form().TheLists, 0);
  Click(Form().Command1);
  EXPECT_EQ(FocusOf(Screen::DeleteList), "No");
  Press(Form().TheLists, Key::Escape);
  ExpectAsking(false);
  Press(Form().TheLists, Key::Escape);
  EXPECT_TRUE(Active(Screen::Title));
}

TEST_F(DeleteListTest, AFullDiskEndsTheProgramAndLeavesTheFileCut) {
  Open("Delete");
  Select(Form().TheLists, 1);
  Click(Form().Command1);
  {
    const FullDisk full(0);
    Click(Form().Yes);
  }
  ExpectFatal("61 Disk full");
  EXPECT_EQ(File(), "");
}

TEST_F(DeleteListTest, AFolderInTheFilesPlaceEndsTheProgram) {
  Open("Delete");
  Select(Form().TheLists, 1);
  Click(Form().Command1);
  std::filesystem::remove("TheLists.dat");
  std::filesystem::create_directory("TheLists.dat");
  Click(Form().Yes);
  ExpectFatal("75 Path/File access error");
}

TEST_F(DeleteListTest, AFileThatMayBeReadOnlyEndsTheProgramAndStays) {
  const std::string before = File();
  Open("Delete");
  Select(Form().TheLists, 1);
  Click(Form().Command1);
  WithReadOnly("TheLists.dat", [this] { Click(Form().Yes); });
  ExpectFatal("75 Path/File access error");
  EXPECT_EQ(File(), before);
}

TEST_F(DeleteListTest, AFullDeviceEndsTheProgram) {
  Open("Delete");
  Select(Form().TheLists, 1);
  Click(Form().Command1);
  std::filesystem::remove("TheLists.dat");
  std::filesystem::create_symlink("/dev/full", "TheLists.dat");
  Click(Form().Yes);
  ExpectFatal("61 Disk full");
}

}  // namespace
}  // namespace brindlepage
