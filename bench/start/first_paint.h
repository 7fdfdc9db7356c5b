#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

// Ends the process when a window has been painted and nothing is left to do: the moment at which
// a person sees it.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QApplication& application) : QObject(&application) {
    application.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!seen_ && event->type() == QEvent::Paint && widget != nullptr && widget->isWindow()) {
      seen_ = true;
      QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    }
    return false;
  }

 private:
  bool seen_ = false;
};
