#pragma once

#include <string>

#include "toolkit/keys.h"
#include "toolkit/picture.h"
#include "toolkit/property.h"

namespace brindlepage {

class Form;
class Frame;

// A control holds its state and its events and draws nothing. The routines named after what a
// person does (Press, ClickRow, ...) are called for the teacher, by the desktop's widgets and by
// the walk alike; each changes the state and raises the events as the deed does.
class Control : public PropertyOwner {
 public:
  Control(Form& form, std::string name);
  ~Control() override;

  Property<bool> Visible{*this, "Visible", true};
  Property<bool> Enabled{*this, "Enabled", true};
  // Twips. Only forms that place their controls themselves use them.
  Property<int> Left{*this, "Left"};
  Property<int> Top{*this, "Top"};
  Property<int> Width{*this, "Width"};
  Property<int> Height{*this, "Height"};
  Property<int> BackColor{*this, "BackColor", 0xFFFFFF};  // blue, green, red; red lowest
  Property<std::string> ToolTipText{*this, "ToolTipText"};

  Event<> Click;
  Event<> DblClick;

  Form& form() const { return form_; }
  // The frame that the control stands in, set by the form's arrangement.
  Frame* container() const { return container_; }
  void PutInto(Frame* frame) { container_ = frame; }
  // The place in an array of controls, or -1.
  int Index() const { return index_; }
  void MakeElement(int index) { index_ = index; }

  // Visible, and so is all that it stands in.
  bool OnScreen() const;
  // On screen and enabled, and so is all that it stands in.
  virtual bool CanAct() const;

  void SetFocus();
  bool HasFocus() const;

  void Changed() override;

  // An element that isn't a control of its own, as a toolbar's button; nothing if there is none.
  virtual PropertyOwner* Element(int /*index*/) { return nullptr; }

  virtual void UserClick() { Click(); }
  virtual void UserDoubleClick() { DblClick(); }
  // Enter clicks the form's default button and Escape its cancel button, unless the control has
  // a use for the key itself.
  virtual void Press(Key key);
  // A key that types a character of the code page; most controls have no use for it.
  virtual void TypeCharacter(char /*character*/) {}
  // What lies on the clipboard is pasted; most controls have no use for a picture.
  virtual void Paste(const FormPicture& /*picture*/) {}

 private:
  Form& form_;
  Frame* container_ = nullptr;
  int index_ = -1;
};

}  // namespace brindlepage
