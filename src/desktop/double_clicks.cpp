#include "desktop/double_clicks.h"

#include <QApplication>
#include <QEvent>

#include "desktop/form_view.h"

namespace brindlepage {

namespace {

// The screen, the box or the menu in which a widget stands.
QWidget* PlaceOf(QWidget* widget) {
  for (QWidget* place = widget; place != nullptr; place = place->parentWidget()) {
    if (place->isWindow() || dynamic_cast<FormView*>(place) != nullptr) return place;
  }
  return widget;
}

bool IsPopup(const QWidget* place) { return place != nullptr && place->windowType() == Qt::Popup; }

}  // namespace

DoubleClicks::DoubleClicks(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool DoubleClicks::eventFilter(QObject* watched, QEvent* event) {
  const bool press = event->type() == QEvent::MouseButtonPress;
  const bool second = event->type() == QEvent::MouseButtonDblClick;
  if ((!press && !second) || !watched->isWidgetType()) return false;
  auto* widget = static_cast<QWidget*>(watched);
  const QWidget* place = PlaceOf(widget);
  const QWidget* place_before = PlaceOf(pressed_);
  const bool popup = IsPopup(place) || IsPopup(place_before);
  const bool same = pressed_ != nullptr && pressed_->isVisible() && place == place_before;
  if (second && !same && !popup) return true;
  pressed_ = widget;
  return false;
}

}  // namespace brindlepage
