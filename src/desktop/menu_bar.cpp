#include "desktop/menu_bar.h"

#include <QAction>
#include <QMenu>

#include "desktop/text.h"
#include "toolkit/controls.h"

namespace brindlepage {

MenuBar::MenuBar(Form& form, Loop& loop, Mnemonics& letters, QWidget* parent)
    : QMenuBar(parent), loop_(loop) {
  setNativeMenuBar(false);
  std::map<Menu*, Mnemonics> item_letters;
  for (Control* control : form.Controls()) {
    if (auto* menu = dynamic_cast<Menu*>(control)) {
      AddAction(*menu, *this, letters, menu->Caption);
    } else if (auto* item = dynamic_cast<MenuItem*>(control)) {
      QAction* heading = actions_[&item->menu];
      if (heading->menu() == nullptr) heading->setMenu(new QMenu(this));
      AddAction(*item, *heading->menu(), item_letters[&item->menu], item->Caption);
    }
  }
  Sync();
}

bool MenuBar::HasMenus(const Form& form) {
  for (const Control* control : form.Controls()) {
    if (dynamic_cast<const Menu*>(control) != nullptr) return true;
  }
  return false;
}

void MenuBar::Sync() {
  for (const auto& [control, action] : actions_) {
    action->setVisible(control->Visible);
    action->setEnabled(control->Enabled);
  }
}

QAction* MenuBar::AddAction(Control& control, QWidget& place, Mnemonics& letters,
                            const std::string& caption) {
  auto* action = new QAction(letters.Assign(caption), this);
  action->setObjectName(ToQString(control.Name()));
  connect(action, &QAction::triggered, this, [this, &control] {
    if (actions_.count(&control) == 0) return;
    loop_.Act(control, [&control] { control.UserClick(); });
  });
  place.addAction(action);
  actions_[&control] = action;
  return action;
}

}  // namespace brindlepage
