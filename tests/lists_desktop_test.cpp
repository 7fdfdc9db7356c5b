#include <QClipboard>
#include <QFileDialog>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSlider>
#include <QToolTip>

#include "desktop/text.h"
#include "lists/add_word.h"
#include "lists/change_list_name.h"
#include "lists/edit_list.h"
#include "lists/make_new_list.h"
#include "tests/desktop_fixture.h"
#include "toolkit/files.h"

namespace brindlepage {
namespace {

class ListsDesktop : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    folder_.Write("TheLists.dat",
                  "Planets\r\nMars\r\nred\r\nVenus\r\nhot\r\n<New List>\r\nAnimals\r\n");
  }

  template <class FormType>
  FormType& On(const char* name) {
    return dynamic_cast<FormType&>(*Loaded(name));
  }
  // Types into whatever has the keys.
  void TypeText(const QString& text) {
    for (const QChar letter : text) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
      QApplication::sendEvent(QApplication::focusWidget(), &press);
    }
    Settle(1);
  }
  void BeginNewList() {
    Start();
    ClickTool("Title", "Create");
    TypeText("Colours");
    Press(Qt::Key_Return);
    ASSERT_EQ(Active(), "MakeNewList");
  }
  void BeginEdit() {
    Start();
    ClickTool("Title", "Edit");
    ClickRow("EditChooseList", "TheLists", 1);
    Click("EditChooseList", "Command1");
    ASSERT_EQ(Active(), "EditList");
  }
  QWidget* WindowOf(const char* form) { return desktop_->windows().Find(*Loaded(form))->window(); }
  QString TextOf(const char* form, const char* box) { return Widget<QLineEdit>(form, box)->text(); }
};

// --- A new list.

TEST_F(ListsDesktop, FiftyWordsAreTypedWithoutTheMouse) {
  BeginNewList();
  std::string expected =
      "Planets\r\nMars\r\nred\r\nVenus\r\nhot\r\n<New List>\r\nAnimals\r\n<New "
      "List>\r\nColours\r\n";
  for (int i = 0; i < 50; ++i) {
    ASSERT_TRUE(Widget("MakeNewList", "TheWord")->hasFocus()) << i;
    const QString word = QString("word%1").arg(i);
    TypeText(word);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    Settle(1);
    ASSERT_TRUE(Widget("MakeNewList", "TheMeaning")->hasFocus()) << i;
    TypeText("meaning, " + word);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    Settle(1);
    expected += (word + "\r\nmeaning, " + word + "\r\n").toStdString();
  }
  EXPECT_EQ(Widget<QLabel>("MakeNewList", "TotalWordsLabel")->text(),
            "Total words in this list:  50");
  AnswerBoxes("Yes");
  PressLetterOf(
      Widget("MakeNewList", "Toolbar1")->findChild<QToolButton*>("Save and Quit")->text());
  Settle(300);
  StopWatching();
  EXPECT_EQ(Active(), "Title");
  EXPECT_EQ(folder_.Read("TheLists.dat"), expected);
}

TEST_F(ListsDesktop, ABoxOfWordsRefusesWhatTheCodePageLacksAndAPasteKeepsWhatItCan) {
  BeginNewList();
  TypeText(QString::fromUtf8("caf\xC3\xA9"));
  QApplication::clipboard()->setText(
      QString::fromUtf8(" \xE4\xB8\xAD"
                        "au\r\nlait \xF0\x9F\x98\x80!"));
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(On<MakeNewList>("MakeNewList").TheWord.Text(), "caf\xE9 aulait !");
  EXPECT_EQ(TextOf("MakeNewList", "TheWord"), QString::fromUtf8("caf\xC3\xA9 aulait !"));
}

TEST_F(ListsDesktop, AForeignLetterIsPutBehindTheTextByTheKeysAlone) {
  BeginNewList();
  TypeText("caf");
  PressLetterOf(Widget("MakeNewList", "Toolbar1")->findChild<QToolButton*>("Foreign")->text());
  Settle(200);
  ASSERT_EQ(Active(), "FLForm");
  ASSERT_TRUE(Widget("FLForm", "LScroll")->hasFocus());
  EXPECT_EQ(Widget<QLabel>("FLForm", "CharLabel")->text(), "A");
  for (int code = 191; code < 233; ++code) Press(Qt::Key_Right);
  EXPECT_EQ(Widget<QLabel>("FLForm", "CharLabel")->text(), QString(QChar(0xE9)));
  PressLetterOf(Widget<QPushButton>("FLForm", "FLButton", 0)->text());
  Settle(200);
  EXPECT_EQ(Loaded("FLForm"), nullptr);
  EXPECT_EQ(TextOf("MakeNewList", "TheWord"), QString::fromUtf8("caf\xC3\xA9"));
}

TEST_F(ListsDesktop, TypingGoesOnBehindAForeignLetter) {
  BeginNewList();
  for (const char* part : {"", "t"}) {
    TypeText(part);
    ClickTool("MakeNewList", "Foreign");
    Settle(200);
    Widget<QSlider>("FLForm", "LScroll")->setValue(0xE9);
    Click("FLForm", "FLButton", 0);
    main().activateWindow();
    Settle(200);
  }
  TypeText("s");
  EXPECT_EQ(TextOf("MakeNewList", "TheWord"), QString::fromUtf8("\xC3\xA9t\xC3\xA9s"));
  // In the middle the caret stays where it is.
  Press(Qt::Key_Home);
  ClickTool("MakeNewList", "Foreign");
  Settle(200);
  Click("FLForm", "FLButton", 0);
  main().activateWindow();
  Settle(200);
  TypeText("x");
  EXPECT_EQ(TextOf("MakeNewList", "TheWord"), QString::fromUtf8("x\xC3\xA9t\xC3\xA9sA"));
}

// --- A list under change.

TEST_F(ListsDesktop, AWordIsAddedByTheKeysAlone) {
  BeginEdit();
  PressLetterOf(Widget("EditList", "Toolbar1")->findChild<QToolButton*>("Add Word")->text());
  Settle(200);
  ASSERT_EQ(Active(), "AddWord");
  ASSERT_TRUE(Widget("AddWord", "Text1")->hasFocus());
  TypeText("Pluto");
  Press(Qt::Key_Return);
  ASSERT_TRUE(Widget("AddWord", "Text2")->hasFocus());
  TypeText("small");
  Press(Qt::Key_Return);
  EXPECT_EQ(Active(), "EditList");
  EXPECT_EQ(On<EditList>("EditList").WordList.Text(), "Pluto");
  EXPECT_EQ(Widget<QLabel>("EditList", "TotalLabel")->text(), "Total Words In This List:  3");
}

TEST_F(ListsDesktop, ThePanelOfLettersOpensInTheBoxItself) {
  BeginEdit();
  ClickTool("EditList", "Add Word");
  const int before = WindowOf("AddWord")->height();
  Click("AddWord", "Command3");
  EXPECT_TRUE(Widget("AddWord", "Frame1")->isVisible());
  EXPECT_FALSE(Widget("AddWord", "Command3")->isVisible());
  EXPECT_TRUE(Widget("AddWord", "LScroll")->hasFocus());
  EXPECT_GT(WindowOf("AddWord")->height(), before);
  Widget<QSlider>("AddWord", "LScroll")->setValue(255);
  Click("AddWord", "FLButton", 1);
  EXPECT_EQ(TextOf("AddWord", "Text2"), QString(QChar(0xFF)));
}

TEST_F(ListsDesktop, AClickOnTheListBehindTakesTheBoxAwayAndIsNotLost) {
  BeginEdit();
  for (const char* tool : {"Add Word", "Rename List"}) {
    ClickTool("EditList", tool);
    const std::string box = Active();
    ASSERT_NE(box, "EditList");
    // As a window system brings it: the window comes to the front, then the click arrives.
    main().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main()));
    ClickRow("EditList", "WordList", tool[0] == 'A' ? 0 : 1);
    EXPECT_EQ(Loaded(box), nullptr) << tool;
    EXPECT_EQ(Active(), "EditList");
    EXPECT_EQ(On<EditList>("EditList").WordList.ListIndex, tool[0] == 'A' ? 0 : 1);
  }
}

TEST_F(ListsDesktop, AClickThatComesBeforeTheActivationIsNotLostEither) {
  BeginEdit();
  ClickTool("EditList", "Add Word");
  ClickRow("EditList", "WordList", 1);
  EXPECT_EQ(Loaded("AddWord"), nullptr);
  EXPECT_EQ(On<EditList>("EditList").WordList.ListIndex, 1);
  ClickTool("EditList", "Rename List");
  ClickTool("EditList", "Add Word");
  EXPECT_EQ(Loaded("ChangeListName"), nullptr);
  EXPECT_EQ(Active(), "AddWord");
}

TEST_F(ListsDesktop, AMessageTakesNoBoxAway) {
  BeginEdit();
  ClickTool("EditList", "Add Word");
  ASSERT_TRUE(QTest::qWaitForWindowActive(WindowOf("AddWord")));
  ASSERT_TRUE(QTest::qWaitFor([this] { return Widget("AddWord", "Text1")->hasFocus(); }));
  TypeText("Pluto");
  AnswerBoxes("OK");
  desktop_->loop().Dispatch([this] { program().MsgBox("A notice of the program's own.", "Hey!"); });
  StopWatching();
  Settle(200);
  EXPECT_EQ(boxes_, QStringList{"Hey!|A notice of the program's own."});
  ASSERT_EQ(Active(), "AddWord");
  EXPECT_EQ(TextOf("AddWord", "Text1"), "Pluto");
}

TEST_F(ListsDesktop, TheLabelForALetterIsClickedByTheMouseAndByTheKeys) {
  BeginEdit();
  ClickRow("EditList", "WordList", 0);
  ClickTool("EditList", "Edit Word");
  ASSERT_EQ(Active(), "EditWord");
  EXPECT_EQ(TextOf("EditWord", "TheWord"), "Mars");
  Click("EditWord", "Label3");
  ASSERT_EQ(Active(), "FLForm");
  ASSERT_TRUE(QTest::qWaitForWindowActive(WindowOf("FLForm")));
  Press(Qt::Key_Escape);
  ASSERT_EQ(Active(), "EditWord");
  ASSERT_TRUE(QTest::qWaitForWindowActive(WindowOf("EditWord")));
  Widget("EditWord", "Label3")->setFocus();
  Press(Qt::Key_Space);
  ASSERT_EQ(Active(), "FLForm");
  Click("FLForm", "FLButton", 0);
  EXPECT_EQ(TextOf("EditWord", "TheWord"), "MarsA");
  ASSERT_TRUE(QTest::qWaitForWindowActive(WindowOf("EditWord")));
  Widget("EditWord", "TheWord")->setFocus();
  Press(Qt::Key_Return);
  EXPECT_EQ(Active(), "EditList");
  EXPECT_EQ(On<EditList>("EditList").WordList.List(0), "MarsA");
}

TEST_F(ListsDesktop, ALetterTypedAmongTheMeaningsSelectsTheWord) {
  BeginEdit();
  Widget("EditList", "DefList")->setFocus();
  TypeText("h");
  EXPECT_EQ(On<EditList>("EditList").WordList.ListIndex, 1);
  EXPECT_EQ(Widget<QLabel>("EditList", "DefLabel")->text(), "hot");
}

TEST_F(ListsDesktop, AMeaningThatIsTooLongIsShownWholeWhileTheMouseRestsOnIt) {
  std::string meaning(200, 'm');
  folder_.Write("TheLists.dat", "Planets\r\nMars\r\n" + meaning + "\r\nVenus\r\nhot\r\n");
  Start();
  ClickTool("Title", "Edit");
  ClickRow("EditChooseList", "TheLists", 0);
  Click("EditChooseList", "Command1");
  auto* list = Widget<QListView>("EditList", "DefList");
  // Cut, it needs no room across: the rows stay beside their words.
  EXPECT_FALSE(list->horizontalScrollBar()->isVisible());
  const auto rest_on = [&](int row) {
    const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
    QHelpEvent rest(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list->viewport(), &rest);
    return QToolTip::text();
  };
  EXPECT_EQ(rest_on(0), "<p>" + QString::fromStdString(meaning) + "</p>");
  rest_on(1);
  EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text().isEmpty(); }));
}

// --- Deleting.

TEST_F(ListsDesktop, TheQuestionStandsOnTheScreenAndTheKeysAreAtNo) {
  Start();
  ClickTool("Title", "Delete");
  ClickRow("DeleteList", "TheLists", 1);
  Click("DeleteList", "Command1");
  EXPECT_TRUE(Widget("DeleteList", "Sure")->isVisible());
  EXPECT_FALSE(Widget("DeleteList", "Command1")->isVisible());
  EXPECT_TRUE(Widget("DeleteList", "No")->hasFocus());
  Press(Qt::Key_Return);
  EXPECT_FALSE(Widget("DeleteList", "Sure")->isVisible());
  EXPECT_TRUE(Widget("DeleteList", "TheLists")->hasFocus());
  Click("DeleteList", "Command1");
  Click("DeleteList", "Yes");
  EXPECT_EQ(folder_.Read("TheLists.dat"), "Planets\r\nMars\r\nred\r\nVenus\r\nhot\r\n");
}

// --- The word processor.

TEST_F(ListsDesktop, TheDialogForAWordProcessorOffersProgramsOfTheSystem) {
  std::filesystem::create_directories("programs/zoo");
  folder_.Write("programs/notes.txt", "not a program");
  for (const char* name : {"programs/writer", "programs/typist"}) {
    folder_.Write(name, "a program");
    std::filesystem::permissions(name, std::filesystem::perms::owner_all);
  }
  const QString writer = QDir("programs").absoluteFilePath("writer");
  Start();
  ClickTool("Title", "Opts");
  Click("ProgramOptions", "Command5");
  EXPECT_FALSE(Widget<QAbstractButton>("QuickWordOption", "Checks1")->isChecked());
  QString title, start;
  QStringList offered, kinds;
  int looks = 0;
  OnBoxes([&](QDialog& box) {
    auto* dialog = qobject_cast<QFileDialog*>(&box);
    if (dialog == nullptr) return QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
    // A folder is read behind the dialog, and a second one gets lost while the first is.
    const auto* shown = dialog->findChild<QListView*>("listView");
    const QModelIndex root = shown->rootIndex();
    if (shown->model()->rowCount(root) == 0) return;
    if (start.isEmpty()) {
      title = dialog->windowTitle();
      start = dialog->directory().path();
      return dialog->setDirectory("programs");
    }
    // By and by, and put in order when all of it is there.
    constexpr int kEnough = 10;
    if (++looks < kEnough) return;
    for (int row = 0; row < shown->model()->rowCount(root); ++row) {
      constexpr int kKind = 2;
      offered << shown->model()->index(row, 0, root).data().toString();
      kinds << shown->model()->index(row, kKind, root).data().toString();
    }
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText("writer");
    static_cast<QDialog*>(dialog)->accept();
  });
  QTest::mouseClick(Widget("QuickWordOption", "Label1"), Qt::LeftButton);
  Settle(300);
  EXPECT_EQ(title, "Find Word processor");
  EXPECT_EQ(start, "/usr/bin");
  EXPECT_EQ(offered, QStringList({"zoo", "typist", "writer"}));
  EXPECT_EQ(kinds, QStringList({"Folder", "Program", "Program"}));
  EXPECT_TRUE(Widget<QAbstractButton>("QuickWordOption", "Checks1")->isChecked());
  Click("QuickWordOption", "Command1");
  Settle(300);
  StopWatching();
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(folder_.Read("brindlepage.dat"),
            "Brindlepage settings\r\n2.3\r\n" + FromQString(writer) + "\r\nlistpath\r\n");
}

TEST_F(ListsDesktop, TheDialogForAWordProcessorIsMadeBeforeItIsAskedFor) {
  Start();
  ClickTool("Title", "Opts");
  EXPECT_EQ(main().findChild<QFileDialog*>(), nullptr);
  Click("ProgramOptions", "Command5");
  EXPECT_TRUE(QTest::qWaitFor([&] { return main().findChild<QFileDialog*>() != nullptr; }));
  const auto* ahead = main().findChild<QFileDialog*>();
  EXPECT_TRUE(ahead->isHidden());
  QList<const QFileDialog*> opened;
  OnBoxes([&](QDialog& box) {
    if (const auto* dialog = qobject_cast<QFileDialog*>(&box)) {
      opened << dialog;
      EXPECT_EQ(dialog->windowTitle(), "Find Word processor");
      return box.reject();
    }
    QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
  });
  for (int times : {1, 2}) {
    Click("QuickWordOption", "Label1");
    EXPECT_EQ(opened.size(), times);
    EXPECT_FALSE(Widget<QAbstractButton>("QuickWordOption", "Checks1")->isChecked());
  }
  EXPECT_EQ(opened[0], ahead);
  EXPECT_TRUE(QTest::qWaitFor([&] { return main().findChild<QFileDialog*>() == nullptr; }));
}

}  // namespace
}  // namespace brindlepage
