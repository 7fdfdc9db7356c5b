#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "crossword/grid_builder.h"

namespace brindlepage {
namespace {

// Words that a vocabulary list could hold: two to four syllables of English letters.
std::string Word(SeededRandom& random) {
  static const char* const kSyllables[] = {
      "a",   "al", "an",  "ar",  "at",  "be",  "ber", "ca",  "cen", "ci",  "co", "con",  "cu",
      "da",  "de", "der", "di",  "do",  "e",   "el",  "en",  "er",  "es",  "fa", "fer",  "fi",
      "ga",  "ge", "gen", "gra", "ha",  "hy",  "i",   "in",  "ion", "is",  "ka", "la",   "le",
      "li",  "lo", "lu",  "ma",  "me",  "men", "mi",  "mo",  "na",  "ne",  "ni", "no",   "nu",
      "o",   "or", "pa",  "per", "phe", "pi",  "po",  "pre", "qua", "ra",  "re", "ri",   "ro",
      "sa",  "se", "si",  "so",  "sta", "su",  "ta",  "te",  "ter", "thi", "ti", "tion", "to",
      "tra", "tu", "u",   "ure", "va",  "ver", "vi",  "vo",  "xi",  "y",   "za"};
  std::string word;
  for (int syllables = 1 + random.DrawIndex(3); syllables > 0; --syllables) {
    word += kSyllables[random.DrawIndex(static_cast<int>(std::size(kSyllables))) - 1];
  }
  return word.size() < 3 ? word + "ter" : word;
}

SharedState Puzzle(int words, int slider, bool best, std::uint64_t seed) {
  SeededRandom random(seed);
  SharedState shared;
  shared.CrossSize = slider;
  shared.BestPuzzle = best ? 1 : 0;
  shared.ListWordCount = words;
  shared.MarkedCount = words;
  for (int i = 1; i <= words; ++i) {
    shared.ListWords(i) = Word(random);
    shared.WordMarks(i) = 1;
  }
  return shared;
}

// Builds as on a teacher's machine: it reseeds before nearly every draw, at the cost of a look at
// the clock, but draws the same each time.
class ReseedingRandom : public SeededRandom {
 public:
  using SeededRandom::SeededRandom;
  void Reseed() override { clock_.Reseed(); }

 private:
  ClockRandom clock_;
};

double Middle(std::vector<double>& times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

enum class Mode { Manual, Best, BestWithWordTwoFirst };

// 200 builds of 200 lists: the middle one and the slowest in milliseconds, and how many words
// stand on the grid.
void Build(benchmark::State& state, Mode mode) {
  constexpr int kBuilds = 200;
  const int words = static_cast<int>(state.range(0));
  const int slider = static_cast<int>(state.range(1));
  std::vector<double> times;
  double placed = 0;
  double gave_up = 0;
  double orphans = 0;
  for (auto _ : state) {
    for (int seed = 1; seed <= kBuilds; ++seed) {
      SharedState shared =
          Puzzle(words, slider, mode != Mode::Manual, static_cast<std::uint64_t>(seed));
      if (mode == Mode::BestWithWordTwoFirst) {
        shared.WordMarks.Erase();
        shared.WordMarks(2) = 1;
      }
      ReseedingRandom random(static_cast<std::uint64_t>(seed) + 1000);
      const auto start = std::chrono::steady_clock::now();
      GridBuilder builder(shared, random);
      builder.Build();
      const std::chrono::duration<double, std::milli> time =
          std::chrono::steady_clock::now() - start;
      times.push_back(time.count());
      for (int p = 1; p <= words; ++p) placed += builder.grid().PlacedWords(p).Number > 0 ? 1 : 0;
      gave_up += builder.GaveUp() ? 1 : 0;
      orphans += shared.OrphansFlag ? 1 : 0;
    }
  }
  const auto builds = static_cast<double>(times.size());
  state.counters["median_ms"] = Middle(times);
  state.counters["worst_ms"] = *std::max_element(times.begin(), times.end());
  state.counters["words"] = placed / builds;
  state.counters["gave_up"] = gave_up / builds;
  state.counters["orphans"] = orphans / builds;
}

void BuildManualCrossword(benchmark::State& state) { Build(state, Mode::Manual); }
void BuildBestCrossword(benchmark::State& state) { Build(state, Mode::Best); }

// The one order in a list's length whose restarts nest as deep as a build can.
void BuildBestCrosswordWithWordTwoFirst(benchmark::State& state) {
  Build(state, Mode::BestWithWordTwoFirst);
}

// Words, slider.
BENCHMARK(BuildManualCrossword)->Args({50, 120})->Args({50, 200})->Unit(benchmark::kMillisecond);
BENCHMARK(BuildBestCrossword)
    ->Args({50, 200})
    ->Args({75, 200})
    ->Args({300, 200})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BuildBestCrosswordWithWordTwoFirst)
    ->Args({50, 200})
    ->Args({300, 200})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brindlepage
