#include "tests/random_teacher/random_actions.h"

#include "tests/random_teacher/inclinations.h"
#include "toolkit/code_page.h"
#include "toolkit/controls.h"
#include "toolkit/file_lists.h"
#include "walk/print.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage {

namespace {

using walk::PrintedName;
using walk::Quoted;
using walk::QuotedBytes;

const std::vector<std::string> kKeys = {"Enter", "Escape", "Space", "Up",  "Down",   "Left",
                                        "Right", "Home",   "End",   "Tab", "Delete", "x"};

// Folders within the program's own, and one that isn't there. The teacher never leaves them.
const std::vector<std::string> kFolders = {"worksheets", "class", "missing", "."};

template <class Kind>
const Kind* As(const Control& control) {
  return dynamic_cast<const Kind*>(&control);
}

}  // namespace

std::string RandomActions::Next(Program& program) {
  if (OneIn(8)) return "tick " + std::to_string(1 + Below(OneIn(10) ? 60'000 : 50));
  std::vector<const Form*> shown;
  for (const auto& form : program.forms().Loaded()) {
    if (form->Visible) shown.push_back(form.get());
  }
  if (shown.empty()) return "tick 1000";
  const Form* active = program.forms().Active();
  const Form& form = active != nullptr && !OneIn(6) ? *active : *AnyOf(shown);
  if (OneIn(30) || form.Controls().empty()) return OnForm(form);

  const Control* control = Reach(form);
  return control == nullptr ? OnForm(form) : OnControl(*control);
}

// Something on the form, or null. Now and then it is out of reach.
const Control* RandomActions::Reach(const Form& form) {
  std::vector<const Control*> controls;
  std::vector<int> weights;
  for (const Control* control : form.Controls()) {
    const int weight = control->CanAct() || OneIn(20) ? Inclination(*control) : 0;
    if (weight == 0) continue;
    controls.push_back(control);
    weights.push_back(weight);
  }
  return controls.empty() ? nullptr : AnyOf(controls, weights);
}

std::string RandomActions::OnForm(const Form& form) {
  switch (Below(6)) {
    case 0:
      if (!OneIn(4)) return "activate " + form.Name();
      return "close " + form.Name();
    case 1:
      return "deactivate " + form.Name();
    case 2:
      return "resize " + form.Name() + " " + std::to_string(Below(20'000)) + " " +
             std::to_string(Below(15'000));
    case 3:
      return "click " + form.Name();
    case 4:
      return "press " + form.Name() + " " + AnyOf(kKeys);
    default:
      return "activate " + form.Name();
  }
}

std::string RandomActions::OnControl(const Control& control) {
  const std::string name = PrintedName(control);
  if (const auto* bar = As<Toolbar>(control)) return OnToolbar(*bar);
  // To other drives, or up out of the program's folder, the teacher doesn't go.
  if (As<DriveListBox>(control)) return "click " + name;
  if (As<DirListBox>(control)) return "folder " + name + " " + Quoted(AnyOf(kFolders));
  if (const auto* box = As<TextBox>(control)) return OnTextBox(name, *box);
  if (const auto* combo = As<ComboBox>(control)) {
    if (OneIn(4)) return "select " + name + " " + Quoted(Text());
    return "select " + name + " " + std::to_string(Below(std::max(combo->ListCount(), 1)));
  }
  if (const auto* bar = As<HScrollBar>(control)) {
    return "set " + name + " " +
           std::to_string(bar->Min() - 1 + Below(bar->Max() - bar->Min() + 3));
  }
  if (const auto* list = As<ListBox>(control)) return OnList(name, *list);
  if (const auto* box = As<RichTextBox>(control)) return OnDocument(name, *box);
  if (OneIn(12)) return "press " + name + " " + AnyOf(kKeys);
  return "click " + name;
}

std::string RandomActions::OnToolbar(const Toolbar& bar) {
  std::vector<std::string> captions;
  std::vector<int> weights;
  for (int number = 1; number <= bar.ButtonCount(); ++number) {
    captions.push_back(const_cast<Toolbar&>(bar).Button(number).Caption);
    weights.push_back(Inclination(captions.back()));
  }
  return "click " + PrintedName(bar) + " " + QuotedBytes(AnyOf(captions, weights));
}

std::string RandomActions::OnTextBox(const std::string& name, const TextBox& box) {
  const bool confirms = box.Enter && !box.Text().empty();
  if (confirms && OneIn(5)) return "press " + name + " Enter";
  if (OneIn(4)) return "press " + name + " " + AnyOf(kKeys);
  const std::string& form = box.form().Name();
  if (form == "ChangeList") return "type " + name + " " + Quoted(Link());
  if (form == "ChangeListName" && OneIn(2)) return "type " + name + " " + Quoted(ListName());
  return "type " + name + " " + Quoted(Text());
}

std::string RandomActions::OnList(const std::string& name, const ListBox& list) {
  if (list.ListCount() == 0 || OneIn(8)) return "press " + name + " " + AnyOf(kKeys);
  // Now and then the empty part below the rows.
  const std::string row = OneIn(12) ? "-1" : std::to_string(Below(list.ListCount()));
  if (OneIn(6)) return "double " + name + " " + row;
  if (list.style() != ListStyle::CheckBoxes) return "select " + name + " " + row;
  std::string line = "mark " + name;
  for (int more = 1 + Below(12); more > 0; --more) {
    line += " " + std::to_string(Below(list.ListCount()));
  }
  return line;
}

std::string RandomActions::OnDocument(const std::string& name, const RichTextBox& box) {
  if (OneIn(2)) return "insert " + name + " " + Quoted(Text());
  std::string line = "caret " + name + " " + std::to_string(Below(box.Length() + 2));
  return OneIn(2) ? line : line + " " + std::to_string(1 + Below(200));
}

}  // namespace brindlepage
