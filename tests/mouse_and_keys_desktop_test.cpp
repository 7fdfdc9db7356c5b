// Mouse and keys together, as a teacher has them: what has the keys, and what a second click does.

#include <QMouseEvent>
#include <QRadioButton>
#include <QScrollBar>
#include <QWheelEvent>

#include "scramble_code/code_form.h"
#include "tests/desktop_fixture.h"
#include "tests/open_sheet.h"

namespace brindlepage {
namespace {

class MouseAndKeys : public DesktopTest {
 protected:
  void GoToSecretCode() {
    UseOneList(5);
    Start();
    GoToPickWords(5);
    Click("PickWords", "ChooseRandom");
    Click("PickWords", "Command2");
    ASSERT_EQ(Active(), "CodeForm");
  }
  CodeForm& Sheet() { return dynamic_cast<CodeForm&>(*Loaded("CodeForm")); }
  void Type(const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), text);
    Settle();
  }
  // Notes the boxes' titles, and does that to each, but to no more than so many.
  void OnBoxesWithKeys(int most, std::function<void(QDialog&)> deed) {
    OnBoxes([this, most, deed](QDialog& box) {
      if (!box.isActiveWindow()) return;  // it has no keys yet
      boxes_ << box.windowTitle();
      boxes_.size() > most ? box.reject() : deed(box);
    });
  }
  static bool Holds(const RichTextBox& box, std::u32string_view text) {
    return box.PlainText().find(text) != std::u32string::npos;
  }

  // A double click as it arrives when the first one has turned the page.
  void DoubleClickOnWhatComesBehind(QWidget* widget) {
    const QPoint at = widget->mapTo(&main(), widget->rect().center());
    Click(widget);
    QWidget* behind = main().childAt(at);
    const auto send = [&](QEvent::Type type, Qt::MouseButtons held) {
      QMouseEvent event(type, behind->mapFrom(&main(), at), main().mapToGlobal(at), Qt::LeftButton,
                        held, Qt::NoModifier);
      QApplication::sendEvent(behind, &event);
    };
    send(QEvent::MouseButtonDblClick, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    Settle();
  }
};

TEST_F(MouseAndKeys, WhatIsTypedGoesIntoTheDocumentThatShows) {
  GoToSecretCode();
  Type("sheet");
  EXPECT_TRUE(Holds(Sheet().QuizBox, U"sheet"));
  ClickTool("CodeForm", "Key");
  Type("answers");
  EXPECT_FALSE(Holds(Sheet().QuizBox, U"answers"));
  EXPECT_TRUE(Holds(Sheet().AnswerBox, U"answers"));
  ClickTool("CodeForm", "Worksheet");
  Type("again");
  EXPECT_TRUE(Holds(Sheet().QuizBox, U"sheetagain"));
  EXPECT_FALSE(Holds(Sheet().AnswerBox, U"again"));
}

TEST_F(MouseAndKeys, EnterOnCancelSavesNothing) {
  GoToSecretCode();
  OnBoxesWithKeys(1, [this](QDialog&) {
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
  });
  ClickTool("CodeForm", "Save");
  StopWatching();
  EXPECT_EQ(boxes_, QStringList("Name Saved File"));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Path() / "worksheets"));
}

TEST_F(MouseAndKeys, AQuestionIsAnsweredByTheLetterOfItsAnswer) {
  GoToSecretCode();
  OnBoxesWithKeys(4, [this](QDialog& box) {
    Press(box.windowTitle() == "Save Answer Key?" ? Qt::Key_N : Qt::Key_Return);
  });
  ClickTool("CodeForm", "Save");
  StopWatching();
  EXPECT_EQ(boxes_, QStringList({"Name Saved File", "Save Answer Key?", "Export Successful"}));
  const auto saved = std::filesystem::directory_iterator(folder_.Path() / "worksheets");
  EXPECT_EQ(std::distance(begin(saved), end(saved)), 1);
}

TEST_F(MouseAndKeys, AClickOnACaptionGivesTheKeysToWhatItStandsBeside) {
  UseOneList(5);
  Start();
  Click("Title", "Command1", 3);
  ClickRow("ChooseList", "TheLists", 0);
  Click("ChooseList", "Command1");
  Click("QuizOptions3", "Label3", 1);
  EXPECT_EQ(QApplication::focusWidget(), Widget("QuizOptions3", "Match"));
  Press(Qt::Key_Down);
  EXPECT_TRUE(Widget<QRadioButton>("QuizOptions3", "FillNo")->isChecked());
}

TEST_F(MouseAndKeys, AScreenHasTheSameLettersEachTime) {
  Start();
  for (int visit = 0; visit < 4; ++visit) {
    const auto caption = [this](const char* name, int index = -1) {
      return Widget<QAbstractButton>("Title", name, index)->text();
    };
    EXPECT_EQ(caption("Command1", 0), "Create &a Word Search");
    EXPECT_EQ(caption("Command1", 2), "Create a &Scramble Worksheet");
    EXPECT_EQ(caption("Command1", 3), "C&reate a Quiz");
    EXPECT_EQ(caption("Command3"), "&Just For Fun");
    EXPECT_EQ(Widget("Title", "Toolbar1")->findChild<QToolButton*>("Quit")->text(), "&Quit");
    Click("Title", "Command1", visit);
    Press(Qt::Key_Escape);
    ASSERT_EQ(Active(), "Title");
  }
}

TEST_F(MouseAndKeys, TheWheelOverTheFontBarChangesNothing) {
  GoToSecretCode();
  Press(Qt::Key_A, Qt::ControlModifier);
  const std::string before = Describe(Sheet().QuizBox);
  for (const char* name : {"cmbFontName", "cmbFontSize", "cmbFontColor"}) {
    auto* combo = Widget("CodeForm", name);
    const QPoint at = combo->rect().center();
    QWheelEvent turn(at, combo->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &turn);
    Settle();
  }
  EXPECT_EQ(Describe(Sheet().QuizBox), before);
}

TEST_F(MouseAndKeys, AWordAndItsMeaningAreScrolledTogether) {
  UseOneList(60);
  Start();
  ClickTool("Title", "Edit");
  ClickRow("EditChooseList", "TheLists", 0);
  Click("EditChooseList", "Command1");
  auto* words = Widget<QListView>("EditList", "WordList");
  auto* meanings = Widget<QListView>("EditList", "DefList");
  QScrollBar& bar = *words->verticalScrollBar();
  ASSERT_GT(bar.maximum(), 0);
  bar.setValue(bar.maximum());
  EXPECT_EQ(meanings->verticalScrollBar()->value(), bar.maximum());
  meanings->verticalScrollBar()->setValue(30);
  EXPECT_EQ(bar.value(), 30);
  words->setFocus();
  Press(Qt::Key_End);
  EXPECT_EQ(bar.value(), bar.maximum());
  EXPECT_EQ(meanings->verticalScrollBar()->value(), bar.value());
}

TEST_F(MouseAndKeys, ASheetAndItsKeyOpenAtTheirLeftEdgeInANarrowWindow) {
  UseOneList(5);
  Start();
  main().showMaximized();  // and so it stays
  Settle();
  GoToPickWords(5);
  Click("PickWords", "ChooseRandom");
  Click("PickWords", "Command2");
  main().showNormal();
  main().resize(640, 440);
  Settle();
  ClickTool("CodeForm", "Key");
  const QScrollBar& bar = *Widget<RichTextView>("CodeForm", "AnswerBox")->horizontalScrollBar();
  ASSERT_GT(bar.maximum(), bar.minimum());
  EXPECT_EQ(bar.value(), bar.minimum());
}

TEST_F(MouseAndKeys, EveryStopOfTheTabKeyInTheListEditorIsSeen) {
  UseOneList(5);
  Start();
  ClickTool("Title", "Edit");
  ClickRow("EditChooseList", "TheLists", 0);
  Click("EditChooseList", "Command1");
  QStringList stops;
  for (int tabs = 0; tabs < 9; ++tabs) {
    stops << QApplication::focusWidget()->objectName();
    Press(Qt::Key_Tab);
  }
  EXPECT_EQ(stops, QStringList({"WordList", "DefList", "Add Word", "Delete Word", "Edit Word",
                                "Rename List", "Save and Quit", "Cancel", "WordList"}))
      << stops.join(", ").toStdString();
}

TEST_F(MouseAndKeys, ARunTimeErrorIsReadBeforeTheProcessEnds) {
  desktop_ = std::make_unique<Desktop>();
  AnswerBoxes("OK");
  QTimer::singleShot(150, &box_watch_, [this] {
    ClickTool("Title", "Edit");
    Click("EditChooseList", "Command1");
  });
  EXPECT_EQ(desktop_->Run(), 1);
  EXPECT_EQ(boxes_, QStringList("Brindlepage|Run-time error '424':\n\nObject required"));
}

TEST_F(MouseAndKeys, ADoubleClickOnAnActivityChoosesNoList) {
  Start();
  DoubleClickOnWhatComesBehind(Widget("Title", "Command1", 0));
  EXPECT_EQ(Active(), "ChooseList");
  EXPECT_FALSE(Widget("ChooseList", "Command1")->isEnabled());
  auto* list = Widget<QListView>("ChooseList", "TheLists");
  DoubleClick(list, list->visualRect(list->model()->index(2, 0)).center());
  EXPECT_EQ(Active(), "QuizOptions5");
}

TEST_F(MouseAndKeys, ADoubleClickOnDeleteDeletesNothingUnasked) {
  Start();
  ClickTool("Title", "Delete");
  ClickRow("DeleteList", "TheLists", 1);
  const std::string lists = folder_.Read("TheLists.dat");
  auto* button = Widget("DeleteList", "Command1");
  DoubleClickOnWhatComesBehind(button);
  EXPECT_TRUE(Widget("DeleteList", "Yes")->isVisible());
  EXPECT_EQ(folder_.Read("TheLists.dat"), lists);
  Click("DeleteList", "Yes");
  EXPECT_NE(folder_.Read("TheLists.dat"), lists);
}

}  // namespace
}  // namespace brindlepage
