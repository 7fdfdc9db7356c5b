#pragma once

#include <string_view>

#include "toolkit/key_events.h"

namespace brindlepage {

// Parts of a key press to leave out.
struct WithoutPart {
  bool key_up = false;
  bool key_down = false;
};

// Presses keys by way of the system, so that it sees real key events.
class clsKeyboard {
 public:
  explicit clsKeyboard(KeyEvents& events) : events_(events) {}

  // The key that types the character, with Shift, Control and Alt as it takes them. A character
  // that no key types presses nothing.
  void PressKey(char character, WithoutPart without = {});
  // Character by character, 20 milliseconds apart.
  void PressString(std::string_view text, bool let_system_run = false);
  // A key by its code.
  void PressKeyVK(int virtual_key, WithoutPart without = {}, bool extended_off = false);
  void GetLockStatus(bool& caps_lock, bool& num_lock, bool& scroll_lock) const;

 private:
  void PressOrRelease(int virtual_key, unsigned flags);
  void PressPart(int virtual_key, WithoutPart without, bool extended);
  void ShiftKeys(int shift_state, unsigned flags);

  KeyEvents& events_;
};

}  // namespace brindlepage
