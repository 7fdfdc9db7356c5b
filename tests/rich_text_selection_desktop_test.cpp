// The ground of what is selected, and the text on it in its own colours.

#include <QTextDocument>
#include <set>

#include "desktop/rich_text_selection.h"
#include "desktop/style.h"
#include "tests/open_sheet.h"

namespace brindlepage {
namespace {

// A document of lines 300 pixels wide at most, and the ground of its selection on an image.
class TheGroundOfASelection : public ::testing::Test {
 protected:
  void Show(const QString& text) {
    document_.setDocumentMargin(0);
    document_.setTextWidth(300);
    document_.setPlainText(text);
    document_.documentLayout()->documentSize();  // lays it out
  }
  void Select(int from, int to) {
    image_.fill(Qt::white);
    QTextCursor cursor(&document_);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    QPainter painter(&image_);
    PaintSelection(painter, cursor, QRectF(image_.rect()), Qt::black);
  }

  QTextLine Line(int paragraph, int line = 0) const {
    return document_.findBlockByNumber(paragraph).layout()->lineAt(line);
  }
  // The filled pixels in the middle of a line.
  std::set<int> Filled(int paragraph, int line = 0) const {
    const QTextBlock block = document_.findBlockByNumber(paragraph);
    const double top = document_.documentLayout()->blockBoundingRect(block).top();
    const QTextLine shown = Line(paragraph, line);
    const int y = static_cast<int>(top + shown.y() + shown.height() / 2);
    std::set<int> filled;
    for (int x = 0; x < image_.width(); ++x) {
      if (image_.pixelColor(x, y) == Qt::black) filled.insert(x);
    }
    return filled;
  }
  static std::set<int> Pixels(double from, double to) {
    std::set<int> pixels;
    for (int x = static_cast<int>(std::lround(from)); x < std::lround(to); ++x) pixels.insert(x);
    return pixels;
  }

  QTextDocument document_;
  QImage image_{400, 400, QImage::Format_RGB32};
};

TEST_F(TheGroundOfASelection, LiesUnderTheSelectedCharactersAlone) {
  Show("one two three\nfour");
  Select(4, 7);
  EXPECT_EQ(Filled(0), Pixels(Line(0).cursorToX(4), Line(0).cursorToX(7)));
  EXPECT_EQ(Filled(1), std::set<int>());
}

TEST_F(TheGroundOfASelection, ReachesALittleOverAParagraphsEndThatIsSelectedToo) {
  Show("one\n\nthree");
  const double end = Line(0).cursorToX(3);
  Select(0, 3);
  EXPECT_EQ(Filled(0), Pixels(0, end));
  Select(0, 4);
  EXPECT_EQ(Filled(0), Pixels(0, end + Line(0).height() / 4));
  EXPECT_EQ(Filled(1), std::set<int>());
  Select(0, 5);
  EXPECT_EQ(Filled(1), Pixels(0, Line(1).height() / 4));
  EXPECT_EQ(Filled(2), std::set<int>());
}

TEST_F(TheGroundOfASelection, LiesUnderAllLinesOfAParagraphFromItsStartToItsEnd) {
  const QString text = QString("word ").repeated(40).trimmed();
  Show(text);
  const int lines = document_.firstBlock().layout()->lineCount();
  ASSERT_GT(lines, 2);
  Select(5, static_cast<int>(text.size()) - 4);
  EXPECT_EQ(Filled(0, 0), Pixels(Line(0).cursorToX(5), Line(0).cursorToX(Line(0).textLength())));
  EXPECT_EQ(*Filled(0, 1).begin(), 0);
  const QTextLine last = Line(0, lines - 1);
  EXPECT_EQ(Filled(0, lines - 1), Pixels(0, last.cursorToX(static_cast<int>(text.size()) - 4)));
}

TEST_F(TheGroundOfASelection, FollowsCharactersThatRunToTheLeft) {
  Show(QString::fromUtf8("ab \u05D0\u05D1\u05D2 cd"));
  const auto room_of = [this](int character) {
    const QRectF room = Line(0).glyphRuns(character, 1).front().boundingRect();
    return Pixels(room.left(), room.right());
  };
  Select(1, 4);  // b, the blank, and the first of the letters, which stands to their right
  std::set<int> filled = room_of(1);
  filled.merge(room_of(2));
  filled.merge(room_of(3));
  EXPECT_EQ(Filled(0), filled);
  EXPECT_GT(*room_of(3).begin(), *room_of(4).begin());
  EXPECT_FALSE(Filled(0).contains(*room_of(4).begin()));
}

TEST_F(TheGroundOfASelection, IsPaintedNoFurtherThanItIsSeen) {
  Show(QString("line\n").repeated(15));
  image_.fill(Qt::white);
  QTextCursor all(&document_);
  all.select(QTextCursor::Document);
  QPainter painter(&image_);
  const QRectF room = document_.documentLayout()->blockBoundingRect(document_.findBlockByNumber(5));
  PaintSelection(painter, all, room.adjusted(0, 1, 0, -1), Qt::black);
  painter.end();
  EXPECT_EQ(Filled(3), std::set<int>());
  EXPECT_NE(Filled(5), std::set<int>());
  EXPECT_EQ(Filled(7), std::set<int>());
}

TEST_F(AnOpenSheet, WhatIsSelectedKeepsItsColour) {
  Compose([](RichTextBox& box) {
    box.SelFontSize(30);
    box.SelColor(0x0000FF);
    box.SelText("MMMMMM");
  });
  const auto has = [this](const QColor& color) {
    const QImage seen = view->grab().toImage();
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) {
        if (seen.pixelColor(x, y) == color) return true;
      }
    }
    return false;
  };
  EXPECT_FALSE(has(palette::kMist));
  PutCaret(0, 6);
  EXPECT_TRUE(has(palette::kMist));
  EXPECT_TRUE(has(Qt::red));
}

}  // namespace
}  // namespace brindlepage
