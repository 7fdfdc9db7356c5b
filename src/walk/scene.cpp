#include "walk/scene.h"

#include "toolkit/code_page.h"
#include "toolkit/controls.h"
#include "toolkit/lists.h"
#include "walk/print.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage::walk {

namespace {

template <class... Kinds>
bool IsOneOf(const Control& control) {
  return (... || (dynamic_cast<const Kinds*>(&control) != nullptr));
}

Scene::Answer AnswerOf(const Value& value) {
  const auto* text = std::get_if<std::string>(&value);
  return {Printed(value), text ? code_page::ToUtf8(*text) : Printed(value)};
}

// The state of that name. A document's text is answered for in Unicode.
std::optional<Scene::Answer> AnswerOf(const PropertyOwner& owner, const std::string& property) {
  const auto* document = dynamic_cast<const RichTextBox*>(&owner);
  if (document != nullptr && property == "Text") {
    const std::string text = code_page::UnicodeToUtf8(document->PlainText());
    return Scene::Answer{Quoted(text), text};
  }
  const auto value = owner.Find(property);
  return value ? std::optional(AnswerOf(*value)) : std::nullopt;
}

}  // namespace

Form* Scene::FindForm(const std::string& name) const {
  const auto screen = screen_names_(name);
  if (!screen) throw ScriptError("no such form: " + name);
  return program_.forms().Find(*screen);
}

Control* Scene::FindControl(const Target& target) const {
  const Form* form = FindForm(target.form);
  if (form == nullptr) return nullptr;
  Control* control = form->FindControl(target.control, target.index.value_or(-1));
  if (control == nullptr) throw ScriptError("no such control on " + target.form);
  return control;
}

std::optional<Scene::Answer> Scene::Ask(const std::string& expression) const {
  const auto parts = ReadName(expression);
  if (parts.size() == 1) return AskVariable(parts[0]);
  if (parts.size() > 3 || parts.front().index || parts.back().index) {
    throw ScriptError("not an expression: " + expression);
  }
  const Form* form = FindForm(parts[0].name);
  if (form == nullptr) return std::nullopt;
  const PropertyOwner* owner = parts.size() == 2 ? form : FindOwner(*form, parts[1]);
  if (owner == nullptr) throw ScriptError("no such control: " + expression);
  auto answer = AnswerOf(*owner, parts.back().name);
  if (!answer) throw ScriptError("no such property: " + expression);
  return answer;
}

Scene::Answer Scene::AskVariable(const NamePart& variable) const {
  try {
    const auto value = program_.shared.Find(variable.name, variable.index);
    if (!value) throw ScriptError("no such variable: " + variable.name);
    return AnswerOf(*value);
  } catch (const RunTimeError& error) {
    throw ScriptError(variable.name + ": " + error.Text());
  }
}

const PropertyOwner* Scene::FindOwner(const Form& form, const NamePart& part) const {
  const Control* control = form.FindControl(part.name, part.index.value_or(-1));
  if (control != nullptr || !part.index) return control;
  Control* holder = form.FindControl(part.name);
  return holder == nullptr ? nullptr : holder->Element(*part.index);
}

bool TakesFocus(const Control& control) {
  return IsOneOf<CommandButton, TextBox, CheckBox, OptionButton, HScrollBar, ListBox, ComboBox,
                 RichTextBox>(control);
}

}  // namespace brindlepage::walk
