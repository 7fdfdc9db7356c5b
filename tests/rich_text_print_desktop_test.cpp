#include <gtest/gtest.h>

#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <functional>
#include <random>

#include "tests/open_sheet.h"
#include "tests/printed_pages.h"
#include "toolkit/run_time_error.h"

namespace brindlepage {
namespace {

class APrintedSheet : public AnOpenSheet {
 protected:
  void Print(int start = 0, int length = 0, const std::function<void(QPrinter&)>& told = {}) {
    pages::Print(box(), file_, start, length, told);
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
