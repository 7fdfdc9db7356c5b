#include "desktop/finish_print.h"

#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "toolkit/run_time_error.h"

namespace brindlepage {

namespace {

// The last line of every PDF file.
bool EndsAsPdf(const QString& name) {
  constexpr qint64 kTail = 16;
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return false;
  file.seek(std::max<qint64>(0, file.size() - kTail));
  return file.read(kTail).trimmed().endsWith("%%EOF");
}

}  // namespace

void FinishPrint(QPainter& painter, const QPrinter& printer) {
  if (!painter.end()) throw RunTimeError(Fault::DeviceIo);
  const bool is_file =
      printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty();
  if (is_file && !EndsAsPdf(printer.outputFileName())) throw RunTimeError(Fault::DiskFull);
}

}  // namespace brindlepage
