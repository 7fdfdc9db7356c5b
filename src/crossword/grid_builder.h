#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "core/shared_state.h"
#include "crossword/crossword_grid.h"
#include "toolkit/random_source.h"

namespace brindlepage {

// Lays the marked words on the crossword grid: a randomised first fit, restarted as a whole until
// a grid is accepted. The slider, CrossSize, says how many restarts are worth it.
//
//   GridBuilder builder(shared, random, [&](int value) { ProgressBar1.Value = value; });
//   builder.Build();
//   if (!builder.GaveUp()) NumberGrid(builder.grid(), shared.MarkedCount);
//
// A builder builds once: a remake takes a new one. It reads ListWords, ListWordCount, MarkedCount,
// WordMarks, BestPuzzle and CrossSize, and writes AnswerTable (the word order: position p holds
// list word AnswerTable(p)), WordMarks and OrphansFlag.
//
// Manual mode (BestPuzzle 0) wants the marked words, all of them at first: while there were up to
// CrossSize / 3 restarts every word must cross when its turn comes. Then words that cross nothing,
// orphans, may stand by themselves, ever more of them; from CrossSize restarts on the builder
// gives up. Best mode lays as many words of the list as can cross and leaves the others out.
//
// A restart runs inside the attempt it interrupts. When it ends, the interrupted attempt goes on
// where it was, on the grid that the restart left, and may restart again.
class GridBuilder {
 public:
  // Told the new value of the progress bar, 0 to CrossSize, whenever it changes. The bar's
  // maximum is CrossSize and it stands at 0 when a build begins.
  using Progress = std::function<void(int value)>;

  // The words have at most 17 letters and no blanks.
  GridBuilder(SharedState& shared, RandomSource& random, Progress progress = {});

  // Throws RunTimeError 28 when restarts nest ten thousand deep, and 9 for a word of more than 17
  // letters. Never returns if fewer words are marked than MarkedCount says.
  void Build();

  // The program was unable to make the puzzle. What is left on the grid is no puzzle.
  bool GaveUp() const { return gave_up_; }
  CrosswordGrid& grid() { return grid_; }
  const CrosswordGrid& grid() const { return grid_; }

  // Restarts so far; best mode counts from 0 again each time it aims lower.
  int Attempts() const { return attempts_; }
  // Orphans of the last attempt that laid any aside. Whether the accepted puzzle is to be told of
  // as one with orphans is in SharedState::OrphansFlag.
  int OrphanCount() const { return orphan_count_; }
  // How deep restarts nested at most.
  int DeepestRestart() const { return deepest_restart_; }

 private:
  // The steps of an attempt, in order.
  enum class Stage : std::uint8_t { FirstSweep, RetryStage, Acceptance, GridCheck, Over };

  // What an attempt keeps to itself while a restart runs inside it. All else is shared.
  struct Attempt {
    Stage stage = Stage::FirstSweep;
    bool orphan_due = false;  // the retry stage was interrupted while it placed an orphan
    int last_turn = 0;        // the loop bound of the first sweep
    int retries = 0;          // how many entries of retry_list_ it made
    int orphans = 0;          // how many of them cross nothing
    int scan_at = 0;          // best mode: the turn of a scan that was interrupted, 0 if none was
    int scan_failed = 0;      // best mode: the last position that failed in the scan
  };

  // How a stretch of an attempt ended.
  enum class Outcome { Done, RestartWanted };

  struct Way;
  static const Way kAcrossWay;
  static const Way kDownWay;

  bool BestMode() const { return shared_.BestPuzzle == 1; }
  void CheckWords() const;
  void Prepare();

  void ShuffleWords();
  void TakeIntoOrder(int position, int word);
  int DrawMarkedWord();

  void BuildPuzzle();
  void BeginAttempt();
  Outcome Continue(Attempt& attempt);
  void RetryPuzzle();
  void Mark();

  Outcome FirstSweep(Attempt& attempt);
  Outcome KeepOrLayAside(Attempt& attempt);
  Outcome ScanBestWords(Attempt& attempt);
  void CountScanFailure(int n);
  Outcome RetryStage(Attempt& attempt);
  bool RetryPass(Attempt& attempt);
  void CountOrphan(Attempt& attempt);
  Outcome Acceptance(const Attempt& attempt);
  bool EnoughCross(const Attempt& attempt) const;
  Outcome CheckGridNotEmpty() const;

  // What a search can see: where nothing of it changed, a word that failed fails again.
  struct SearchView {
    std::int64_t grid_state = 0;
    bool placed_flag = false;
    bool operator==(const SearchView&) const = default;
  };

  bool Placed(int position) const { return grid_.PlacedWords(position).Number >= 1; }
  void TakeWord(int position);
  void PlaceFirstWord();
  void SearchCrossing();
  bool SearchForward();
  bool SearchBackward();
  bool TryCell(int cell);
  bool TryBothWays(int cell, int k);
  bool TryWay(const Way& way, int cell, int k);
  bool Fits(const Way& way, int cell, int k) const;
  Outcome PlaceOrphan();
  bool TryOrphanCells(const Way& way);
  bool FitsAlone(const Way& way, int cell) const;
  void WriteWord(const Way& way, int start_cell);

  void ShowProgress(int value);

  SharedState& shared_;
  RandomSource& random_;
  Progress progress_;
  int slider_ = 0;

  CrosswordGrid grid_;
  BoundedArray<Integer, 0, 300> retry_list_;  // positions that found no crossing at first
  std::vector<Attempt> nested_;               // the interrupted attempts, and the one that runs
  int attempts_ = 0;
  int target_words_ = 0;
  int orphan_count_ = 0;
  int turn_ = 0;  // the counter of the first sweep
  int word_pos_ = 0;
  std::string_view current_word_;
  // Of each letter, a bit for each place it has in the word that is searched a crossing for.
  std::array<std::uint32_t, 256> letter_places_{};
  std::int64_t grid_state_ = 0;  // another number for each grid and word order
  BoundedArray<SearchView, 0, 300> failed_searches_;
  bool placed_flag_ = false;
  int remaining_ = 0;
  int last_failure_ = 0;
  bool orphan_just_placed_ = false;
  double progress_accum_ = 0;
  int bar_value_ = 0;
  bool gave_up_ = false;
  int deepest_restart_ = 0;
};

}  // namespace brindlepage
