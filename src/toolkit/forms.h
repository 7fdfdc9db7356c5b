#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "toolkit/form.h"

namespace brindlepage {

// The loaded forms. Each handler names its successor by an id; the factory makes it.
//
// Showing a form that is not loaded creates it and runs its load at once, so that the next
// screen's load runs while the old one still stands. One visible form at most is active.
class Forms {
 public:
  using Factory = std::function<std::unique_ptr<Form>(Screen)>;

  Forms(Runtime& runtime, Factory factory);
  ~Forms();

  // A form whose load throws is unloaded again.
  void Load(Screen id);
  // Makes the form that the active one leads to, so that its load finds it made. Null if there is
  // nothing to make. One at most is kept; it counts for nothing until it is loaded.
  Form* MakeAhead();
  // Loads the form if need be, makes it visible and active. A form that unloaded itself in its
  // load is not shown; one that shows itself there comes up when the load is done.
  void Show(Screen id);
  void Hide(Screen id);
  // A form that unloads itself in its own handler lives until the outermost handler returns.
  // Unloading a form that isn't loaded does nothing.
  void Unload(Screen id);

  // The loaded form of that id, or null.
  Form* Find(Screen id) const;
  // The loaded form of that class, for forms that speak to one another.
  template <class FormType>
  FormType* Find(Screen id) const {
    return dynamic_cast<FormType*>(Find(id));
  }
  // The form as the program addresses it: loaded first if it isn't.
  template <class FormType>
  FormType& Get(Screen id) {
    Load(id);
    return dynamic_cast<FormType&>(*Find(id));
  }

  Form* Active() const { return active_; }
  // The form that stands in front of the others, also while another program has the screen. Null
  // if none is shown.
  Form* Front() const { return shown_.empty() ? nullptr : shown_.back(); }
  const std::vector<std::unique_ptr<Form>>& Loaded() const { return loaded_; }  // in load order
  bool AnyShown() const { return !shown_.empty(); }

  // What happens to a window.
  void Activate(Form& form);
  void Deactivate(Form& form);  // another program's window came to the front
  void Close(Form& form);
  void Resize(Form& form, int width, int height);  // twips
  void Click(Form& form) { form.FormClick(); }
  void Key(Form& form) { form.FormKey(); }

  // Destroys what was unloaded. Called when no handler runs.
  void BuryUnloaded() { unloaded_.clear(); }

 private:
  std::unique_ptr<Form> Make(Screen id);
  void SetActive(Form* form);
  void Withdraw(Form& form);

  Runtime& runtime_;
  Factory factory_;
  std::vector<std::unique_ptr<Form>> loaded_;
  std::vector<std::unique_ptr<Form>> unloaded_;
  std::unique_ptr<Form> ahead_;
  std::vector<Form*> shown_;  // the one shown last is at the back
  Form* active_ = nullptr;
};

}  // namespace brindlepage
