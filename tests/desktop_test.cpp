#include "desktop/desktop.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QtTest/QTest>
#include <filesystem>
#include <memory>
#include <string>

#include "core/pick_words.h"
#include "core/title.h"
#include "desktop/boxes.h"
#include "desktop/icons.h"
#include "desktop/mnemonics.h"
#include "desktop/style.h"
#include "desktop/text.h"
#include "tests/desktop_fixture.h"

namespace brindlepage {
namespace {

// --- The menu.

TEST_F(DesktopTest, AClickOnAMenuButtonStartsItsActivity) {
  Start();
  EXPECT_EQ(main().windowTitle(), "Brindlepage");
  Click("Title", "Command1", 3);
  EXPECT_EQ(Active(), "ChooseList");
  EXPECT_EQ(program().shared.ActivityKind, 3);
  EXPECT_EQ(main().windowTitle(), "Choose a list to work from");
  EXPECT_EQ(Loaded("Title"), nullptr);
  EXPECT_EQ(main().Page(), desktop_->windows().Find(*Loaded("ChooseList")));
}

TEST_F(DesktopTest, TheMenuHasItsFirstButtonInFocusAndTheTabKeyGoesOn) {
  Start();
  EXPECT_TRUE(Widget("Title", "Command1", 0)->hasFocus());
  Press(Qt::Key_Tab);
  EXPECT_TRUE(Widget("Title", "Command1", 1)->hasFocus());
  Press(Qt::Key_Space);
  EXPECT_EQ(Active(), "ChooseList");
  EXPECT_EQ(program().shared.ActivityKind, 1);
}

TEST_F(DesktopTest, EnterClicksTheMenuButtonInFocus) {
  Start();
  Press(Qt::Key_Return);
  EXPECT_EQ(Active(), "ChooseList");
  EXPECT_EQ(program().shared.ActivityKind, 0);
}

TEST_F(DesktopTest, ALetterWithAltClicksItsMenuButton) {
  Start();
  PressLetterOf(Widget<QPushButton>("Title", "Command1", 4)->text());
  Settle(200);
  EXPECT_EQ(Active(), "ChooseList");
  EXPECT_EQ(program().shared.ActivityKind, 4);
}

TEST_F(DesktopTest, EveryMenuButtonHasALetterOfItsOwn) {
  Start();
  QStringList letters;
  for (auto* button : main().findChildren<QAbstractButton*>()) {
    const QString text = button->text();
    ASSERT_GE(text.indexOf('&'), 0) << text.toStdString();
    letters << text.mid(text.indexOf('&') + 1, 1).toLower();
  }
  EXPECT_EQ(letters.size(), 16);
  EXPECT_EQ(letters.removeDuplicates(), 0);
}

TEST_F(DesktopTest, TheToolbarsQuitEndsTheProgram) {
  Start();
  ClickTool("Title", "Quit");
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 0);
}

TEST_F(DesktopTest, TheProcessEndsWithTheProgram) {
  desktop_ = std::make_unique<Desktop>();
  QTimer::singleShot(150, &box_watch_, [this] { ClickTool("Title", "Quit"); });
  EXPECT_EQ(desktop_->Run(), 0);
  EXPECT_TRUE(program().Ended());
}

TEST_F(DesktopTest, TheProcessEndsWhenTheFrameIsClosed) {
  desktop_ = std::make_unique<Desktop>();
  QTimer::singleShot(150, &box_watch_, [this] { main().close(); });
  EXPECT_EQ(desktop_->Run(), 0);
}

TEST_F(DesktopTest, TheProcessEndsAtOnceWhenTheStartFails) {
  std::filesystem::remove(folder_.Path() / "titleback.jpg");
  AnswerBoxes("OK");
  desktop_ = std::make_unique<Desktop>();
  EXPECT_EQ(desktop_->Run(), 1);
}

TEST_F(DesktopTest, ClosingTheFrameEndsTheProgram) {
  Start();
  main().close();
  Settle();
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 0);
}

TEST_F(DesktopTest, ClosingTheFrameOfAnotherScreenEndsTheProgramToo) {
  Start();
  Click("Title", "Command3");
  EXPECT_EQ(Active(), "JustForFun");
  main().close();
  Settle();
  EXPECT_TRUE(program().Ended());
}

// --- Boxes over a screen.

TEST_F(DesktopTest, TheAboutBoxGoesWhenTheMenuBehindItIsClickedAndTheClickCounts) {
  Start();
  ClickTool("Title", "Info");
  ASSERT_EQ(Active(), "AboutForm");
  EXPECT_TRUE(desktop_->windows().Find(*Loaded("AboutForm"))->window()->isVisible());
  EXPECT_EQ(desktop_->windows().Find(*Loaded("AboutForm"))->window()->windowTitle(),
            "About Brindlepage");
  Click("Title", "Command3");
  EXPECT_EQ(Loaded("AboutForm"), nullptr);
  EXPECT_EQ(Active(), "JustForFun");
}

TEST_F(DesktopTest, TheAboutBoxGoesWhenTheMainWindowComesToTheFront) {
  Start();
  ClickTool("Title", "Info");
  QWidget* box = desktop_->windows().Find(*Loaded("AboutForm"))->window();
  ASSERT_TRUE(QTest::qWaitForWindowActive(box));
  main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main()));
  Settle();
  EXPECT_EQ(Loaded("AboutForm"), nullptr);
  EXPECT_EQ(Active(), "Title");
}

TEST_F(DesktopTest, EnterEscapeAndTheFrameCloseTheAboutBox) {
  Start();
  for (int way = 0; way < 3; ++way) {
    ClickTool("Title", "Info");
    QWidget* box = desktop_->windows().Find(*Loaded("AboutForm"))->window();
    ASSERT_TRUE(QTest::qWaitForWindowActive(box));
    if (way == 0) Press(Qt::Key_Return);
    if (way == 1) Press(Qt::Key_Escape);
    if (way == 2) box->close();
    Settle();
    EXPECT_EQ(Loaded("AboutForm"), nullptr) << way;
    EXPECT_EQ(Active(), "Title") << way;
    EXPECT_FALSE(program().Ended());
  }
}

// --- The choice of a list.

TEST_F(DesktopTest, AClickOnAListEnablesBeginAndADoubleClickBegins) {
  Start();
  Click("Title", "Command1", 4);
  EXPECT_FALSE(Widget("ChooseList", "Command1")->isEnabled());
  ClickRow("ChooseList", "TheLists", 1);
  EXPECT_TRUE(Widget("ChooseList", "Command1")->isEnabled());

  auto* list = Widget<QListView>("ChooseList", "TheLists");
  const QModelIndex second = list->model()->index(1, 0);
  EXPECT_EQ(list->currentIndex(), second);
  const std::string name = FromQString(second.data().toString());
  DoubleClick(list, list->visualRect(second).center());
  EXPECT_EQ(Active(), "QuizOptions5");
  EXPECT_EQ(program().shared.CurrentListName, name);
}

TEST_F(DesktopTest, ADoubleClickBelowTheListsShowsTheReminder) {
  UseOneList(4);
  Start();
  Click("Title", "Command1", 4);
  auto* list = Widget<QListView>("ChooseList", "TheLists");
  DoubleClick(list, QPoint(20, list->viewport()->height() - 5));
  ASSERT_NE(Loaded("ChooseReminder"), nullptr);
  auto* button = Widget("ChooseReminder", "Command1");
  EXPECT_TRUE(button->isVisible());
  // All of it is in the small window.
  EXPECT_TRUE(button->window()->rect().contains(
      QRect(button->mapTo(button->window(), QPoint()), button->size())));
  Click("ChooseReminder", "Command1");
  EXPECT_EQ(Active(), "ChooseList");
}

TEST_F(DesktopTest, AListIsChosenWithTheKeysAlone) {
  Start();
  Click("Title", "Command1", 3);
  EXPECT_TRUE(Widget("ChooseList", "TheLists")->hasFocus());
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  const std::string name = FromQString(
      Widget<QListView>("ChooseList", "TheLists")->model()->index(1, 0).data().toString());
  Press(Qt::Key_Return);
  EXPECT_EQ(Active(), "QuizOptions3");
  EXPECT_EQ(program().shared.CurrentListName, name);
}

TEST_F(DesktopTest, EscapeGoesBackFromTheListsToTheMenu) {
  Start();
  Click("Title", "Command1", 3);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Active(), "Title");
}

TEST_F(DesktopTest, TypingALetterSelectsTheNextListThatBeginsWithIt) {
  Start();
  Click("Title", "Command1", 3);
  auto* list = Widget<QListView>("ChooseList", "TheLists");
  QTest::keyClick(list, 's');
  Settle();
  EXPECT_TRUE(list->currentIndex().data().toString().startsWith('S'));
  EXPECT_TRUE(Widget("ChooseList", "Command1")->isEnabled());
}

TEST_F(DesktopTest, AMenuItemWorks) {
  Start();
  Click("Title", "Command1", 3);
  auto* bar = main().Page()->findChild<QMenuBar*>();
  auto* item = bar->findChild<QAction*>("Return");
  ASSERT_NE(item, nullptr);
  item->trigger();
  Settle();
  EXPECT_EQ(Active(), "Title");
}

// --- The option screens.

TEST_F(DesktopTest, AClickOnTheLabelBesideAnOptionTurnsItOn) {
  Start();
  Click("Title", "Command1", 3);
  ClickRow("ChooseList", "TheLists", 0);
  Click("ChooseList", "Command1");
  EXPECT_TRUE(Widget<QRadioButton>("QuizOptions3", "MC")->isChecked());
  Click("QuizOptions3", "Label3", 1);
  EXPECT_TRUE(Widget<QRadioButton>("QuizOptions3", "Match")->isChecked());
  EXPECT_FALSE(Widget<QRadioButton>("QuizOptions3", "MC")->isChecked());
  Click("QuizOptions3", "FillYes");
  EXPECT_TRUE(Widget<QRadioButton>("QuizOptions3", "FillYes")->isChecked());
  Click("QuizOptions3", "Command1");
  EXPECT_EQ(program().shared.QuizKind, kWordBank);
}

TEST_F(DesktopTest, TheArrowKeysGoThroughTheOptionsAsTheyStand) {
  Start();
  Click("Title", "Command1", 3);
  ClickRow("ChooseList", "TheLists", 0);
  Click("ChooseList", "Command1");
  EXPECT_TRUE(Widget("QuizOptions3", "MC")->hasFocus());
  Press(Qt::Key_Down);
  EXPECT_TRUE(Widget<QRadioButton>("QuizOptions3", "MC2")->isChecked());
  EXPECT_TRUE(Widget("QuizOptions3", "MC2")->hasFocus());
  Press(Qt::Key_Up);
  Press(Qt::Key_Up);  // round to the last one
  EXPECT_TRUE(Widget<QRadioButton>("QuizOptions3", "FillYes")->isChecked());
  Press(Qt::Key_Return);
  EXPECT_EQ(Active(), "QuizOptions5");
  EXPECT_EQ(program().shared.QuizKind, kWordBank);
}

TEST_F(DesktopTest, AHeadingTakesNoCharacterThatTheCodePageLacks) {
  UseOneList(4);
  Start();
  Click("Title", "Command1", 4);
  ClickRow("ChooseList", "TheLists", 0);
  Click("ChooseList", "Command1");
  auto* line = Widget<QLineEdit>("QuizOptions5", "Text1");
  EXPECT_TRUE(line->hasFocus());
  EXPECT_EQ(line->text(), "Everything Study Guide");
  EXPECT_EQ(line->selectedText(), line->text());

  line->setCursorPosition(10);
  QInputMethodEvent character;
  character.setCommitString(QString::fromUtf8("中"));
  QApplication::sendEvent(line, &character);
  Settle();
  EXPECT_EQ(line->text(), "Everything Study Guide");
  EXPECT_EQ(line->cursorPosition(), 10);

  QApplication::clipboard()->setText(QString::fromUtf8(" 中für文 all"));
  line->paste();
  Settle();
  EXPECT_EQ(line->text(), QString::fromUtf8("Everything für all Study Guide"));
  EXPECT_EQ(line->cursorPosition(), 18);

  QTest::keyClicks(line, "!");
  Press(Qt::Key_Return);
  EXPECT_EQ(program().shared.WorksheetTitle, "Everything f\xFCr all! Study Guide");
  EXPECT_EQ(Active(), "PickWords");
}

// --- The word picker.

TEST_F(DesktopTest, SpaceAndAClickAnywhereOnARowMarkWords) {
  UseOneList(5);
  Start();
  GoToPickWords(4);
  ASSERT_EQ(Active(), "PickWords");
  auto* words = Widget<QListView>("PickWords", "TheWords");
  const auto marked = [&](int row) {
    return words->model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
  };
  EXPECT_TRUE(words->hasFocus());
  Press(Qt::Key_Down);
  Press(Qt::Key_Space);
  EXPECT_TRUE(marked(0));
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  Press(Qt::Key_Space);
  EXPECT_TRUE(marked(2));
  EXPECT_EQ(Widget<QLabel>("PickWords", "Label1")->text(), "Total words marked:  2");

  ClickRow("PickWords", "TheWords", 4);
  EXPECT_TRUE(marked(4));
  ClickRow("PickWords", "TheWords", 0);
  EXPECT_FALSE(marked(0));
  EXPECT_EQ(Widget<QLabel>("PickWords", "Label1")->text(), "Total words marked:  2");

  Click("PickWords", "ChooseRandom");
  for (int row = 0; row < 5; ++row) EXPECT_TRUE(marked(row)) << row;
  EXPECT_EQ(Widget<QLabel>("PickWords", "Label1")->text(), "Total Words Marked:  5");
}

TEST_F(DesktopTest, AMessageIsAnsweredWithTheMouse) {
  UseOneList(3);
  Start();
  AnswerBoxes("OK");
  GoToPickWords(0);
  Settle(200);
  Click("PickWords", "Command2");
  EXPECT_EQ(boxes_, (QStringList{"Notice:|For this activity, spaces have been removed to create a "
                                 "better puzzle.",
                                 "Hey!|You need to mark some words first!"}));
  EXPECT_EQ(Active(), "PickWords");
}

TEST_F(DesktopTest, AQuestionIsAnsweredWithEnterOrEscape) {
  UseOneList(80);
  Start();
  AnswerBoxes("OK");
  GoToPickWords(0);
  Settle(200);
  StopWatching();

  OnBoxes([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  Click("PickWords", "ChooseRandom");
  EXPECT_EQ(Widget<QLabel>("PickWords", "Label1")->text(), "Total words marked: 0");
  StopWatching();

  OnBoxes([](QDialog& box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); });
  Click("PickWords", "ChooseRandom");
  EXPECT_EQ(Widget<QLabel>("PickWords", "Label1")->text(), "Total Words Marked: 75");
}

TEST_F(DesktopTest, TheTimersGoOnWhileABoxIsOpen) {
  // A word search tells of removed blanks, and of removed words in the next tick.
  folder_.Write("TheLists.dat",
                "Everything\r\nant\r\nan insect\r\nmuch too long a word to use\r\nlong\r\n");
  Start();
  int most = 0;
  OnBoxes([&](QDialog& box) {
    int open = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      open += qobject_cast<QDialog*>(window) != nullptr && window->isVisible() ? 1 : 0;
    }
    most = std::max(most, open);
    if (open == 2 || most == 2) box.accept();
  });
  GoToPickWords(0);
  Settle(300);
  EXPECT_EQ(most, 2);
  EXPECT_EQ(Active(), "PickWords");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(DesktopTest, ABoxClosesWhenTheProgramEndsBehindIt) {
  UseOneList(3);
  Start();
  int opened = 0;
  OnBoxes([&](QDialog&) {
    ++opened;
    desktop_->loop().Dispatch([this] { program().End(); });
  });
  GoToPickWords(0);
  Settle(200);
  EXPECT_EQ(opened, 1);
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 0);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(DesktopTest, AHandlerSeesItsChangesOnScreenWhenABoxOpens) {
  UseOneList(80);
  Start();
  AnswerBoxes("OK");
  GoToPickWords(4);
  Settle(100);
  StopWatching();
  QString shown;
  OnBoxes([&](QDialog& box) {
    shown = Widget<QLabel>("PickWords", "Label1")->text();
    box.accept();
  });
  auto& form = dynamic_cast<PickWords&>(*Loaded("PickWords"));
  desktop_->loop().Dispatch([&] {
    form.Label1.Caption = "in the middle of it";
    program().MsgBox("Now?", "Test");
  });
  EXPECT_EQ(shown, "in the middle of it");
}

// --- Faults.

TEST_F(DesktopTest, ARunTimeErrorShowsItsMessageAndEndsTheProgramWithStatusOne) {
  std::filesystem::remove(folder_.Path() / "titleback.jpg");
  AnswerBoxes("OK");
  Start();
  EXPECT_EQ(boxes_, QStringList("Brindlepage|Run-time error '53':\n\nFile not found"));
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 1);
}

TEST_F(DesktopTest, AMissingSettingsFileEndsTheProgramWithItsOwnMessage) {
  std::filesystem::remove(folder_.Path() / "brindlepage.dat");
  AnswerBoxes("OK");
  Start();
  ASSERT_EQ(boxes_.size(), 1);
  EXPECT_TRUE(boxes_[0].startsWith("Error!|Some required files cannot be found by the program."));
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 0);
}

// --- Draws without end.

TEST(DesktopRandom, AsksOnceAHandlerHasDrawnForMoreThanTenSeconds) {
  Milliseconds now = 5000;
  int asked = 0;
  DesktopRandom random([&] { return now; }, [&] { ++asked; });
  const auto draw = [&](std::uint32_t looks) {
    for (std::uint32_t i = 0; i < looks * DesktopRandom::kDrawsBetweenLooks; ++i) {
      random.NextRandom();
    }
  };
  random.BeginHandler();
  draw(1);
  now += 10'000;
  draw(1);
  EXPECT_EQ(asked, 0);
  now += 1;
  draw(1);
  EXPECT_EQ(asked, 1);
  // Who waits waits another ten seconds.
  draw(1);
  EXPECT_EQ(asked, 1);
  now += 10'001;
  draw(1);
  EXPECT_EQ(asked, 2);
  // The next handler has time of its own.
  random.BeginHandler();
  now += 60'000;
  draw(1);
  EXPECT_EQ(asked, 2);
}

// The program with a clock of the test's own.
TEST_F(DesktopTest, TheTeacherCanCloseAProgramThatDrawsWithoutEnd) {
  Milliseconds now = 0;
  Loop loop;
  Windows windows(loop);
  QtPlatform platform(loop, windows);
  Runtime* runtime = nullptr;
  DesktopRandom random([&] { return now += 6000; },
                       [&] {
                         if (!platform.AskToWait()) runtime->End();
                       });
  BrindlepageProgram program(platform, random);
  runtime = &program;
  loop.Attach(program);
  program.Start();
  windows.Flush();

  int asked = 0;
  OnBoxes([&](QDialog& box) {
    EXPECT_EQ(box.windowTitle(), "Brindlepage");
    QTest::mouseClick(box.findChild<QPushButton*>(++asked == 1 ? "Wait" : "Close the program"),
                      Qt::LeftButton);
  });
  random.BeginHandler();
  loop.Dispatch([&] {
    for (;;) program.random().NextRandom();
  });
  EXPECT_EQ(asked, 2);
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 0);
}

// --- Small parts.

TEST(Mnemonics, TakesTheFirstFreeLetterOfAWordThenAnyThenNone) {
  Mnemonics letters;
  EXPECT_EQ(letters.Assign("Create a Quiz"), "&Create a Quiz");
  EXPECT_EQ(letters.Assign("Create a Crossword"), "Create &a Crossword");
  EXPECT_EQ(letters.Assign("Create"), "C&reate");
  EXPECT_EQ(letters.Assign("Q&A"), "&Q&&A");
  EXPECT_EQ(letters.Assign("aqua"), "aq&ua");
  EXPECT_EQ(letters.Assign("Caq"), "Caq");
}

TEST_F(DesktopTest, EveryIconOfTheMenuAndItsToolbarIsDrawnAndFadesWhenDisabled) {
  Start();
  const auto picture = [](const QIcon& icon, QIcon::Mode mode) {
    return icon.pixmap(QSize(32, 32), mode).toImage();
  };
  for (const auto* button : main().findChildren<QAbstractButton*>()) {
    const QIcon icon = button->icon();
    ASSERT_FALSE(icon.isNull()) << button->text().toStdString();
    QImage empty(32, 32, QImage::Format_ARGB32_Premultiplied);
    empty.fill(Qt::transparent);
    const QImage normal = picture(icon, QIcon::Normal);
    EXPECT_NE(normal, empty.convertToFormat(normal.format())) << button->text().toStdString();
    EXPECT_NE(normal, picture(icon, QIcon::Disabled)) << button->text().toStdString();
  }
}

TEST_F(DesktopTest, TheScreensFontsAreThoseThatTheCodePageCanName) {
  Start();
  const auto fonts = program().platform().ScreenFonts();
  ASSERT_FALSE(fonts.empty());
  for (const std::string& font : fonts) EXPECT_EQ(font.find('?'), std::string::npos) << font;
}

TEST_F(DesktopTest, AnInputBoxGivesItsTextOrNothing) {
  Start();
  OnBoxes([](QDialog& box) {
    auto* line = box.findChild<QLineEdit*>();
    EXPECT_EQ(line->text(), "Planets");
    EXPECT_EQ(line->selectedText(), "Planets");
    QTest::keyClicks(line, "Moons");
    QTest::keyClick(line, Qt::Key_Return);
  });
  std::optional<std::string> text;
  desktop_->loop().Dispatch([&] { text = program().InputBox("Name:", "Save", "Planets"); });
  EXPECT_EQ(text, "Moons");
  StopWatching();

  OnBoxes([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  desktop_->loop().Dispatch([&] { text = program().InputBox("Name:", "Save", "Planets"); });
  EXPECT_EQ(text, std::nullopt);
}

TEST_F(DesktopTest, AMessageOfThreeAnswersTakesEscapeForCancel) {
  Start();
  OnBoxes([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  BoxAnswer answer = BoxAnswer::Ok;
  desktop_->loop().Dispatch(
      [&] { answer = program().MsgBox("Save?", "Save", BoxButtons::YesNoCancel); });
  EXPECT_EQ(answer, BoxAnswer::Cancel);
}

}  // namespace
}  // namespace brindlepage

// What the font and theme libraries keep for the whole process is not ours to free.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  brindlepage::ApplyStyle(application);
  return RUN_ALL_TESTS();
}
