#pragma once

#include <QFrame>
#include <QToolButton>
#include <functional>
#include <vector>

#include "desktop/control_view.h"
#include "toolkit/controls.h"

namespace brindlepage {

// A toolbar: its buttons side by side, the caption under the drawing.
class ToolStripView : public ViewOf<Toolbar> {
 public:
  ToolStripView(Toolbar& toolbar, const ViewSetting& setting);

 protected:
  void SyncState() override;

 private:
  void AddButton(int number);

  Mnemonics& letters_;
  std::vector<QToolButton*> buttons_;  // in the toolbar's order
  std::vector<LetteredCaption> captions_;
};

}  // namespace brindlepage
