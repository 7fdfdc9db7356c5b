#include "toolkit/control.h"

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace brindlepage {

Control::Control(Form& form, std::string name) : PropertyOwner(std::move(name)), form_(form) {
  form_.Add(*this);
}

Control::~Control() { form_.Remove(*this); }

bool Control::OnScreen() const {
  if (!Visible || !form_.Visible) return false;
  return container_ == nullptr || container_->OnScreen();
}

bool Control::CanAct() const {
  if (!Enabled || !OnScreen()) return false;
  return container_ == nullptr || container_->CanAct();
}

void Control::SetFocus() { form_.Focus(*this); }

bool Control::HasFocus() const { return form_.Focused() == this; }

void Control::Changed() { form_.ControlChanged(*this); }

void Control::Press(Key key) {
  if (key == Key::Enter) form_.ClickDefault();
  if (key == Key::Escape) form_.ClickCancel();
  if (key == Key::PageUp || key == Key::PageDown) form_.ClickImage(key);
}

}  // namespace brindlepage
