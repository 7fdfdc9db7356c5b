#pragma once

#include <QAbstractSlider>
#include <QComboBox>
#include <QListView>
#include <QMenuBar>
#include <QWidget>

#include "tests/random_teacher/dice.h"

namespace brindlepage {

// What hands do to a widget, as dice decide: real presses of the mouse and of keys. A handler that
// they set off may open boxes, end the program and take the widget away.
class WidgetDeeds {
 public:
  explicit WidgetDeeds(Dice& dice) : dice_(dice) {}

  // On anything, as its kind suggests; `text` is what would be typed.
  void On(QWidget& widget, const std::string& text);
  void OnRow(QListView& list, int first_row);
  // Opens the item's menu and clicks it.
  void OnMenuItem(QMenuBar& bar, const QString& name);
  // To whatever has the keys.
  void OnKeyboard();

  static void Click(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers = {});
  static void TypeText(QWidget& widget, const std::string& utf8);
  // Presses keys in a menu or a list that has popped up until it is gone.
  void ClosePopups();

 private:
  void OnEdit(QWidget& edit, const std::string& text);
  void OnCombo(QComboBox& combo, const std::string& text);
  void OnSlider(QWidget& slider);
  void OnDocument(QWidget& view, const std::string& text);
  QPoint Somewhere(const QWidget& widget);

  Dice& dice_;
};

}  // namespace brindlepage
