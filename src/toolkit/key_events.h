#pragma once

namespace brindlepage {

// The key events of the teacher's desktop. Keys go by their virtual key codes, as that desktop
// has them: 13 Enter, 16 Shift, 17 Control, 18 Alt, 44 Print Screen, 65 to 90 the letters, ...
class KeyEvents {
 public:
  enum Flags : unsigned { kExtended = 0x1, kKeyUp = 0x2 };
  enum class Mapping { ScanCode = 0, Character = 2 };
  // Shift states, above a key's code.
  enum Shift { kWithShift = 0x100, kWithControl = 0x200, kWithAlt = 0x400 };

  virtual ~KeyEvents() = default;

  // Presses a key, or releases it.
  virtual void KeyEvent(int virtual_key, int scan_code, unsigned flags) = 0;
  // The key that types a character of the code page, and the shift state that it takes; 0 if no
  // key does.
  virtual int ScanCharacter(char character) const = 0;
  // The key's scan code, or the character that it types without a shift; 0 if it has none.
  virtual int MapKey(int virtual_key, Mapping mapping) const = 0;
  // The lowest bit is set while the key is toggled on, 0x80 while it is held down.
  virtual int KeyState(int virtual_key) const = 0;
  // Waits, in milliseconds.
  virtual void Sleep(int milliseconds) = 0;
  // Lets the system paint what has changed.
  virtual void LetSystemRun() = 0;
};

}  // namespace brindlepage
