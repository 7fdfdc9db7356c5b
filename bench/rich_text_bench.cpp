// Writing into the middle of a long document: 200,000 characters in lines of 80, and 10,000
// insertions at the caret. The same calls on a QTextDocument are in qtextdocument_bench.cpp.
#include <benchmark/benchmark.h>

#include <string>

#include "worksheet/rich_text.h"

namespace brindlepage {
namespace {

constexpr int kLines = 2500;
constexpr int kMiddle = kLines / 2 * 80;
constexpr int kInsertions = 10000;
constexpr int kRows = 1000;

void Fill(RichText& sheet) {
  std::string text;
  for (int line = 0; line < kLines; ++line) text += std::string(79, 'x') + "\n";
  sheet.Text(text);
}

template <class Write>
void InTheMiddle(benchmark::State& state, Write write, int insertions = kInsertions) {
  for (auto _ : state) {
    state.PauseTiming();
    {
      RichText sheet("Courier New", 9.75);
      Fill(sheet);
      sheet.SelStart(kMiddle);
      state.ResumeTiming();
      for (int i = 0; i < insertions; ++i) write(sheet, i);
      benchmark::DoNotOptimize(sheet.Length());
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * insertions);
}

// Ten words to a line.
const char* Word(int i) { return i % 10 == 9 ? "volcano\n" : "volcano "; }

void RichTextWords(benchmark::State& state) {
  InTheMiddle(state, [](RichText& sheet, int i) { sheet.SelText(Word(i)); });
}

void RichTextLines(benchmark::State& state) {
  InTheMiddle(state, [](RichText& sheet, int) { sheet.SelText("volcano -- a hill of fire\n"); });
}

void RichTextWordsInTwoFormats(benchmark::State& state) {
  InTheMiddle(state, [](RichText& sheet, int i) {
    sheet.SelBold(i % 2 == 0);
    sheet.SelText(Word(i));
  });
}

// A word among the blanks of its row, as banks of words are written: the line end goes in behind
// the word, and the blanks left over pile up behind the caret.
void RichTextWordsInRowsOfBlanks(benchmark::State& state) {
  InTheMiddle(
      state,
      [](RichText& sheet, int) {
        const int start = sheet.SelStart();
        sheet.SelText("                    ");
        sheet.SelStart(start + 10);
        sheet.SelText("volcano\n");
      },
      kRows);
}

BENCHMARK(RichTextWords)->Unit(benchmark::kMillisecond);
BENCHMARK(RichTextLines)->Unit(benchmark::kMillisecond);
BENCHMARK(RichTextWordsInTwoFormats)->Unit(benchmark::kMillisecond);
BENCHMARK(RichTextWordsInRowsOfBlanks)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brindlepage
