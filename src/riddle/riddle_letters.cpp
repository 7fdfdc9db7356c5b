#include "riddle/riddle_letters.h"

namespace brindlepage {

namespace {

constexpr int kTries = 1000;
constexpr std::size_t kCellWidth = 4;

int Length(const std::string& text) { return static_cast<int>(text.size()); }

class LetterNumbers {
 public:
  LetterNumbers(const std::vector<std::string>& words, const std::string& answer,
                RandomSource& random)
      : words_(words), answer_(answer), random_(random) {}

  RiddleCells Make() {
    PutLettersIntoCells();
    for (int place = 1; place <= Length(answer_); ++place) NumberLetter(place);
    ForEachWordCell([](std::string& cell) { Finish(cell); });
    return std::move(cells_);
  }

 private:
  template <class Visit>
  void ForEachWordCell(Visit visit) {
    int word = 0;
    for (const std::string& letters : words_) {
      ++word;
      for (int place = 1; place <= Length(letters); ++place) visit(cells_.words(word)(place));
    }
  }

  void PutLettersIntoCells() {
    int word = 0;
    for (const std::string& letters : words_) {
      ++word;
      int place = 0;
      for (const char letter : letters) cells_.words(word)(++place) = letter;
    }
    int place = 0;
    for (const char letter : answer_) cells_.answer(++place) = letter;
  }

  void NumberLetter(int place) {
    std::string& cell = cells_.answer(place);
    if (std::string* hit = FindLetter(cell.front())) {
      cell = "(" + std::to_string(place) + ")";
      *hit = cell;
    } else {
      cell = cells_.answer(FirstPlaceOf(answer_[static_cast<std::size_t>(place - 1)]));
    }
  }

  // A cell of the words that holds the letter still; null if all tries miss.
  std::string* FindLetter(char letter) {
    for (int i = 0; i < kTries; ++i) {
      random_.Reseed();
      const int word = random_.DrawIndex(static_cast<int>(words_.size()));
      const int place = random_.DrawIndex(LengthOfWord(word));
      std::string& cell = cells_.words(word)(place);
      if (cell.size() == 1 && cell.front() == letter) return &cell;
    }
    return nullptr;
  }

  int LengthOfWord(int word) const {
    const auto index = static_cast<std::size_t>(word - 1);
    return index < words_.size() ? Length(words_[index]) : 0;
  }

  int FirstPlaceOf(char letter) const { return static_cast<int>(answer_.find(letter)) + 1; }

  // A letter without a number is hidden, a number cell is brought to its width.
  static void Finish(std::string& cell) {
    if (cell.size() == 1) cell = "";
    if (cell.size() < kCellWidth) cell.insert(0, kCellWidth - cell.size(), ' ');
  }

  const std::vector<std::string>& words_;
  const std::string& answer_;
  RandomSource& random_;
  RiddleCells cells_;
};

}  // namespace

RiddleCells NumberLetters(const std::vector<std::string>& words, const std::string& answer,
                          RandomSource& random) {
  return LetterNumbers(words, answer, random).Make();
}

}  // namespace brindlepage
