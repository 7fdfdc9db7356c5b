#include "toolkit/keyboard.h"

#include "tests/expect_fault.h"
#include "tests/teacher.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage {
namespace {

constexpr Screen kPage{1};
constexpr Screen kOther{2};

class PageForm : public Form {
 public:
  PageForm(Runtime& own_runtime, Screen screen_id) : Form(own_runtime, screen_id, "PageForm", "") {
    Button.Click = [this] { ++clicks; };
  }
  TextBox Text{*this, "Text"};
  RichTextBox Sheet{*this, "Sheet", "Arial", 10};
  CommandButton Button{*this, "Button", "OK"};
  int clicks = 0;
};

class KeyboardTest : public testing::Test {
 protected:
  KeyboardTest() {
    runtime.Dispatch([this] { runtime.forms().Show(kPage); });
    page = runtime.forms().Find<PageForm>(kPage);
  }
  Keyboard& keys() { return runtime.keyboard(); }
  void Photograph() {
    keys().KeyEvent(18, 0, 0);
    keys().KeyEvent(44, 0, 0);
    keys().KeyEvent(44, 0, KeyEvents::kKeyUp);
    keys().KeyEvent(18, 0, KeyEvents::kKeyUp);
  }

  NotingPlatform platform;
  SeededRandom random{1};
  Runtime runtime{platform, random,
                  [this](Screen id) { return std::make_unique<PageForm>(runtime, id); }};
  PageForm* page = nullptr;
};

TEST_F(KeyboardTest, AltWithPrintScreenPhotographsTheFormInFront) {
  EXPECT_FALSE(keys().Clipboard());
  Photograph();
  ASSERT_TRUE(keys().Clipboard());
  EXPECT_EQ(keys().Clipboard()->format, "png");
  EXPECT_EQ(platform.events.back(), "photographed PageForm");
}

TEST_F(KeyboardTest, PrintScreenAlonePhotographsNothing) {
  keys().KeyEvent(44, 0, 0);
  EXPECT_FALSE(keys().Clipboard());
}

TEST_F(KeyboardTest, TheFormInFrontIsPhotographedEvenWhileAnotherProgramHasTheScreen) {
  runtime.Dispatch([this] { runtime.forms().Deactivate(*page); });
  EXPECT_EQ(runtime.forms().Active(), nullptr);
  EXPECT_EQ(runtime.forms().Front(), page);
  Photograph();
  EXPECT_TRUE(keys().Clipboard());
}

TEST_F(KeyboardTest, WithoutAFormOnScreenThereIsNothingToPhotograph) {
  runtime.forms().Hide(kPage);
  EXPECT_EQ(runtime.forms().Front(), nullptr);
  Photograph();
  EXPECT_FALSE(keys().Clipboard());
}

TEST_F(KeyboardTest, ThePhotographIsPastedAtTheCaretOfTheFocusedSheet) {
  Photograph();
  page->Sheet.Text("ab");
  page->Sheet.SelStart(1);
  page->Sheet.SetFocus();
  keys().SendKeys("^{v}");
  ASSERT_EQ(page->Sheet.Length(), 3);
  const auto& picture = page->Sheet.FormatAt(1).picture;
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->width, keys().Clipboard()->width);
  EXPECT_EQ(picture->bytes, keys().Clipboard()->bytes);
  EXPECT_EQ(page->Sheet.SelStart(), 2);
}

TEST_F(KeyboardTest, PastingAnEmptyClipboardOrIntoWhatTakesNoPictureDoesNothing) {
  page->Sheet.SetFocus();
  page->Sheet.Text("ab");
  keys().SendKeys("^v");
  EXPECT_EQ(page->Sheet.Length(), 2);
  Photograph();
  page->Text.SetFocus();
  keys().SendKeys("^v");
  EXPECT_EQ(page->Text.Text(), "");
  page->Sheet.SetFocus();
  page->Sheet.Enabled = false;
  keys().SendKeys("^v");
  EXPECT_EQ(page->Sheet.Length(), 2);
}

TEST_F(KeyboardTest, CharactersAreTypedIntoTheFocusedBox) {
  page->Text.SetFocus();
  keys().SendKeys("aB{c}1!");
  EXPECT_EQ(page->Text.Text(), "aBc1!");
  page->Sheet.Text("");
  page->Sheet.SetFocus();
  keys().SendKeys("x");
  EXPECT_EQ(page->Sheet.PlainText(), U"x");
}

TEST_F(KeyboardTest, SpaceAndEnterClickTheFocusedButton) {
  page->Button.SetFocus();
  keys().KeyEvent(32, 0, 0);
  keys().KeyEvent(13, 0, 0);
  EXPECT_EQ(page->clicks, 2);
  keys().KeyEvent(18, 0, 0);
  keys().KeyEvent(32, 0, 0);
  EXPECT_EQ(page->clicks, 2) << "with Alt";
}

TEST_F(KeyboardTest, AKeyIsToggledByEveryPressAndHeldUntilItsRelease) {
  EXPECT_EQ(keys().KeyState(20), 0);
  keys().KeyEvent(20, 0, 0);
  EXPECT_EQ(keys().KeyState(20), 0x81);
  keys().KeyEvent(20, 0, 0);  // it repeats
  EXPECT_EQ(keys().KeyState(20), 0x81);
  keys().KeyEvent(20, 0, KeyEvents::kKeyUp);
  EXPECT_EQ(keys().KeyState(20), 1);
  keys().KeyEvent(20, 0, 0);
  keys().KeyEvent(20, 0, KeyEvents::kKeyUp);
  EXPECT_EQ(keys().KeyState(20), 0);
  EXPECT_EQ(keys().KeyState(-1), 0);
  EXPECT_EQ(keys().KeyState(256), 0);
}

TEST_F(KeyboardTest, CharactersAreFoundOnTheKeysOfTheLayout) {
  EXPECT_EQ(keys().ScanCharacter('a'), 'A');
  EXPECT_EQ(keys().ScanCharacter('A'), 'A' | KeyEvents::kWithShift);
  EXPECT_EQ(keys().ScanCharacter('7'), '7');
  EXPECT_EQ(keys().ScanCharacter('&'), '7' | KeyEvents::kWithShift);
  EXPECT_EQ(keys().ScanCharacter(' '), 32);
  EXPECT_EQ(keys().ScanCharacter('\x16'), 'V' | KeyEvents::kWithControl);
  EXPECT_EQ(keys().ScanCharacter('\r'), 13);
  EXPECT_EQ(keys().ScanCharacter('\xE4'), 0);
  EXPECT_EQ(keys().ScanCharacter('\0'), 0);
}

TEST_F(KeyboardTest, KeysAreMappedToScanCodesAndCharacters) {
  using Mapping = KeyEvents::Mapping;
  EXPECT_EQ(keys().MapKey(18, Mapping::Character), 0);
  EXPECT_EQ(keys().MapKey(18, Mapping::ScanCode), 0x38);
  EXPECT_EQ(keys().MapKey(44, Mapping::Character), 0);
  EXPECT_EQ(keys().MapKey('Q', Mapping::Character), 'Q');
  EXPECT_EQ(keys().MapKey('Q', Mapping::ScanCode), 0x10);
  EXPECT_EQ(keys().MapKey(0xBF, Mapping::Character), '/');
  EXPECT_EQ(keys().MapKey(7, Mapping::ScanCode), 0);
}

TEST_F(KeyboardTest, WhatNoKeyTypesCantBeSent) {
  EXPECT_FAULT(5, keys().SendKeys("\xE4"));
  EXPECT_FAULT(5, keys().SendKeys("^"));
  EXPECT_FAULT(5, keys().KeyEvent(256, 0, 0));
}

TEST_F(KeyboardTest, SleepingIsThePlatformsPause) {
  keys().Sleep(20);
  keys().LetSystemRun();
  EXPECT_EQ(platform.log, (std::vector<std::string>{"pause 20", "pause 0"}));
}

}  // namespace
}  // namespace brindlepage
