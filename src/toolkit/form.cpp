#include "toolkit/form.h"

#include <algorithm>

#include "toolkit/platform.h"
#include "toolkit/runtime.h"

namespace brindlepage {

Form::Form(Runtime& runtime, Screen id, std::string name, std::string caption, FormKind kind)
    : PropertyOwner(std::move(name)),
      Caption(*this, "Caption", std::move(caption)),
      WindowState(*this, "WindowState", kNormal,
                  [this](int before) {
                    if (WindowState == kMaximised && before != kMaximised) {
                      const Size screen = runtime_.platform().ScreenSize();
                      runtime_.forms().Resize(*this, screen.width, screen.height);
                    }
                  }),
      runtime_(runtime),
      id_(id),
      kind_(kind) {
  const bool box = kind == FormKind::Box;
  Width.Put(box ? 6000 : 12000);
  Height.Put(box ? 3000 : 9000);
}

Form::~Form() = default;

Control* Form::FindControl(std::string_view name, int index) const {
  for (Control* control : controls_) {
    if (control->Name() == name && control->Index() == index) return control;
  }
  return nullptr;
}

std::optional<Value> Form::Find(std::string_view property) const {
  if (property == "ActiveControl") return Value(focused_ ? focused_->Name() : std::string());
  if (property == "Name") return Value(Name());
  return PropertyOwner::Find(property);
}

void Form::Focus(Control& control) {
  if (focused_ == &control) return;
  focused_ = &control;
  Changed();
}

void Form::ClickDefault() {
  for (Control* control : controls_) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button != nullptr && button->Default && button->CanAct()) return button->UserClick();
  }
}

void Form::ClickCancel() {
  for (Control* control : controls_) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button != nullptr && button->Cancel && button->CanAct()) return button->UserClick();
  }
}

void Form::ClickImage(Key key) {
  for (Control* control : controls_) {
    auto* image = dynamic_cast<Image*>(control);
    if (image != nullptr && image->key == key && image->CanAct()) return image->UserClick();
  }
}

void Form::Changed() { runtime_.platform().FormChanged(*this); }

void Form::ControlChanged(Control& control) { runtime_.platform().ControlChanged(control); }

void Form::Arrange(Arrangement arrangement) {
  arrangement_ = std::move(arrangement);
  PutInto(arrangement_, nullptr);
}

void Form::CentreForm() {
  const Size screen = runtime_.platform().ScreenSize();
  Left = screen.width / 2 - Width / 2;
  Top = screen.height / 2 - Height / 2;
}

void Form::Remove(Control& control) {
  // Looked for from the back, where a form that goes takes them from.
  const auto place = std::find(controls_.rbegin(), controls_.rend(), &control);
  if (place != controls_.rend()) controls_.erase(std::next(place).base());
  if (focused_ == &control) focused_ = nullptr;
}

void Form::PutInto(const Arrangement& part, Frame* frame) {
  if (part.control != nullptr) part.control->PutInto(frame);
  Frame* inner = part.kind == Arrangement::Kind::Framed ? static_cast<Frame*>(part.control) : frame;
  for (const Arrangement& inside : part.parts) PutInto(inside, inner);
}

}  // namespace brindlepage
