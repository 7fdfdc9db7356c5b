#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>
#include <filesystem>

#include "desktop/desktop.h"
#include "desktop/rich_text_view.h"
#include "tests/printed_pages.h"
#include "tests/temp_folder.h"
#include "worksheet/worksheet_form.h"

namespace brindlepage {
namespace {

// The riddle screens and the sheets in code on real widgets, in a copy of a fresh installation.
class RiddleDesktop : public testing::Test {
 protected:
  RiddleDesktop() {
    std::filesystem::copy(PROGRAM_FOLDER, folder_.Path(), std::filesystem::copy_options::recursive);
    folder_.Write("Riddles.dat", "Q1\r\nA1\r\nQ2\r\nA2\r\nQ3\r\nA3\r\n");
    QObject::connect(&boxes_, &QTimer::timeout, &boxes_, [this] {
      if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        messages_ << box->findChild<QLabel*>("Text")->text();
        box->accept();
      }
    });
    boxes_.start(20);
  }

  void Start() {
    desktop_ = std::make_unique<Desktop>();
    main().resize(800, 600);
    desktop_->Start();
    main().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main()));
    Settle();
  }
  void OpenChooseRiddle() {
    Start();
    Click("Title", "Command1", kRiddle);
    ChooseFirstList();
  }
  void OpenRiddleOption1(const char* activity) {
    Start();
    Click("Title", "Command3");
    Click("JustForFun", activity);
  }
  void ChooseFirstList() {
    auto* list = Widget<QListView>("ChooseList", "TheLists");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(list->model()->index(0, 0)).center());
    Settle();
    Click("ChooseList", "Command1");
  }

  static void Settle() {
    QTest::qWait(40);
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }
  FormWindow& main() { return desktop_->windows().main(); }
  BrindlepageProgram& program() { return desktop_->program(); }
  std::string Active() { return program().forms().Active()->Name(); }

  template <class WidgetType = QWidget>
  WidgetType* Widget(const std::string& form_name, const std::string& name, int index = -1) {
    for (const auto& form : program().forms().Loaded()) {
      if (form->Name() != form_name) continue;
      Control* control = form->FindControl(name, index);
      return dynamic_cast<WidgetType*>(desktop_->windows().Find(*form)->Find(*control)->widget());
    }
    throw std::runtime_error("not loaded: " + form_name);
  }
  void Click(const std::string& form, const std::string& name, int index = -1) {
    QTest::mouseClick(Widget(form, name, index), Qt::LeftButton);
    Settle();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    Settle();
  }
  void PressLetterOf(const QString& caption) {
    const QChar letter = caption[caption.indexOf('&') + 1].toUpper();
    Press(static_cast<Qt::Key>(letter.unicode()), Qt::AltModifier);
    QTest::qWait(200);
  }
  QString TextIn(const std::string& form, const std::string& name) {
    return Widget<QPlainTextEdit>(form, name)->toPlainText();
  }
  QString Page(const std::string& form) {
    return TextIn(form, "RiddleBox") + "/" + TextIn(form, "Punchbox");
  }

  // What the PDF tool says, with that option, of a worksheet on paper.
  QStringList Printed(Screen screen, const QString& layout) {
    auto* form = program().forms().Find<WorksheetForm>(screen);
    const QTemporaryDir paper;
    const QString file = paper.filePath("sheet.pdf");
    pages::Print(form->QuizBox, file);
    return pages::Ask("pdftotext", {layout, file, "-"}).split('\n');
  }

  TempFolder folder_;
  std::unique_ptr<Desktop> desktop_;
  QTimer boxes_;
  QStringList messages_;
};

TEST_F(RiddleDesktop, TheMouseLeafsByTheArrowsAndByTheirLabels) {
  OpenChooseRiddle();
  EXPECT_EQ(main().windowTitle(), "Choose a Riddle");
  EXPECT_EQ(Page("ChooseRiddle"), "Q1/A1");
  Click("ChooseRiddle", "Image1");
  EXPECT_EQ(Page("ChooseRiddle"), "Q2/A2");
  Click("ChooseRiddle", "Label4");
  EXPECT_EQ(Page("ChooseRiddle"), "Q3/A3");
  EXPECT_EQ(Widget<QLabel>("ChooseRiddle", "PageLabel")->text(), "Riddle 3 of 3");
  Click("ChooseRiddle", "Image2");
  EXPECT_EQ(Page("ChooseRiddle"), "Q2/A2");
  Click("ChooseRiddle", "Label5");
  EXPECT_EQ(Page("ChooseRiddle"), "Q1/A1");
  for (const char* name : {"Image1", "Image2", "Label4", "Label5"}) {
    EXPECT_EQ(Widget("ChooseRiddle", name)->cursor().shape(), Qt::PointingHandCursor) << name;
  }
}

TEST_F(RiddleDesktop, TwoQuickClicksTurnTwoPages) {
  OpenChooseRiddle();
  QWidget* next = Widget("ChooseRiddle", "Label4");
  QTest::mouseClick(next, Qt::LeftButton);
  QTest::mouseDClick(next, Qt::LeftButton);
  Settle();
  EXPECT_EQ(Page("ChooseRiddle"), "Q3/A3");
  QWidget* previous = Widget("ChooseRiddle", "Image2");
  QTest::mouseClick(previous, Qt::LeftButton);
  QTest::mouseDClick(previous, Qt::LeftButton);
  Settle();
  EXPECT_EQ(Page("ChooseRiddle"), "Q1/A1");
}

TEST_F(RiddleDesktop, ThePageKeysLeafWhateverHasTheFocus) {
  OpenChooseRiddle();
  EXPECT_TRUE(Widget("ChooseRiddle", "RiddleBox")->hasFocus());
  Press(Qt::Key_PageDown);
  EXPECT_EQ(Page("ChooseRiddle"), "Q2/A2");
  Press(Qt::Key_Tab);
  EXPECT_TRUE(Widget("ChooseRiddle", "Punchbox")->hasFocus());
  Press(Qt::Key_PageDown);
  EXPECT_EQ(Page("ChooseRiddle"), "Q3/A3");
  Widget("ChooseRiddle", "Command1")->setFocus();
  EXPECT_TRUE(Widget("ChooseRiddle", "Command1")->hasFocus());
  Press(Qt::Key_PageUp);
  EXPECT_EQ(Page("ChooseRiddle"), "Q2/A2");
  EXPECT_TRUE(Widget("ChooseRiddle", "Command1")->hasFocus());
}

TEST_F(RiddleDesktop, ARiddleTypedOverThePageIsChosenWithEnter) {
  OpenChooseRiddle();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), "Who buzzes?");
  Press(Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), "A bee");
  Press(Qt::Key_Return);
  EXPECT_EQ(Active(), "QuizOptions5");
  EXPECT_EQ(program().shared.RiddleText, "Who buzzes?");
  EXPECT_EQ(program().shared.RiddleAnswer, "A bee");
}

TEST_F(RiddleDesktop, EscapeGoesBackToTheLists) {
  OpenChooseRiddle();
  Press(Qt::Key_Escape);
  EXPECT_EQ(Active(), "ChooseList");
}

TEST_F(RiddleDesktop, RiddlesAreCollectedWithTheKeyboardAlone) {
  OpenRiddleOption1("Command2");
  const QString kTotal = "Total Riddles Selected for This WorkSheet:";
  EXPECT_EQ(Widget<QLabel>("RiddleOption1", "TotalLabel")->text(), kTotal + " 0");
  Press(Qt::Key_PageDown);
  Press(Qt::Key_Return);
  EXPECT_EQ(Page("RiddleOption1"), "/");
  EXPECT_EQ(Widget<QLabel>("RiddleOption1", "TotalLabel")->text(), kTotal + "  1");
  Press(Qt::Key_PageDown);
  EXPECT_EQ(Page("RiddleOption1"), "Q3/A3");
  PressLetterOf(Widget<QPushButton>("RiddleOption1", "Command2")->text());
  EXPECT_EQ(Active(), "QuizOptions5");
  EXPECT_EQ(program().shared.CodedRiddles(1), "Q2");
}

TEST_F(RiddleDesktop, ContinuingWithNothingCollectedIsAnsweredByAMessage) {
  OpenRiddleOption1("Command3");
  Click("RiddleOption1", "Command2");
  QTest::qWait(100);
  EXPECT_EQ(messages_, QStringList{"At least one riddle must be added for this worksheet."});
  EXPECT_EQ(Active(), "RiddleOption1");
}

TEST_F(RiddleDesktop, EnterOnTheScrambleQuestionSaysYes) {
  Start();
  Click("Title", "Command1", kScramble);
  ChooseFirstList();
  EXPECT_TRUE(Widget("ScrambleOption1", "Command1")->hasFocus());
  Press(Qt::Key_Return);
  EXPECT_EQ(Active(), "QuizOptions5");
  EXPECT_EQ(program().shared.ScrambleClues, 1);
}

TEST_F(RiddleDesktop, TheRiddleSheetWaitsBehindTheMenuForTheNextRiddle) {
  OpenChooseRiddle();
  Click("ChooseRiddle", "Command2");
  Click("QuizOptions5", "Command1");
  Click("PickWords", "ChooseRandom");
  Click("PickWords", "Command2");
  ASSERT_EQ(Active(), "RiddleForm");
  auto* form = program().forms().Find<WorksheetForm>(Screen::RiddleForm);
  desktop_->loop().Act(*form,
                       [&] { dynamic_cast<MenuItem*>(form->FindControl("Back"))->UserClick(); });
  Settle();
  EXPECT_EQ(Active(), "Title");
  EXPECT_EQ(main().windowTitle(), "Brindlepage");
  Click("Title", "Command1", kRiddle);
  ChooseFirstList();
  Click("ChooseRiddle", "Image1");
  Click("ChooseRiddle", "Command2");
  Click("QuizOptions5", "Command1");
  Click("PickWords", "ChooseRandom");
  Click("PickWords", "Command2");
  EXPECT_EQ(Active(), "RiddleForm");
  EXPECT_EQ(main().windowTitle(), "Riddle Worksheet");
  EXPECT_EQ(program().shared.RiddleText, "Q2");
  EXPECT_NE(form->QuizBox.PlainText().find(U"Riddle: Q1\n"), std::u32string::npos);
}

TEST_F(RiddleDesktop, TheColumnsOfTheKeyTableStandStraightOnPaper) {
  OpenRiddleOption1("Command2");
  Click("RiddleOption1", "Command3");
  Click("RiddleOption1", "Command2");
  Click("QuizOptions5", "Command1");
  ASSERT_EQ(Active(), "CodeForm");
  std::vector<std::vector<qsizetype>> rows;
  const QRegularExpression entry("\\b\\d+=[A-Z]\\b");
  for (const QString& line : Printed(Screen::CodeForm, "-layout")) {
    std::vector<qsizetype> columns;
    for (auto found = entry.globalMatch(line); found.hasNext();) {
      columns.push_back(found.next().capturedStart());
    }
    if (!columns.empty()) rows.push_back(columns);
  }
  ASSERT_EQ(rows.size(), 5u);
  EXPECT_EQ(rows[0].size(), 6u);
  EXPECT_EQ(rows[4].size(), 2u);
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) EXPECT_EQ(row[i], rows[0][i]) << "entry " << i;
  }
  // Ten characters each.
  for (std::size_t i = 1; i < 6; ++i) EXPECT_EQ(rows[0][i] - rows[0][i - 1], 10) << "entry " << i;
}

TEST_F(RiddleDesktop, TheNumbersStandUnderTheirBlanksOnPaper) {
  folder_.Write("TheLists.dat",
                "One\r\nbdfhjlnprtvxz\r\nx\r\nacegikmoqsuwy\r\nx\r\nabcdefghijklm\r\nx\r\n");
  folder_.Write("Riddles.dat", "Who?\r\nabcdefghijklmnopqrstuvwxyz\r\n");
  OpenChooseRiddle();
  Click("ChooseRiddle", "Command2");
  Click("QuizOptions5", "Command1");
  Click("PickWords", "ChooseRandom");
  Click("PickWords", "Command2");
  ASSERT_EQ(Active(), "RiddleForm");
  // Where things begin on the line, in points; a character is 6 wide.
  std::vector<double> blanks;
  std::vector<double> cells;
  const QRegularExpression word("xMin=\"([0-9.]+)\".*>(__|\\(\\d.*)</word>");
  for (const QString& line : Printed(Screen::RiddleForm, "-bbox")) {
    if (line.contains(">Answer:<")) break;
    const auto found = word.match(line);
    if (!found.hasMatch()) continue;
    const double left = found.captured(1).toDouble();
    if (found.captured(2) == "__") {
      blanks.push_back(left);
    } else {
      // The bracket of one digit stands under the blank, that of two one character before it.
      cells.push_back(found.captured(2)[2] == ')' ? left : left + 6);
    }
  }
  EXPECT_EQ(blanks.size(), 39u);
  EXPECT_GE(cells.size(), 6u);
  for (const double cell : cells) {
    EXPECT_TRUE(std::any_of(blanks.begin(), blanks.end(),
                            [cell](double blank) { return std::abs(blank - cell) < 0.2; }))
        << "at " << cell;
  }
}

}  // namespace
}  // namespace brindlepage
