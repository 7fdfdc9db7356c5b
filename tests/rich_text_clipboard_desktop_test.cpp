// Rich text between an open sheet and other programs: what these offer, pasted and dropped, and
// what the sheet offers them.

#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>

#include "tests/open_sheet.h"
#include "worksheet/rtf_reader.h"

namespace brindlepage {
namespace {

constexpr const char* kRtfNames[] = {"text/rtf", "application/rtf", "text/richtext",
                                     R"(application/x-qt-windows-mime;value="Rich Text Format")"};

class RichTextFromOutside : public AnOpenSheet {
 protected:
  RichTextFromOutside() {
    Compose([](RichTextBox& box) { box.SelText("ab"); });
    PutCaret(1);
  }

  static QMimeData* Offer(const QByteArray& rtf, const QString& words) {
    auto* copied = new QMimeData;
    copied->setData("text/rtf", rtf);
    copied->setText(words);
    return copied;
  }
  void Paste(QMimeData* copied) {
    QApplication::clipboard()->setMimeData(copied);
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  void Paste(const QByteArray& rtf, const QString& words) { Paste(Offer(rtf, words)); }
};

QImage BluePicture() {
  QImage image(96, 48, QImage::Format_RGB32);
  image.fill(Qt::blue);
  return image;
}

QByteArray PictureGroup(int width, int height) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  BluePicture().save(&buffer, "PNG");
  return R"({\*\shppict{\pict\pngblip\picw96\pich48\picwgoal)" + QByteArray::number(width) +
         R"(\pichgoal)" + QByteArray::number(height) + "\n" + bytes.toHex() + "}}";
}

// A centred title, then a line with a picture, its end not copied.
QByteArray TitleAndPicture(int picture_width = 1440) {
  return R"({\rtf1\ansi\deff0{\fonttbl{\f0\froman\fcharset0 Times New Roman;}
{\f1\fswiss\fcharset0 Liberation Sans;}}{\colortbl;\red201\green33\blue30;}
{\*\generator An office;}\pard\plain\qc{\f1\fs56\b\cf1 Volcanoes}
\par\pard\plain\ql\f0\fs24{a }{\i hot })" +
         PictureGroup(picture_width, 720) + "}";
}

TEST_F(RichTextFromOutside, BringsFontsStylesColoursAlignmentsAndPicturesAlong) {
  Compose([](RichTextBox& box) { box.SelText("one\n\nend"); });
  PutCaret(4);
  const std::string before = Describe(box());
  Paste(TitleAndPicture(), "Volcanoes\na hot ");
  EXPECT_EQ(Describe(box()),
            "\nl [Courier New 9.75 000 0] one\\n"
            "\nc [Liberation Sans 28 100 1e21c9] Volcanoes [Times New Roman 12 000 0] \\n"
            "\nl [Times New Roman 12 000 0] a  [Times New Roman 12 010 0] hot "
            " [Times New Roman 12 000 0 picture] \uFFFC [Courier New 9.75 000 0] \\n"
            "\nl [Courier New 9.75 000 0] end");
  ASSERT_EQ(box().SelStart(), 21);
  EXPECT_EQ(box().FormatAt(20).picture->width, 1440);
  EXPECT_EQ(box().FormatAt(20).picture->height, 720);
  ExpectBothEqual();
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Describe(box()), before);
  ExpectBothEqual();
}

TEST_F(RichTextFromOutside, JoinsTheLineInTheMiddleOfWhichItIsPasted) {
  Paste(TitleAndPicture(), "Volcanoes\na hot ");
  EXPECT_EQ(box().PlainText(), U"aVolcanoes\na hot \uFFFCb");
  EXPECT_EQ(box().AlignmentAt(0), Alignment::Left);
  ExpectBothEqual();
}

TEST_F(RichTextFromOutside, TakesThePlaceOfASelection) {
  PutCaret(0, 2);
  Paste(R"({\rtf1\b lava})", "lava");
  EXPECT_EQ(BoxText(), "lava");
  EXPECT_TRUE(box().FormatAt(0).bold);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "ab");
  ExpectBothEqual();
}

TEST_F(RichTextFromOutside, ShowsAWidePictureAsWideAsTheColumn) {
  Paste(TitleAndPicture(21600), "Volcanoes\na hot ");
  ASSERT_NE(box().FormatAt(17).picture, nullptr);
  EXPECT_EQ(box().FormatAt(17).picture->width, 10800);
  EXPECT_EQ(box().FormatAt(17).picture->height, 360);
  ExpectBothEqual();
}

TEST_F(RichTextFromOutside, ComesByAnyOfItsNamesInFrontOfWordsPagesAndPictures) {
  for (const char* name : kRtfNames) {
    Compose([](RichTextBox& box) { box.SelText("ab"); });
    PutCaret(1);
    auto* copied = new QMimeData;
    copied->setData(name, R"({\rtf1\b rich})");
    copied->setText("plain");
    copied->setHtml("<p>page</p>");
    copied->setImageData(BluePicture());
    Paste(copied);
    EXPECT_EQ(BoxText(), "arichb") << name;
    EXPECT_TRUE(box().FormatAt(1).bold) << name;
  }
}

TEST_F(RichTextFromOutside, GivesItsPlainWordsWhenItIsCutAnywhere) {
  const QByteArray whole = TitleAndPicture();
  for (qsizetype length = 0; length < whole.size(); ++length) {
    QApplication::clipboard()->setMimeData(Offer(whole.left(length), "w"));
    view->Paste();
  }
  EXPECT_EQ(BoxText(), "a" + std::string(static_cast<std::size_t>(whole.size()), 'w') + "b");
  ExpectBothEqual();
}

TEST_F(RichTextFromOutside, GivesItsPlainWordsWhenItIsRefused) {
  const QByteArray refused[] = {
      "<b>ash</b>", R"({\rtf1 )" + QByteArray(2000, '{') + QByteArray(2001, '}'),
      R"({\rtf1 {\pict\pngblip\bin2000000000 ab}})", R"({\rtf1 )" + QByteArray(20'000'000, 'a'),
      R"({\rtf1 )" + QByteArray(R"(\par)").repeated(1'000'000) + " a}"};
  for (const QByteArray& rtf : refused) Paste(rtf, "w");
  EXPECT_EQ(BoxText(), "awwwwwb");
  ExpectBothEqual();
}

TEST_F(RichTextFromOutside, KeepsABrokenPictureAmongItsWords) {
  Paste(R"({\rtf1 one{\pict\pngblip\picwgoal300\pichgoal300 00ff}two})", "onetwo");
  EXPECT_EQ(box().PlainText(), U"aone\uFFFCtwob");
  ExpectBothEqual();
}

TEST_F(RichTextFromOutside, GivesWayToThePictureBesideItWhenItShowsNothing) {
  QMimeData* copied = Offer(R"({\rtf1{\pict\macpict 00}\par})", "\n");
  copied->setImageData(BluePicture());
  Paste(copied);
  ASSERT_EQ(box().PlainText(), U"a\uFFFCb");
  EXPECT_EQ(box().FormatAt(1).picture->width, 96 * 15);
}

TEST_F(RichTextFromOutside, ComesAlongWhenItIsDropped) {
  const std::unique_ptr<QMimeData> dragged(Offer(R"({\rtf1\b lava})", "lava"));
  const QRectF line =
      view->document().documentLayout()->blockBoundingRect(view->document().firstBlock());
  const QPoint point = view->mapFromScene(line.center());
  QDragEnterEvent enter(point, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view->viewport(), &enter);
  QDragMoveEvent move(point, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view->viewport(), &move);
  EXPECT_TRUE(move.isAccepted());
  QDropEvent drop(point, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view->viewport(), &drop);
  EXPECT_EQ(BoxText(), "ablava");
  EXPECT_TRUE(box().FormatAt(2).bold);
  ExpectBothEqual();
}

// --- What the sheet offers

class RichTextToOutside : public RichTextFromOutside {
 protected:
  RichTextToOutside() {
    Compose([](RichTextBox& box) {
      box.SelText("one\n");
      box.SelAlignment(Alignment::Centre);
      box.SelFontName("Arial");
      box.SelFontSize(14.25);
      box.SelColor(0x0000FF);
      box.SelText("two ");
      box.InsertPicture(RedPicture());
      box.SelText("\n");
      box.SelAlignment(Alignment::Left);
      box.SelText("three");
    });
    PutCaret(4, 8);  // "two ", the picture, the line end and "th"
  }

  static void ExpectTheSelection(const QMimeData& copied) {
    EXPECT_EQ(copied.text(), "two \nth");
    for (const char* name : kRtfNames) {
      ASSERT_TRUE(copied.hasFormat(name)) << name;
      const std::string rtf = copied.data(name).toStdString();
      RichText read("Times New Roman", 12);
      ReadRtf(rtf, read);
      EXPECT_EQ(Describe(read),
                "\nc [Arial 14.25 000 ff] two  [Arial 14.25 000 ff picture] \uFFFC"
                " [Arial 14.25 000 ff] \\n"
                "\nl [Arial 14.25 000 ff] th");
      ASSERT_NE(read.FormatAt(4).picture, nullptr);
      EXPECT_EQ(read.FormatAt(4).picture->bytes, RedPicture()->bytes);
      EXPECT_TRUE(rtf.ends_with(" th}")) << rtf;  // the end of the last paragraph isn't copied
    }
  }

  // In the line of the selection, in the viewport.
  QPoint OnTheSelection() const {
    const QAbstractTextDocumentLayout& layout = *view->document().documentLayout();
    const QRectF line = layout.blockBoundingRect(view->document().findBlock(4));
    return view->mapFromScene(line.center());
  }
  // Whether the mouse drags something from there; where nothing can be dragged, it tries.
  bool Drags(const std::function<void(const QMimeData&)>& look) {
    EXPECT_TRUE(QTest::qWaitForWindowExposed(view.get()));
    bool dragged = false;
    QTimer timer;
    const auto cancel = [&] {
      const auto* drag = view->viewport()->findChild<QDrag*>();
      if (drag == nullptr || dragged) return;
      dragged = true;
      look(*drag->mimeData());
      QDrag::cancel();
    };
    QObject::connect(&timer, &QTimer::timeout, cancel);
    timer.start(20);
    const QPoint from = OnTheSelection();
    const QPointF to = from + QPoint(0, 60);
    QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, view->viewport()->mapToGlobal(to), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &move);
    cancel();
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, to.toPoint());
    return dragged;
  }
};

TEST_F(RichTextToOutside, IsOfferedWithItsPicturesBesideAPageAndPlainWords) {
  Key(Qt::Key_C, Qt::ControlModifier);
  ExpectTheSelection(*QApplication::clipboard()->mimeData());
  EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains("two"));
}

TEST_F(RichTextToOutside, StaysAsItWasCopiedWhenTheSheetChanges) {
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "one\nree");
  Compose([](RichTextBox& box) { box.SelText("other"); });
  ExpectTheSelection(*QApplication::clipboard()->mimeData());
}

TEST_F(RichTextToOutside, ComesBackTheSameFromAnotherProgram) {
  PutCaret(4, 6);  // with its line end
  Key(Qt::Key_C, Qt::ControlModifier);
  const QMimeData& offered = *QApplication::clipboard()->mimeData();
  QMimeData* copied = Offer(offered.data("text/rtf"), offered.text());
  PutCaret(12);
  Key(Qt::Key_Return);
  Paste(copied);
  EXPECT_EQ(box().PlainText(), U"one\ntwo \uFFFC\nth\ntwo \uFFFC\nree");
  EXPECT_EQ(box().AlignmentAt(13), Alignment::Centre);
  EXPECT_EQ(box().FormatAt(13), box().FormatAt(4));
  EXPECT_EQ(box().AlignmentAt(19), Alignment::Left);
  ExpectBothEqual();
}

TEST_F(RichTextToOutside, IsOfferedWithoutAPageWhenItIsDragged) {
  EXPECT_TRUE(Drags([](const QMimeData& dragged) {
    ExpectTheSelection(dragged);
    EXPECT_FALSE(dragged.hasHtml());
  }));
  EXPECT_EQ(BoxText(), "one\ntwo \xEF\xBF\xBC\nthree");
  ExpectBothEqual();
}

TEST_F(RichTextToOutside, IsNotDraggedFromBesideTheSelection) {
  PutCaret(0, 3);
  EXPECT_FALSE(Drags([](const QMimeData&) {}));
  EXPECT_GT(box().SelLength(), 0);
}

TEST_F(RichTextToOutside, IsOfferedToAMiddleClickOnceTheMouseHasSelectedIt) {
  SetPlainClipboard("copied before");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
  PutCaret(0);
  const QPoint point = OnTheSelection();
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, point);
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, point);
  EXPECT_GT(box().SelLength(), 0);
  const QClipboard& clipboard = *QApplication::clipboard();
  EXPECT_EQ(clipboard.text(), "copied before");
  const QMimeData* offered = clipboard.mimeData(QClipboard::Selection);
  // Desktops other than X have no such place, and nothing is put there.
  ASSERT_EQ(offered != nullptr, clipboard.supportsSelection());
  EXPECT_EQ(offered != nullptr && offered->hasFormat("text/rtf"), clipboard.supportsSelection());
}

}  // namespace
}  // namespace brindlepage
