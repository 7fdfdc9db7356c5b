// A document of many pages on an open sheet: it is loaded when it is first seen and laid out as far
// as it is seen, and the rest by and by.

#include <QAbstractTextDocumentLayout>
#include <QBackingStore>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTextLayout>

#include "tests/open_sheet.h"

namespace brindlepage {
namespace {

class ALongSheet : public AnOpenSheet {
 protected:
  static constexpr int kLines = 800;

  ALongSheet() {
    Compose([](RichTextBox& box) {
      std::string lines;
      for (int i = 1; i <= kLines; ++i) {
        lines += "line " + std::to_string(i) + " of a sheet that goes on and on\n";
      }
      box.SelText(lines);
      box.SelStart(0);
    });
  }

  QScrollBar& Bar() { return *view->verticalScrollBar(); }
  bool LastLineIsLaidOut() {
    return view->document().lastBlock().previous().layout()->lineCount() > 0;
  }
  void AwaitLayout() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return LastLineIsLaidOut(); }));
    QApplication::processEvents();
  }
  // The number of the line at the top of the window.
  int TopLine() {
    const QPointF top = view->mapToScene(0, 0);
    const int position = view->document().documentLayout()->hitTest(top, Qt::FuzzyHit);
    return view->document().findBlock(position).blockNumber() + 1;
  }
};

TEST_F(AnOpenSheet, AHiddenKeyIsLoadedWhenItIsFirstShown) {
  RichTextView key(form().KeyBox, runtime);
  runtime.Dispatch([this] {
    form().KeyBox.Text("");
    form().KeyBox.SelText("1. Mars\n");
  });
  EXPECT_TRUE(key.document().isEmpty());
  runtime.Dispatch([this] { form().KeyBox.SelText("2. Venus"); });
  key.show();
  EXPECT_EQ(key.document().toPlainText(), "1. Mars\n2. Venus");
  key.hide();
  runtime.Dispatch([this] { form().KeyBox.SelText("!"); });
  QApplication::processEvents();
  EXPECT_EQ(key.document().toPlainText(), "1. Mars\n2. Venus!");
}

TEST_F(ALongSheet, StaysAtThePapersEdgeInAWindowThatGrows) {
  ASSERT_EQ(Bar().value(), Bar().minimum());
  view->window()->resize(view->window()->width(), 3 * view->window()->height());
  AwaitLayout();
  EXPECT_EQ(Bar().value(), Bar().minimum());
}

TEST_F(ALongSheet, IsLaidOutAsFarAsItIsSeenAndToItsEndByAndBy) {
  EXPECT_FALSE(LastLineIsLaidOut());
  EXPECT_EQ(TopLine(), 1);
  const int so_far = Bar().maximum();
  AwaitLayout();
  EXPECT_GT(Bar().maximum(), 10 * Bar().pageStep());
  EXPECT_GT(Bar().maximum(), so_far);
  EXPECT_EQ(Bar().value(), Bar().minimum());
  ExpectBothEqual();
}

TEST_F(ALongSheet, IsScrolledToItsEndAtOnceIfTheCaretGoesThere) {
  view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  Compose([](RichTextBox& box) {
    box.SelText(std::string(200, 'x'));
    for (int i = 0; i < kLines; ++i) box.SelText("another line of it\n");
    box.SelStart(0);
  });
  ASSERT_FALSE(LastLineIsLaidOut());
  Key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_TRUE(LastLineIsLaidOut());
  EXPECT_EQ(view->Caret().blockNumber(), kLines);
  EXPECT_TRUE(QTest::qWaitFor([this] { return TopLine() > kLines - 100; })) << TopLine();
}

TEST_F(ALongSheet, StaysWhereItIsWhileAllOfItIsSelectedFormattedAndUndone) {
  AwaitLayout();
  for (const int place : {Bar().minimum(), Bar().maximum() / 2, Bar().maximum()}) {
    Bar().setValue(place);
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Bar().value(), place);
    Key(Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(Bar().value(), place);
    EXPECT_EQ(box().SelItalic(), true);
    AwaitLayout();
    EXPECT_EQ(Bar().value(), place);
    ExpectBothEqual();
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box().SelItalic(), false);
    EXPECT_EQ(Bar().value(), place);
    EXPECT_EQ(box().SelLength(), box().Length());
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box().SelItalic(), true);
    EXPECT_EQ(Bar().value(), place);
    Key(Qt::Key_Z, Qt::ControlModifier);
    AwaitLayout();
    ExpectBothEqual();
  }
}

// Counts the paintings of more than half of a widget.
class Paintings : public QObject {
 public:
  explicit Paintings(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    const QRect part = static_cast<QPaintEvent*>(event)->region().boundingRect();
    if (part.height() > widget_.height() / 2) ++count;
    return false;
  }
  int count = 0;

 private:
  QWidget& widget_;
};

TEST_F(ALongSheet, IsStillLaidOutByAndByWhenTheFocusComesBackAndAfterAnUndo) {
  AwaitLayout();
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_B, Qt::ControlModifier);
  EXPECT_FALSE(LastLineIsLaidOut());
  view->clearFocus();
  view->setFocus();
  EXPECT_FALSE(LastLineIsLaidOut());
  AwaitLayout();
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(LastLineIsLaidOut());
  EXPECT_EQ(box().SelBold(), false);
}

TEST_F(AnOpenSheet, TheCaretBlinksAgainOnceNothingIsSelected) {
  view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  Compose([](RichTextBox& box) { box.SelText("one two"); });
  const auto caret_shows = [this] {
    const QTextCursor caret = view->Caret();
    const QTextLine line = caret.block().layout()->lineAt(0);
    const QPointF at(line.cursorToX(caret.positionInBlock()) + 2, line.height() / 2);
    const QImage seen = view->viewport()->grab().toImage();
    return seen.pixelColor(view->mapFromScene(at)).value() < 128;
  };
  PutCaret(7);
  EXPECT_TRUE(QTest::qWaitFor(caret_shows));
  PutCaret(0, 7);
  view->clearFocus();
  view->setFocus();
  PutCaret(7);
  EXPECT_TRUE(QTest::qWaitFor(caret_shows));
  PutCaret(0, 7);
  view->clearFocus();
  PutCaret(7);
  QTest::qWait(100);
  EXPECT_FALSE(QTest::qWaitFor(caret_shows, 1200));
  view->setFocus();
  EXPECT_TRUE(QTest::qWaitFor(caret_shows));
}

TEST_F(ALongSheet, IsPaintedOnceAndWholeWhenAllOfItIsFormatted) {
  AwaitLayout();
  Key(Qt::Key_A, Qt::ControlModifier);
  QTest::qWait(20);
  const auto has_text_at_the_end = [this] {
    const auto& window = dynamic_cast<QImage&>(*view->backingStore()->paintDevice());
    const QRect end(0, window.height() - 40, window.width() - 40, 20);
    bool has = false;
    for (int x = end.left(); x < end.right(); ++x) {
      for (int y = end.top(); y < end.bottom(); ++y) has |= window.pixelColor(x, y).value() < 80;
    }
    return has;
  };
  ASSERT_TRUE(has_text_at_the_end());

  const Paintings paintings(*view->viewport());
  Key(Qt::Key_B, Qt::ControlModifier);
  while (paintings.count == 0) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_FALSE(LastLineIsLaidOut());
  EXPECT_TRUE(has_text_at_the_end());
  AwaitLayout();
  EXPECT_EQ(paintings.count, 1);
}

TEST_F(ALongSheet, KeepsTheCaretThatScrollsItUnderTheMouse) {
  AwaitLayout();
  QTest::mouseMove(view->viewport(), QPoint(300, 300));
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(300, 300));
  const int clicked = box().SelStart();
  EXPECT_GT(clicked, 0);
  const int end = box().Length();

  Key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(view->Caret().position(), end);
  EXPECT_EQ(box().SelStart(), end);
  Key(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(box().SelStart(), 0);
  EXPECT_EQ(Bar().value(), Bar().minimum());
  Key(Qt::Key_PageDown);
  Key(Qt::Key_PageDown);
  EXPECT_GT(box().SelStart(), clicked);
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(box().SelStart(), 0);
  EXPECT_EQ(box().SelLength(), end);
  ExpectBothEqual();
}

TEST_F(ALongSheet, IsNoLongerScrolledOnceAllOfItIsDeleted) {
  AwaitLayout();
  Bar().setValue(Bar().maximum());
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_Delete);
  QApplication::processEvents();
  EXPECT_EQ(BoxText(), "");
  EXPECT_EQ(Bar().maximum(), 0);
  Key(Qt::Key_Z, Qt::ControlModifier);
  AwaitLayout();
  EXPECT_EQ(view->document().blockCount(), kLines + 1);
  ExpectBothEqual();
}

}  // namespace
}  // namespace brindlepage
