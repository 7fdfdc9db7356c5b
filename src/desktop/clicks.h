#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <functional>

namespace brindlepage {

// The mouse on a widget that has no clicks of its own, and the keys on one that takes them.
class Clicks : public QObject {
 public:
  Clicks(QWidget* widget, std::function<void()> click, std::function<void()> double_click)
      : QObject(widget), click_(std::move(click)), double_click_(std::move(double_click)) {
    widget->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    const auto type = event->type();
    if (type == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      const bool clicks = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
      if (clicks) click_();
      return clicks;
    }
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick) return false;
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return false;
    type == QEvent::MouseButtonPress ? click_() : double_click_();
    return true;
  }

 private:
  std::function<void()> click_;
  std::function<void()> double_click_;
};

}  // namespace brindlepage
