#include "tools/screens/page_picture.h"

#include <QColor>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "desktop/rich_text_view.h"

namespace brindlepage::screens {

namespace {

// Pixels.
constexpr int kWidth = 800;
constexpr int kFoot = 44;

constexpr QRgb kEdge = qRgb(0xC8, 0xC4, 0xBC);

void PrintToPdf(const RichTextBox& box, int start, int length, const QString& file) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(file);
  printer.setPageSize(QPageSize(QPageSize::Letter));
  PrintRichText(box, start, length, printer);
}

QImage FirstPage(const QString& pdf) {
  const QString base = pdf.chopped(4);
  const QStringList arguments{"-png",        "-singlefile", "-scale-to-x", QString::number(kWidth),
                              "-scale-to-y", "-1",          pdf,           base};
  if (QProcess::execute("pdftoppm", arguments) != 0) {
    std::fprintf(stderr, "pdftoppm (of poppler-utils) is missing or failed\n");
    std::exit(1);
  }
  return QImage(base + ".png").convertToFormat(QImage::Format_RGB32);
}

bool IsEmptyRow(const QImage& page, int row) {
  const auto* pixels = reinterpret_cast<const QRgb*>(page.constScanLine(row));
  return std::all_of(pixels, pixels + page.width(),
                     [](QRgb pixel) { return (pixel & 0xFFFFFF) == 0xFFFFFF; });
}

QImage WithoutEmptyFoot(const QImage& page) {
  int end = page.height();
  while (end > 1 && IsEmptyRow(page, end - 1)) --end;
  return page.copy(0, 0, page.width(), std::min(page.height(), end + kFoot));
}

}  // namespace

QImage PagePicture(const RichTextBox& box, int start, int length) {
  const QTemporaryDir folder;
  const QString pdf = folder.filePath("sheet.pdf");
  PrintToPdf(box, start, length, pdf);
  QImage picture = WithoutEmptyFoot(FirstPage(pdf));
  QPainter painter(&picture);
  painter.setPen(QColor(kEdge));
  painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
  return picture;
}

}  // namespace brindlepage::screens
