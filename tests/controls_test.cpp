#include "toolkit/controls.h"

#include <gtest/gtest.h>

#include "core/program.h"
#include "tests/expect_fault.h"
#include "tests/teacher.h"
#include "toolkit/file_lists.h"
#include "toolkit/lists.h"

namespace brindlepage {
namespace {

class Desk : public ProgramForm {
 public:
  explicit Desk(Program& owner) : ProgramForm(owner, Screen::Title, "Desk", "A desk") {
    Arrange(Column(Framed(Frame1, Column(Red, Blue)), Round, Square, Check, Bar, Name, Ok, Leave));
  }
  Frame Frame1{*this, "Frame1", "Colours"};
  Menu Help{*this, "Help", "Help"};
  MenuItem About{Help, "About", "About"};
  OptionButton Red{*this, "Red", "Red", true};
  OptionButton Blue{*this, "Blue", "Blue"};
  OptionButton Round{*this, "Round", "Round"};
  OptionButton Square{*this, "Square", "Square", true};
  CheckBox Check{*this, "Check", "Check"};
  HScrollBar Bar{*this, "Bar", 20, 200, 120, 20};
  TextBox Name{*this, "Name"};
  CommandButton Ok{*this, "Ok", "OK"};
  CommandButton Leave{*this, "Leave", "Cancel"};
  ControlArray<Label> Labels{*this, "Labels", {{0, "zero"}, {3, "three"}}};
  Toolbar Tools{*this, "Tools"};
};

class ControlsTest : public ::testing::Test {
 protected:
  ControlsTest() {
    program.Dispatch([this] { program.forms().Show(Screen::Title); });
    desk = program.forms().Find<Desk>(Screen::Title);
  }
  NotingPlatform platform;
  SeededRandom random{1};
  Program program{platform, random, [this](Screen) { return std::make_unique<Desk>(program); }};
  Desk* desk = nullptr;
};

TEST_F(ControlsTest, AStateAnswersToItsName) {
  EXPECT_EQ(desk->Ok.Find("Caption"), Value(std::string("OK")));
  EXPECT_EQ(desk->Ok.Find("Visible"), Value(true));
  EXPECT_EQ(desk->Bar.Find("Value"), Value(120LL));
  EXPECT_EQ(desk->Find("Caption"), Value(std::string("A desk")));
  EXPECT_EQ(desk->Ok.Find("Colour"), std::nullopt);
}

TEST_F(ControlsTest, AStateTellsItsViewOnlyWhenTheValueChanged) {
  const int before = platform.changes;
  desk->Ok.Caption = "OK";
  EXPECT_EQ(platform.changes, before);
  desk->Ok.Caption = "Fine";
  EXPECT_EQ(platform.changes, before + 1);
}

TEST_F(ControlsTest, OneOptionOfAGroupIsOnAndOtherGroupsStay) {
  int clicks = 0;
  desk->Blue.Click = [&] { ++clicks; };
  desk->Blue.UserClick();
  EXPECT_TRUE(desk->Blue.Value);
  EXPECT_FALSE(desk->Red.Value);
  EXPECT_TRUE(desk->Square.Value);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, TurningAnOptionOnByProgramRaisesClickAsWell) {
  int clicks = 0;
  desk->Blue.Click = [&] { ++clicks; };
  desk->Blue.Value = true;
  desk->Blue.Value = true;
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, SpaceTurnsACheckBoxAndRaisesClick) {
  int clicks = 0;
  desk->Check.Click = [&] { ++clicks; };
  desk->Check.Press(Key::Space);
  EXPECT_TRUE(desk->Check.Value);
  desk->Check.Value = false;
  EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, AScrollBarStopsAtItsEnds) {
  int changes = 0;
  desk->Bar.Change = [&] { ++changes; };
  desk->Bar.Move(500);
  EXPECT_EQ(desk->Bar.Value, 200);
  desk->Bar.Press(Key::Right);
  EXPECT_EQ(desk->Bar.Value, 200);
  desk->Bar.Press(Key::Left);
  EXPECT_EQ(desk->Bar.Value, 180);
  desk->Bar.Press(Key::Home);
  EXPECT_EQ(desk->Bar.Value, 20);
  EXPECT_EQ(changes, 3);
}

TEST_F(ControlsTest, AScrollBarRefusesAValueOutsideItsRange) {
  EXPECT_FAULT(5, desk->Bar.Value = 201);
  EXPECT_EQ(desk->Bar.Value, 120);
}

TEST_F(ControlsTest, ABoxOfWordsRefusesWhatTheCodePageLacksWithABeep) {
  desk->Name.Type(U"\u00E9t\u00E9 \u4E2D!");
  EXPECT_EQ(desk->Name.Text(), "\xE9t\xE9 !");
  EXPECT_EQ(platform.log, std::vector<std::string>{"beep"});
}

TEST_F(ControlsTest, EnterClicksTheDefaultButtonUnlessTheBoxHasAUseForIt) {
  int clicks = 0, enters = 0;
  desk->Ok.Default = true;
  desk->Ok.Click = [&] { ++clicks; };
  desk->Name.Press(Key::Enter);
  EXPECT_EQ(clicks, 1);
  desk->Name.Enter = [&] { ++enters; };
  desk->Name.Press(Key::Enter);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(enters, 1);
}

TEST_F(ControlsTest, EscapeClicksTheCancelButtonIfItIsEnabled) {
  int clicks = 0;
  desk->Leave.Cancel = true;
  desk->Leave.Click = [&] { ++clicks; };
  desk->Leave.Enabled = false;
  desk->Check.Press(Key::Escape);
  EXPECT_EQ(clicks, 0);
  desk->Leave.Enabled = true;
  desk->Check.Press(Key::Escape);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, WhatStandsInAHiddenFrameIsNotOnScreen) {
  EXPECT_TRUE(desk->Red.CanAct());
  desk->Frame1.Visible = false;
  EXPECT_FALSE(desk->Red.CanAct());
  EXPECT_TRUE(desk->Round.CanAct());
}

TEST_F(ControlsTest, WhatStandsInADisabledFrameCanDoNothing) {
  desk->Frame1.Enabled = false;
  EXPECT_TRUE(desk->Red.OnScreen());
  EXPECT_FALSE(desk->Red.CanAct());
  EXPECT_TRUE(desk->Round.CanAct());
}

TEST_F(ControlsTest, AnItemOfAHiddenOrDisabledMenuCanDoNothing) {
  EXPECT_TRUE(desk->About.CanAct());
  desk->Help.Enabled = false;
  EXPECT_FALSE(desk->About.CanAct());
  desk->Help.Enabled = true;
  desk->Help.Visible = false;
  EXPECT_FALSE(desk->About.CanAct());
}

TEST_F(ControlsTest, AnArrayTellsItsElementsApartByTheirIndex) {
  int clicked = -1;
  desk->Labels.Click = [&](int index) { clicked = index; };
  desk->Labels(3).UserClick();
  EXPECT_EQ(clicked, 3);
  EXPECT_FAULT(9, desk->Labels(1));
  EXPECT_EQ(desk->FindControl("Labels", 3), &desk->Labels(3));
  EXPECT_EQ(desk->FindControl("Labels", 1), nullptr);
}

TEST_F(ControlsTest, ToolbarButtonsAreNumberedFromOneAndFoundByCaption) {
  desk->Tools.Add("Print", "print", "Print Activity", "print");
  ToolbarButton& key = desk->Tools.Add("Key", "", "Switch", "key");
  EXPECT_EQ(&desk->Tools.Button(2), &key);
  EXPECT_FAULT(9, desk->Tools.Button(3));
  key.Caption = "Worksheet";
  EXPECT_EQ(desk->Tools.FindCaption("Key"), nullptr);
  EXPECT_EQ(desk->Tools.FindCaption("Worksheet"), &key);
}

TEST_F(ControlsTest, TheFocusIsAskedForByName) {
  desk->Name.SetFocus();
  EXPECT_TRUE(desk->Name.HasFocus());
  EXPECT_EQ(desk->Find("ActiveControl"), Value(std::string("Name")));
}

TEST_F(ControlsTest, ASortedListIgnoresCase) {
  ListBox list(*desk, "list", ListStyle::Sorted);
  for (const char* name : {"banana", "Cherry", "apple", "Banana"}) list.AddItem(name);
  EXPECT_EQ(list.List(0), "apple");
  EXPECT_EQ(list.List(1), "banana");
  EXPECT_EQ(list.List(2), "Banana");
  EXPECT_EQ(list.List(3), "Cherry");
}

TEST_F(ControlsTest, ReadingARowThatIsNotThereGivesAnEmptyText) {
  ListBox list(*desk, "list");
  list.AddItem("one");
  EXPECT_EQ(list.List(-1), "");
  EXPECT_EQ(list.List(1), "");
  EXPECT_EQ(list.Text(), "");
  EXPECT_FAULT(5, list.RemoveItem(1));
  EXPECT_FAULT(5, list.List(-1, "x"));
  EXPECT_FAULT(5, list.ListIndex = 1);
  EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(ControlsTest, TheSelectionStaysWithItsRow) {
  ListBox list(*desk, "list");
  for (const char* row : {"a", "b", "c"}) list.AddItem(row);
  list.ListIndex = 1;
  list.AddItem("0", 0);
  EXPECT_EQ(list.Text(), "b");
  list.RemoveItem(0);
  EXPECT_EQ(list.Text(), "b");
  list.RemoveItem(1);
  EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(ControlsTest, SettingAMarkRaisesTheSameEventAsAClick) {
  ListBox list(*desk, "list", ListStyle::CheckBoxes);
  list.AddItem("a");
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  list.Selected(0, true);
  EXPECT_TRUE(list.Selected(0));
  list.ClickCheck(0);
  EXPECT_FALSE(list.Selected(0));
  EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, AKeyThatMovesTheSelectionClicksWhereNoHandlerIsSet) {
  ListBox list(*desk, "list");
  list.AddItem("a");
  list.AddItem("b");
  int clicks = 0, keys = 0;
  list.Click = [&] { ++clicks; };
  list.Press(Key::Down);
  list.Press(Key::Down);
  EXPECT_EQ(list.Text(), "b");
  EXPECT_EQ(clicks, 2);
  list.KeyUp = [&] { ++keys; };
  list.Press(Key::Home);
  EXPECT_EQ(list.Text(), "a");
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(keys, 1);
}

TEST_F(ControlsTest, SpaceWithNoRowSelectedActsOnTheFirst) {
  ListBox plain(*desk, "plain");
  int clicks = 0;
  plain.Click = [&] { ++clicks; };
  plain.Press(Key::Space);
  EXPECT_EQ(plain.ListIndex, -1);
  EXPECT_EQ(clicks, 0);
  plain.AddItem("a");
  plain.AddItem("b");
  plain.Press(Key::Space);
  EXPECT_EQ(plain.Text(), "a");
  EXPECT_EQ(clicks, 1);
  plain.ListIndex.Put(1);
  plain.Press(Key::Space);
  EXPECT_EQ(plain.Text(), "b");
  EXPECT_EQ(clicks, 1);

  ListBox marks(*desk, "marks", ListStyle::CheckBoxes);
  marks.AddItem("a");
  marks.AddItem("b");
  marks.Press(Key::Space);
  EXPECT_TRUE(marks.Selected(0));
  EXPECT_EQ(marks.ListIndex, 0);
}

TEST_F(ControlsTest, AKeyThatLeadsToARowIsNoClickWhereAHandlerIsSet) {
  ListBox list(*desk, "list");
  list.AddItems({"a", "b", "c"});
  EXPECT_EQ(list.Rows(), (std::vector<std::string>{"a", "b", "c"}));
  int clicks = 0, keys = 0;
  list.Click = [&] { ++clicks; };
  list.MoveByKey(1);
  EXPECT_EQ(list.Text(), "b");
  EXPECT_EQ(clicks, 1);
  list.KeyUp = [&] { ++keys; };
  list.MoveByKey(7);
  EXPECT_EQ(list.Text(), "c");
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(keys, 1);
}

TEST_F(ControlsTest, AClickOnTheEmptyPartOfAListSelectsNothing) {
  ListBox list(*desk, "list");
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  list.ClickRow(0);
  EXPECT_EQ(list.ListIndex, -1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, SelectingAnEntryOfAComboRaisesItsClick) {
  ComboBox combo(*desk, "combo");
  combo.AddItem("8");
  combo.AddItem("10");
  int clicks = 0;
  combo.Click = [&] { ++clicks; };
  combo.ListIndex = 1;
  EXPECT_EQ(combo.Text(), "10");
  combo.Text = "11";
  EXPECT_EQ(combo.ListIndex, -1);
  combo.Text = "8";
  EXPECT_EQ(combo.ListIndex, 0);
  EXPECT_EQ(clicks, 1);
  combo.ListIndex = -1;
  EXPECT_EQ(combo.Text(), "");
  EXPECT_EQ(clicks, 1);
  combo.PickRow(0);
  combo.Type(U"12");
  EXPECT_EQ(clicks, 3);
}

TEST_F(ControlsTest, AComboRefusesWhatTheCodePageLacksWithABeep) {
  ComboBox combo(*desk, "combo");
  std::string confirmed;
  combo.Click = [&] { confirmed = combo.Text(); };
  combo.Type(U"Caf\u00E9 \u4E2D\n");
  EXPECT_EQ(confirmed, "Caf\xE9 ");
  EXPECT_EQ(platform.log, std::vector<std::string>{"beep"});
}

TEST_F(ControlsTest, AComboOfNoRowGoesBlankEvenIfATextWasTyped) {
  ComboBox combo(*desk, "combo");
  combo.Text = "Purple";
  combo.ListIndex = -1;
  EXPECT_EQ(combo.Text(), "");
}

TEST_F(ControlsTest, FolderAndFileListsFollowTheirPath) {
  TempFolder folder;
  std::filesystem::create_directory("Lessons");
  folder.Write("Lessons/b.bmp", "x");
  folder.Write("Lessons/a.JPG", "x");
  folder.Write("Lessons/c.txt", "x");
  DirListBox dirs(*desk, "dirs");
  EXPECT_EQ(dirs.Path(), files::WorkingDirectory());
  EXPECT_EQ(dirs.FolderCount(), 1);
  EXPECT_EQ(dirs.Folder(0), files::WorkingDirectory() + "\\Lessons");
  int changes = 0;
  dirs.Change = [&] { ++changes; };
  dirs.OpenRow(1);
  EXPECT_EQ(dirs.Path(), files::WorkingDirectory() + "\\Lessons");
  FileListBox list(*desk, "files", "*.bmp;*.jpg");
  list.Path = dirs.Path();
  ASSERT_EQ(list.ListCount(), 2);
  EXPECT_EQ(list.List(0), "a.JPG");
  list.Pattern = "*.bmp";
  list.ListIndex = 0;
  EXPECT_EQ(list.FileName(), "b.bmp");
  dirs.OpenRow(0);
  EXPECT_EQ(dirs.Path(), files::WorkingDirectory());
  EXPECT_EQ(changes, 2);
  EXPECT_FAULT(76, dirs.Path = files::WorkingDirectory() + "\\nowhere");
  EXPECT_FAULT(76, list.Path = "nowhere");
}

}  // namespace
}  // namespace brindlepage
