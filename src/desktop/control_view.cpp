#include "desktop/control_view.h"

#include "desktop/text.h"

namespace brindlepage {

ControlView::ControlView(Loop& loop, Control& control, QWidget* widget)
    : loop_(loop), control_(&control), widget_(widget) {
  widget->setObjectName(ToQString(control.Name()));
}

void ControlView::Sync() {
  in_sync = true;
  if (control_ == nullptr) return;
  SyncState();
  widget_->setEnabled(control_->Enabled);
  widget_->setVisible(control_->Visible);
  widget_->setToolTip(ToQString(control_->ToolTipText));
}

const QString& LetteredCaption::Of(const std::string& caption) {
  const QByteArray key = QByteArray::fromStdString(caption);
  const auto known = known_.find(key);
  if (known != known_.end()) return *known;
  return *known_.insert(key, letters_.Assign(caption));
}

}  // namespace brindlepage
