#include <benchmark/benchmark.h>

#include <memory>

#include "riddle/riddle_sheet.h"
#include "scramble_code/code_sheet.h"
#include "scramble_code/scramble_sheet.h"

namespace brindlepage {
namespace {

// Composes a sheet of `words` marked words again and again, with the program's own random numbers.
// `set_up` fills in what the sheet is made of.
template <class SetUp, class Compose>
void ComposeAgain(benchmark::State& state, int words, SetUp set_up, Compose compose) {
  auto shared = std::make_unique<SharedState>();
  shared->WorksheetTitle = "A long list";
  shared->ListWordCount = words;
  shared->MarkedCount = words;
  set_up(*shared);
  ClockRandom random;
  for (auto _ : state) {
    for (int word = 1; word <= words; ++word) shared->WordMarks(word) = 1;
    RichText box("Courier New", 9.75);
    compose(*shared, random, box);
    benchmark::DoNotOptimize(box.Length());
  }
}

void Scramble300Words(benchmark::State& state) {
  ComposeAgain(
      state, 300,
      [](SharedState& shared) {
        shared.ScrambleClues = 1;
        for (int word = 1; word <= 300; ++word) {
          shared.ListWords(word) = "photosynthesis";
          shared.ListMeanings(word) = "how a plant makes its food of light, air and water";
        }
      },
      ComposeScrambleSheet);
}
BENCHMARK(Scramble300Words)->Unit(benchmark::kMillisecond);

void Code300MeaningsOf200Letters(benchmark::State& state) {
  ComposeAgain(
      state, 300,
      [](SharedState& shared) {
        shared.ActivityKind = kSecretCode;
        for (int word = 1; word <= 300; ++word) {
          shared.ListWords(word) = "word";
          for (int i = 0; i < 200; ++i) {
            shared.ListMeanings(word) += static_cast<char>('a' + i % 26);
          }
        }
      },
      ComposeCodeSheet);
}
BENCHMARK(Code300MeaningsOf200Letters)->Unit(benchmark::kMillisecond);

// No word holds a letter of the answer, so that each has its thousand tries.
void RiddleOf300LettersInNoneOf150Words(benchmark::State& state) {
  ComposeAgain(
      state, 150,
      [](SharedState& shared) {
        shared.RiddleText = "What is never found?";
        shared.RiddleAnswer = std::string(300, '?');
        for (int word = 1; word <= 150; ++word) {
          shared.ListWords(word) = "thirteenchars";
          shared.ListMeanings(word) = "as long as a word may be here";
        }
      },
      ComposeRiddleSheet);
}
BENCHMARK(RiddleOf300LettersInNoneOf150Words)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brindlepage
