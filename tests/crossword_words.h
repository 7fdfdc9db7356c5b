#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "crossword/crossword_grid.h"
#include "toolkit/random_source.h"

// What the tests of the crossword share: lists of words, and sources of draws.
namespace brindlepage {

struct PuzzleWish {
  std::vector<std::string> words;
  int slider = 120;
  bool best = false;
  std::vector<int> marked = {};  // empty: all of them
};

inline SharedState StateFor(const PuzzleWish& wish) {
  SharedState shared;
  shared.CrossSize = wish.slider;
  shared.BestPuzzle = wish.best ? 1 : 0;
  shared.ListWordCount = static_cast<int>(wish.words.size());
  for (int i = 1; i <= shared.ListWordCount; ++i) {
    shared.ListWords(i) = wish.words[static_cast<std::size_t>(i - 1)];
    shared.ListMeanings(i) = "meaning of word " + std::to_string(i);
    if (wish.marked.empty()) shared.WordMarks(i) = 1;
  }
  for (int word : wish.marked) shared.WordMarks(word) = 1;
  shared.MarkedCount =
      static_cast<int>(wish.marked.empty() ? wish.words.size() : wish.marked.size());
  return shared;
}

struct CrosswordDrawsUsedUp {};

// The given draws, and then, if a seed was given, draws from that. It counts what it is asked, and
// keeps a sum in which every reseeding has its place between the draws.
class CrosswordDraws : public DrawByDraw {
 public:
  explicit CrosswordDraws(std::vector<double> draws) : draws_(std::move(draws)) {}
  CrosswordDraws(std::vector<double> draws, std::uint64_t seed)
      : draws_(std::move(draws)), endless_(true), rest_(seed) {}

  float Draw() override {
    ++drawn_;
    if (next_ < draws_.size()) return static_cast<float>(draws_[next_++]);
    if (!endless_ || drawn_ > kTooMany) throw CrosswordDrawsUsedUp();
    return rest_.NextRandom();
  }
  void Reseed() override {
    ++reseeds_;
    trace_ = trace_ * 1000003 + static_cast<std::uint64_t>(drawn_);
  }

  bool AllUsed() const { return next_ == draws_.size(); }
  std::int64_t drawn() const { return drawn_; }
  std::int64_t reseeds() const { return reseeds_; }
  std::uint64_t trace() const { return trace_; }

 private:
  static constexpr std::int64_t kTooMany = 500'000'000;

  std::vector<double> draws_;
  std::size_t next_ = 0;
  bool endless_ = false;
  SeededRandom rest_{0};
  std::int64_t drawn_ = 0;
  std::int64_t reseeds_ = 0;
  std::uint64_t trace_ = 0;
};

// A draw that makes DrawIndex(n) give i.
inline double DrawOf(int i, int n) { return (i - 0.5) / n; }

// Lists of words for a seed: of few letters or many, of one length or many, with equal words.
class WordMaker {
 public:
  explicit WordMaker(std::uint64_t seed) : random_(seed) {}

  int Upto(int n) { return random_.DrawIndex(n); }

  std::vector<std::string> Words(int count, int letters, int shortest, int longest) {
    std::vector<std::string> words;
    for (int i = 0; i < count; ++i) {
      if (i > 0 && Upto(12) == 1) {  // a word that is there already
        words.push_back(words[static_cast<std::size_t>(Upto(i) - 1)]);
        continue;
      }
      std::string word;
      const int length = shortest - 1 + Upto(longest - shortest + 1);
      for (int k = 0; k < length; ++k) word += Letter(Upto(letters));
      words.push_back(std::move(word));
    }
    return words;
  }

  // Words that share no letter with another.
  std::vector<std::string> Strangers(int count, int length) {
    std::vector<std::string> words;
    for (int i = 1; i <= count; ++i) {
      words.emplace_back(static_cast<std::size_t>(length), Letter(i));
    }
    return words;
  }

  static char Letter(int i) { return static_cast<char>(i <= 26 ? 'a' + i - 1 : 0xA0 + i - 27); }

 private:
  SeededRandom random_;
};

}  // namespace brindlepage
