#include <benchmark/benchmark.h>

#include <string>

#include "core/shared_state.h"
#include "wordsearch/puzzle_builder.h"
#include "wordsearch/word_search_sheet.h"

namespace brindlepage {
namespace {

constexpr int kMostWords = 75;

// 75 words of `shortest` to `longest` letters, each letter about as often as in English.
void UseWords(SharedState& shared, int shortest, int longest) {
  const std::string letters =
      "aaaaaaaabbcccddddeeeeeeeeeeeeffgghhhhhhiiiiiiijkllllmmnnnnnnnooooooooppqrrrrrrsssssstttttttt"
      "tuuuvwwxyyz";
  SeededRandom random(2);
  for (int i = 1; i <= kMostWords; ++i) {
    const int length = shortest + i % (longest - shortest + 1);
    std::string word;
    for (int k = 0; k < length; ++k) {
      const int letter = random.DrawIndex(static_cast<int>(letters.size()));
      word += letters[static_cast<std::size_t>(letter) - 1];
    }
    shared.ListWords(i) = word;
  }
  shared.MarkedCount = kMostWords;
}

// 75 words of 17 letters that can't cross.
void UseHopelessWords(SharedState& shared) {
  for (int i = 1; i <= kMostWords; ++i) {
    shared.ListWords(i) = std::string(17, static_cast<char>('!' + i));
  }
  shared.MarkedCount = kMostWords;
}

// With the program's own random source and all its reseeding.
void Build(benchmark::State& state, SharedState& shared, int size) {
  ClockRandom random;
  PuzzleGrid grid;
  for (auto _ : state) {
    shared.PuzzleAcross = size;
    shared.PuzzleDown = size;
    benchmark::DoNotOptimize(BuildPuzzle(shared, random, grid));
  }
  state.counters["across"] = shared.PuzzleAcross;
}

void PlaceWordsFrom20By20(benchmark::State& state) {
  SharedState shared;
  UseWords(shared, 4, 12);
  Build(state, shared, 20);
}
BENCHMARK(PlaceWordsFrom20By20)->Unit(benchmark::kMillisecond);

void PlaceWordsAt30By30(benchmark::State& state) {
  SharedState shared;
  UseWords(shared, 4, 12);
  Build(state, shared, 30);
}
BENCHMARK(PlaceWordsAt30By30)->Unit(benchmark::kMillisecond);

void PlaceWordsOf17LettersFrom10By10(benchmark::State& state) {
  SharedState shared;
  UseWords(shared, 17, 17);
  Build(state, shared, 10);
}
BENCHMARK(PlaceWordsOf17LettersFrom10By10)->Unit(benchmark::kMillisecond);

void GiveUpHopelessWordsAt36By36(benchmark::State& state) {
  SharedState shared;
  UseHopelessWords(shared);
  Build(state, shared, 20);
}
BENCHMARK(GiveUpHopelessWordsAt36By36)->Unit(benchmark::kMillisecond);

// All that the teacher waits for but the placing: heading, rows, word bank and key at 36 by 36.
void ComposeWordSearchOf36By36(benchmark::State& state) {
  SharedState shared;
  UseWords(shared, 4, 12);
  shared.PuzzleAcross = 36;
  shared.PuzzleDown = 36;
  shared.WordBankKind = 1;
  ClockRandom random;
  PuzzleGrid grid;
  BuildPuzzle(shared, random, grid);
  for (auto _ : state) {
    RichText box("Courier New", 9.75);
    RichText key("Courier New", 12);
    word_search::WriteHeading(box, "Word Search");
    word_search::WritePuzzleRows(box, shared, grid, random);
    word_search::MakeWordBank(box, shared);
    word_search::MakePuzzleKey(key, shared, grid);
    benchmark::DoNotOptimize(box.Length() + key.Length());
  }
}
BENCHMARK(ComposeWordSearchOf36By36)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brindlepage
