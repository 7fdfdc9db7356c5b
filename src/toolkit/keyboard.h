#pragma once

#include <bitset>
#include <optional>
#include <string_view>

#include "toolkit/key_events.h"
#include "toolkit/picture.h"

namespace brindlepage {

class Form;
class Runtime;

// The keys that the program presses itself, and its clipboard. They are apart from the teacher's
// own keyboard and clipboard, so that nothing that is typed meanwhile gets between. The layout is
// the US one.
//
// A key goes to the form in front. Alt with Print Screen photographs that form, Control with V
// pastes the photograph into the control that has the focus; other keys reach that control as if
// they had been typed.
class Keyboard : public KeyEvents {
 public:
  explicit Keyboard(Runtime& runtime) : runtime_(runtime) {}

  void KeyEvent(int virtual_key, int scan_code, unsigned flags) override;
  int ScanCharacter(char character) const override;
  int MapKey(int virtual_key, Mapping mapping) const override;
  int KeyState(int virtual_key) const override;
  void Sleep(int milliseconds) override;
  void LetSystemRun() override { Sleep(0); }

  // Types keys as they are written for that purpose: characters, and "^" in front of one for
  // Control, a key in braces or not: "^{v}". What no key types: RunTimeError 5.
  void SendKeys(std::string_view keys);

  // The photograph taken last.
  const std::optional<FormPicture>& Clipboard() const { return clipboard_; }

 private:
  static constexpr int kKeys = 256;

  bool Held(int virtual_key) const { return held_[static_cast<std::size_t>(virtual_key)]; }
  void Pressed(int virtual_key);
  void Photograph(Form& form);
  void PressAndRelease(int virtual_key);

  Runtime& runtime_;
  std::bitset<kKeys> held_;
  std::bitset<kKeys> toggled_;
  std::optional<FormPicture> clipboard_;
};

}  // namespace brindlepage
