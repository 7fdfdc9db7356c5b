#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <string>

// What stands on the pages of a PDF file.
namespace brindlepage::pages {

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
