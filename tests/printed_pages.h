#pragma once

#include <gtest/gtest.h>

#include <QPageSize>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <functional>
#include <string>

#include "desktop/rich_text_view.h"

// Prints documents into PDF files, and tells what stands on their pages.
namespace brindlepage::pages {

// On Letter paper, or as is told. With a length of 0 the whole document.
inline void Print(const RichTextBox& box, const QString& file, int start = 0, int length = 0,
                  const std::function<void(QPrinter&)>& told = {}) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(file);
  printer.setPageSize(QPageSize(QPageSize::Letter));
  if (told) told(printer);
  PrintRichText(box, start, length, printer);
}

// What a command says. One that is missing fails the test.
inline QString Ask(const QString& tool, const QStringList& arguments) {
  if (QStandardPaths::findExecutable(tool).isEmpty()) {
    ADD_FAILURE() << tool.toStdString() << " is missing";
    return {};
  }
  QProcess process;
  process.start(tool, arguments);
  process.waitForFinished();
  return QString::fromUtf8(process.readAllStandardOutput());
}

// The text of each page that has one.
inline QStringList Texts(const QString& file) {
  return Ask("pdftotext", {"-layout", file, "-"}).split(u'\f', Qt::SkipEmptyParts);
}

// The lines on which something stands, single blanks between their words.
inline std::string Written(const QString& text) {
  QString written;
  for (const QString& line : text.split(u'\n')) {
    if (!line.trimmed().isEmpty()) written += line.simplified() + u'\n';
  }
  return written.toStdString();
}

inline std::string WrittenLines(const QString& file) { return Written(Texts(file).join(u'\n')); }

}  // namespace brindlepage::pages
