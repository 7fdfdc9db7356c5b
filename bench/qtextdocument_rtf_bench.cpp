// The quiz of rtf_bench.cpp, written as an ODF text by QTextDocumentWriter.
#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QByteArray>
#include <QGuiApplication>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>

#include "bench/quiz_sheet.h"

namespace brindlepage {
namespace {

void NeedApplication() {
  static int count = 1;
  static char name[] = "bench";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Lives until the process ends.
  if (!QGuiApplication::instance()) new QGuiApplication(count, arguments);
}

void Fill(QTextDocument& document, const RichText& sheet) {
  QTextCursor cursor(&document);
  const std::u32string text = sheet.PlainText();
  for (const RichText::Paragraph& paragraph : sheet.Paragraphs()) {
    for (const RichText::Run& run : sheet.Runs(paragraph)) {
      QTextCharFormat format;
      format.setFontFamilies({QString::fromStdString(run.format->font)});
      format.setFontPointSize(run.format->size / 20.0);
      format.setFontWeight(run.format->bold ? QFont::Bold : QFont::Normal);
      format.setFontItalic(run.format->italic);
      const auto start = static_cast<std::size_t>(run.start);
      cursor.insertText(QString::fromUcs4(text.data() + start, run.length), format);
    }
  }
}

void OdfWriteQuiz(benchmark::State& state) {
  NeedApplication();
  RichText sheet("Courier New", 9.75);
  WriteQuiz(sheet);
  QTextDocument document;
  document.setUndoRedoEnabled(false);
  Fill(document, sheet);
  for (auto _ : state) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QTextDocumentWriter writer(&buffer, "ODF");
    benchmark::DoNotOptimize(writer.write(&document));
  }
}

BENCHMARK(OdfWriteQuiz)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace brindlepage
