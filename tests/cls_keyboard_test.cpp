#include "crossword/cls_keyboard.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace brindlepage {
namespace {

// A system that notes what reaches it. 'a' has a key of its own, 'A' takes Shift, '#' all three.
class NotedEvents : public KeyEvents {
 public:
  std::vector<std::string> log;
  std::map<int, int> states;

  void KeyEvent(int key, int scan_code, unsigned flags) override {
    log.push_back(std::to_string(key) + "/" + std::to_string(scan_code) + "/" +
                  std::to_string(flags));
  }
  int ScanCharacter(char c) const override {
    if (c == 'a') return 65;
    if (c == 'A') return 65 | kWithShift;
    if (c == '#') return 65 | kWithShift | kWithControl | kWithAlt;
    return c == '\x1B' ? 46 : 0;
  }
  int MapKey(int key, Mapping mapping) const override {
    if (mapping == Mapping::Character) return key == 65 ? 'A' : 0;
    return key + 100;
  }
  int KeyState(int key) const override {
    const auto state = states.find(key);
    return state == states.end() ? 0 : state->second;
  }
  void Sleep(int milliseconds) override { log.push_back("sleep " + std::to_string(milliseconds)); }
  void LetSystemRun() override { log.push_back("run"); }
};

using Log = std::vector<std::string>;

class ClsKeyboard : public testing::Test {
 protected:
  NotedEvents events;
  clsKeyboard keyboard{events};
};

TEST_F(ClsKeyboard, ACharacterIsPressedAndReleased) {
  keyboard.PressKey('a');
  EXPECT_EQ(events.log, (Log{"65/165/0", "65/165/2"}));
}

TEST_F(ClsKeyboard, AKeyThatTypesNothingIsAnExtendedOne) {
  keyboard.PressKey('\x1B');
  EXPECT_EQ(events.log, (Log{"46/146/1", "46/146/3"}));
}

TEST_F(ClsKeyboard, ShiftControlAndAltGoDownBeforeTheKeyAndUpBehindItInThatOrder) {
  keyboard.PressKey('#');
  EXPECT_EQ(events.log, (Log{"16/116/0", "17/117/0", "18/118/0", "65/165/0", "65/165/2", "16/116/2",
                             "17/117/2", "18/118/2"}));
}

TEST_F(ClsKeyboard, AKeyMayBeHeldDownOrOnlyReleased) {
  keyboard.PressKey('A', {.key_up = true});
  EXPECT_EQ(events.log, (Log{"16/116/0", "65/165/0"}));
  events.log.clear();
  keyboard.PressKey('A', {.key_down = true});
  EXPECT_EQ(events.log, (Log{"65/165/2", "16/116/2"}));
}

TEST_F(ClsKeyboard, ACharacterWithoutAKeyPressesNothing) {
  keyboard.PressKey('?');
  EXPECT_TRUE(events.log.empty());
}

TEST_F(ClsKeyboard, AStringIsPressedWithAPauseBehindEachCharacter) {
  keyboard.PressString("aa");
  EXPECT_EQ(events.log,
            (Log{"65/165/0", "65/165/2", "sleep 20", "65/165/0", "65/165/2", "sleep 20"}));
  events.log.clear();
  keyboard.PressString("a", true);
  EXPECT_EQ(events.log, (Log{"65/165/0", "65/165/2", "sleep 20", "run"}));
  events.log.clear();
  keyboard.PressString("");
  EXPECT_TRUE(events.log.empty());
}

TEST_F(ClsKeyboard, AKeyByItsCodeIsExtendedUnlessThatIsOff) {
  keyboard.PressKeyVK(18, {.key_up = true});
  keyboard.PressKeyVK(44);
  keyboard.PressKeyVK(18, {.key_down = true});
  EXPECT_EQ(events.log, (Log{"18/118/1", "44/144/1", "44/144/3", "18/118/3"}));
  events.log.clear();
  keyboard.PressKeyVK(44, {}, true);
  EXPECT_EQ(events.log, (Log{"44/144/0", "44/144/2"}));
  events.log.clear();
  keyboard.PressKeyVK(65);
  EXPECT_EQ(events.log, (Log{"65/165/0", "65/165/2"}));
}

TEST_F(ClsKeyboard, TheLocksAreOnWhileTheirStateIsNotZero) {
  bool caps = false;
  bool num = true;
  bool scroll = false;
  events.states = {{20, 1}, {145, 0x80}};
  keyboard.GetLockStatus(caps, num, scroll);
  EXPECT_TRUE(caps);
  EXPECT_FALSE(num);
  EXPECT_TRUE(scroll);
}

}  // namespace
}  // namespace brindlepage
