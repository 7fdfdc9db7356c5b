#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "desktop/finish_print.h"
#include "desktop/rich_text_layout.h"
#include "desktop/rich_text_view.h"
#include "toolkit/run_time_error.h"

namespace brindlepage {

namespace {

constexpr double kMargin = 0.75 * RichTextLayout::kDotsPerInch;

struct Line {
  QTextLine line;
  QPointF origin;  // of its paragraph
  double top;      // dots
  double bottom;
  bool written;  // something stands on it
};

struct Lines {
  std::vector<Line> all;
  std::size_t visible = 0;  // how many there are down to the last on which something is written
};

// A stretch of the column, from the top of one line to the bottom of another.
struct Page {
  double top;
  double bottom;
};

Lines LinesOf(const QTextDocument& document) {
  Lines lines;
  document.documentLayout()->documentSize();  // lays out what is not yet
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const QTextLayout& layout = *block.layout();
    const QString text = block.text();
    for (int i = 0; i < layout.lineCount(); ++i) {
      const QTextLine line = layout.lineAt(i);
      const double top = layout.position().y() + line.y();
      const auto words = QStringView(text).mid(line.textStart(), line.textLength()).trimmed();
      lines.all.push_back({line, layout.position(), top, top + line.height(), !words.isEmpty()});
      if (!words.isEmpty()) lines.visible = lines.all.size();
    }
  }
  return lines;
}

// The line with which a page begins, if `line` is the first that has no room on the one before,
// which begins with `first`. A question and its few lines stay together.
std::size_t PageBreak(const Lines& lines, std::size_t first, std::size_t line) {
  constexpr std::size_t kKeptTogether = 6;
  if (!lines.all[line].written) return line;
  for (std::size_t i = line; i > first + 1 && line - i < kKeptTogether; --i) {
    if (!lines.all[i - 1].written) return i;
  }
  return line;
}

// A line that is higher than a page is cut, and blanks at the end open no page.
std::vector<Page> PagesOf(const Lines& lines, double height) {
  std::vector<Page> pages;
  std::size_t first = 0;  // of the last page
  for (std::size_t i = 0; i < lines.all.size(); ++i) {
    const bool fits = !pages.empty() && lines.all[i].bottom <= pages.back().top + height;
    if (!fits && i >= lines.visible) break;
    if (!fits) {
      if (!pages.empty()) i = PageBreak(lines, first, i);
      first = i;
      const double top = lines.all[i].top;
      if (!pages.empty()) pages.back().bottom = std::min(pages.back().bottom, top);
      pages.push_back({top, top});
    }
    const Line& line = lines.all[i];
    while (line.bottom > pages.back().top + height) {
      const double cut = pages.back().top + height;
      pages.back().bottom = cut;
      pages.push_back({cut, cut});
    }
    pages.back().bottom = line.bottom;
  }
  if (pages.empty()) pages.push_back({0, 0});
  return pages;
}

// As the print dialog was told: from the last page on, and each as often as the printer does not
// multiply them itself.
std::vector<Page> InPrintOrder(std::vector<Page> pages, const QPrinter& printer) {
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(pages.begin(), pages.end());
  const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
  const std::size_t count = pages.size();
  std::vector<Page> ordered;
  for (std::size_t i = 0; i < count * static_cast<std::size_t>(copies); ++i) {
    const bool collated = printer.collateCopies();
    ordered.push_back(pages[collated ? i % count : i / static_cast<std::size_t>(copies)]);
  }
  return ordered;
}

void Draw(const Lines& lines, const Page& page, QPainter& painter) {
  painter.setClipRect(QRectF(-kMargin, page.top, RichTextLayout::kColumnWidth + 2 * kMargin,
                             page.bottom - page.top));
  for (const Line& line : lines.all) {
    if (line.bottom > page.top && line.top < page.bottom) line.line.draw(&painter, line.origin);
  }
}

}  // namespace

void PrintRichText(const RichTextBox& box, int start, int length, QPrinter& printer) {
  const bool whole = length <= 0;
  const int from = whole ? 0 : std::clamp(start, 0, box.Length());
  const int end = whole ? box.Length() : std::min<int>(box.Length(), from + length);
  RichTextLayout layout(box);
  layout.HangBlanks();
  layout.Load(from, end);

  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) throw RunTimeError(Fault::DeviceIo);
  const QRectF paper = printer.pageLayout().fullRect(QPageLayout::Inch);
  const double paper_width = paper.width() * RichTextLayout::kDotsPerInch;
  const double paper_height = paper.height() * RichTextLayout::kDotsPerInch;
  const double shrink = std::min(1.0, paper_width / RichTextLayout::kColumnWidth);
  const double left = (paper_width - shrink * RichTextLayout::kColumnWidth) / 2;
  const double height = std::max((paper_height - 2 * kMargin) / shrink, 1.0);

  const Lines lines = LinesOf(layout.document());
  bool first = true;
  for (const Page& page : InPrintOrder(PagesOf(lines, height), printer)) {
    if (!first && !printer.newPage()) throw RunTimeError(Fault::DeviceIo);
    first = false;
    painter.save();
    painter.scale(printer.logicalDpiX() / double{RichTextLayout::kDotsPerInch},
                  printer.logicalDpiY() / double{RichTextLayout::kDotsPerInch});
    painter.translate(left, kMargin);
    painter.scale(shrink, shrink);
    painter.translate(0, -page.top);
    Draw(lines, page, painter);
    painter.restore();
  }
  FinishPrint(painter, printer);
}

}  // namespace brindlepage
