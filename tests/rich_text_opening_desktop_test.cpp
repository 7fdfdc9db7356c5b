#include <gtest/gtest.h>

#include <QtTest/QTest>

#include "tests/open_sheet.h"

namespace brindlepage {
namespace {

// A sheet of many pages, about to be opened.
class ASheetOfManyPages : public AnOpenSheet {
 protected:
  static constexpr int kLines = 2000;

  ASheetOfManyPages() {
    runtime.Dispatch([this] {
      box().Text("");
      for (int line = 1; line <= kLines; ++line) {
        box().SelBold(line % 3 == 0);
        box().SelAlignment(line % 50 == 0 ? Alignment::Centre : Alignment::Left);
        box().SelUnicode(U"A line of a long sheet \U0001F30B, no. ");
        box().SelText(std::to_string(line) + "\n");
      }
      box().SelStart(0);
    });
    view.reset();
  }
  void Open() {
    view = std::make_unique<RichTextView>(box(), runtime);
    view->resize(900, 700);
    view->show();
  }
  bool IsWhole() const { return view->document().blockCount() == kLines + 1; }
  void Change(const std::function<void(RichTextBox&)>& change) {
    runtime.Dispatch([&] { change(box()); });
  }
};

TEST_F(ASheetOfManyPages, OpensWithItsTopAndHasTheRestWhenThatIsPainted) {
  Open();
  EXPECT_FALSE(IsWhole());
  // More than the window can show.
  view->document().documentLayout()->documentSize();
  EXPECT_GT(view->document().blockCount(), 200);
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsWhole(); }));
  ExpectBothEqual();
  EXPECT_FALSE(view->document().isUndoAvailable());
}

TEST_F(ASheetOfManyPages, HasTheRestBeforeAKeyIsTaken) {
  Open();
  EXPECT_FALSE(IsWhole());
  Key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_TRUE(IsWhole());
  EXPECT_EQ(box().SelStart(), box().Length());
  Type("the end");
  EXPECT_TRUE(BoxText().ends_with("no. 2000\nthe end"));
  ExpectBothEqual();
  for (int i = 0; i < 8; ++i) view->Undo();
  EXPECT_TRUE(BoxText().ends_with("no. 2000\n"));
  ExpectBothEqual();
}

TEST_F(ASheetOfManyPages, HasTheRestBeforeTheMouseIsTaken) {
  Open();
  EXPECT_FALSE(IsWhole());
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(450, 300));
  EXPECT_TRUE(IsWhole());
  EXPECT_GT(box().SelStart(), 0);
  ExpectBothEqual();
}

TEST_F(ASheetOfManyPages, IsCopiedWholeAtOnce) {
  Open();
  EXPECT_FALSE(IsWhole());
  view->SelectAll();
  EXPECT_EQ(box().SelLength(), box().Length());
  view->Copy();
  EXPECT_EQ(QApplication::clipboard()->text().count(u'\n'), kLines);
}

TEST_F(ASheetOfManyPages, OpensWholeWithItsCaretFarDown) {
  Change([](RichTextBox& b) { b.SelStart(b.Length()); });
  Open();
  EXPECT_TRUE(IsWhole());
  ExpectBothEqual();
}

TEST_F(ASheetOfManyPages, GetsItsCaretFarDownBeforeItIsPainted) {
  Open();
  EXPECT_FALSE(IsWhole());
  Change([](RichTextBox& b) { b.SelStart(b.Length() - 3); });
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsWhole(); }));
  ExpectBothEqual();
}

TEST_F(ASheetOfManyPages, IsChangedBeforeItIsPainted) {
  for (const bool at_the_end : {false, true}) {
    Open();
    EXPECT_FALSE(IsWhole());
    Change([&](RichTextBox& b) {
      b.SelStart(at_the_end ? b.Length() : 5);
      b.SelText(" and more");
    });
    ExpectBothEqual();
    EXPECT_TRUE(IsWhole());
    view.reset();
    Change([](RichTextBox& b) { b.SelStart(0); });
  }
}

TEST_F(ASheetOfManyPages, OfOneParagraphOpensWhole) {
  Change([](RichTextBox& b) {
    b.Text("");
    for (int i = 0; i < kLines; ++i) b.SelText("one word after the other ");
    b.SelStart(0);
  });
  Open();
  ExpectBothEqual();
}

}  // namespace
}  // namespace brindlepage
