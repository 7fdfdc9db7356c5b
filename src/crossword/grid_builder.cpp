#include "crossword/grid_builder.h"

#include <algorithm>
#include <bit>
#include <bitset>
#include <utility>

namespace brindlepage {

namespace {

constexpr int kLongestWord = 17;
constexpr int kDeepestRestart = 10'000;

std::uint32_t Bit(int place) { return 1u << place; }

}  // namespace

// A direction to lay words in. Cells are numbered as in CrosswordGrid.
struct GridBuilder::Way {
  WordDirection direction;
  int step;  // to the next cell of the word
  int side;  // to the cell beside it
  int end;   // a crossing word ends before this column or row, the cell behind it included
  // Which letter the head of a crossing word is compared with, counted from the right one. Across
  // it is the letter one further right: such a word may be refused for a good crossing on its
  // head side, or overwrite a letter of a word that stands there.
  int head_shift;
  int orphan_starts;  // columns or rows in which a word of no letters could start
  int lines;          // rows or columns it could start in then

  int Along(int cell) const {
    return direction == WordDirection::Across ? cell / CrosswordGrid::kStride
                                              : cell % CrosswordGrid::kStride;
  }
  int Cell(int along, int line) const {
    return direction == WordDirection::Across ? CrosswordGrid::Cell(along, line)
                                              : CrosswordGrid::Cell(line, along);
  }
};

const GridBuilder::Way GridBuilder::kAcrossWay = {
    .direction = WordDirection::Across,
    .step = CrosswordGrid::kStride,
    .side = 1,
    .end = 35,
    .head_shift = 1,
    .orphan_starts = CrosswordGrid::kColumns,
    .lines = CrosswordGrid::kRows,
};

const GridBuilder::Way GridBuilder::kDownWay = {
    .direction = WordDirection::Down,
    .step = 1,
    .side = CrosswordGrid::kStride,
    .end = 28,
    .head_shift = 0,
    .orphan_starts = CrosswordGrid::kRows,
    .lines = CrosswordGrid::kColumns,
};

GridBuilder::GridBuilder(SharedState& shared, RandomSource& random, Progress progress)
    : shared_(shared), random_(random), progress_(std::move(progress)), slider_(shared.CrossSize) {}

void GridBuilder::Build() {
  CheckWords();
  Prepare();
  ShuffleWords();
  BuildPuzzle();
}

void GridBuilder::CheckWords() const {
  for (int i = 1; i <= shared_.ListWordCount; ++i) {
    if (shared_.ListWords(i).size() > kLongestWord) throw RunTimeError(Fault::Subscript);
  }
}

void GridBuilder::Prepare() {
  shared_.OrphansFlag = false;
  target_words_ = shared_.MarkedCount;
  if (!BestMode()) return;
  target_words_ = slider_ / 4;
  Mark();
}

// Marks the words of the word order, which a draw of the order takes the marks off.
void GridBuilder::Mark() {
  for (int p = 1; p <= shared_.MarkedCount; ++p) shared_.WordMarks(shared_.AnswerTable(p)) = 1;
}

// Manual mode draws every word. Best mode takes the list in its order behind a random first word;
// where that word's turn comes the word before it stands a second time, and the list's first word
// is left out. With word 2 first, position 2 holds word 0: a word without letters.
void GridBuilder::ShuffleWords() {
  ++grid_state_;
  shared_.AnswerTable.Erase();
  random_.Reseed();
  const int first = DrawMarkedWord();
  TakeIntoOrder(1, first);
  int word = 0;
  for (int p = 2; p <= shared_.MarkedCount; ++p) {
    if (!BestMode()) {
      random_.Reseed();
      word = DrawMarkedWord();
    } else if (p != first) {
      word = p;
    }
    TakeIntoOrder(p, word);
  }
}

int GridBuilder::DrawMarkedWord() {
  while (true) {
    const int word = random_.DrawIndex(shared_.ListWordCount);
    if (shared_.WordMarks(word) != 0) return word;
  }
}

void GridBuilder::TakeIntoOrder(int position, int word) {
  shared_.WordMarks(word) = 0;
  shared_.AnswerTable(position) = word;
}

// Restarts are attempts on top of a stack rather than nested calls, so that they may nest as deep
// as the limit says on any machine.
void GridBuilder::BuildPuzzle() {
  BeginAttempt();
  while (!nested_.empty()) {
    if (Continue(nested_.back()) == Outcome::RestartWanted) {
      RetryPuzzle();
    } else {
      nested_.pop_back();
    }
  }
}

void GridBuilder::BeginAttempt() {
  const int depth = static_cast<int>(nested_.size());
  if (depth >= kDeepestRestart) throw RunTimeError(Fault::OutOfStack);
  deepest_restart_ = std::max(deepest_restart_, depth);
  retry_list_.Erase();
  grid_.Clear();
  ++grid_state_;
  placed_flag_ = false;
  turn_ = 1;
  nested_.push_back({.last_turn = target_words_});
}

// An attempt from where it stands to its end, or to where it wants a restart.
GridBuilder::Outcome GridBuilder::Continue(Attempt& attempt) {
  while (attempt.stage != Stage::Over) {
    Outcome outcome = Outcome::Done;
    switch (attempt.stage) {
      case Stage::FirstSweep:
        outcome = FirstSweep(attempt);
        break;
      case Stage::RetryStage:
        if (attempt.retries > 0) outcome = RetryStage(attempt);
        if (outcome == Outcome::Done) attempt.stage = Stage::Acceptance;
        break;
      case Stage::Acceptance:
        outcome = Acceptance(attempt);
        attempt.stage = outcome == Outcome::Done ? Stage::GridCheck : Stage::Over;
        break;
      case Stage::GridCheck:
        outcome = CheckGridNotEmpty();
        attempt.stage = Stage::Over;
        break;
      case Stage::Over:
        break;
    }
    if (outcome == Outcome::RestartWanted) return outcome;
  }
  return Outcome::Done;
}

// Manual mode restarts with a new word order and gives up at last; best mode keeps its order and
// aims lower from time to time. When it gave up, the interrupted attempts go on on what is left.
void GridBuilder::RetryPuzzle() {
  ++attempts_;
  Mark();
  if (BestMode()) {
    if (attempts_ > slider_ / 5) {
      attempts_ = 0;
      --target_words_;
    }
    return BeginAttempt();
  }
  if (attempts_ < slider_) ShowProgress(attempts_);
  ShuffleWords();
  if (attempts_ < slider_) return BeginAttempt();
  gave_up_ = true;
}

// Offers the words one by one. Best mode offers all that are left each time; each of those that
// crossed counts as a turn as well.
GridBuilder::Outcome GridBuilder::FirstSweep(Attempt& attempt) {
  bool resumed = attempt.scan_at > 0;
  for (; resumed || turn_ <= attempt.last_turn; ++turn_) {
    if (!resumed) word_pos_ = turn_;
    if (BestMode() && (resumed || turn_ > 1)) {
      if (ScanBestWords(attempt) == Outcome::RestartWanted) return Outcome::RestartWanted;
    }
    resumed = false;
    TakeWord(word_pos_);
    if (turn_ == 1) {
      PlaceFirstWord();
    } else {
      SearchCrossing();
    }
    if (!BestMode() && KeepOrLayAside(attempt) == Outcome::RestartWanted) {
      attempt.stage = Stage::RetryStage;
      return Outcome::RestartWanted;
    }
  }
  attempt.stage = Stage::RetryStage;
  return Outcome::Done;
}

// In a strict attempt a word that crosses nothing ends the sweep; in a lax one it has to wait. The
// flag falls in strict attempts alone, so that a lax one tries fewer letters of a word.
GridBuilder::Outcome GridBuilder::KeepOrLayAside(Attempt& attempt) {
  const bool lax = 3 * attempts_ > slider_;
  if (lax) {
    if (!Placed(word_pos_)) retry_list_(++attempt.retries) = word_pos_;
    return Outcome::Done;
  }
  if (!Placed(word_pos_)) return Outcome::RestartWanted;
  placed_flag_ = false;
  return Outcome::Done;
}

// The word order is read twice over here: it says which position is offered, and at that position
// which word. On a long list the first words to fail are placed as orphans.
GridBuilder::Outcome GridBuilder::ScanBestWords(Attempt& attempt) {
  constexpr int kShortList = 30;
  constexpr int kFirstTurnWithoutOrphans = 3;
  const int interrupted_at = std::exchange(attempt.scan_at, 0);
  if (interrupted_at == 0) {
    attempt.scan_failed = 0;
  } else {
    CountScanFailure(interrupted_at);
  }
  for (int n = interrupted_at + 1; n <= shared_.MarkedCount; ++n) {
    const int position = shared_.AnswerTable(n);
    if (Placed(position)) continue;
    TakeWord(position);
    SearchCrossing();
    if (Placed(position)) {
      ++turn_;
      continue;
    }
    attempt.scan_failed = position;
    if (shared_.ListWordCount > kShortList && turn_ < kFirstTurnWithoutOrphans &&
        PlaceOrphan() == Outcome::RestartWanted) {
      attempt.scan_at = n;
      return Outcome::RestartWanted;
    }
    CountScanFailure(n);
  }
  word_pos_ = attempt.scan_failed;
  return Outcome::Done;
}

void GridBuilder::CountScanFailure(int n) {
  progress_accum_ += 2.0 / (shared_.MarkedCount - n + 1);
  if (slider_ - 1 > bar_value_) ShowProgress(static_cast<int>(progress_accum_));
}

// Offers the words laid aside again and again. When no more of them cross, the last that failed
// becomes an orphan, and the others may cross it.
GridBuilder::Outcome GridBuilder::RetryStage(Attempt& attempt) {
  if (attempt.orphan_due) {
    CountOrphan(attempt);
  } else {
    remaining_ = attempt.orphans = attempt.retries;
    orphan_just_placed_ = false;
  }
  while (remaining_ > 0) {
    if (RetryPass(attempt)) continue;
    TakeWord(retry_list_(last_failure_));
    attempt.orphan_due = true;
    if (PlaceOrphan() == Outcome::RestartWanted) return Outcome::RestartWanted;
    CountOrphan(attempt);
  }
  orphan_count_ = attempt.orphans;
  return Outcome::Done;
}

// Whether any word crossed. The first to cross after an orphan was placed is taken to have crossed
// the orphan.
bool GridBuilder::RetryPass(Attempt& attempt) {
  const int before = remaining_;
  for (int j = 1; j <= attempt.retries; ++j) {
    const int position = retry_list_(j);
    if (Placed(position)) continue;
    TakeWord(position);
    SearchCrossing();
    if (!Placed(position)) {
      last_failure_ = j;
      continue;
    }
    --remaining_;
    --attempt.orphans;
    if (std::exchange(orphan_just_placed_, false)) --attempt.orphans;
  }
  return remaining_ != before;
}

void GridBuilder::CountOrphan(Attempt& attempt) {
  attempt.orphan_due = false;
  --remaining_;
  orphan_just_placed_ = true;
}

GridBuilder::Outcome GridBuilder::Acceptance(const Attempt& attempt) {
  if (BestMode()) return orphan_count_ > 0 ? Outcome::RestartWanted : Outcome::Done;
  if (!EnoughCross(attempt)) return Outcome::RestartWanted;
  if (orphan_count_ > 0) shared_.OrphansFlag = true;
  return Outcome::Done;
}

// From a third of the slider on a share of the words must cross that falls a percent every two
// attempts, until from four fifths on any grid will do. The first of these attempts asks for more
// words than there are.
bool GridBuilder::EnoughCross(const Attempt& attempt) const {
  const bool before_threshold = attempts_ <= slider_ / 3 - 1;
  const bool any_grid_will_do = 5 * attempts_ >= 4 * slider_;
  if (before_threshold || any_grid_will_do) return true;
  const int percent = (600 - (3 * attempts_ - slider_)) / 6;  // 100 - (attempts - slider / 3) / 2
  const int needed = percent * shared_.MarkedCount / 100 + 1;
  return shared_.MarkedCount - attempt.orphans >= needed;
}

GridBuilder::Outcome GridBuilder::CheckGridNotEmpty() const {
  constexpr std::uint32_t kRows1To19 = (1u << 20) - 2;
  for (int column = 1; column <= 27; ++column) {
    if ((grid_.LettersInColumn(column) & kRows1To19) != 0) return Outcome::Done;
  }
  return Outcome::RestartWanted;
}

void GridBuilder::TakeWord(int position) {
  word_pos_ = position;
  current_word_ = shared_.ListWords(shared_.AnswerTable(position));
}

void GridBuilder::PlaceFirstWord() {
  random_.Reseed();
  const int column = random_.DrawIndex(10) + 10;
  const int offset = (CrosswordGrid::kRows - static_cast<int>(current_word_.size())) / 2;
  WriteWord(kDownWay, CrosswordGrid::Cell(column, offset + 1));
}

// The first cell that fits wins. The cells are looked at in the order of the columns and of the
// rows in them, or in the very opposite order. Whether any fits doesn't hang on the order, so that
// a word is not looked for again while the grid stays as it is.
void GridBuilder::SearchCrossing() {
  random_.Reseed();
  const bool forward = random_.DrawIndex(2) == 1;
  if (Placed(word_pos_)) return;
  const SearchView view = {grid_state_, placed_flag_};
  if (failed_searches_(word_pos_) == view) return;
  for (std::size_t k = 0; k < current_word_.size(); ++k) {
    letter_places_[static_cast<unsigned char>(current_word_[k])] |= Bit(static_cast<int>(k));
  }
  const bool found = forward ? SearchForward() : SearchBackward();
  if (!found) failed_searches_(word_pos_) = view;
  for (char letter : current_word_) letter_places_[static_cast<unsigned char>(letter)] = 0;
}

bool GridBuilder::SearchForward() {
  for (int column = 1; column <= CrosswordGrid::kColumns; ++column) {
    for (std::uint32_t rows = grid_.LettersInColumn(column); rows != 0; rows &= rows - 1) {
      if (TryCell(CrosswordGrid::Cell(column, std::countr_zero(rows)))) return true;
    }
  }
  return false;
}

bool GridBuilder::SearchBackward() {
  for (int column = CrosswordGrid::kColumns; column >= 1; --column) {
    std::uint32_t rows = grid_.LettersInColumn(column);
    while (rows != 0) {
      const int row = std::bit_width(rows) - 1;
      if (TryCell(CrosswordGrid::Cell(column, row))) return true;
      rows &= ~Bit(row);
    }
  }
  return false;
}

// While the flag still stands from an earlier word, the first letter that matches is the only one
// to be tried at the cell.
bool GridBuilder::TryCell(int cell) {
  std::uint32_t places = letter_places_[static_cast<unsigned char>(grid_.At(cell))];
  for (; places != 0; places &= places - 1) {
    if (TryBothWays(cell, std::countr_zero(places) + 1)) return true;
    if (placed_flag_) return false;
  }
  return false;
}

bool GridBuilder::TryBothWays(int cell, int k) {
  return TryWay(kAcrossWay, cell, k) || TryWay(kDownWay, cell, k);
}

// Lays the current word so that its letter k stands in the cell.
bool GridBuilder::TryWay(const Way& way, int cell, int k) {
  if (!Fits(way, cell, k)) return false;
  WriteWord(way, cell - (k - 1) * way.step);
  return true;
}

bool GridBuilder::Fits(const Way& way, int cell, int k) const {
  const int length = static_cast<int>(current_word_.size());
  const int tail = length - k;
  const int along = way.Along(cell);
  if (along - k <= 0 || along + tail >= way.end) return false;
  if (!grid_.EmptyAt(cell + (tail + 1) * way.step)) return false;
  if (!grid_.EmptyAt(cell - k * way.step)) return false;

  const auto passes = [&](int at, int letter) {
    if (!grid_.EmptyAt(at))
      return grid_.At(at) == current_word_[static_cast<std::size_t>(letter - 1)];
    return grid_.EmptyAt(at - way.side) && grid_.EmptyAt(at + way.side);
  };
  for (int m = 1; m <= tail; ++m) {
    if (!passes(cell + m * way.step, k + m)) return false;
  }
  for (int m = 1; m <= k - 1; ++m) {
    if (!passes(cell - m * way.step, k - m + way.head_shift)) return false;
  }
  return true;
}

// A word that crosses nothing goes to a random place where it touches nothing.
GridBuilder::Outcome GridBuilder::PlaceOrphan() {
  random_.Reseed();
  const bool across_first = random_.DrawIndex(2) == 1;
  const Way& first = across_first ? kAcrossWay : kDownWay;
  const Way& second = across_first ? kDownWay : kAcrossWay;
  if (!TryOrphanCells(first)) TryOrphanCells(second);
  if (!Placed(word_pos_)) return Outcome::RestartWanted;
  placed_flag_ = false;
  return Outcome::Done;
}

// Each start cell from which the word stays on the grid, in random order. A word that is on the
// grid already has all of them drawn for nothing.
bool GridBuilder::TryOrphanCells(const Way& way) {
  const int starts = way.orphan_starts - static_cast<int>(current_word_.size());
  std::bitset<CrosswordGrid::kColumns * CrosswordGrid::kStride + CrosswordGrid::kStride> used;
  for (int tries = starts * way.lines; tries > 0; --tries) {
    int cell = 0;
    do {
      const int along = random_.DrawIndex(starts);
      cell = way.Cell(along, random_.DrawIndex(way.lines));
    } while (used[static_cast<std::size_t>(cell)]);
    used.set(static_cast<std::size_t>(cell));
    if (Placed(word_pos_) || !FitsAlone(way, cell)) continue;
    WriteWord(way, cell);
    return true;
  }
  return false;
}

bool GridBuilder::FitsAlone(const Way& way, int cell) const {
  if (!grid_.EmptyAt(cell - way.step) || !grid_.EmptyAt(cell)) return false;
  const int length = static_cast<int>(current_word_.size());
  for (int t = 0; t < length; ++t) {
    const int at = cell + t * way.step;
    if (!grid_.EmptyAt(at) || !grid_.EmptyAt(at - way.side) || !grid_.EmptyAt(at + way.side)) {
      return false;
    }
  }
  return grid_.EmptyAt(cell + length * way.step);
}

// Two words that start in one cell share a number.
void GridBuilder::WriteWord(const Way& way, int start_cell) {
  int cell = start_cell;
  for (char letter : current_word_) {
    grid_.Put(cell, letter);
    cell += way.step;
  }
  const int column = start_cell / CrosswordGrid::kStride;
  const int row = start_cell % CrosswordGrid::kStride;
  if (grid_.StartNumbers(column, row) == 0) grid_.StartNumbers(column, row, word_pos_);
  grid_.PlacedWords(word_pos_) = {.Number = grid_.StartNumbers(column, row),
                                  .Direction = way.direction};
  placed_flag_ = true;
  ++grid_state_;
}

void GridBuilder::ShowProgress(int value) {
  if (value == bar_value_) return;
  bar_value_ = value;
  if (progress_) progress_(value);
}

}  // namespace brindlepage
