#include <benchmark/benchmark.h>

#include "core/shared_state.h"
#include "quiz/quiz_sheet.h"

namespace brindlepage {
namespace {

// A list of 300 words, so many of which are marked. Where all are, the last words take hundreds
// of draws each.
void ComposeQuizOfKind(benchmark::State& state, int quiz_kind) {
  const int marked = static_cast<int>(state.range(0));
  SharedState shared;
  shared.QuizKind = quiz_kind;
  shared.WorksheetTitle = "A long list Quiz";
  shared.ListWordCount = 300;
  shared.MarkedCount = marked;
  for (int i = 1; i <= 300; ++i) {
    shared.ListWords(i) = "word" + std::to_string(i);
    shared.ListMeanings(i) =
        "a meaning of some sixty characters, as a teacher would write it " + std::to_string(i);
  }
  ClockRandom random;
  for (auto _ : state) {
    for (int word = 301 - marked; word <= 300; ++word) shared.WordMarks(word) = 1;
    RichText quiz_box("Courier New", 9.75);
    RichText answer_box("Times New Roman", 14.25);
    try {
      ComposeQuiz(shared, random, quiz_box, answer_box);
    } catch (const RunTimeError&) {
      // Three hundred words to choose from are more than the caret can count; this is the longest
      // such sheet.
    }
    benchmark::DoNotOptimize(quiz_box.Length());
  }
}

#define QUIZ_BENCHMARK(name, kind)                 \
  BENCHMARK_CAPTURE(ComposeQuizOfKind, name, kind) \
      ->ArgName("marked")                          \
      ->Arg(300)                                   \
      ->Arg(1)                                     \
      ->Unit(benchmark::kMillisecond)

QUIZ_BENCHMARK(ChooseWord, kChooseWord);
QUIZ_BENCHMARK(ChooseMeaning, kChooseMeaning);
QUIZ_BENCHMARK(FillIn, kFillIn);
QUIZ_BENCHMARK(WordBank, kWordBank);
QUIZ_BENCHMARK(Matching, kMatching);
QUIZ_BENCHMARK(Alphabetize, kAlphabetizeSheet);

}  // namespace
}  // namespace brindlepage
