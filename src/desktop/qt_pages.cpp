#include "desktop/qt_pages.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPrinter>
#include <cmath>

#include "desktop/finish_print.h"
#include "desktop/rich_text_layout.h"
#include "desktop/text.h"
#include "toolkit/run_time_error.h"

namespace brindlepage {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kLineWidth = 10;  // twips

QFont ToQFont(const PrinterFont& font) {
  QFont drawn(ShownFamilies(ToQString(font.name)));
  drawn.setPixelSize(qRound(font.points * kTwipsPerPoint));
  drawn.setBold(font.bold);
  drawn.setUnderline(font.underline);
  return drawn;
}

}  // namespace

QtPages::QtPages(QPrinter& printer) : printer_(printer) {
  printer_.setFullPage(true);
  printer_.setPageOrientation(QPageLayout::Portrait);
  printer_.setColorMode(QPrinter::Color);
  if (!painter_.begin(&printer_)) throw RunTimeError(Fault::DeviceIo);
  UseTwips();
}

QtPages::~QtPages() {
  if (!painter_.isActive()) return;
  printer_.abort();
  painter_.end();
}

void QtPages::UseTwips() {
  painter_.resetTransform();
  painter_.scale(printer_.logicalDpiX() / double{kTwipsPerInch},
                 printer_.logicalDpiY() / double{kTwipsPerInch});
  painter_.setPen(QPen(Qt::black, kLineWidth));
}

Size QtPages::PageSize() const {
  const QSizeF inches = printer_.pageLayout().fullRect(QPageLayout::Inch).size();
  return {qRound(inches.width() * kTwipsPerInch), qRound(inches.height() * kTwipsPerInch)};
}

int QtPages::LineHeight(const PrinterFont& font) const {
  return static_cast<int>(std::ceil(QFontMetricsF(ToQFont(font)).lineSpacing()));
}

void QtPages::DrawText(std::string_view text, int left, int top, const PrinterFont& font) {
  const QFont drawn = ToQFont(font);
  painter_.setFont(drawn);
  painter_.drawText(QPointF(left, top + QFontMetricsF(drawn).ascent()), ToQString(text));
}

void QtPages::DrawLine(int left, int top, int right, int bottom) {
  painter_.drawLine(left, top, right, bottom);
}

void QtPages::DrawBox(const Area& area) {
  painter_.drawRect(area.left, area.top, area.width, area.height);
}

void QtPages::DrawPicture(const FormPicture& picture, int left, int top) {
  const QImage image = QImage::fromData(QByteArray::fromStdString(picture.bytes));
  painter_.drawImage(QRectF(left, top, picture.width, picture.height), image);
}

void QtPages::NewPage() {
  if (!printer_.newPage()) throw RunTimeError(Fault::DeviceIo);
}

void QtPages::EndDoc() { FinishPrint(painter_, printer_); }

}  // namespace brindlepage
