#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>

// Ends the process when its window has been painted and nothing is left to do: the moment at
// which a person sees it. Prints that moment, in seconds of the system's steady clock.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QApplication& application) : QObject(&application) {
    application.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    // All parts of a window are painted in one go, and this waits until they are.
    if (!seen_ && event->type() == QEvent::Paint && qobject_cast<QWidget*>(watched) != nullptr) {
      seen_ = true;
      QTimer::singleShot(0, [] {
        using Seconds = std::chrono::duration<double>;
        const Seconds now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("%.6f\n", now.count());
        QCoreApplication::exit();
      });
    }
    return false;
  }

 private:
  bool seen_ = false;
};
