#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTextLayout>
#include <QtTest/QTest>

#include "desktop/rich_text_view.h"
#include "tests/open_sheet.h"

namespace brindlepage {
namespace {

// --- What is shown at first

TEST_F(AnOpenSheet, TheWholeDocumentIsShownAsItStandsWhenTheSheetOpens) {
  Compose([](RichTextBox& box) {
    box.SelFontName("Times New Roman");
    box.SelFontSize(14.25);
    box.SelAlignment(Alignment::Centre);
    box.SelBold(true);
    box.SelText("Volcanoes\n");
    box.SelAlignment(Alignment::Right);
    box.SelColor(0xFF0000);
    box.SelItalic(true);
    box.SelText("caf\xE9\n\n");
    box.InsertPicture(RedPicture());
    box.SelUnderline(true);
    box.SelText("end");
  });
  RichTextView second(box(), runtime);
  second.show();
  EXPECT_EQ(Lines(second.document()), Lines(view->document()));
  ExpectBothEqual();
  EXPECT_EQ(view->document().toPlainText(), QString::fromUtf16(u"Volcanoes\ncafé\n\n\uFFFCend"));
  EXPECT_EQ(view->document().lastBlock().begin().fragment().charFormat().objectType(),
            RichTextPictures::kObjectType);
}

TEST_F(AnOpenSheet, SizesOfAQuarterPointAreShownExactly) {
  Compose([](RichTextBox& box) { box.SelText("a"); });
  EXPECT_EQ(view->document().begin().begin().fragment().charFormat().fontPointSize(), 9.75);
}

TEST_F(AnOpenSheet, TheMisspeltTypewriterFontIsShownInAFixedPitchAndKeptByItsName) {
  Compose([](RichTextBox& box) {
    box.SelFontName("Courrier New");
    box.SelText("iiiiWWWW");
  });
  PutCaret(4);
  Type("x");
  const QFont font = view->document().begin().begin().fragment().charFormat().font();
  EXPECT_TRUE(QFontInfo(font).fixedPitch()) << QFontInfo(font).family().toStdString();
  const QFontMetricsF metrics(font);
  EXPECT_EQ(metrics.horizontalAdvance(u'i'), metrics.horizontalAdvance(u'W'));
  EXPECT_EQ(box().FormatAt(4).font, "Courrier New");
  EXPECT_EQ(box().SelFontName(), "Courrier New");
}

TEST_F(AnOpenSheet, ARuleOfNinetyUnderscoresIn10PointsStandsOnOneLine) {
  for (const char* font : {"Courier New", "Courrier New"}) {
    Compose([&](RichTextBox& box) {
      box.SelFontName(font);
      box.SelFontSize(10);
      box.SelText(std::string(90, '_').append("\n").append(91, '_'));
    });
    EXPECT_EQ(Lines(view->document()),
              std::string(90, '_').append("\n").append(90, '_').append("\n_\n"));
  }
}

TEST_F(AnOpenSheet, ThousandsOfBlanksBehindTheLastWordTakeNoLineAndNoWidth) {
  Compose([](RichTextBox& box) {
    box.SelText("word");
    box.SelText(std::string(21000, ' '));
  });
  EXPECT_EQ(Lines(view->document()), "word\n");
  EXPECT_EQ(view->horizontalScrollBar()->maximum(), 0);
  ExpectBothEqual();

  // Behind text they are blanks like others again.
  PutCaret(21004);
  Type("end");
  EXPECT_TRUE(Lines(view->document()).ends_with("\nend\n"));
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, ANarrowWindowScrollsAcrossAndBreaksTheSameLines) {
  Compose([](RichTextBox& box) {
    for (int i = 0; i < 40; ++i) box.SelText("a word and another, ");
  });
  const std::string wide = Lines(view->document());
  EXPECT_FALSE(view->horizontalScrollBar()->maximum() > 0);
  view->resize(500, 400);
  EXPECT_TRUE(view->horizontalScrollBar()->maximum() > 0);
  EXPECT_EQ(Lines(view->document()), wide);
  view->Zoom(170);
  EXPECT_EQ(Lines(view->document()), wide);
}

TEST_F(AnOpenSheet, TheWholeColumnFitsAWindowOf800Pixels) {
  view->resize(800, 600);
  EXPECT_EQ(view->horizontalScrollBar()->maximum(), 0);
}

// --- The teacher's edits

TEST_F(AnOpenSheet, TypingInTheMiddleEntersTheDocumentInTheFormatThere) {
  Compose([](RichTextBox& box) {
    box.SelBold(true);
    box.SelText("bold");
    box.SelBold(false);
    box.SelText("plain");
  });
  PutCaret(4);
  Type("er");
  EXPECT_EQ(BoxText(), "bolderplain");
  EXPECT_TRUE(box().FormatAt(5).bold);
  EXPECT_FALSE(box().FormatAt(6).bold);
  EXPECT_EQ(box().SelStart(), 6);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, EnterGivesTheNewParagraphTheAlignmentOfTheOld) {
  Compose([](RichTextBox& box) {
    box.SelAlignment(Alignment::Centre);
    box.SelText("onetwo");
  });
  PutCaret(3);
  Key(Qt::Key_Return);
  EXPECT_EQ(BoxText(), "one\ntwo");
  EXPECT_EQ(box().AlignmentAt(0), Alignment::Centre);
  EXPECT_EQ(box().AlignmentAt(4), Alignment::Centre);
  Key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(BoxText(), "one\n\ntwo");
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, BackspaceJoinsParagraphsOfDifferentAlignmentTheFirstOnesStays) {
  Compose([](RichTextBox& box) {
    box.SelAlignment(Alignment::Right);
    box.SelText("one\n");
    box.SelAlignment(Alignment::Centre);
    box.SelText("two\n");
    box.SelAlignment(Alignment::Left);
    box.SelText("three");
  });
  PutCaret(4);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(BoxText(), "onetwo\nthree");
  EXPECT_EQ(box().AlignmentAt(0), Alignment::Right);
  EXPECT_EQ(box().AlignmentAt(7), Alignment::Left);
  ExpectBothEqual();
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "one\ntwo\nthree");
  EXPECT_EQ(box().AlignmentAt(4), Alignment::Centre);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, DeletingOverParagraphsLeavesBothSidesEqual) {
  Compose([](RichTextBox& box) {
    box.SelText("one\n");
    box.SelAlignment(Alignment::Centre);
    box.SelText("two\nthree");
  });
  PutCaret(2, 4);
  Key(Qt::Key_Delete);
  EXPECT_EQ(BoxText(), "ono\nthree");
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, TypingOverASelectionTakesTheFormatOfItsFirstCharacter) {
  Compose([](RichTextBox& box) {
    box.SelBold(true);
    box.SelText("bold");
    box.SelBold(false);
    box.SelText("plain");
  });
  PutCaret(2, 4);
  Type("X");
  EXPECT_EQ(BoxText(), "boXain");
  EXPECT_TRUE(box().FormatAt(2).bold);
  EXPECT_FALSE(box().FormatAt(3).bold);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, AFormatChosenAtTheCaretIsThatOfTheNextTypedCharacter) {
  Compose([](RichTextBox& box) { box.SelText("plain"); });
  PutCaret(5);
  runtime.Dispatch([this] {
    box().SelBold(true);
    box().SelFontSize(18);
  });
  QApplication::processEvents();
  Type("!");
  EXPECT_TRUE(box().FormatAt(5).bold);
  EXPECT_EQ(box().FormatAt(5).size, 360);
  Type("?");
  EXPECT_TRUE(box().FormatAt(6).bold);
  // The caret's move drops what was chosen.
  runtime.Dispatch([this] { box().SelItalic(true); });
  Key(Qt::Key_Left);
  Key(Qt::Key_Right);
  Type("x");
  EXPECT_FALSE(box().FormatAt(7).italic);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, BoldOnAHalfBoldSelectionMakesAllOfItBoldAndThenPlain) {
  Compose([](RichTextBox& box) {
    box.SelBold(true);
    box.SelText("bold");
    box.SelBold(false);
    box.SelText("plain");
  });
  PutCaret(2, 4);
  Key(Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(box().SelBold(), true);
  EXPECT_EQ(box().SelLength(), 4);
  ExpectBothEqual();
  Key(Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(box().SelBold(), false);
  EXPECT_TRUE(box().FormatAt(1).bold);
  ExpectBothEqual();
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box().SelBold(), true);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, ABlankDocumentIsTypedIntoInTheDesignFont) {
  Compose([](RichTextBox&) {});
  Type("first");
  EXPECT_EQ(BoxText(), "first");
  EXPECT_EQ(box().FormatAt(0).font, "Courier New");
  EXPECT_EQ(box().FormatAt(0).size, 195);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, TabIsTypedAndCtrlTabLeavesTheSheet) {
  QWidget window;
  QLineEdit next(&window);
  view->setParent(&window);
  QWidget::setTabOrder(view.get(), &next);
  window.show();
  window.activateWindow();
  view->setFocus();
  Compose([](RichTextBox& box) { box.SelText("ab"); });
  PutCaret(1);
  Key(Qt::Key_Tab);
  EXPECT_EQ(BoxText(), "a\tb");
  EXPECT_NE(window.focusWidget(), &next);
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(window.focusWidget(), &next);
  EXPECT_EQ(BoxText(), "a\tb");
  view->setParent(nullptr);
}

TEST_F(AnOpenSheet, AltWithALetterIsLeftToTheScreenToo) {
  Compose([](RichTextBox& box) { box.SelText("ab"); });
  QTest::keyClick(view.get(), 'l', Qt::AltModifier);
  EXPECT_EQ(BoxText(), "ab");
  QTest::keyClick(view.get(), 'L', Qt::ShiftModifier);
  EXPECT_EQ(BoxText(), "abL");
  QTest::keyClick(view.get(), '@', Qt::AltModifier | Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "abL@");
}

TEST_F(AnOpenSheet, EscapeIsLeftToTheScreen) {
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(view.get(), &escape);
  EXPECT_FALSE(escape.isAccepted());
}

TEST_F(AnOpenSheet, CharactersBeyondTheBasicPlaneAreKeptAndCountOnce) {
  Compose([](RichTextBox& box) {
    box.SelUnicode(U"a\U0001F30Bb\U0001F30B\nc");
    box.SelBold(true);
    box.SelText("d");
  });
  PutCaret(4);
  Type("x");
  EXPECT_EQ(BoxText(), "a\U0001F30Bb\U0001F30Bx\ncd");
  ExpectBothEqual();
  PutCaret(1, 3);
  EXPECT_EQ(view->Caret().selectedText(), QString::fromUtf16(u"\U0001F30Bb\U0001F30B"));
  PutCaret(2);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(BoxText(), "ab\U0001F30Bx\ncd");
  ExpectBothEqual();
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "a\U0001F30Bb\U0001F30Bx\ncd");
  ExpectBothEqual();
}

// --- Caret and selection

TEST_F(AnOpenSheet, SelectingWithTheKeysMovesTheSelectionOfTheBox) {
  Compose([](RichTextBox& box) { box.SelText("a sheet"); });
  PutCaret(2);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(box().SelStart(), 2);
  EXPECT_EQ(box().SelLength(), 2);
  Key(Qt::Key_Left);
  EXPECT_EQ(box().SelStart(), 2);
  EXPECT_EQ(box().SelLength(), 0);
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(box().SelStart(), 0);
  EXPECT_EQ(box().SelLength(), 7);
}

TEST_F(AnOpenSheet, ASelectionBackwardsGoesOnGrowingAtItsStart) {
  Compose([](RichTextBox& box) { box.SelText("a sheet"); });
  PutCaret(4);
  Key(Qt::Key_Left, Qt::ShiftModifier);
  QApplication::processEvents();
  Key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(box().SelStart(), 2);
  EXPECT_EQ(box().SelLength(), 2);
}

TEST_F(AnOpenSheet, TheSelectionEventComesOnceForACaretMoveAndNotForAnEcho) {
  Compose([](RichTextBox& box) { box.SelText("a sheet"); });
  PutCaret(2);
  int moves = 0;
  box().SelChange = [&] { ++moves; };
  Key(Qt::Key_Right);
  EXPECT_EQ(moves, 1);
  QApplication::processEvents();
  EXPECT_EQ(moves, 1);
  Type("x");
  EXPECT_EQ(moves, 2);
  box().SelStart(1);
  EXPECT_EQ(moves, 3);
  QApplication::processEvents();
  EXPECT_EQ(moves, 3);
}

TEST_F(AnOpenSheet, AClickBesideTheTextPutsTheCaretIntoItsLine) {
  Compose([](RichTextBox& box) { box.SelText("one\ntwo\nthree"); });
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                    QPoint(view->viewport()->width() - 3, view->viewport()->height() - 3));
  EXPECT_EQ(box().SelStart(), 13);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
  EXPECT_EQ(box().SelStart(), 0);
}

TEST_F(AnOpenSheet, AClickBesideTheTextReachesItInAWindowOfAnyWidth) {
  Compose([](RichTextBox& box) { box.SelText("one\ntwo\nthree"); });
  for (int width = 880; width < 930; ++width) {
    view->resize(width, 700);
    PutCaret(4, 3);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(width - 30, 650));
    EXPECT_EQ(box().SelStart(), 13) << width;
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    EXPECT_EQ(box().SelStart(), 0) << width;
  }
}

// --- Undo, copy and paste

TEST_F(AnOpenSheet, UndoAndRedoLeadTheDocumentBackAndForth) {
  Compose([](RichTextBox& box) { box.SelText("start"); });
  PutCaret(5);
  Type("ed");
  Key(Qt::Key_Return);
  runtime.Dispatch([this] { box().SelAlignment(Alignment::Centre); });
  Type("now");
  EXPECT_EQ(BoxText(), "started\nnow");
  const std::string last = Describe(box());
  for (int i = 0; i < 10; ++i) Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "start");
  EXPECT_EQ(box().AlignmentAt(0), Alignment::Left);
  ExpectBothEqual();
  for (int i = 0; i < 10; ++i) Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Describe(box()), last);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, ANewDocumentCantBeUndone) {
  Compose([](RichTextBox& box) { box.SelText("first"); });
  Compose([](RichTextBox& box) { box.SelText("second"); });
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "second");
}

TEST_F(AnOpenSheet, UndoLeadsTheCaretToWhatItUndoes) {
  Compose([](RichTextBox& box) { box.SelText("one two three"); });
  SetPlainClipboard("and ");
  PutCaret(8);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "one two and three");
  Key(Qt::Key_Home, Qt::ControlModifier);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "one two three");
  EXPECT_EQ(box().SelStart(), 8);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, WhatIsWrittenWhileItTakesNoInputCantBeUndone) {
  Compose([](RichTextBox& box) { box.SelText("heading\n"); });
  view->setEnabled(false);
  runtime.Dispatch([this] { box().SelText("clues"); });
  view->Mirror();
  view->setEnabled(true);
  Type("!");
  for (int i = 0; i < 3; ++i) Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "heading\nclues");
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, CopiesKeepTheirFormatsPicturesAndAlignmentsInsideTheProgram) {
  Compose([](RichTextBox& box) {
    box.SelText("one\n");
    box.SelAlignment(Alignment::Centre);
    box.SelFontName("Courrier New");
    box.SelBold(true);
    box.SelText("two");
    box.InsertPicture(RedPicture());
    box.SelText("\n");
    box.SelAlignment(Alignment::Left);
    box.SelBold(false);
    box.SelText("three");
  });
  PutCaret(4, 5);  // "two", the picture and the line end
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QString("two\n"));

  RichTextView key(form().KeyBox, runtime);
  QTest::keyClick(&key, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&key, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form().KeyBox.PlainText(), U"two\uFFFC\n");
  EXPECT_EQ(form().KeyBox.FormatAt(0).font, "Courrier New");
  EXPECT_TRUE(form().KeyBox.FormatAt(0).bold);
  ASSERT_NE(form().KeyBox.FormatAt(3).picture, nullptr);
  EXPECT_EQ(form().KeyBox.FormatAt(3).picture->width, 1440);
  EXPECT_EQ(form().KeyBox.AlignmentAt(0), Alignment::Centre);

  PutCaret(0);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box().PlainText(), U"two\uFFFC\none\ntwo\uFFFC\nthree");
  EXPECT_EQ(box().SelStart(), 5);
  EXPECT_EQ(box().AlignmentAt(0), Alignment::Centre);
  EXPECT_EQ(box().AlignmentAt(5), Alignment::Left);
  ExpectBothEqual();
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box().PlainText(), U"one\ntwo\uFFFC\nthree");
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, PastingOverEverythingCanBeUndone) {
  Compose([](RichTextBox& box) { box.SelText("old"); });
  SetPlainClipboard("new");
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "new");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "old");
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, TextFromOutsideComesInPlainWithAllItsCharacters) {
  Compose([](RichTextBox& box) {
    box.SelItalic(true);
    box.SelText("ab");
  });
  PutCaret(1);
  auto* mime = new QMimeData;
  mime->setHtml("<b>x</b>");
  mime->setText(QString::fromUtf16(u"\u0141\u00F3d\u017A\r\n\U0001F30B\u2028z"));
  QApplication::clipboard()->setMimeData(mime);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "a\u0141\u00F3d\u017A\n\U0001F30B\nzb");
  EXPECT_TRUE(box().FormatAt(2).italic);
  EXPECT_FALSE(box().FormatAt(2).bold);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, APictureFromOutsideIsPastedAtItsSizeOrAsWideAsTheColumn) {
  Compose([](RichTextBox& box) { box.SelText("ab"); });
  PutCaret(1);
  QImage image(96, 48, QImage::Format_RGB32);
  image.fill(Qt::blue);
  QApplication::clipboard()->setImage(image);
  Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(box().PlainText(), U"a\uFFFCb");
  EXPECT_EQ(box().FormatAt(1).picture->width, 1440);
  EXPECT_EQ(box().FormatAt(1).picture->height, 720);
  EXPECT_EQ(box().FormatAt(1).picture->format, "png");
  ExpectBothEqual();

  image = QImage(1440, 720, QImage::Format_RGB32);
  image.fill(Qt::blue);
  QApplication::clipboard()->setImage(image);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box().FormatAt(2).picture->width, 10800);
  EXPECT_EQ(box().FormatAt(2).picture->height, 5400);
}

TEST_F(AnOpenSheet, WhatMakesNoSenseInAPasteIsReplacedOnBothSides) {
  Compose([](RichTextBox& box) { box.SelText("ab"); });
  PutCaret(1);
  SetPlainClipboard(QString(QChar(0xFDD0)) + QChar(0xD800) + QChar(0xFFFC));
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box().PlainText(), U"a\uFFFD\uFFFD\uFFFDb");
  ExpectBothEqual();
}

// --- A handler's changes

TEST_F(AnOpenSheet, AHandlersChangesAreShownInOneStepWhenItIsDone) {
  Compose([](RichTextBox& box) { box.SelText("start"); });
  int steps = 0;
  QObject::connect(&view->document(), &QTextDocument::contentsChanged, [&] { ++steps; });
  runtime.Dispatch([this] {
    box().SelStart(5);
    for (int i = 0; i < 500; ++i) {
      box().SelBold(i % 2 == 0);
      box().SelText("word\n");
    }
    box().SelStart(0);
    box().SelAlignment(Alignment::Centre);
  });
  EXPECT_EQ(steps, 0);
  QApplication::processEvents();
  EXPECT_EQ(steps, 1);
  ExpectBothEqual();
}

TEST_F(AnOpenSheet, ALeftSheetNoLongerFollowsNorTakesEdits) {
  Compose([](RichTextBox& box) { box.SelText("start"); });
  view->Leave();
  box().Text("other");
  Type("x");
  EXPECT_EQ(BoxText(), "other");
  EXPECT_EQ(view->document().toPlainText(), "start");
}

// --- Zoom and find

TEST_F(AnOpenSheet, CtrlWithPlusMinusAndNoughtZooms) {
  EXPECT_EQ(view->Zoom(), 100);
  Key(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(view->Zoom(), 110);
  Key(Qt::Key_Minus, Qt::ControlModifier);
  Key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(view->Zoom(), 90);
  Key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(view->Zoom(), 100);
  view->Zoom(5);
  EXPECT_EQ(view->Zoom(), 30);
  view->Zoom(5000);
  EXPECT_EQ(view->Zoom(), 400);
}

TEST_F(AnOpenSheet, TheColumnIsSevenAndAHalfInchesAtTrueSize) {
  Compose([](RichTextBox& box) {
    box.SelFontSize(10);
    box.SelText(std::string(90, '_'));
  });
  const QRectF rule = view->document().begin().layout()->lineAt(0).naturalTextRect();
  const double dots = view->transform().m11() * rule.width();
  EXPECT_NEAR(dots, 7.5 * view->logicalDpiX(), 1.0);
}

TEST_F(AnOpenSheet, FindGoesFromPlaceToPlaceAndAroundTheEnd) {
  Compose([](RichTextBox& box) { box.SelText("lava here\nash\nLava there"); });
  PutCaret(0);
  Key(Qt::Key_F, Qt::ControlModifier);
  auto* field = view->findChild<QLineEdit*>();
  ASSERT_NE(field, nullptr);
  EXPECT_TRUE(field->isVisible());
  QTest::keyClicks(field, "lava");
  EXPECT_EQ(box().SelStart(), 0);
  EXPECT_EQ(box().SelLength(), 4);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(box().SelStart(), 14);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(box().SelStart(), 0);
  QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(box().SelStart(), 14);
  QTest::keyClicks(field, "tree");  // no such place: nothing moves
  EXPECT_EQ(box().SelStart(), 14);
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_FALSE(field->isVisible());
  EXPECT_EQ(BoxText(), "lava here\nash\nLava there");
}

}  // namespace
}  // namespace brindlepage
