#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPaintEvent>
#include <QPushButton>
#include <QtTest/QTest>
#include <set>
#include <string>
#include <utility>

#include "desktop/rich_text_view.h"
#include "tests/desktop_fixture.h"
#include "toolkit/code_page.h"
#include "worksheet/study_guide_form.h"

namespace brindlepage {
namespace {

// The sizes in pixels at which a form is painted while this lives.
class PaintedSizes : public QObject {
 public:
  explicit PaintedSizes(const char* form) {
    setObjectName(form);
    qApp->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Paint && widget != nullptr &&
        widget->objectName() == objectName()) {
      sizes.emplace(widget->width(), widget->height());
      const QRect part = static_cast<QPaintEvent*>(event)->region().boundingRect();
      times += part == widget->rect() ? 1 : 0;
    }
    return false;
  }
  std::set<std::pair<int, int>> sizes;
  int times = 0;  // whole
};

class StudySheetTest : public DesktopTest {
 protected:
  void GoToSheet() {
    UseOneList(5);
    Start();
    GoToPickWords(4);
    Click("PickWords", "ChooseRandom");
    Click("PickWords", "Command2");
    ASSERT_EQ(Active(), "StudyGuideForm");
  }
  StudyGuideForm& sheet() { return dynamic_cast<StudyGuideForm&>(*Loaded("StudyGuideForm")); }
  RichTextView* view() { return Widget<RichTextView>("StudyGuideForm", "QuizBox"); }
};

TEST_F(StudySheetTest, AStudySheetIsMadeWithTheKeysAlone) {
  UseOneList(3);
  Start();
  for (int tabs = 0; tabs < 4; ++tabs) Press(Qt::Key_Tab);
  Press(Qt::Key_Return);  // the study sheet
  EXPECT_EQ(program().shared.ActivityKind, kStudySheet);
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);  // the list
  Press(Qt::Key_Return);  // the heading
  ASSERT_EQ(Active(), "PickWords");
  Press(Qt::Key_Down);
  Press(Qt::Key_Space);
  Press(Qt::Key_Down);
  Press(Qt::Key_Space);
  PressLetterOf(Widget<QPushButton>("PickWords", "Command2")->text());
  Settle(200);
  ASSERT_EQ(Active(), "StudyGuideForm");
  EXPECT_TRUE(view()->hasFocus());
  const std::string text = code_page::UnicodeToUtf8(sheet().QuizBox.PlainText());
  EXPECT_NE(text.find("Everything Study Guide"), std::string::npos);
  EXPECT_NE(text.find("wordaa"), std::string::npos);
  EXPECT_NE(text.find("wordab"), std::string::npos);
  EXPECT_EQ(text.find("wordac"), std::string::npos);
}

TEST_F(StudySheetTest, WhatIsTypedGoesIntoTheSheetWithTheFontBarsFormat) {
  GoToSheet();
  ASSERT_TRUE(view()->hasFocus());
  Press(Qt::Key_End, Qt::ControlModifier);

  Click("StudyGuideForm", "BoldButton");
  EXPECT_TRUE(Widget("StudyGuideForm", "BoldButton")->hasFocus());
  Click("StudyGuideForm", "ItalicButton");
  auto* sizes = Widget<QComboBox>("StudyGuideForm", "cmbFontSize");
  sizes->setFocus();
  sizes->lineEdit()->selectAll();
  QTest::keyClicks(sizes->lineEdit(), "21");
  Press(Qt::Key_Return);
  EXPECT_TRUE(view()->hasFocus());
  QTest::keyClicks(view(), "End");
  Settle();

  const RichTextBox& box = sheet().QuizBox;
  const int last = box.Length() - 1;
  EXPECT_EQ(box.CharacterAt(last), U'd');
  EXPECT_EQ(box.FormatAt(last).size, 21 * 20);
  EXPECT_TRUE(box.FormatAt(last).bold);
  EXPECT_TRUE(box.FormatAt(last).italic);
  EXPECT_EQ(sizes->currentText(), "21");
}

TEST_F(StudySheetTest, TheFontBarFollowsTheCaret) {
  GoToSheet();
  auto* names = Widget<QComboBox>("StudyGuideForm", "cmbFontName");
  auto* colours = Widget<QComboBox>("StudyGuideForm", "cmbFontColor");
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(names->currentText(), "Times New Roman");
  EXPECT_EQ(colours->currentText(), "");

  // Red, picked with the keys.
  colours->setFocus();
  QTest::keyClick(colours, Qt::Key_Down);
  Settle();
  EXPECT_TRUE(view()->hasFocus());
  EXPECT_EQ(colours->currentText(), "Black");
  colours->setFocus();
  QTest::keyClick(colours, Qt::Key_Down);
  Settle();
  QTest::keyClicks(view(), "x");
  Settle();
  EXPECT_EQ(sheet().QuizBox.FormatAt(sheet().QuizBox.Length() - 1).color, 0xFF0000u);
  EXPECT_EQ(colours->currentText(), "Blue");
}

TEST_F(StudySheetTest, ASizeThatIsNoSizeIsRefused) {
  GoToSheet();
  auto* sizes = Widget<QComboBox>("StudyGuideForm", "cmbFontSize");
  const QString before = sizes->currentText();
  sizes->setFocus();
  sizes->lineEdit()->selectAll();
  QTest::keyClicks(sizes->lineEdit(), "huge");
  Press(Qt::Key_Return);
  EXPECT_EQ(sizes->currentText(), before);
  EXPECT_FALSE(program().Ended());
}

TEST_F(StudySheetTest, WhatIsTypedInTheFontBarAndNotConfirmedGoesWithTheFocus) {
  GoToSheet();
  auto* sizes = Widget<QComboBox>("StudyGuideForm", "cmbFontSize");
  const QString before = sizes->currentText();
  sizes->setFocus();
  sizes->lineEdit()->selectAll();
  QTest::keyClicks(sizes->lineEdit(), "33");
  view()->setFocus();
  Settle();
  EXPECT_EQ(sizes->currentText(), before);
}

TEST_F(StudySheetTest, AWorksheetFillsTheScreenAndTheMenuComesBackAsItWas) {
  UseOneList(5);
  Start();
  const QSize before = main().size();
  EXPECT_FALSE(main().isMaximized());
  GoToPickWords(4);
  Click("PickWords", "ChooseRandom");
  Click("PickWords", "Command2");
  EXPECT_TRUE(main().isMaximized());
  // The boxes have their size from the window, 15 twips a pixel.
  EXPECT_EQ(sheet().Width, main().width() * 15);
  EXPECT_EQ(sheet().QuizBox.Width, main().width() * 15 - 50);

  main().Page()->findChild<QMenuBar*>()->findChild<QAction*>("Back")->trigger();
  Settle();
  EXPECT_EQ(Active(), "Title");
  EXPECT_FALSE(main().isMaximized());
  EXPECT_EQ(main().size(), before);
}

TEST_F(StudySheetTest, ItIsNotPaintedSmallBeforeItsWindowIsMaximised) {
  UseOneList(5);
  Start();
  GoToPickWords(4);
  Click("PickWords", "ChooseRandom");
  const PaintedSizes painted("StudyGuideForm");
  Click("PickWords", "Command2");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !painted.sizes.empty(); }));
  const QSize full = main().Page()->size();
  EXPECT_EQ(painted.sizes, std::set{std::pair(full.width(), full.height())});
}

TEST_F(StudySheetTest, AClickIsAnsweredAsSoonAsItsHandlerIsDoneAndOnce) {
  UseOneList(5);
  Start();
  const PaintedSizes painted("ChooseList");
  QTest::mouseClick(Widget("Title", "Command1", 4), Qt::LeftButton);
  EXPECT_TRUE(painted.sizes.empty());
  QApplication::sendPostedEvents();
  EXPECT_FALSE(painted.sizes.empty());
  Settle();
  EXPECT_EQ(painted.times, 1);
}

TEST_F(StudySheetTest, TheMenuIsNotPaintedLargeBeforeItsWindowGoesBack) {
  UseOneList(5);
  Start();
  const QSize before = main().Page()->size();
  GoToPickWords(4);
  Click("PickWords", "ChooseRandom");
  Click("PickWords", "Command2");
  PaintedSizes title("Title");
  main().Page()->findChild<QMenuBar*>()->findChild<QAction*>("Back")->trigger();
  Settle();
  EXPECT_EQ(title.sizes, std::set{std::pair(before.width(), before.height())});
}

TEST_F(StudySheetTest, AWindowThatTheTeacherMaximisedStaysSo) {
  UseOneList(5);
  Start();
  main().showMaximized();
  Settle();
  GoToPickWords(4);
  EXPECT_TRUE(main().isMaximized());
  Click("PickWords", "ChooseRandom");
  Click("PickWords", "Command2");
  main().Page()->findChild<QMenuBar*>()->findChild<QAction*>("Back")->trigger();
  Settle();
  EXPECT_TRUE(main().isMaximized());
}

TEST_F(StudySheetTest, EveryScreenOnTheWayFitsASmallDisplay) {
  UseOneList(5);
  Start();
  const auto fits = [this] {
    const QSize least = main().Page()->minimumSizeHint();
    EXPECT_LE(least.width(), 800) << Active();
    EXPECT_LE(least.height(), 560) << Active();
  };
  fits();
  Click("Title", "Command1", 4);
  fits();
  ClickRow("ChooseList", "TheLists", 0);
  Click("ChooseList", "Command1");
  fits();
  Click("QuizOptions5", "Command1");
  fits();
  Click("PickWords", "ChooseRandom");
  Click("PickWords", "Command2");
  fits();
}

}  // namespace
}  // namespace brindlepage
