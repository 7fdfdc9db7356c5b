#include "bench/clicks/hand.h"

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QMenuBar>
#include <QSlider>
#include <QToolButton>
#include <QtTest/QTest>
#include <stdexcept>

#include "toolkit/controls.h"

using namespace brindlepage;

void Hand::Click(const std::string& form, const std::string& control, int index, HowLong how_long) {
  QWidget& widget = Widget(form, control, index);
  const std::string place = index < 0 ? "" : "(" + std::to_string(index) + ")";
  // Where a mark is, if it is one.
  const QPoint at = widget.inherits("QPushButton") ? QPoint() : QPoint(10, widget.height() / 2);
  Measure(form + "." + control + place, how_long,
          [&] { QTest::mouseClick(&widget, Qt::LeftButton, {}, at); });
}

void Hand::Tool(const std::string& form, const std::string& caption, HowLong how_long) {
  auto* button = Widget(form, "Toolbar1").findChild<QToolButton*>(QString::fromStdString(caption));
  if (button == nullptr) throw std::runtime_error("no tool " + caption + " on " + form);
  Measure(form + "." + caption, how_long, [&] { QTest::mouseClick(button, Qt::LeftButton); });
}

void Hand::Item(const std::string& form, const std::string& item) {
  auto* action =
      desktop_.windows().Find(*Loaded(form))->findChild<QAction*>(QString::fromStdString(item));
  if (action == nullptr) throw std::runtime_error("no menu item " + item + " on " + form);
  Measure(form + "." + item, kAtOnce, [&] { action->trigger(); });
}

void Hand::Row(const std::string& form, const std::string& list, int row) {
  auto& view = dynamic_cast<QListView&>(Widget(form, list));
  const QModelIndex index = view.model()->index(row, 0);
  view.scrollTo(index);
  Measure(form + "." + list + " row", kAtOnce, [&] {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
  });
}

void Hand::Space(const std::string& form, const std::string& list) {
  QWidget& widget = Widget(form, list);
  widget.setFocus();
  Measure(form + "." + list + " space", kAtOnce, [&] { QTest::keyClick(&widget, Qt::Key_Space); });
}

void Hand::Choose(const std::string& form, const std::string& combo, int row) {
  auto& box = dynamic_cast<QComboBox&>(Widget(form, combo));
  Measure(form + "." + combo, kAtOnce, [&] {
    box.setCurrentIndex(row);
    emit box.activated(row);
  });
}

void Hand::Slide(const std::string& form, const std::string& bar, int value) {
  auto& slider = dynamic_cast<QSlider&>(Widget(form, bar));
  Measure(form + "." + bar, kAtOnce, [&] { slider.setValue(value); });
}

void Hand::Type(const std::string& form, const std::string& box, const std::string& letters) {
  QWidget& widget = Widget(form, box);
  widget.setFocus();
  const QString text = QString::fromStdString(letters);
  QTest::keyClicks(&widget, text.chopped(1));
  Measure(form + "." + box + " key", kAtOnce, [&] { QTest::keyClicks(&widget, text.last(1)); });
}

void Hand::Press(Qt::Key key, Qt::KeyboardModifiers modifiers, const std::string& what) {
  QWidget* target = QApplication::focusWidget();
  if (target == nullptr) target = &desktop_.windows().main();
  const Form* active = desktop_.program().forms().Active();
  Measure(active->Name() + " " + what, kAtOnce, [&] { QTest::keyClick(target, key, modifiers); });
}

void Hand::PressForm() {
  Form& form = *desktop_.program().forms().Active();
  QWidget* view = desktop_.windows().Find(form);
  Measure(form.Name() + " key", kAtOnce, [&] { QTest::keyClick(view, Qt::Key_A); });
}

void Hand::Await(const std::string& form) {
  const auto active = [&] {
    const Form* now = desktop_.program().forms().Active();
    return now != nullptr && now->Name() == form;
  };
  constexpr int kLongest = 60'000;
  if (!QTest::qWaitFor(active, kLongest)) throw std::runtime_error(form + " never came");
  QTest::qWait(100);
}

void Hand::AwaitReady(const std::string& form, const std::string& control) {
  Await(form);
  constexpr int kLongest = 60'000;
  const auto ready = [&] { return Loaded(form)->FindControl(control)->CanAct(); };
  if (!QTest::qWaitFor(ready, kLongest)) throw std::runtime_error(form + " is never ready");
  QTest::qWait(100);
}

void Hand::Wait(int milliseconds) { QTest::qWait(milliseconds); }

Form* Hand::Loaded(const std::string& name) const {
  for (const auto& form : desktop_.program().forms().Loaded()) {
    if (form->Name() == name) return form.get();
  }
  throw std::runtime_error(walk_ + ": " + name + " is not loaded");
}

QWidget& Hand::Widget(const std::string& form_name, const std::string& name, int index) const {
  Form& form = *Loaded(form_name);
  Control* control = form.FindControl(name, index);
  FormView* view = desktop_.windows().Find(form);
  ControlView* shown = control == nullptr || view == nullptr ? nullptr : view->Find(*control);
  if (shown == nullptr) throw std::runtime_error(walk_ + ": no " + form_name + "." + name);
  return *shown->widget();
}

void Hand::Measure(const std::string& what, HowLong how_long, const std::function<void()>& click) {
  constexpr int kRest = 60;  // in which the next page is made; nobody clicks faster
  ++clicks_;
  const std::string place = (clicks_ < 10 ? " 0" : " ") + std::to_string(clicks_) + " ";
  const std::string name = walk_ + place + what + (how_long == kLong ? " [long]" : "");
  stopwatch_.Measure(name, click, kRest);
}
