#include <benchmark/benchmark.h>

#include "core/shared_state.h"
#include "worksheet/study_guide_form.h"

namespace brindlepage {
namespace {

// The largest sheet: 300 marked words of a list of 300.
void ComposeStudySheetOf300Words(benchmark::State& state) {
  SharedState shared;
  shared.WorksheetTitle = "A long list Study Guide";
  shared.ListWordCount = 300;
  shared.MarkedCount = 300;
  for (int i = 1; i <= 300; ++i) {
    shared.ListWords(i) = "word number " + std::to_string(i);
    shared.ListMeanings(i) = "a meaning of some sixty characters, as a teacher would write it";
    shared.WordMarks(i) = 1;
  }
  for (auto _ : state) {
    RichText box("Courier New", 9.75);
    ComposeStudySheet(shared, box);
    benchmark::DoNotOptimize(box.Length());
  }
}
BENCHMARK(ComposeStudySheetOf300Words)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brindlepage
