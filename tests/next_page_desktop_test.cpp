#include "desktop/rich_text_view.h"
#include "tests/desktop_fixture.h"
#include "toolkit/controls.h"

namespace brindlepage {
namespace {

// The page that comes next is made while the teacher looks at the one before it.
class TheNextPage : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    UseOneList(12);
    Start();
  }

  // The page of that form, shown or not, loaded or not.
  FormView* Made(const QString& form) {
    for (FormView* page : main().findChildren<FormView*>(form)) {
      if (page->form() != nullptr) return page;
    }
    return nullptr;
  }
  FormView* WaitUntilMade(const QString& form) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Made(form) != nullptr; }));
    return Made(form);
  }
  void GoToPickWordsOf(int activity) {
    GoToPickWords(activity);
    Click("PickWords", "ChooseRandom");
  }
};

TEST_F(TheNextPage, IsMadeAheadAndShowsTheSheetThatIsComposedThen) {
  GoToPickWordsOf(kStudySheet);
  FormView* page = WaitUntilMade("StudyGuideForm");
  EXPECT_EQ(Loaded("StudyGuideForm"), nullptr);
  EXPECT_TRUE(page->isHidden());
  EXPECT_EQ(Active(), "PickWords");

  Click("PickWords", "Command2");
  EXPECT_EQ(Active(), "StudyGuideForm");
  EXPECT_EQ(main().Page(), page);
  EXPECT_EQ(page->size(), main().size());
  auto* sheet = Widget<RichTextView>("StudyGuideForm", "QuizBox");
  EXPECT_TRUE(sheet->isVisible());
  EXPECT_TRUE(sheet->document().toPlainText().contains("wordal:  meaning al"));
  EXPECT_FALSE(sheet->document().toPlainText().contains("RichTextBox1"));
}

TEST_F(TheNextPage, LeavesNothingToUndoHoweverLongItWaited) {
  GoToPickWordsOf(kSecretCode);
  WaitUntilMade("CodeForm");
  Settle(600);
  Click("PickWords", "Command2");
  auto* sheet = Widget<RichTextView>("CodeForm", "QuizBox");
  const QString composed = sheet->document().toPlainText();
  EXPECT_TRUE(composed.contains("Secret Code"));
  EXPECT_FALSE(composed.contains("RichTextBox1"));
  EXPECT_FALSE(sheet->document().isUndoAvailable());
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(sheet->document().toPlainText(), composed);
}

TEST_F(TheNextPage, HasItsKeyReadyAWhileAfterItCameUp) {
  GoToPickWordsOf(kSecretCode);
  WaitUntilMade("CodeForm");
  Click("PickWords", "Command2");
  auto* key = Widget<RichTextView>("CodeForm", "AnswerBox");
  EXPECT_FALSE(key->isVisible());
  const auto* box = dynamic_cast<RichTextBox*>(Loaded("CodeForm")->FindControl("AnswerBox"));
  const QString answers = QString::fromStdU32String(box->PlainText());
  EXPECT_GT(answers.size(), 12);
  EXPECT_TRUE(QTest::qWaitFor([&] { return key->document().toPlainText() == answers; }));
  EXPECT_FALSE(key->document().isUndoAvailable());
}

TEST_F(TheNextPage, GoesWhenAnotherActivityLeadsElsewhere) {
  GoToPickWordsOf(kStudySheet);
  WaitUntilMade("StudyGuideForm");
  auto* back = desktop_->windows().Find(*Loaded("PickWords"))->findChild<QAction*>("Back");
  back->trigger();
  Settle();
  EXPECT_EQ(Active(), "Title");
  GoToPickWordsOf(kSecretCode);
  WaitUntilMade("CodeForm");
  EXPECT_EQ(Made("StudyGuideForm"), nullptr);
  Click("PickWords", "Command2");
  EXPECT_EQ(Active(), "CodeForm");
}

TEST_F(TheNextPage, IsMadeAnewForTheNextSheetOfItsKind) {
  QString texts[2];
  for (QString& text : texts) {
    GoToPickWordsOf(kSecretCode);
    FormView* page = WaitUntilMade("CodeForm");
    Click("PickWords", "Command2");
    EXPECT_EQ(main().Page(), page);
    text = Widget<RichTextView>("CodeForm", "QuizBox")->document().toPlainText();
    desktop_->windows().Find(*Loaded("CodeForm"))->findChild<QAction*>("Back")->trigger();
    Settle();
    EXPECT_EQ(Active(), "Title");
  }
  EXPECT_NE(texts[0], texts[1]);
}

TEST_F(TheNextPage, IsThereHoweverSoonItIsAskedFor) {
  Click("Title", "Command1", kSecretCode);
  ClickRow("ChooseList", "TheLists", 0);
  Click("ChooseList", "Command1");
  const auto click_at_once = [this](const std::string& form, const std::string& name) {
    QTest::mouseClick(Widget(form, name), Qt::LeftButton);
    QApplication::processEvents();
  };
  click_at_once("QuizOptions5", "Command1");
  click_at_once("PickWords", "ChooseRandom");
  click_at_once("PickWords", "Command2");
  EXPECT_EQ(Active(), "CodeForm");
  EXPECT_EQ(main().Page(), Made("CodeForm"));
}

TEST_F(TheNextPage, WaitsForABoxToBeAnswered) {
  GoToPickWords(kStudySheet);
  // Before there was time to make it.
  FormView* made_in_box = nullptr;
  bool seen = false;
  program().Dispatch([&] {
    QTimer::singleShot(300, &box_watch_, [&] {
      seen = true;
      made_in_box = Made("QuizOptions5");
      qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept();
    });
    program().shared.ActivityKind = kSecretCode;
    program().forms().Show(Screen::ChooseList);
    program().MsgBox("text", "title");
  });
  EXPECT_TRUE(seen);
  EXPECT_EQ(made_in_box, nullptr);
  WaitUntilMade("QuizOptions5");
}

TEST_F(TheNextPage, GoesWithAProgramThatEndsBeforeIt) {
  GoToPickWordsOf(kStudySheet);
  WaitUntilMade("StudyGuideForm");
  desktop_->windows().Find(*Loaded("PickWords"))->findChild<QAction*>("Quit")->trigger();
  Settle();
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 0);
}

}  // namespace
}  // namespace brindlepage
