#pragma once

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string>

#include "core/shared_state.h"
#include "toolkit/random_source.h"

// The crossword builder a second time, told rule by rule: nested calls for restarts, a scan of
// every cell for a crossing, one routine for each direction. Slow and plain on purpose. It was
// written from the rules alone, so that it and the program's builder can be held against each
// other, cell by cell and draw by draw.
namespace brindlepage::literal {

struct TooDeep : std::runtime_error {
  TooDeep() : std::runtime_error("restarts nest deeper than this builder's own calls may") {}
};

class LiteralGridBuilder {
 public:
  LiteralGridBuilder(SharedState& state, RandomSource& source) : shared(state), random(source) {}

  // The form's state, under its own names.
  char Grid[40][31] = {};
  int StartNumbers[38][30] = {};
  struct {
    int Number = 0;
    int Direction = 0;
  } PlacedWords[301];
  int RetryList[301] = {};
  int Attempts = 0;
  int TargetWords = 0;
  int OrphanCount = 0;
  bool OrphanJustPlaced = false;
  int WordPos = 0;
  std::string CurrentWord;
  int HitFlag = 0, FitsFlag = 0, PlacedFlag = 0;
  double ProgressAccum = 0;
  int GaveUp = 0;
  int BarMax = 0, BarValue = 0;
  int Previews = 0;
  int Deepest = 0;  // how deep restarts nested
  // What happened on the way, so that a test can tell that it saw it.
  int LateRestarts = 0;    // restarts by attempts that had gone on after a restart
  int LettersChanged = 0;  // letters overwritten by other ones
  int SharedStarts = 0;    // words that start where another does
  int SecondPasses = 0;    // orphans for which the first direction had no place

  void LoadForm() {
    Attempts = 0;
    ProgressAccum = 0;
    shared.OrphansFlag = false;
    TargetWords = shared.MarkedCount;
    BarMax = Q();
    BarValue = 0;
    if (shared.BestPuzzle == 1) {
      TargetWords = Q() / 4;
      for (int p = 1; p <= shared.MarkedCount; ++p) shared.WordMarks(shared.AnswerTable(p)) = 1;
    }
    ShuffleWords();
    BuildPuzzle();
  }

 private:
  static constexpr int kDeepest = 2500;

  SharedState& shared;
  RandomSource& random;
  int depth = 0;
  bool returned = false;  // some restart has ended

  // Working values of the form, shared by nested attempts.
  int i = 0, j = 0, Remaining = 0, Before = 0, LastFailure = 0;

  int Q() const { return shared.CrossSize; }
  double Rnd() { return static_cast<double>(random.NextRandom()); }
  static int Int(double value) { return static_cast<int>(value); }  // of what is not negative
  const std::string& WordAt(int position) { return shared.ListWords(shared.AnswerTable(position)); }
  int Length() const { return static_cast<int>(CurrentWord.size()); }
  char LetterOf(int k) const { return CurrentWord.at(static_cast<std::size_t>(k - 1)); }

  void ShuffleWords() {
    for (int p = 0; p <= 300; ++p) shared.AnswerTable(p) = 0;
    random.Reseed();
    int v = Int(shared.ListWordCount * Rnd() + 1);
    while (shared.WordMarks(v) != 1) v = Int(shared.ListWordCount * Rnd() + 1);
    shared.AnswerTable(1) = v;
    shared.WordMarks(v) = 0;
    int n = 0;
    for (int p = 2; p <= shared.MarkedCount; ++p) {
      if (shared.BestPuzzle == 0) {
        random.Reseed();
        n = Int(shared.ListWordCount * Rnd() + 1);
        while (shared.WordMarks(n) == 0) n = Int(shared.ListWordCount * Rnd() + 1);
      } else {
        if (p != v) n = p;
      }
      shared.WordMarks(n) = 0;
      shared.AnswerTable(p) = n;
    }
  }

  void PlaceFirstWord() {
    random.Reseed();
    int c = Int(Rnd() * 10 + 1) + 10;
    int o = Int((29 - Length()) / 2.0);
    for (int n = 1; n <= Length(); ++n) Grid[c][n + o] = LetterOf(n);
    PlacedWords[WordPos].Number = WordPos;
    PlacedWords[WordPos].Direction = 2;
    StartNumbers[c][1 + o] = WordPos;
    PlacedFlag = 1;
  }

  void SearchCrossing() {
    random.Reseed();
    int d = Int(2 * Rnd() + 1);
    if (d == 1) {
      for (int x = 1; x <= 37; ++x) {
        for (int y = 1; y <= 29; ++y) SearchCell(x, y);
      }
    } else {
      for (int x = 37; x >= 1; --x) {
        for (int y = 29; y >= 1; --y) SearchCell(x, y);
      }
    }
  }

  void SearchCell(int x, int y) {
    if (Grid[x][y] == 0) return;
    for (int k = 1; k <= Length(); ++k) {
      if (Grid[x][y] == LetterOf(k)) HitFlag = 1;
      if (HitFlag == 1) {
        HitFlag = 0;
        TryBothWays(x, y, k);
        if (PlacedFlag == 1) {
          FitsFlag = 1;
          HitFlag = 0;
          break;
        }
      }
    }
  }

  void TryBothWays(int x, int y, int k) {
    if (PlacedWords[WordPos].Number < 1) TryAcross(x, y, k);
    if (PlacedWords[WordPos].Number < 1) TryDown(x, y, k);
  }

  void TryAcross(int x, int y, int k) {
    FitsFlag = 1;
    int T = Length() - k;
    if (!(x - k > 0)) FitsFlag = 0;
    if (!(T + x < 35)) FitsFlag = 0;
    if (FitsFlag == 0) return;
    for (int m = 1; m <= T; ++m) {
      if (Grid[x + m][y] == 0) {
        if (Grid[x + m][y - 1] != 0) FitsFlag = 0;
        if (Grid[x + m][y + 1] != 0) FitsFlag = 0;
      } else if (Grid[x + m][y] != LetterOf(k + m)) {
        FitsFlag = 0;
      }
    }
    if (Grid[x + T + 1][y] != 0) FitsFlag = 0;
    for (int m = 1; m <= k - 1; ++m) {
      if (Grid[x - m][y] == 0) {
        if (Grid[x - m][y - 1] != 0) FitsFlag = 0;
        if (Grid[x - m][y + 1] != 0) FitsFlag = 0;
      } else if (Grid[x - m][y] != LetterOf(k - m + 1)) {  // one to the right of what comes there
        FitsFlag = 0;
      }
    }
    if (Grid[x - k][y] != 0) FitsFlag = 0;
    if (FitsFlag == 0) return;
    for (int m = k + 1; m <= Length(); ++m) Grid[x + m - k][y] = LetterOf(m);
    for (int m = 1; m <= k - 1; ++m) {
      if (Grid[x - m][y] != 0 && Grid[x - m][y] != LetterOf(k - m)) ++LettersChanged;
      Grid[x - m][y] = LetterOf(k - m);
    }
    PlacedWords[WordPos].Number = WordPos;
    PlacedWords[WordPos].Direction = 1;
    NumberStart(x - k + 1, y);
    PlacedFlag = 1;
  }

  void TryDown(int x, int y, int k) {
    FitsFlag = 1;
    int T = Length() - k;
    if (!(y - k > 0)) FitsFlag = 0;
    if (!(T + y < 28)) FitsFlag = 0;
    if (FitsFlag == 0) return;
    for (int m = 1; m <= T; ++m) {
      if (Grid[x][y + m] == 0) {
        if (Grid[x - 1][y + m] != 0) FitsFlag = 0;
        if (Grid[x + 1][y + m] != 0) FitsFlag = 0;
      } else if (Grid[x][y + m] != LetterOf(k + m)) {
        FitsFlag = 0;
      }
    }
    if (Grid[x][y + T + 1] != 0) FitsFlag = 0;
    for (int m = 1; m <= k - 1; ++m) {
      if (Grid[x][y - m] == 0) {
        if (Grid[x - 1][y - m] != 0) FitsFlag = 0;
        if (Grid[x + 1][y - m] != 0) FitsFlag = 0;
      } else if (Grid[x][y - m] != LetterOf(k - m)) {
        FitsFlag = 0;
      }
    }
    if (Grid[x][y - k] != 0) FitsFlag = 0;
    if (FitsFlag == 0) return;
    for (int m = k + 1; m <= Length(); ++m) Grid[x][y + m - k] = LetterOf(m);
    for (int m = 1; m <= k - 1; ++m) Grid[x][y - m] = LetterOf(k - m);
    PlacedWords[WordPos].Number = WordPos;
    PlacedWords[WordPos].Direction = 2;
    NumberStart(x, y - k + 1);
    PlacedFlag = 1;
  }

  void NumberStart(int x, int y) {
    if (StartNumbers[x][y] == 0) {
      StartNumbers[x][y] = WordPos;
    } else {
      PlacedWords[WordPos].Number = StartNumbers[x][y];
      ++SharedStarts;
    }
  }

  void BuildPuzzle() {
    std::memset(RetryList, 0, sizeof RetryList);
    std::memset(StartNumbers, 0, sizeof StartNumbers);
    std::memset(Grid, 0, sizeof Grid);
    for (auto& word : PlacedWords) word = {};
    int R = 1;
    int O = 0;
    FitsFlag = 1;
    HitFlag = 0;
    PlacedFlag = 0;
    const int bound = TargetWords;
    for (i = 1; i <= bound; ++i) {
      WordPos = i;
      if (shared.BestPuzzle == 1 && i > 1) ScanBestWords();
      CurrentWord = WordAt(WordPos);
      if (i == 1) PlaceFirstWord();
      HitFlag = 0;
      if (i > 1) SearchCrossing();
      if (shared.BestPuzzle == 0) {
        if (Attempts > Q() / 3.0) {
          if (PlacedWords[WordPos].Number < 1) {
            RetryList[R] = WordPos;
            R = R + 1;
          }
        } else {
          if (PlacedWords[WordPos].Number < 1) {
            RetryPuzzle();
            break;
          }
          PlacedFlag = 0;
        }
      }
    }
    if (R > 1) RunRetryStage(R, O);
    if (shared.BestPuzzle == 0) {
      int A = Attempts;
      if (A > Int(Q() / 3.0 - 1) && 10 * A < 8 * Q()) {
        int P = Int(100 - (A - Q() / 3.0) / 2);
        int Need = Int(P * shared.MarkedCount / 100.0) + 1;
        if (shared.MarkedCount - O < Need) {
          RetryPuzzle();
          return;
        }
      }
      if (OrphanCount > 0) shared.OrphansFlag = true;
    } else if (OrphanCount > 0) {
      RetryPuzzle();
      return;
    }
    CheckGridNotEmpty();
    ++Previews;
  }

  void RunRetryStage(int R, int& O) {
    Remaining = O = R - 1;
    OrphanJustPlaced = false;
    while (Remaining > 0) {
      Before = Remaining;
      for (j = 1; j <= R - 1; ++j) {
        const int p = RetryList[j];
        CurrentWord = WordAt(p);
        HitFlag = 0;
        if (PlacedWords[p].Number < 1) {
          WordPos = p;
          SearchCrossing();
          if (PlacedWords[p].Number >= 1) {
            Remaining = Remaining - 1;
            O = O - 1;
            if (OrphanJustPlaced) {
              O = O - 1;
              OrphanJustPlaced = false;
            }
          }
          if (PlacedWords[p].Number < 1) LastFailure = j;
        }
      }
      if (Remaining != Before) continue;
      WordPos = RetryList[LastFailure];
      CurrentWord = WordAt(WordPos);
      PlaceOrphan();
      Remaining = Remaining - 1;
      OrphanJustPlaced = true;
    }
    OrphanCount = O;
  }

  void CheckGridNotEmpty() {
    for (int c = 1; c <= 27; ++c) {
      for (int r = 1; r <= 19; ++r) {
        if (Grid[c][r] != 0) return;
      }
    }
    RetryPuzzle();
  }

  void RetryPuzzle() {
    if (returned) ++LateRestarts;
    Attempts = Attempts + 1;
    for (int p = 1; p <= shared.MarkedCount; ++p) shared.WordMarks(shared.AnswerTable(p)) = 1;
    if (shared.BestPuzzle == 0) {
      if (Attempts < BarMax) BarValue = Attempts;
      ShuffleWords();
      if (Attempts >= Q()) {
        GaveUp = 1;
        return;
      }
    } else if (Attempts > Int(Q() / 5.0)) {
      Attempts = 0;
      TargetWords = TargetWords - 1;
    }
    if (++depth > kDeepest) throw TooDeep();
    Deepest = std::max(Deepest, depth);
    BuildPuzzle();
    --depth;
    returned = true;
  }

  void ScanBestWords() {
    int LastFailed = 0;
    for (int n = 1; n <= shared.MarkedCount; ++n) {
      int p = shared.AnswerTable(n);
      if (PlacedWords[p].Number < 1) {
        WordPos = p;
        CurrentWord = WordAt(p);
        SearchCrossing();
        if (PlacedWords[p].Number >= 1) {
          i = i + 1;
        } else {
          LastFailed = p;
          if (shared.ListWordCount > 30 && i < 3) PlaceOrphan();
          ProgressAccum = ProgressAccum + 2.0 / (shared.MarkedCount - n + 1);
          if (BarMax - 1 > BarValue) BarValue = Int(ProgressAccum);
        }
      }
    }
    WordPos = LastFailed;
  }

  void PlaceOrphan() {
    random.Reseed();
    int d = Int(2 * Rnd() + 1);
    for (int pass = 1; pass <= 2; ++pass) {
      if (pass == 2) ++SecondPasses;
      if (OrphanPass(d)) break;
      d = 3 - d;
    }
    if (PlacedWords[WordPos].Number < 1) {
      RetryPuzzle();
    } else {
      PlacedFlag = 0;
    }
  }

  bool OrphanPass(int d) {
    short Used[1074] = {};
    const int L = Length();
    const int last = d == 1 ? 1072 - 29 * L : 1072 - 37 * L;
    for (int c = 0; c <= last; ++c) {
      int x = 0, y = 0;
      do {
        if (d == 1) {
          x = Int(1 + Rnd() * (37 - L));
          y = Int(Rnd() * 29 + 1);
        } else {
          y = Int(1 + Rnd() * (29 - L));
          x = Int(Rnd() * 37 + 1);
        }
      } while (Used[37 * (y - 1) + (x - 1)] == 1);
      Used[37 * (y - 1) + (x - 1)] = 1;
      bool collision = d == 1 ? CollidesAcross(x, y) : CollidesDown(x, y);
      if (!collision && PlacedWords[WordPos].Number < 1) {
        for (int t = 0; t < L; ++t) {
          Grid[d == 1 ? x + t : x][d == 1 ? y : y + t] = LetterOf(t + 1);
        }
        PlacedWords[WordPos].Number = WordPos;
        PlacedWords[WordPos].Direction = d;
        NumberStart(x, y);
        PlacedFlag = 1;
        return true;
      }
    }
    return false;
  }

  bool CollidesAcross(int x, int y) {
    if (Grid[x - 1][y] != 0 || Grid[x][y] != 0) return true;
    for (int t = 0; t <= Length() - 1; ++t) {
      if (Grid[x + t][y] != 0 || Grid[x + t][y - 1] != 0 || Grid[x + t][y + 1] != 0) return true;
    }
    return Grid[x + Length()][y] != 0;
  }

  bool CollidesDown(int x, int y) {
    if (Grid[x][y - 1] != 0 || Grid[x][y] != 0) return true;
    for (int t = 0; t <= Length() - 1; ++t) {
      if (Grid[x][y + t] != 0 || Grid[x + 1][y + t] != 0 || Grid[x - 1][y + t] != 0) return true;
    }
    return Grid[x][y + Length()] != 0;
  }
};

}  // namespace brindlepage::literal
