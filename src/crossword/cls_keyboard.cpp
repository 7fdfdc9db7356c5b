#include "crossword/cls_keyboard.h"

namespace brindlepage {

namespace {

constexpr int kPause = 20;  // milliseconds between characters
enum LockKeys { kCapsLock = 20, kNumLock = 144, kScrollLock = 145 };

struct ShiftKey {
  int state;
  int code;
};
// In the order of pressing and of releasing.
constexpr ShiftKey kShiftKeys[] = {
    {KeyEvents::kWithShift, 16}, {KeyEvents::kWithControl, 17}, {KeyEvents::kWithAlt, 18}};

// A key that types nothing is one of those beside the letters.
bool IsExtended(const KeyEvents& events, int virtual_key) {
  return events.MapKey(virtual_key, KeyEvents::Mapping::Character) == 0;
}

}  // namespace

void clsKeyboard::PressKey(char character, WithoutPart without) {
  const int scanned = events_.ScanCharacter(character);
  if (scanned == 0) return;
  const int key = scanned & 0xFF;
  const bool extended = IsExtended(events_, key);
  if (!without.key_down) ShiftKeys(scanned, 0);
  PressPart(key, without, extended);
  if (!without.key_up) ShiftKeys(scanned, KeyEvents::kKeyUp);
}

void clsKeyboard::PressString(std::string_view text, bool let_system_run) {
  while (!text.empty()) {
    PressKey(text.front());
    events_.Sleep(kPause);
    if (let_system_run) events_.LetSystemRun();
    text.remove_prefix(1);
  }
}

void clsKeyboard::PressKeyVK(int virtual_key, WithoutPart without, bool extended_off) {
  PressPart(virtual_key, without, !extended_off && IsExtended(events_, virtual_key));
}

void clsKeyboard::GetLockStatus(bool& caps_lock, bool& num_lock, bool& scroll_lock) const {
  caps_lock = events_.KeyState(kCapsLock) != 0;
  num_lock = events_.KeyState(kNumLock) != 0;
  scroll_lock = events_.KeyState(kScrollLock) != 0;
}

void clsKeyboard::PressPart(int virtual_key, WithoutPart without, bool extended) {
  const unsigned flags = extended ? unsigned{KeyEvents::kExtended} : 0;
  if (!without.key_down) PressOrRelease(virtual_key, flags);
  if (!without.key_up) PressOrRelease(virtual_key, flags | unsigned{KeyEvents::kKeyUp});
}

void clsKeyboard::ShiftKeys(int shift_state, unsigned flags) {
  for (const ShiftKey& shift : kShiftKeys) {
    if (shift_state & shift.state) PressOrRelease(shift.code, flags);
  }
}

void clsKeyboard::PressOrRelease(int virtual_key, unsigned flags) {
  events_.KeyEvent(virtual_key, events_.MapKey(virtual_key, KeyEvents::Mapping::ScanCode), flags);
}

}  // namespace brindlepage
