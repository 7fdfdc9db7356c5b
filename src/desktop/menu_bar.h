#pragma once

#include <QMenuBar>
#include <map>

#include "desktop/loop.h"
#include "desktop/mnemonics.h"

namespace brindlepage {

// The menus of a form.
class MenuBar : public QMenuBar {
 public:
  MenuBar(Form& form, Loop& loop, Mnemonics& letters, QWidget* parent);

  static bool HasMenus(const Form& form);

  // Brings the bar up to the state of the menus and their items.
  void Sync();
  // The controls are gone.
  void Detach() { actions_.clear(); }

 private:
  QAction* AddAction(Control& control, QWidget& place, Mnemonics& letters,
                     const std::string& caption);

  Loop& loop_;
  std::map<Control*, QAction*> actions_;
};

}  // namespace brindlepage
