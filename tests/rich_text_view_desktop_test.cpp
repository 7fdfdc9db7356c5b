#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGraphicsItem>
#include <QLineEdit>
#include <QMimeData>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>
#include <QtTest/QTest>
#include <functional>
#include <random>
#include <sstream>

#include "desktop/rich_text_view.h"
#include "tests/printed_pages.h"
#include "toolkit/code_page.h"
#include "toolkit/form.h"
#include "toolkit/random_source.h"
#include "toolkit/run_time_error.h"

namespace brindlepage {
namespace {

// A desktop on which nothing is asked.
class QuietPlatform : public Platform {
 public:
  BoxAnswer MessageBox(std::string_view, std::string_view, BoxButtons) override {
    return BoxAnswer::Ok;
  }
  std::optional<std::string> InputBox(std::string_view, std::string_view,
                                      std::string_view) override {
    return std::nullopt;
  }
  std::optional<PrintChoice> PrintDialog(unsigned) override { return std::nullopt; }
  void Print(Control&, int, int) override {}
  std::optional<std::string> OpenDialog(std::string_view, std::string_view,
                                        std::string_view) override {
    return std::nullopt;
  }
  void StartProgram(std::string_view) override {}
  void Beep() override {}
  Size ScreenSize() const override { return {15360, 11520}; }
  std::vector<std::string> ScreenFonts() const override { return {}; }
  Milliseconds Now() const override { return 0; }
  void Pause(Milliseconds) override {}
  FormPicture PictureOf(Form&) override { return {}; }
  std::unique_ptr<PrinterPages> StartPages() override { return nullptr; }
  void FatalError(int number, std::string_view text) override {
    ADD_FAILURE() << number << " " << text;
  }
  void FormActivated(Form&) override {}
  void FormHidden(Form&) override {}
  void FormUnloaded(Form&) override {}
  void FormChanged(Form&) override {}
  void ControlChanged(Control&) override {}
};

constexpr Screen kSheet{1};

class SheetForm : public Form {
 public:
  explicit SheetForm(Runtime& own_runtime) : Form(own_runtime, kSheet, "SheetForm", "Sheet") {}
  RichTextBox Box{*this, "Box", "Courier New", 9.75};
  RichTextBox KeyBox{*this, "KeyBox", "Times New Roman", 14.25};
};

// One line a paragraph: its alignment, then its runs with what can be seen of them.
class Description {
 public:
  void Begin(Alignment alignment) {
    text_ << "\n"
          << "lrc"[static_cast<int>(alignment)];
    look_.clear();
  }
  void Add(char32_t character, const std::string& font, double size, bool bold, bool italic,
           bool underline, std::uint32_t color, bool picture) {
    std::ostringstream look;
    look << " [" << font << " " << size << " " << bold << italic << underline << " " << std::hex
         << color << (picture ? " picture" : "") << "] ";
    if (look.str() != look_) text_ << look.str();
    look_ = look.str();
    text_ << (character == U'\n' ? "\\n" : code_page::UnicodeToUtf8(std::u32string(1, character)));
  }
  std::string Text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::string look_;
};

std::string Describe(const RichText& text) {
  Description description;
  for (const RichText::Paragraph& paragraph : text.Paragraphs()) {
    description.Begin(paragraph.alignment);
    for (int i = paragraph.start; i < paragraph.start + paragraph.length; ++i) {
      const CharFormat& f = text.FormatAt(i);
      description.Add(text.CharacterAt(i), f.font, f.size / 20.0, f.bold, f.italic, f.underline,
                      f.color, f.picture != nullptr);
    }
  }
  return description.Text();
}

class AnOpenSheet : public ::testing::Test {
 protected:
  AnOpenSheet() {
    runtime.Dispatch([this] { runtime.forms().Show(kSheet); });
    view = std::make_unique<RichTextView>(box(), runtime);
    view->resize(900, 700);
    view->show();
    view->setFocus();
  }
  ~AnOpenSheet() override { QApplication::clipboard()->clear(); }

  SheetForm& form() { return *runtime.forms().Find<SheetForm>(kSheet); }
  RichTextBox& box() { return form().Box; }

  // Sets the document and shows it.
  void Compose(const std::function<void(RichTextBox&)>& compose) {
    runtime.Dispatch([&] {
      box().Text("");
      compose(box());
    });
    view->Mirror();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(view.get(), key, modifiers);
  }
  void Type(const char* text) { QTest::keyClicks(view.get(), text); }
  void PutCaret(int position, int length = 0) {
    runtime.Dispatch([&] {
      box().SelStart(position);
      box().SelLength(length);
    });
    view->Mirror();
  }
  std::string BoxText() { return code_page::UnicodeToUtf8(box().PlainText()); }

  // What the view shows, as Describe() tells of the box. The font is the stored one.
  std::string Shown() {
    Description description;
    const auto add = [&](char32_t c, const QTextCharFormat& f) {
      const auto id = RichTextLayout::FormatId(f);
      const QColor color = f.foreground().color();
      description.Add(
          c, id ? box().Format(*id).font : "no font", f.fontPointSize(),
          f.fontWeight() == QFont::Bold, f.fontItalic(), f.fontUnderline(),
          static_cast<std::uint32_t>(color.blue() << 16 | color.green() << 8 | color.red()),
          f.objectType() == RichTextPictures::kObjectType);
    };
    for (QTextBlock b = view->document().begin(); b.isValid(); b = b.next()) {
      const Qt::Alignment shown = b.blockFormat().alignment();
      description.Begin(shown & Qt::AlignHCenter ? Alignment::Centre
                        : shown & Qt::AlignRight ? Alignment::Right
                                                 : Alignment::Left);
      for (auto it = b.begin(); !it.atEnd(); ++it) {
        for (const char32_t c : it.fragment().text().toUcs4()) add(c, it.fragment().charFormat());
      }
      if (b.next().isValid()) add(U'\n', b.next().charFormat());
    }
    return description.Text();
  }
  void ExpectBothEqual() {
    view->Mirror();
    EXPECT_EQ(Shown(), Describe(box()));
    const std::u32string text = box().PlainText();
    const auto qt = [&](int position) {
      return static_cast<int>(
          QString::fromStdU32String(text.substr(0, static_cast<std::size_t>(position))).size());
    };
    EXPECT_EQ(view->Caret().selectionStart(), qt(box().SelStart()));
    EXPECT_EQ(view->Caret().selectionEnd(), qt(box().SelStart() + box().SelLength()));
  }

  QuietPlatform platform;
  SeededRandom random{1};
  Runtime runtime{platform, random,
                  [this](Screen) { return std::make_unique<SheetForm>(runtime); }};
  std::unique_ptr<RichTextView> view;
};

std::shared_ptr<const RichPicture> RedPicture() {
  QImage image(4, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return std::make_shared<RichPicture>(RichPicture{"png", bytes.toStdString(), 1440, 720});
}

void SetPlainClipboard(const QString& text) { QApplication::clipboard()->setText(text); }

// The texts of the lines as they are broken, each with a line end.
std::string Lines(const QTextDocument& document) {
  QString lines;
  document.documentLayout()->documentSize();  // lays out what is not yet

  for (QTextBlock b = document.begin(); b.isValid(); b = b.next()) {
    for (int i = 0; i < b.layout()->lineCount(); ++i) {
      const QTextLine line = b.layout()->lineAt(i);
      lines += b.text().mid(line.textStart(), line.textLength()).simplified() + u'\n';
    }
  }
  return lines.toStdString();
}

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
  const RichTextView second(box(), runtime);
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

// --- Random edits from both sides

class RandomEdits : public AnOpenSheet, public ::testing::WithParamInterface<unsigned> {
 protected:
  int Draw(int n) { return static_cast<int>(draws_() % static_cast<unsigned>(n)); }
  Alignment DrawAlignment() { return static_cast<Alignment>(Draw(3)); }
  CharFormat DrawFormat() {
    CharFormat format;
    const char* fonts[] = {"Courier New", "Courrier New", "Times New Roman"};
    format.font = fonts[Draw(3)];
    format.size = 20 * (8 + Draw(4));
    format.bold = Draw(2) == 0;
    format.underline = Draw(3) == 0;
    format.color = Draw(2) == 0 ? 0 : 0xFF0000;
    return format;
  }
  std::u32string DrawText() {
    const std::u32string letters = U"ab \n\u00E9\u0142\U0001F30B";
    std::u32string text;
    for (int i = Draw(6); i >= 0; --i) {
      text += letters[static_cast<std::size_t>(Draw(static_cast<int>(letters.size())))];
    }
    return text;
  }

  void ChangeTheBox() {
    const int position = Draw(box().Length() + 1);
    const int count = Draw(8);
    switch (Draw(8)) {
      case 0:
        return box().Replace(position, count, DrawText(), DrawFormat());
      case 1:
        return box().Reformat(position, count, DrawFormat());
      case 2:
        return box().Align(position, count, DrawAlignment());
      case 3:
        box().SelStart(position);
        return box().SelLength(count);
      case 4:
        return box().SelUnicode(DrawText());
      case 5:
        return box().InsertPicture(picture_);
      case 6:
        return box().SelBold(Draw(2) == 0);
      default:
        return box().Replace(position, count, {}, DrawFormat());
    }
  }

  void Teach() {
    const auto shift = Draw(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
    switch (Draw(14)) {
      case 0:
        return Type("xy");
      case 1:
        return Key(Qt::Key_Return);
      case 2:
        return Key(Qt::Key_Backspace);
      case 3:
        return Key(Qt::Key_Delete);
      case 4:
        return Key(Qt::Key_Left, shift);
      case 5:
        return Key(Qt::Key_Down, shift);
      case 6:
        return Key(Qt::Key_Home, shift);
      case 7:
        return Key(Qt::Key_End, shift);
      case 8:
        return Key(Qt::Key_Z, Qt::ControlModifier);
      case 9:
        return Key(Qt::Key_Y, Qt::ControlModifier);
      case 10:
        return Key(Qt::Key_C, Qt::ControlModifier);
      case 11:
        return Key(Qt::Key_V, Qt::ControlModifier);
      case 12:
        return Key(Qt::Key_X, Qt::ControlModifier);
      default:
        return Key(Qt::Key_I, Qt::ControlModifier);
    }
  }

 private:
  std::mt19937 draws_{GetParam()};
  std::shared_ptr<const RichPicture> picture_ = RedPicture();
};

TEST_P(RandomEdits, LeaveBoxAndSheetEqual) {
  Compose([](RichTextBox& box) { box.SelText("one two\nthree\n\nfour"); });
  for (int i = 0; i < 300 && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    switch (Draw(4)) {
      case 0:
        ChangeTheBox();
        break;
      case 1:
        runtime.Dispatch([this] {
          for (int changes = Draw(4); changes >= 0; --changes) ChangeTheBox();
        });
        if (Draw(2) == 0) QApplication::processEvents();
        break;
      default:
        Teach();
    }
    if (Draw(3) == 0) ExpectBothEqual();
  }
  ExpectBothEqual();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, ::testing::Range(1U, 13U));

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

// --- Printing

class APrintedSheet : public AnOpenSheet {
 protected:
  void Print(int start = 0, int length = 0, const std::function<void(QPrinter&)>& told = {}) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file_);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    if (told) told(printer);
    PrintRichText(box(), start, length, printer);
  }
  // The lines on paper and on screen on which something stands.
  std::string PrintedLines() { return pages::WrittenLines(file_); }
  std::string ShownLines() {
    return pages::Written(QString::fromStdString(Lines(view->document())));
  }

  QTemporaryDir folder_;
  QString file_ = folder_.filePath("sheet.pdf");
};

TEST_F(APrintedSheet, HasTheLinesOfTheScreenAtAnyZoom) {
  Compose([](RichTextBox& box) {
    std::mt19937 draws(7);
    const std::string letters = "aceghilmostuwxyz.,-_";
    for (int i = 0; i < 60; ++i) {
      box.SelFontName(i % 2 == 0 ? "Times New Roman" : "Courier New");
      box.SelFontSize(9.75 + i % 3);
      for (int word = 0; word < 40; ++word) {
        box.SelText(std::string(1 + draws() % 9, letters[draws() % letters.size()]) + " ");
      }
      box.SelText("\n");
    }
  });
  view->Zoom(130);
  Print();
  EXPECT_EQ(PrintedLines(), ShownLines());
  EXPECT_GT(pages::Texts(file_).size(), 2);
}

TEST_F(APrintedSheet, BreaksPagesBetweenLinesAndNumbersNone) {
  Compose([](RichTextBox& box) {
    for (int i = 1; i <= 100; ++i) box.SelText("line" + std::to_string(i) + "x\n");
  });
  Print();
  std::string lines;
  for (int i = 1; i <= 100; ++i) lines += "line" + std::to_string(i) + "x\n";
  EXPECT_EQ(PrintedLines(), lines);
  EXPECT_EQ(pages::Texts(file_).size(), 2);
}

TEST_F(APrintedSheet, ComesInAsManyCopiesAndInTheOrderThatTheDialogWasTold) {
  Compose([](RichTextBox& box) {
    box.SelFontSize(72);
    for (int i = 1; i <= 11; ++i) box.SelText(std::to_string(i) + "\n");
  });
  const auto firsts = [&] {
    QString first_lines;
    for (const QString& page : pages::Texts(file_)) first_lines += page.simplified()[0] + u' ';
    return first_lines.toStdString();
  };
  // Eight lines of 72 points stand on a page of 684 points.
  Print();
  EXPECT_EQ(firsts(), "1 9 ");
  Print(0, 0, [](QPrinter& printer) {
    printer.setCopyCount(2);
    printer.setCollateCopies(true);
  });
  EXPECT_EQ(firsts(), "1 9 1 9 ");
  Print(0, 0, [](QPrinter& printer) {
    printer.setCopyCount(2);
    printer.setCollateCopies(false);
  });
  EXPECT_EQ(firsts(), "1 1 9 9 ");
  Print(0, 0, [](QPrinter& printer) { printer.setPageOrder(QPrinter::LastPageFirst); });
  EXPECT_EQ(firsts(), "9 1 ");
}

class APrintedSheetOfLargeLines : public APrintedSheet {
 protected:
  // Each letter is a line, a dot an empty one; eight of them stand on a page. The pages' letters.
  std::string Pages(const std::string& lines) {
    Compose([&](RichTextBox& box) {
      box.SelFontSize(72);
      for (const char line : lines) box.SelText(line == '.' ? "\n" : std::string{line, '\n'});
    });
    Print();
    QString pages;
    for (const QString& page : pages::Texts(file_)) {
      pages += page.simplified().remove(u' ') + u' ';
    }
    return pages.toStdString();
  }
};

TEST_F(APrintedSheetOfLargeLines, KeepsAQuestionAndItsLinesOnOnePage) {
  EXPECT_EQ(Pages("abc.def.gh"), "abcdef gh ");
  EXPECT_EQ(Pages("ab.cd.efg.hi"), "abcd efghi ");
}

TEST_F(APrintedSheetOfLargeLines, LeavesAQuestionThatEndsWithThePage) {
  EXPECT_EQ(Pages("ab.cdefg.hi"), "abcdefg hi ");
}

TEST_F(APrintedSheetOfLargeLines, BreaksWhatIsLongWhereThePageIsFull) {
  EXPECT_EQ(Pages("a.bcdefghi"), "abcdefg hi ");
  EXPECT_EQ(Pages("abcdefghijklmnopqr"), "abcdefgh ijklmnop qr ");
}

TEST_F(APrintedSheet, BlanksAtTheEndTakeNoPage) {
  Compose([](RichTextBox& box) {
    box.SelText("word");
    for (int i = 0; i < 200; ++i) box.SelText("   \n");
    box.SelText(std::string(9000, ' '));
  });
  Print();
  EXPECT_TRUE(pages::Ask("pdfinfo", {file_}).contains(QRegularExpression("Pages:\\s+1\n")));
}

TEST_F(APrintedSheet, OfASelectionHoldsTheSelectionAlone) {
  Compose([](RichTextBox& box) { box.SelText("one\ntwo\nthree"); });
  Print(4, 3);
  EXPECT_EQ(PrintedLines(), "two\n");
  Print(0, -1);
  EXPECT_EQ(PrintedLines(), "one\ntwo\nthree\n");
}

TEST_F(APrintedSheet, HoldsThePictures) {
  Compose([](RichTextBox& box) { box.InsertPicture(RedPicture()); });
  Print();
  EXPECT_TRUE(
      pages::Ask("pdfimages", {"-list", file_}).contains(QRegularExpression("\\s4\\s+2\\s")));
}

TEST_F(APrintedSheet, OnAPrinterThatCantBeUsedIsADeviceError) {
  file_ = folder_.filePath("missing/folder/sheet.pdf");
  try {
    Print();
    FAIL() << "printed";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 57);
  }
}

}  // namespace
}  // namespace brindlepage
