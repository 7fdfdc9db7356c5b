#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QSlider>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolButton>
#include <QtTest/QTest>
#include <filesystem>

#include "desktop/desktop.h"
#include "desktop/rich_text_view.h"
#include "desktop/text.h"
#include "tests/printed_pages.h"
#include "tests/temp_folder.h"
#include "wordsearch/word_search_form.h"

namespace brindlepage {
namespace {

// The word search on real widgets, in a window of 800 by 600.
class AWordSearchOnScreen : public ::testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy(PROGRAM_FOLDER, folder_.Path(), std::filesystem::copy_options::recursive);
    desktop_ = std::make_unique<Desktop>();
    desktop_->Start();
    desktop_->program().UseRandom(random_);
    desktop_->windows().main().setFixedSize(800, 600);
  }
  void TearDown() override { desktop_.reset(); }

  SharedState& shared() { return desktop_->program().shared; }
  WordSearchForm& form() {
    return *desktop_->program().forms().Find<WordSearchForm>(Screen::WordSearchForm);
  }
  RichTextView& View(Control& box) {
    ControlView* shown = desktop_->windows().Find(form())->Find(box);
    return dynamic_cast<RichTextView&>(*shown->widget());
  }
  void Open(Screen id) {
    desktop_->loop().Dispatch([&] {
      desktop_->program().forms().Show(id);
      desktop_->program().forms().Unload(Screen::Title);
    });
    Settle();
  }
  static void Settle() {
    QTest::qWait(25);
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }

  // A puzzle of the largest size with the most words, none so long that it leaves its column.
  void OpenLargest(int bank) {
    for (int i = 1; i <= 75; ++i) {
      const std::string number = std::to_string(i);
      shared().ListWords(i) = "word" + std::string(static_cast<std::size_t>(i % 8), 'x') + number;
      shared().ListMeanings(i) = "the meaning of word " + number;
      shared().WordMarks(i) = 1;
    }
    shared().ListWordCount = 75;
    shared().MarkedCount = 75;
    shared().WorksheetTitle = "The Largest Word Search";
    shared().WordBankKind = bank;
    shared().PuzzleAcross = 36;
    shared().PuzzleDown = 36;
    Open(Screen::WordSearchForm);
    ASSERT_EQ(shared().PuzzleAcross, 36);
  }

  static bool IsPuzzleRow(const QString& line) {
    return line.size() == 72 && line[0] == u' ' && line[70] == u' ';
  }
  // The cells of each row stand right below those of the row before, on a line of their own, and
  // the rows in the middle of the column.
  static void ExpectStraight(const RichTextView& view) {
    const QTextDocument& document = view.document();
    document.documentLayout()->documentSize();  // lays out what is not yet
    int rows = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
      if (!IsPuzzleRow(block.text())) continue;
      ++rows;
      ASSERT_EQ(block.layout()->lineCount(), 1) << block.text().toStdString();
      const QTextLine line = block.layout()->lineAt(0);
      const double left = line.cursorToX(0);
      const double right = line.cursorToX(72);
      EXPECT_NEAR(left, RichTextLayout::kColumnWidth - right, 4);  // of 29 a character
      for (int cell = 0; cell <= 36; ++cell) {
        EXPECT_NEAR(line.cursorToX(2 * cell), left + (right - left) * cell / 36, 1);
      }
    }
    EXPECT_EQ(rows, 36);
  }

  QStringList PrintedPages(const RichTextBox& box) {
    const QString file = ToQString((folder_.Path() / "sheet.pdf").string());
    pages::Print(box, file);
    return pages::Texts(file);
  }
  // The lines on which something stands, their blanks made one.
  static QStringList Written(const QString& text) {
    QStringList lines;
    for (const QString& line : text.split(u'\n')) {
      if (!line.trimmed().isEmpty()) lines << line.simplified();
    }
    return lines;
  }

  TempFolder folder_;
  SeededRandom random_{1};
  std::unique_ptr<Desktop> desktop_;
};

TEST_F(AWordSearchOnScreen, HasItsSizeSetWithTheKeys) {
  Open(Screen::PuzzleSize);
  Form& size = *desktop_->program().forms().Find(Screen::PuzzleSize);
  FormView& view = *desktop_->windows().Find(size);
  const auto bar = [&](const char* name) {
    return dynamic_cast<QSlider*>(view.Find(*size.FindControl(name))->widget());
  };
  const auto label = [&](const char* name) {
    return dynamic_cast<QLabel*>(view.Find(*size.FindControl(name))->widget())->text();
  };
  EXPECT_EQ(label("Labelx"), " 20");
  QTest::keyClick(bar("VScrollx"), Qt::Key_Right);
  QTest::keyClick(bar("VScrollx"), Qt::Key_PageUp);
  QTest::keyClick(bar("VScrolly"), Qt::Key_Home);
  Settle();
  EXPECT_EQ(label("Labelx"), " 26");
  EXPECT_EQ(label("Labely"), " 10");
  EXPECT_LE(view.minimumSizeHint().width(), 800);
  EXPECT_LE(view.minimumSizeHint().height(), 560);
}

TEST_F(AWordSearchOnScreen, OfTheLargestSizeFitsTheColumnWithStraightCells) {
  OpenLargest(1);
  RichTextView& sheet = View(form().QuizBox);
  EXPECT_EQ(sheet.horizontalScrollBar()->maximum(), 0);
  ExpectStraight(sheet);
  QTest::mouseClick(desktop_->windows().main().findChild<QToolButton*>("Key"), Qt::LeftButton);
  Settle();
  ExpectStraight(View(form().AnswerBox));
}

TEST_F(AWordSearchOnScreen, HasItsWordsInStraightColumns) {
  OpenLargest(1);
  const QTextDocument& document = View(form().QuizBox).document();
  document.documentLayout()->documentSize();
  int words = 0;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (!block.text().startsWith(" word")) continue;
    ASSERT_EQ(block.layout()->lineCount(), 1) << block.text().toStdString();
    const QTextLine line = block.layout()->lineAt(0);
    const double character = line.cursorToX(1) - line.cursorToX(0);
    for (int offset = 1; offset < block.text().size() && offset <= 76; offset += 25) {
      EXPECT_EQ(block.text().mid(offset, 4), "word");
      EXPECT_NEAR(line.cursorToX(offset), character * offset, 1);
      ++words;
    }
  }
  EXPECT_EQ(words, 75);
}

TEST_F(AWordSearchOnScreen, IsPrintedLineByLineAndBreaksPagesBetweenRowsOnly) {
  for (const int bank : {1, 2}) {
    OpenLargest(bank);
    const QStringList pages = PrintedPages(form().QuizBox);
    EXPECT_EQ(pages.size(), bank == 1 ? 2 : 3);
    // Nothing is cut, lost or printed twice.
    const QString text = QString::fromStdU32String(form().QuizBox.PlainText());
    EXPECT_EQ(Written(pages.join(u'\n')), Written(text));
    // The puzzle is in one piece.
    EXPECT_TRUE(Written(pages[0]).contains(Written(text)[3 + 35]));
    desktop_->loop().Dispatch([&] {
      desktop_->program().forms().Show(Screen::Title);
      desktop_->program().forms().Unload(Screen::WordSearchForm);
    });
  }
}

TEST_F(AWordSearchOnScreen, IsPrintedWithWholeRowsWhereAPageEndsInThePuzzle) {
  OpenLargest(1);
  desktop_->loop().Dispatch([&] {
    form().QuizBox.SelStart(0);
    form().QuizBox.SelText(std::string(25, '\n'));
  });
  const QStringList pages = PrintedPages(form().QuizBox);
  ASSERT_EQ(pages.size(), 2);
  const QStringList lines = Written(QString::fromStdU32String(form().QuizBox.PlainText()));
  EXPECT_EQ(Written(pages.join(u'\n')), lines);
  const QStringList first = Written(pages[0]);
  EXPECT_TRUE(first.contains(lines[3]));
  EXPECT_FALSE(first.contains(lines[3 + 35]));
}

TEST_F(AWordSearchOnScreen, HasAKeyThatIsPrintedOnOnePage) {
  OpenLargest(1);
  const QStringList pages = PrintedPages(form().AnswerBox);
  EXPECT_EQ(pages.size(), 1);
  EXPECT_EQ(Written(pages.join(u'\n')),
            Written(QString::fromStdU32String(form().AnswerBox.PlainText())));
}

TEST_F(AWordSearchOnScreen, AsksForItsSizeOnAPanelNoHigherThanItNeeds) {
  Open(Screen::PuzzleSize);
  auto* page = desktop_->windows().main().Page();
  const auto* panel = page->findChild<QFrame*>("Panel");
  ASSERT_NE(panel, nullptr);
  EXPECT_LT(panel->height(), 300);
  EXPECT_GT(panel->width(), 700);
}

}  // namespace
}  // namespace brindlepage
