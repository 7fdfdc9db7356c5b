// A quiz of 300 questions as a rich text file, written and read, beside a plain copy of the same
// bytes; and a file of 5 MB with pictures. Writing the same quiz through QTextDocumentWriter is in
// qtextdocument_rtf_bench.cpp.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <string>

#include "bench/quiz_sheet.h"
#include "worksheet/rich_text.h"
#include "worksheet/rtf_reader.h"
#include "worksheet/rtf_writer.h"

namespace brindlepage {
namespace {

struct Sheet : RichText {
  Sheet() : RichText("Courier New", 9.75) {}
};

void Count(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
  state.counters["bytes"] = static_cast<double>(bytes);
}

void TimeWriting(benchmark::State& state, const Sheet& sheet) {
  std::size_t size = 0;
  for (auto _ : state) {
    const std::string file = WriteRtf(sheet);
    size = file.size();
    benchmark::DoNotOptimize(file.data());
  }
  Count(state, size);
}

void TimeReading(benchmark::State& state, Sheet& sheet) {
  const std::string file = WriteRtf(sheet);
  for (auto _ : state) {
    ReadRtf(file, sheet);
    benchmark::DoNotOptimize(sheet.Length());
  }
  Count(state, file.size());
}

void RtfWriteQuiz(benchmark::State& state) {
  Sheet sheet;
  WriteQuiz(sheet);
  TimeWriting(state, sheet);
}

void RtfReadQuiz(benchmark::State& state) {
  Sheet sheet;
  WriteQuiz(sheet);
  TimeReading(state, sheet);
}

void RtfCopyOfTheBytes(benchmark::State& state) {
  Sheet sheet;
  WriteQuiz(sheet);
  const std::string file = WriteRtf(sheet);
  for (auto _ : state) {
    std::string copy = file;
    benchmark::DoNotOptimize(copy.data());
  }
  Count(state, file.size());
}

// Ten pictures of 256 KB, half a megabyte each in the file.
void WriteQuizWithPictures(RichText& sheet) {
  for (int i = 0; i < 10; ++i) {
    std::string bytes(256 * 1024, '\0');
    for (std::size_t at = 0; at < bytes.size(); ++at) bytes[at] = static_cast<char>(at * 7 + i);
    sheet.InsertPicture(
        std::make_shared<const RichPicture>(RichPicture{"png", std::move(bytes), 6000, 4000}));
    sheet.SelText("\n");
  }
  WriteQuiz(sheet);
}

void RtfReadPictures(benchmark::State& state) {
  Sheet sheet;
  WriteQuizWithPictures(sheet);
  TimeReading(state, sheet);
}

void RtfWritePictures(benchmark::State& state) {
  Sheet sheet;
  WriteQuizWithPictures(sheet);
  TimeWriting(state, sheet);
}

BENCHMARK(RtfWriteQuiz)->Unit(benchmark::kMicrosecond);
BENCHMARK(RtfReadQuiz)->Unit(benchmark::kMicrosecond);
BENCHMARK(RtfCopyOfTheBytes)->Unit(benchmark::kMicrosecond);
BENCHMARK(RtfWritePictures)->Unit(benchmark::kMillisecond);
BENCHMARK(RtfReadPictures)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brindlepage
