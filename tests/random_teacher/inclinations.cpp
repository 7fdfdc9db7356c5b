#include "tests/random_teacher/inclinations.h"

#include <string>

#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "toolkit/lists.h"

namespace brindlepage {

namespace {

constexpr int kRare = 1;
constexpr int kSeldom = 8;
constexpr int kPlain = 24;
constexpr int kOften = 96;

struct Liking {
  std::string_view thing;
  int weight;
};

// Of controls, and of all controls of a form.
constexpr Liking kControls[] = {
    {"Title.Toolbar1", 250},  // the lists
    {"CreateList.NewName", kOften},
    {"CreateList.Command2", kOften},
    {"MakeNewList.Toolbar1", kOften},
    {"MakeNewList.TheWord", kOften},
    {"MakeNewList.TheMeaning", kOften},
    {"EditList.Toolbar1", kOften},
    {"AddWord.Text1", kOften},
    {"AddWord.Text2", kOften},
    {"AddWord.Command1", kOften},
    {"EditWord.Command1", kOften},
    {"ChangeListName.Command1", kOften},
    {"ChangeList.Command2", kRare},  // ends the program
    {"CrossPrint.Command3", kRare},
    {"PickWords.ChooseRandom", kOften},
    {"PickWords.Command2", kOften},
};

// Of buttons and menu items by their captions; the first that is found in it counts.
constexpr Liking kCaptions[] = {
    {"Save and Quit", kPlain}, {"Quit", kRare},      {"Cancel", kSeldom},       {"Back", kSeldom},
    {"Return", kSeldom},       {"Finished", kPlain}, {"Exit Program", kSeldom},
};

std::string Caption(const Control& control) {
  const auto caption = control.Find("Caption");
  const auto* text = caption ? std::get_if<std::string>(&*caption) : nullptr;
  return text == nullptr ? "" : *text;
}

// Where nothing is selected, these end the program.
bool LacksSelection(const Control& control) {
  const std::string form = control.form().Name();
  if ((form != "EditChooseList" && form != "DeleteList") || control.Name() != "Command1") {
    return false;
  }
  const auto* lists = dynamic_cast<ListBox*>(control.form().FindControl("TheLists"));
  return lists->ListIndex < 0;
}

}  // namespace

int Inclination(const Control& control) {
  // A label that answers no click is dull.
  if (dynamic_cast<const Label*>(&control) != nullptr && !control.Click) return kRare;
  if (LacksSelection(control)) return kRare;
  const std::string name = control.form().Name() + "." + control.Name();
  for (const Liking& liking : kControls) {
    if (liking.thing == name) return liking.weight;
  }
  return Inclination(Caption(control));
}

int Inclination(std::string_view caption) {
  for (const Liking& liking : kCaptions) {
    if (caption.find(liking.thing) != std::string_view::npos) return liking.weight;
  }
  return kPlain;
}

}  // namespace brindlepage
