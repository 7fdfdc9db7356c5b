#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QtTest/QTest>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "desktop/desktop.h"
#include "tests/temp_folder.h"

namespace brindlepage {

// The program on real widgets, in a copy of a fresh installation's folder.
class DesktopTest : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy(PROGRAM_FOLDER, folder_.Path(), std::filesystem::copy_options::recursive);
  }
  void TearDown() override { desktop_.reset(); }

  // A list file of one list with these many words "word a", "word b", ...
  void UseOneList(int words) {
    std::string lines = "Everything\r\n";
    for (int i = 0; i < words; ++i) {
      const char letters[] = {static_cast<char>('a' + i / 26), static_cast<char>('a' + i % 26), 0};
      lines += std::string("word") + letters + "\r\nmeaning " + letters + "\r\n";
    }
    folder_.Write("TheLists.dat", lines);
  }

  void Start() {
    desktop_ = std::make_unique<Desktop>();
    desktop_->Start();
    if (desktop_->program().Ended()) return;
    main().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main()));
    Settle();
  }

  // Lets what is under way come to its end, however slow the machine is.
  static void Settle(int milliseconds = 25) {
    QTest::qWait(milliseconds);
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }

  FormWindow& main() { return desktop_->windows().main(); }
  BrindlepageProgram& program() { return desktop_->program(); }

  Form* Loaded(const std::string& name) {
    for (const auto& form : program().forms().Loaded()) {
      if (form->Name() == name) return form.get();
    }
    return nullptr;
  }

  // The name of the form that is active.
  std::string Active() {
    Form* active = program().forms().Active();
    return active == nullptr ? "" : active->Name();
  }

  template <class WidgetType = QWidget>
  WidgetType* Widget(const std::string& form_name, const std::string& name, int index = -1) {
    Form* form = Loaded(form_name);
    if (form == nullptr) throw std::runtime_error("not loaded: " + form_name);
    Control* control = form->FindControl(name, index);
    FormView* view = desktop_->windows().Find(*form);
    ControlView* shown = control == nullptr || view == nullptr ? nullptr : view->Find(*control);
    if (shown == nullptr) throw std::runtime_error("not shown: " + form_name + "." + name);
    return dynamic_cast<WidgetType*>(shown->widget());
  }

  void Click(QWidget* widget) {
    QTest::mouseClick(widget, Qt::LeftButton);
    Settle();
  }
  void Click(const std::string& form, const std::string& name, int index = -1) {
    Click(Widget(form, name, index));
  }
  void ClickTool(const std::string& form, const QString& caption) {
    Click(Widget(form, "Toolbar1")->findChild<QToolButton*>(caption));
  }
  void ClickRow(const std::string& form, const std::string& name, int row) {
    auto* list = Widget<QListView>(form, name);
    const QRect room = list->visualRect(list->model()->index(row, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, room.center());
    Settle();
  }
  void DoubleClick(QListView* list, QPoint at) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    Settle();
  }
  // To whatever has the keys.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* target = QApplication::focusWidget();
    if (target == nullptr) target = QApplication::activeWindow();
    QTest::keyClick(target, key, modifiers);
    Settle();
  }
  void PressLetterOf(const QString& caption) {
    const QChar letter = caption[caption.indexOf('&') + 1].toUpper();
    Press(static_cast<Qt::Key>(letter.unicode()), Qt::AltModifier);
  }

  // Does that to each box that opens, until it has closed.
  void OnBoxes(std::function<void(QDialog&)> deed) {
    QObject::connect(&box_watch_, &QTimer::timeout, &box_watch_, [deed] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      if (box->focusWidget() != nullptr) return deed(*box);
      // Without a window manager nobody hands the keys to a box that another one covered.
      box->activateWindow();
    });
    box_watch_.start(20);
  }
  void StopWatching() {
    box_watch_.stop();
    box_watch_.disconnect();
  }
  // Notes each box as "title|text" and clicks that button.
  void AnswerBoxes(const QString& button) {
    OnBoxes([this, button](QDialog& box) {
      boxes_ << box.windowTitle() + "|" + box.findChild<QLabel*>("Text")->text();
      QTest::mouseClick(box.findChild<QPushButton*>(button), Qt::LeftButton);
    });
  }

  // From the menu to the word picker of the first list.
  void GoToPickWords(int kind) {
    Click("Title", "Command1", kind);
    ClickRow("ChooseList", "TheLists", 0);
    Click("ChooseList", "Command1");
    Click("QuizOptions5", "Command1");
  }

  TempFolder folder_;
  std::unique_ptr<Desktop> desktop_;
  QTimer box_watch_;
  QStringList boxes_;
};

}  // namespace brindlepage
