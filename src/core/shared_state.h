#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/numbers.h"
#include "toolkit/property.h"

namespace brindlepage {

// What is being made; the key of all routing.
enum Activity {
  kWordSearch = 0,
  kCrossword = 1,
  kScramble = 2,
  kQuiz = 3,
  kStudySheet = 4,
  kSecretCode = 5,
  kRiddle = 6,
  kCodedRiddles = 7,
  kCryptoquip = 8,
  kAlphabetize = 98,
  kSavedWorksheet = 99,
};

enum QuizKinds {
  kChooseWord = 1,
  kMatching = 2,
  kFillIn = 3,
  kWordBank = 4,
  kChooseMeaning = 5,
  kAlphabetizeSheet = 6,
};

// The variables that carry an activity from the menu to its worksheet. They start at zero, empty
// or false and live as long as the process; the arrays of words are used from element 1.
struct SharedState {
  template <class T>
  using Words = BoundedArray<T, 0, 300>;

  // The running activity and its walk.
  int ActivityKind = 0;  // of Activity
  std::string CurrentListName;
  int QuizKind = 0;      // of QuizKinds
  int WordBankKind = 0;  // word search: 1 the words, 2 the meanings
  bool EasyPuzzle = false;
  Integer AnswerKeyWanted;  // 1: the worksheet has an answer key to offer
  std::string WorksheetTitle;
  std::string ReturnTag;  // tells a shared screen who called it
  bool PictureReturn = false;
  std::string SavedWorksheetName;
  Integer ScrambleClues;
  int PuzzleAcross = 0;
  Integer PuzzleDown;

  // The words.
  Integer ListWordCount;
  Words<std::string> ListWords;
  Words<std::string> ListMeanings;
  Words<Integer> WordMarks;
  Integer MarkedCount;
  Words<Integer> CrossMarks;
  Words<Integer> AnswerTable;

  // Where things are.
  std::string ListFilePath;
  std::string ProgramDir;
  bool QuickWordEnabled = false;
  std::string QuickWordPath;

  // Riddles.
  std::string RiddleText;
  std::string RiddleAnswer;
  BoundedArray<std::string, 0, 20> CodedRiddles;
  BoundedArray<std::string, 0, 20> CodedAnswers;
  int CodedRiddleCount = 0;
  Integer CodedRiddleHint;

  // The crossword.
  Integer CrossSize;
  Integer BestPuzzle;
  bool OrphansFlag = false;
  bool RemakeRequest = false;
  bool CaptureRequest = false;
  double AutoRows = 0;
  double AutoCols = 0;

  // The list editors.
  std::string NewListName;
  std::string WorkWord;
  std::string WorkMeaning;
  std::string ListDisplayName;
  int WordEdited = 0;
  int WordDeleted = 0;
  int WordAdded = 0;
  Integer SelectedRow;

  // A variable by its name, an element of an array by name and index; nothing if there is none.
  // An index outside the array's bounds throws RunTimeError 9.
  std::optional<Value> Find(std::string_view name, std::optional<int> index) const;
};

}  // namespace brindlepage
