#include "toolkit/keyboard.h"

#include <algorithm>
#include <cctype>

#include "toolkit/control.h"
#include "toolkit/form.h"
#include "toolkit/platform.h"
#include "toolkit/run_time_error.h"
#include "toolkit/runtime.h"

namespace brindlepage {

namespace {

enum VirtualKeys { kShift = 16, kControl = 17, kAlt = 18, kPrintScreen = 44 };

// A key of the US layout: its code, its scan code of set 1, and what it types without and with
// Shift.
struct LayoutKey {
  int code;
  int scan_code;
  char plain;
  char shifted;
};

constexpr LayoutKey kLayout[] = {
    {'A', 0x1E, 'a', 'A'},      {'B', 0x30, 'b', 'B'},      {'C', 0x2E, 'c', 'C'},
    {'D', 0x20, 'd', 'D'},      {'E', 0x12, 'e', 'E'},      {'F', 0x21, 'f', 'F'},
    {'G', 0x22, 'g', 'G'},      {'H', 0x23, 'h', 'H'},      {'I', 0x17, 'i', 'I'},
    {'J', 0x24, 'j', 'J'},      {'K', 0x25, 'k', 'K'},      {'L', 0x26, 'l', 'L'},
    {'M', 0x32, 'm', 'M'},      {'N', 0x31, 'n', 'N'},      {'O', 0x18, 'o', 'O'},
    {'P', 0x19, 'p', 'P'},      {'Q', 0x10, 'q', 'Q'},      {'R', 0x13, 'r', 'R'},
    {'S', 0x1F, 's', 'S'},      {'T', 0x14, 't', 'T'},      {'U', 0x16, 'u', 'U'},
    {'V', 0x2F, 'v', 'V'},      {'W', 0x11, 'w', 'W'},      {'X', 0x2D, 'x', 'X'},
    {'Y', 0x15, 'y', 'Y'},      {'Z', 0x2C, 'z', 'Z'},      {'1', 0x02, '1', '!'},
    {'2', 0x03, '2', '@'},      {'3', 0x04, '3', '#'},      {'4', 0x05, '4', '$'},
    {'5', 0x06, '5', '%'},      {'6', 0x07, '6', '^'},      {'7', 0x08, '7', '&'},
    {'8', 0x09, '8', '*'},      {'9', 0x0A, '9', '('},      {'0', 0x0B, '0', ')'},
    {0xBA, 0x27, ';', ':'},     {0xBB, 0x0D, '=', '+'},     {0xBC, 0x33, ',', '<'},
    {0xBD, 0x0C, '-', '_'},     {0xBE, 0x34, '.', '>'},     {0xBF, 0x35, '/', '?'},
    {0xC0, 0x29, '`', '~'},     {0xDB, 0x1A, '[', '{'},     {0xDC, 0x2B, '\\', '|'},
    {0xDD, 0x1B, ']', '}'},     {0xDE, 0x28, '\'', '"'},    {32, 0x39, ' ', ' '},
    {8, 0x0E, '\b', '\b'},      {9, 0x0F, '\t', '\t'},      {13, 0x1C, '\r', '\r'},
    {27, 0x01, '\x1B', '\x1B'}, {kShift, 0x2A, 0, 0},       {kControl, 0x1D, 0, 0},
    {kAlt, 0x38, 0, 0},         {20, 0x3A, 0, 0},           {33, 0x49, 0, 0},
    {34, 0x51, 0, 0},           {35, 0x4F, 0, 0},           {36, 0x47, 0, 0},
    {37, 0x4B, 0, 0},           {38, 0x48, 0, 0},           {39, 0x4D, 0, 0},
    {40, 0x50, 0, 0},           {kPrintScreen, 0x54, 0, 0}, {45, 0x52, 0, 0},
    {46, 0x53, 0, 0},           {144, 0x45, 0, 0},          {145, 0x46, 0, 0},
};

const LayoutKey* FindKey(int code) {
  const auto key = std::find_if(std::begin(kLayout), std::end(kLayout),
                                [code](const LayoutKey& k) { return k.code == code; });
  return key == std::end(kLayout) ? nullptr : key;
}

// Keys that mean something to a control of their own.
Key NamedKey(int code) {
  switch (code) {
    case 9:
      return Key::Tab;
    case 13:
      return Key::Enter;
    case 27:
      return Key::Escape;
    case 33:
      return Key::PageUp;
    case 34:
      return Key::PageDown;
    case 35:
      return Key::End;
    case 36:
      return Key::Home;
    case 37:
      return Key::Left;
    case 38:
      return Key::Up;
    case 39:
      return Key::Right;
    case 40:
      return Key::Down;
    case 46:
      return Key::Delete;
    default:
      return code == ' ' ? Key::Space : Key::Other;
  }
}

bool IsShiftKey(int code) { return code == kShift || code == kControl || code == kAlt; }

bool Types(const LayoutKey& key) { return key.plain >= ' '; }

}  // namespace

void Keyboard::KeyEvent(int virtual_key, int /*scan_code*/, unsigned flags) {
  if (virtual_key < 0 || virtual_key >= kKeys) throw RunTimeError(Fault::InvalidCall);
  const auto place = static_cast<std::size_t>(virtual_key);
  if (flags & kKeyUp) {
    held_.reset(place);
    return;
  }
  if (!held_[place]) toggled_.flip(place);
  held_.set(place);
  Pressed(virtual_key);
}

int Keyboard::ScanCharacter(char character) const {
  for (const LayoutKey& key : kLayout) {
    if (character == 0) break;
    if (key.plain == character) return key.code;
    if (key.shifted == character) return key.code | kWithShift;
  }
  // The control characters that have no key of their own: Control with a letter.
  if (character >= 1 && character <= 26) return (character + 'A' - 1) | kWithControl;
  return 0;
}

int Keyboard::MapKey(int virtual_key, Mapping mapping) const {
  const LayoutKey* key = FindKey(virtual_key);
  if (key == nullptr) return 0;
  if (mapping == Mapping::ScanCode) return key->scan_code;
  // A letter's key is known by its capital.
  return std::toupper(static_cast<unsigned char>(key->plain));
}

int Keyboard::KeyState(int virtual_key) const {
  if (virtual_key < 0 || virtual_key >= kKeys) return 0;
  const bool on = toggled_[static_cast<std::size_t>(virtual_key)];
  return (on ? 0x1 : 0) | (Held(virtual_key) ? 0x80 : 0);
}

void Keyboard::Sleep(int milliseconds) { runtime_.platform().Pause(milliseconds); }

void Keyboard::SendKeys(std::string_view keys) {
  while (!keys.empty()) {
    const bool control = keys.front() == '^';
    if (control) keys.remove_prefix(1);
    const bool braced = keys.size() >= 3 && keys[0] == '{' && keys[2] == '}';
    if (keys.empty()) throw RunTimeError(Fault::InvalidCall);
    const int key = ScanCharacter(braced ? keys[1] : keys[0]);
    if (key == 0) throw RunTimeError(Fault::InvalidCall);
    keys.remove_prefix(braced ? 3 : 1);

    const bool shift = (key & kWithShift) != 0;
    if (control) KeyEvent(kControl, 0, 0);
    if (shift) KeyEvent(kShift, 0, 0);
    PressAndRelease(key & 0xFF);
    if (shift) KeyEvent(kShift, 0, kKeyUp);
    if (control) KeyEvent(kControl, 0, kKeyUp);
  }
}

void Keyboard::PressAndRelease(int virtual_key) {
  KeyEvent(virtual_key, 0, 0);
  KeyEvent(virtual_key, 0, kKeyUp);
}

void Keyboard::Pressed(int virtual_key) {
  Form* form = runtime_.forms().Front();
  if (form == nullptr || IsShiftKey(virtual_key)) return;
  if (virtual_key == kPrintScreen) {
    if (Held(kAlt)) Photograph(*form);
    return;
  }
  Control* focused = form->Focused();
  if (focused == nullptr || !focused->CanAct()) return;
  if (Held(kControl)) {
    if (virtual_key == 'V' && clipboard_) focused->Paste(*clipboard_);
    return;
  }
  if (Held(kAlt)) return;
  const LayoutKey* key = FindKey(virtual_key);
  if (key != nullptr && Types(*key)) {
    focused->TypeCharacter(Held(kShift) ? key->shifted : key->plain);
  }
  focused->Press(NamedKey(virtual_key));
}

void Keyboard::Photograph(Form& form) { clipboard_ = runtime_.platform().PictureOf(form); }

}  // namespace brindlepage
