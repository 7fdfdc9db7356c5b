#include "desktop/tool_strip.h"

#include <QHBoxLayout>

#include "desktop/icons.h"
#include "desktop/text.h"

namespace brindlepage {

ToolStripView::ToolStripView(Toolbar& toolbar, const ViewSetting& setting)
    : ViewOf(setting.loop, toolbar, new QFrame(setting.parent)), letters_(setting.letters) {
  widget()->setObjectName("ToolStrip");
  auto* row = new QHBoxLayout(widget());
  row->setContentsMargins(10, 5, 10, 5);
  row->setSpacing(4);
  row->addStretch(1);
  for (int number = 1; number <= toolbar.ButtonCount(); ++number) AddButton(number);
}

void ToolStripView::AddButton(int number) {
  constexpr int kIconSide = 26;  // pixels
  auto* button = new QToolButton(widget());
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setIconSize({kIconSide, kIconSide});
  button->setIcon(NamedIcon(box().Button(number).icon));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QToolButton::clicked, this, [this, number] {
    Act([number](Toolbar& toolbar) {
      ToolbarButton& clicked = toolbar.Button(number);
      if (clicked.Enabled && clicked.Visible) toolbar.ButtonClick(clicked);
    });
  });
  static_cast<QHBoxLayout*>(widget()->layout())->insertWidget(number - 1, button);
  buttons_.push_back(button);
  captions_.emplace_back(letters_);
}

void ToolStripView::SyncState() {
  for (int number = static_cast<int>(buttons_.size()) + 1; number <= box().ButtonCount();
       ++number) {
    AddButton(number);
  }
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const ToolbarButton& state = box().Button(static_cast<int>(i) + 1);
    buttons_[i]->setText(captions_[i].Of(state.Caption));
    buttons_[i]->setObjectName(ToQString(state.Caption));
    buttons_[i]->setToolTip(ToQString(state.ToolTipText));
    buttons_[i]->setEnabled(state.Enabled);
    buttons_[i]->setVisible(state.Visible);
  }
}

}  // namespace brindlepage
