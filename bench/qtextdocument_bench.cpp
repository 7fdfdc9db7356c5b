// The calls of rich_text_bench.cpp on a QTextDocument, without a view, a layout or undo.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr int kLines = 2500;
constexpr int kMiddle = kLines / 2 * 80;
constexpr int kInsertions = 10000;
constexpr int kRows = 1000;

void NeedApplication() {
  static int count = 1;
  static char name[] = "bench";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Lives until the process ends.
  [[maybe_unused]] static auto* const application = new QGuiApplication(count, arguments);
}

void Fill(QTextDocument& document) {
  QString text;
  for (int line = 0; line < kLines; ++line) {
    text += QString(79, QLatin1Char('x')) + QLatin1Char('\n');
  }
  document.setPlainText(text);
}

template <class Write>
void InTheMiddle(benchmark::State& state, Write write, int insertions = kInsertions) {
  NeedApplication();
  for (auto _ : state) {
    state.PauseTiming();
    {
      QTextDocument document;
      document.setUndoRedoEnabled(false);
      Fill(document);
      QTextCursor cursor(&document);
      cursor.setPosition(kMiddle);
      state.ResumeTiming();
      for (int i = 0; i < insertions; ++i) write(cursor, i);
      benchmark::DoNotOptimize(document.characterCount());
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * insertions);
}

// Ten words to a line.
QString Word(int i) {
  return i % 10 == 9 ? QStringLiteral("volcano\n") : QStringLiteral("volcano ");
}

void QTextDocumentWords(benchmark::State& state) {
  InTheMiddle(state, [](QTextCursor& cursor, int i) { cursor.insertText(Word(i)); });
}

void QTextDocumentLines(benchmark::State& state) {
  InTheMiddle(state, [](QTextCursor& cursor, int) {
    cursor.insertText(QStringLiteral("volcano -- a hill of fire\n"));
  });
}

void QTextDocumentWordsInTwoFormats(benchmark::State& state) {
  InTheMiddle(state, [](QTextCursor& cursor, int i) {
    QTextCharFormat format = cursor.charFormat();
    format.setFontWeight(i % 2 == 0 ? QFont::Bold : QFont::Normal);
    cursor.insertText(Word(i), format);
  });
}

void QTextDocumentWordsInRowsOfBlanks(benchmark::State& state) {
  InTheMiddle(
      state,
      [](QTextCursor& cursor, int) {
        const int start = cursor.position();
        cursor.insertText(QStringLiteral("                    "));
        cursor.setPosition(start + 10);
        cursor.insertText(QStringLiteral("volcano\n"));
      },
      kRows);
}

BENCHMARK(QTextDocumentWords)->Unit(benchmark::kMillisecond);
BENCHMARK(QTextDocumentLines)->Unit(benchmark::kMillisecond);
BENCHMARK(QTextDocumentWordsInTwoFormats)->Unit(benchmark::kMillisecond);
BENCHMARK(QTextDocumentWordsInRowsOfBlanks)->Unit(benchmark::kMillisecond);

}  // namespace
