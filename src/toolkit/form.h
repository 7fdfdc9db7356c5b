#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/arrangement.h"
#include "toolkit/keys.h"
#include "toolkit/picture.h"
#include "toolkit/property.h"

namespace brindlepage {

class Control;
class Runtime;

// The program's forms by name; the toolkit only carries the ids about.
enum class Screen : int;

// A screen fills the program's window, a box stands on top of it.
enum class FormKind { Screen, Box };

enum WindowStates { kNormal = 0, kMinimised = 1, kMaximised = 2 };

// A form is a class with its controls as members and its handlers as private routines. Its
// constructor tells the design: captions, ranges, defaults and the arrangement on screen. Its
// events are virtual routines, called by Forms alone.
class Form : public PropertyOwner {
 public:
  Form(Runtime& runtime, Screen id, std::string name, std::string caption,
       FormKind kind = FormKind::Screen);
  ~Form() override;

  Property<std::string> Caption;
  // Twips.
  Property<int> Left{*this, "Left"};
  Property<int> Top{*this, "Top"};
  Property<int> Width{*this, "Width"};
  Property<int> Height{*this, "Height"};
  // Maximising raises the resize event with the screen's size.
  Property<int> WindowState;
  Property<int> BackColor{*this, "BackColor", 0xFFFFFF};
  Property<PicturePtr> Picture{*this, "Picture"};   // the background
  Property<bool> Visible{*this, "Visible", false};  // set by Forms alone

  Screen id() const { return id_; }
  FormKind kind() const { return kind_; }
  Runtime& runtime() const { return runtime_; }
  const Arrangement& arrangement() const { return arrangement_; }
  // The controls stand where their Left, Top, Width and Height put them, not in an arrangement.
  bool PlacesControls() const { return places_controls_; }
  // From before its load until it is unloaded. No timer of another form runs.
  bool IsLoaded() const { return loaded_; }
  // The screen that it most likely leads to as things stand, if it can tell: that is made ahead.
  virtual std::optional<Screen> Successor() const { return std::nullopt; }

  // In the order of their making. The Tab key follows the arrangement.
  const std::vector<Control*>& Controls() const { return controls_; }
  // A control by name, an element of an array by name and index; null if there is none.
  Control* FindControl(std::string_view name, int index = -1) const;
  std::optional<Value> Find(std::string_view property) const override;

  // The control that takes the keys; null before the first focus.
  Control* Focused() const { return focused_; }
  void Focus(Control& control);
  void ClickDefault();
  void ClickCancel();
  // The image of that key, if there is one.
  void ClickImage(Key key);

  void Changed() override;
  void ControlChanged(Control& control);

 protected:
  void Arrange(Arrangement arrangement);
  // The form places its labels and images itself; those in front come last.
  void PlaceControls() { places_controls_ = true; }
  // Left and top so that the form stands in the middle of the screen.
  void CentreForm();

  // Events.
  virtual void Load() {}
  virtual void Activate() {}
  virtual void Deactivate() {}
  virtual void Resize() {}
  // The frame is being closed; the form unloads after it.
  virtual void Closing() {}
  // A click on the form itself, a key while no control has a use for it.
  virtual void FormClick() {}
  virtual void FormKey() {}

 private:
  friend class Control;
  friend class Forms;
  void Add(Control& control) { controls_.push_back(&control); }
  void Remove(Control& control);
  void PutInto(const Arrangement& part, Frame* frame);

  Runtime& runtime_;
  Screen id_;
  FormKind kind_;
  Arrangement arrangement_{Arrangement::Kind::Column};
  std::vector<Control*> controls_;
  Control* focused_ = nullptr;
  bool places_controls_ = false;
  bool loaded_ = false;
  bool loading_ = false;
  bool show_after_load_ = false;
};

}  // namespace brindlepage
