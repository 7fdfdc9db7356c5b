#include "tests/random_teacher_desktop/widget_deeds.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QGraphicsView>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

namespace brindlepage {

namespace {

struct Stroke {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
};

void Press(QWidget& widget, Stroke stroke) {
  QTest::keyClick(&widget, stroke.key, stroke.modifiers);
}

const std::vector<Qt::Key> kKeys = {
    Qt::Key_Return,  Qt::Key_Escape, Qt::Key_Space,  Qt::Key_Up,       Qt::Key_Down,
    Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Home,   Qt::Key_End,      Qt::Key_Tab,
    Qt::Key_Backtab, Qt::Key_Delete, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Backspace};

}  // namespace

void WidgetDeeds::On(QWidget& widget, const std::string& text) {
  if (qobject_cast<QLineEdit*>(&widget) || qobject_cast<QPlainTextEdit*>(&widget)) {
    return OnEdit(widget, text);
  }
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) return OnCombo(*combo, text);
  if (qobject_cast<QAbstractSlider*>(&widget)) return OnSlider(widget);
  if (qobject_cast<QGraphicsView*>(&widget)) return OnDocument(widget, text);
  if (!dice_.OneIn(8)) return Click(widget, widget.rect().center());
  widget.setFocus();
  Press(widget, {dice_.AnyOf(kKeys), Qt::NoModifier});
}

// A row from `first_row` on, now and then the empty part below.
void WidgetDeeds::OnRow(QListView& list, int first_row) {
  const int rows = list.model()->rowCount() - first_row;
  QPoint at = list.viewport()->rect().bottomLeft() + QPoint(8, -3);
  if (rows > 0 && !dice_.OneIn(12)) {
    const QModelIndex row = list.model()->index(first_row + dice_.Below(rows), 0);
    list.scrollTo(row);
    at = list.visualRect(row).center();
  }
  const QPointer<QWidget> ground = list.viewport();
  if (dice_.OneIn(8)) return Press(list, {dice_.AnyOf(kKeys), Qt::NoModifier});
  Click(*ground, at);
  if (ground && dice_.OneIn(6)) QTest::mouseDClick(ground, Qt::LeftButton, {}, at);
}

void WidgetDeeds::OnMenuItem(QMenuBar& bar, const QString& name) {
  for (QAction* heading : bar.actions()) {
    QMenu* menu = heading->menu();
    for (QAction* item : menu == nullptr ? QList<QAction*>() : menu->actions()) {
      if (item->objectName() != name) continue;
      Click(bar, bar.actionGeometry(heading).center());
      const QPointer<QMenu> open = menu;
      QApplication::processEvents();
      if (open && open->isVisible()) Click(*open, open->actionGeometry(item).center());
      return;
    }
  }
}

void WidgetDeeds::OnKeyboard() {
  QWidget* target = QApplication::focusWidget();
  if (target == nullptr) target = QApplication::activeWindow();
  if (target == nullptr) return;
  if (!dice_.OneIn(4)) return Press(*target, {dice_.AnyOf(kKeys), Qt::NoModifier});
  Press(*target, {static_cast<Qt::Key>(Qt::Key_A + dice_.Below(26)), Qt::AltModifier});
}

void WidgetDeeds::Click(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers) {
  const QPointer<QWidget> target = &widget;
  QTest::mousePress(target, Qt::LeftButton, modifiers, at);
  if (target) QTest::mouseRelease(target, Qt::LeftButton, modifiers, at);
}

// QTest's own way of typing knows Latin letters alone.
void WidgetDeeds::TypeText(QWidget& widget, const std::string& utf8) {
  const QPointer<QWidget> target = &widget;
  for (const QChar character : QString::fromStdString(utf8)) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      if (!target) return;
      QKeyEvent stroke(type, Qt::Key_unknown, Qt::NoModifier, QString(character));
      QApplication::sendEvent(target, &stroke);
    }
  }
}

void WidgetDeeds::ClosePopups() {
  for (int strokes = 0; QWidget* popup = QApplication::activePopupWidget(); ++strokes) {
    if (strokes == 6) {
      popup->close();
      return;
    }
    static const std::vector<Qt::Key> kWays = {Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape};
    Press(*popup, {dice_.AnyOf(kWays), Qt::NoModifier});
    QApplication::processEvents();
  }
}

void WidgetDeeds::OnEdit(QWidget& edit, const std::string& text) {
  const QPointer<QWidget> target = &edit;
  Click(edit, edit.rect().center());
  if (!target) return;
  if (dice_.OneIn(4)) return Press(edit, {dice_.AnyOf(kKeys), Qt::NoModifier});
  Press(edit, {Qt::Key_A, Qt::ControlModifier});
  Press(edit, {Qt::Key_Delete, Qt::NoModifier});
  TypeText(edit, text);
}

void WidgetDeeds::OnCombo(QComboBox& combo, const std::string& text) {
  if (dice_.OneIn(3)) {
    combo.setFocus();
    return Press(combo, {dice_.AnyOf(kKeys), Qt::NoModifier});
  }
  if (QLineEdit* line = combo.lineEdit(); line != nullptr && dice_.OneIn(3)) {
    const QPointer<QWidget> target = line;
    OnEdit(*line, text);
    if (target) Press(*target, {Qt::Key_Return, Qt::NoModifier});
    return;
  }
  // The arrow at its right end opens its list.
  Click(combo, combo.rect().center() + QPoint(combo.width() / 2 - 8, 0));
  QApplication::processEvents();
}

void WidgetDeeds::OnSlider(QWidget& slider) {
  if (dice_.OneIn(2)) return Click(slider, Somewhere(slider));
  slider.setFocus();
  Press(slider, {dice_.AnyOf(kKeys), Qt::NoModifier});
}

void WidgetDeeds::OnDocument(QWidget& view, const std::string& text) {
  static const std::vector<Stroke> kStrokes = {
      {Qt::Key_A, Qt::ControlModifier},    {Qt::Key_C, Qt::ControlModifier},
      {Qt::Key_X, Qt::ControlModifier},    {Qt::Key_V, Qt::ControlModifier},
      {Qt::Key_Z, Qt::ControlModifier},    {Qt::Key_Y, Qt::ControlModifier},
      {Qt::Key_B, Qt::ControlModifier},    {Qt::Key_F, Qt::ControlModifier},
      {Qt::Key_Plus, Qt::ControlModifier}, {Qt::Key_Minus, Qt::ControlModifier},
      {Qt::Key_End, Qt::ControlModifier},  {Qt::Key_Home, Qt::ControlModifier},
      {Qt::Key_Right, Qt::ShiftModifier},  {Qt::Key_Down, Qt::ShiftModifier},
      {Qt::Key_Backspace, Qt::NoModifier}, {Qt::Key_Delete, Qt::NoModifier},
      {Qt::Key_Return, Qt::NoModifier},    {Qt::Key_PageDown, Qt::NoModifier},
  };
  const QPointer<QWidget> target = &view;
  QWidget& ground = *static_cast<QAbstractScrollArea&>(view).viewport();
  Click(ground, Somewhere(ground), dice_.OneIn(4) ? Qt::ShiftModifier : Qt::NoModifier);
  for (int strokes = dice_.Below(5); strokes > 0 && target; --strokes) {
    Press(view, dice_.AnyOf(kStrokes));
  }
  if (target && dice_.OneIn(2)) TypeText(view, text);
}

QPoint WidgetDeeds::Somewhere(const QWidget& widget) {
  return {dice_.Below(qMax(widget.width(), 1)), dice_.Below(qMax(widget.height(), 1))};
}

}  // namespace brindlepage
