#include "toolkit/controls.h"

#include <algorithm>

#include "toolkit/code_page.h"
#include "toolkit/form.h"
#include "toolkit/platform.h"
#include "toolkit/runtime.h"

namespace brindlepage {

void CommandButton::Press(Key key) {
  if (key == Key::Enter || key == Key::Space) {
    UserClick();
  } else {
    Control::Press(key);
  }
}

void TextBox::Type(std::u32string_view text) {
  std::string kept = code_page::KeepTypeable(text);
  if (kept.size() != text.size()) form().runtime().platform().Beep();
  Text = std::move(kept);
}

void TextBox::Press(Key key) {
  if (key == Key::Enter && Enter) {
    Enter();
  } else {
    Control::Press(key);
  }
}

void CheckBox::Press(Key key) {
  if (key == Key::Space) {
    UserClick();
  } else {
    Control::Press(key);
  }
}

void OptionButton::UserClick() {
  if (Value) {
    Click();
  } else {
    Value = true;
  }
}

void OptionButton::Press(Key key) {
  if (key == Key::Space) {
    UserClick();
  } else {
    Control::Press(key);
  }
}

void OptionButton::Switched(bool before) {
  if (before || !Value) return;
  for (Control* other : form().Controls()) {
    auto* option = dynamic_cast<OptionButton*>(other);
    if (option != nullptr && option != this && option->container() == container()) {
      option->Value = false;
    }
  }
  Click();
}

void HScrollBar::Move(int value) { Value = std::clamp(value, Min(), Max()); }

void HScrollBar::Press(Key key) {
  switch (key) {
    case Key::Left:
    case Key::Up:
      return Move(Value - SmallChange);
    case Key::Right:
    case Key::Down:
      return Move(Value + SmallChange);
    case Key::PageUp:
      return Move(Value - LargeChange);
    case Key::PageDown:
      return Move(Value + LargeChange);
    case Key::Home:
      return Move(Min);
    case Key::End:
      return Move(Max);
    default:
      return Control::Press(key);
  }
}

void HScrollBar::Moved(int before) {
  if (Value < Min || Value > Max) {
    Value.Put(before);
    throw RunTimeError(Fault::InvalidCall);
  }
  if (Value != before) Change();
}

ToolbarButton::ToolbarButton(Toolbar& toolbar, std::string caption, std::string key,
                             std::string tool_tip, std::string button_icon)
    : PropertyOwner(caption),
      Caption(*this, "Caption", caption),
      Key(*this, "Key", std::move(key)),
      ToolTipText(*this, "ToolTipText", std::move(tool_tip)),
      icon(std::move(button_icon)),
      toolbar_(toolbar) {}

void ToolbarButton::Changed() { toolbar_.Changed(); }

Toolbar::Toolbar(Form& form, std::string name) : Control(form, std::move(name)) { Height.Put(870); }

ToolbarButton& Toolbar::Add(std::string caption, std::string key, std::string tool_tip,
                            std::string icon) {
  buttons_.push_back(std::make_unique<ToolbarButton>(*this, std::move(caption), std::move(key),
                                                     std::move(tool_tip), std::move(icon)));
  return *buttons_.back();
}

ToolbarButton& Toolbar::Button(int number) {
  if (number < 1 || number > ButtonCount()) throw RunTimeError(Fault::Subscript);
  return *buttons_[static_cast<std::size_t>(number - 1)];
}

ToolbarButton* Toolbar::FindCaption(std::string_view caption) {
  for (const auto& button : buttons_) {
    if (button->Caption() == caption) return button.get();
  }
  return nullptr;
}

PropertyOwner* Toolbar::Element(int index) {
  return index < 1 || index > ButtonCount() ? nullptr : &Button(index);
}

}  // namespace brindlepage
