#include "toolkit/forms.h"

#include <algorithm>

#include "toolkit/platform.h"
#include "toolkit/run_time_error.h"
#include "toolkit/runtime.h"

namespace brindlepage {

Forms::Forms(Runtime& runtime, Factory factory) : runtime_(runtime), factory_(std::move(factory)) {}

Forms::~Forms() = default;

void Forms::Load(Screen id) {
  if (Find(id) != nullptr) return;
  loaded_.push_back(Make(id));
  Form& form = *loaded_.back();
  form.loaded_ = true;
  form.loading_ = true;
  try {
    form.Load();
  } catch (const RunTimeError&) {
    // Where the fault is handled the form isn't there, and can be loaded anew.
    if (Find(id) == &form) Unload(id);
    throw;
  }
  form.loading_ = false;
  if (form.show_after_load_ && Find(id) == &form) Show(id);
}

std::unique_ptr<Form> Forms::Make(Screen id) {
  return ahead_ != nullptr && ahead_->id() == id ? std::move(ahead_) : factory_(id);
}

Form* Forms::MakeAhead() {
  const auto next = active_ == nullptr ? std::nullopt : active_->Successor();
  if (!next || Find(*next) != nullptr || (ahead_ != nullptr && ahead_->id() == *next)) {
    return nullptr;
  }
  if (ahead_ != nullptr) runtime_.platform().FormUnloaded(*ahead_);
  ahead_ = factory_(*next);
  return ahead_.get();
}

void Forms::Show(Screen id) {
  Load(id);
  Form* form = Find(id);
  if (form == nullptr) return;
  form->show_after_load_ = form->loading_;
  if (form->loading_) return;
  if (!form->Visible) {
    form->Visible.Put(true);
    shown_.push_back(form);
  }
  SetActive(form);
}

void Forms::Hide(Screen id) {
  Form* form = Find(id);
  if (form != nullptr && form->Visible) Withdraw(*form);
}

void Forms::Unload(Screen id) {
  const auto place = std::find_if(loaded_.begin(), loaded_.end(),
                                  [id](const auto& form) { return form->id() == id; });
  if (place == loaded_.end()) return;
  Form& form = **place;
  unloaded_.push_back(std::move(*place));
  loaded_.erase(place);
  form.loaded_ = false;
  runtime_.timers().Arm(runtime_.platform().Now());
  try {
    if (form.Visible) Withdraw(form);
  } catch (...) {
    // The one that comes to the front failed; this one goes all the same.
    runtime_.platform().FormUnloaded(form);
    throw;
  }
  runtime_.platform().FormUnloaded(form);
}

Form* Forms::Find(Screen id) const {
  for (const auto& form : loaded_) {
    if (form->id() == id) return form.get();
  }
  return nullptr;
}

void Forms::Activate(Form& form) {
  if (form.Visible) SetActive(&form);
}

void Forms::Deactivate(Form& form) {
  if (active_ != &form) return;
  active_ = nullptr;
  form.Deactivate();
}

void Forms::Close(Form& form) {
  form.Closing();
  Unload(form.id());
}

void Forms::Resize(Form& form, int width, int height) {
  form.Width = width;
  form.Height = height;
  form.Resize();
}

void Forms::SetActive(Form* form) {
  if (active_ == form) return;
  Form* before = std::exchange(active_, form);
  if (form != nullptr) {
    std::erase(shown_, form);
    shown_.push_back(form);
    runtime_.platform().FormActivated(*form);
  }
  if (before != nullptr) before->Deactivate();
  // The deactivation may have led elsewhere.
  if (form != nullptr && active_ == form) form->Activate();
}

void Forms::Withdraw(Form& form) {
  std::erase(shown_, &form);
  form.Visible.Put(false);
  runtime_.platform().FormHidden(form);
  if (active_ != &form) return;
  active_ = nullptr;
  if (!shown_.empty()) SetActive(shown_.back());
}

}  // namespace brindlepage
