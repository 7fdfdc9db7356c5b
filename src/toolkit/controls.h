#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/picture.h"

namespace brindlepage {

// How a text is set on a screen; the style sheet knows the fonts.
enum class Look { Body, Heading, Note, Warning };

class Label : public Control {
 public:
  Label(Form& form, std::string name, std::string caption = "", Look text_look = Look::Body)
      : Control(form, std::move(name)),
        Caption(*this, "Caption", std::move(caption)),
        look(text_look) {}

  Property<std::string> Caption;
  Property<std::string> FontName{*this, "FontName"};  // empty: the style sheet's
  Property<double> FontSize{*this, "FontSize"};       // points; 0: the style sheet's
  Property<int> Alignment{*this, "Alignment"};        // 0 left, 1 right, 2 centred
  Property<int> BorderStyle{*this, "BorderStyle"};    // 1: a box around it
  const Look look;
};

// A button. `icon` names a drawing or an icon of the theme; an icon makes the button a large one.
class CommandButton : public Control {
 public:
  CommandButton(Form& form, std::string name, std::string caption, std::string button_icon = "")
      : Control(form, std::move(name)),
        Caption(*this, "Caption", std::move(caption)),
        icon(std::move(button_icon)) {}

  Property<std::string> Caption;
  Property<bool> Default{*this, "Default"};  // Enter anywhere on the form clicks it
  Property<bool> Cancel{*this, "Cancel"};    // and Escape this one
  const std::string icon;

  void Press(Key key) override;
};

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name, std::string text = "", bool many_lines = false)
      : Control(form, std::move(name)),
        Text(*this, "Text", std::move(text),
             [this](const std::string& before) {
               if (before != Text()) Change();
             }),
        multi_line(many_lines) {}

  Property<std::string> Text;  // Windows-1252
  Event<> Change;
  // The Enter key in the box; without a handler it clicks the form's default button.
  Event<> Enter;
  const bool multi_line;  // long text wraps; Enter still ends no line

  // Replaces the text. A line end and a character that the code page lacks are refused with a
  // beep; the rest is kept.
  void Type(std::u32string_view text);
  void Press(Key key) override;
  void TypeCharacter(char character) override { Text = Text() + character; }
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string name, std::string caption = "", bool checked = false)
      : Control(form, std::move(name)),
        Caption(*this, "Caption", std::move(caption)),
        Value(*this, "Value", checked, [this](bool before) {
          if (before != Value()) Click();
        }) {}

  Property<std::string> Caption;
  Property<bool> Value;  // a change raises Click, whoever made it

  void UserClick() override { Value = !Value; }
  void Press(Key key) override;
};

// One of a group, the option buttons of a frame (or of the form) being one group.
class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string name, std::string caption = "", bool on = false)
      : Control(form, std::move(name)),
        Caption(*this, "Caption", std::move(caption)),
        Value(*this, "Value", on, [this](bool before) { Switched(before); }) {}

  Property<std::string> Caption;
  Property<bool> Value;  // turned on, it turns its group off and raises Click

  void UserClick() override;
  void Press(Key key) override;

 private:
  void Switched(bool before);
};

class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string caption = "")
      : Control(form, std::move(name)), Caption(*this, "Caption", std::move(caption)) {}

  Property<std::string> Caption;
};

class Image : public Control {
 public:
  Image(Form& form, std::string name, std::string image_icon = "")
      : Control(form, std::move(name)), icon(std::move(image_icon)) {}

  Property<PicturePtr> Picture{*this, "Picture"};
  const std::string icon;  // shown while there is no picture
};

class HScrollBar : public Control {
 public:
  HScrollBar(Form& form, std::string name, int min, int max, int value, int step = 1)
      : Control(form, std::move(name)),
        Min(*this, "Min", min),
        Max(*this, "Max", max),
        SmallChange(*this, "SmallChange", step),
        LargeChange(*this, "LargeChange", step),
        Value(*this, "Value", value, [this](int before) { Moved(before); }) {}

  Property<int> Min;
  Property<int> Max;
  Property<int> SmallChange;
  Property<int> LargeChange;
  Property<int> Value;  // outside Min to Max: RunTimeError 5
  Event<> Change;

  // Moves the bar; it stops at its ends.
  void Move(int value);
  void Press(Key key) override;

 private:
  void Moved(int before);
};

class ProgressBar : public Control {
 public:
  ProgressBar(Form& form, std::string name, int max = 100)
      : Control(form, std::move(name)), Max(*this, "Max", max) {}

  Property<int> Max;
  Property<int> Value{*this, "Value"};
};

// A heading of the menu bar. It does nothing itself.
class Menu : public Control {
 public:
  Menu(Form& form, std::string name, std::string caption)
      : Control(form, std::move(name)), Caption(*this, "Caption", std::move(caption)) {}

  Property<std::string> Caption;
};

class MenuItem : public Control {
 public:
  MenuItem(Menu& parent_menu, std::string name, std::string caption)
      : Control(parent_menu.form(), std::move(name)),
        Caption(*this, "Caption", std::move(caption)),
        menu(parent_menu) {}

  Property<std::string> Caption;
  Menu& menu;

  bool CanAct() const override { return Control::CanAct() && menu.CanAct(); }
};

class Toolbar;

class ToolbarButton : public PropertyOwner {
 public:
  ToolbarButton(Toolbar& toolbar, std::string caption, std::string key, std::string tool_tip,
                std::string icon);

  Property<std::string> Caption;
  Property<std::string> Key;
  Property<std::string> ToolTipText;
  Property<bool> Enabled{*this, "Enabled", true};
  Property<bool> Visible{*this, "Visible", true};
  const std::string icon;

  void Changed() override;

 private:
  Toolbar& toolbar_;
};

class Toolbar : public Control {
 public:
  Toolbar(Form& form, std::string name);

  // Its buttons are numbered from 1, in the order of adding.
  ToolbarButton& Add(std::string caption, std::string key, std::string tool_tip, std::string icon);
  ToolbarButton& Button(int number);  // RunTimeError 9 if there is none
  ToolbarButton* FindCaption(std::string_view caption);
  int ButtonCount() const { return static_cast<int>(buttons_.size()); }

  Event<ToolbarButton&> ButtonClick;

  PropertyOwner* Element(int index) override;

 private:
  std::vector<std::unique_ptr<ToolbarButton>> buttons_;
};

// An array of controls: like controls of one name, told apart by an index. Indices may have
// gaps. Click is raised for each with its index.
template <class ControlType>
class ControlArray {
 public:
  ControlArray(Form& form, std::string name,
               std::initializer_list<std::pair<int, std::string>> captions) {
    for (const auto& [index, caption] : captions) Add(index, form, name, caption);
  }
  ControlArray(Form& form, std::string name, int first, int last) {
    for (int index = first; index <= last; ++index) Add(index, form, name);
  }

  Event<int> Click;

  // RunTimeError 9 if there is no such element.
  ControlType& operator()(int index) {
    auto* element = Place(index);
    if (element == nullptr) throw RunTimeError(Fault::Subscript);
    return *element;
  }
  int UBound() const { return static_cast<int>(elements_.size()) - 1; }

 private:
  template <class... Rest>
  void Add(int index, Form& form, const std::string& name, Rest&&... rest) {
    if (index >= static_cast<int>(elements_.size())) {
      elements_.resize(static_cast<std::size_t>(index) + 1);
    }
    auto element = std::make_unique<ControlType>(form, name, std::forward<Rest>(rest)...);
    element->MakeElement(index);
    element->Click = [this, index] { Click(index); };
    elements_[static_cast<std::size_t>(index)] = std::move(element);
  }
  ControlType* Place(int index) {
    if (index < 0 || index > UBound()) return nullptr;
    return elements_[static_cast<std::size_t>(index)].get();
  }

  std::vector<std::unique_ptr<ControlType>> elements_;
};

}  // namespace brindlepage
