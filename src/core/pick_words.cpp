#include "core/pick_words.h"

#include "core/list_file.h"

namespace brindlepage {

namespace {

constexpr int kLongestRiddleWord = 13;
constexpr int kLongestPuzzleWord = 17;
constexpr int kCrosswordLimit = 50;
constexpr int kWordSearchLimit = 75;

}  // namespace

PickWords::PickWords(Program& owner)
    : ProgramForm(owner, Screen::PickWords, "PickWords",
                  "Choose the words to use with this activity") {
  TheDefs.Visible = false;
  Command2.Default = true;

  TheWords.Click = [this] { RecountMarks(); };
  TheWords.KeyUp = [this] { RecountMarks(); };
  ChooseRandom.Click = [this] { ChooseAll(); };
  Command1.Click = [this] { ClearAll(); };
  Command2.Click = [this] { Done(); };
  Timer1.Tick = [this] { Tick(); };
  Back.Click = [this] { StepTo(Screen::Title); };
  Quit.Click = [this] { runtime().End(); };

  Arrange(Column(Label2, Directions, Fill(TheWords), Label1,
                 Row(ChooseRandom, Command1, Spring(), Command2)));
}

void PickWords::Load() {
  CentreForm();
  if (shared.ActivityKind == kWordSearch) SpacesNotice = true;
  LoadBackground();
  LoadListWords();
  Label2.Caption = "This list contains " + DisplayForm(shared.ListWordCount) +
                   " total words that are usable for this activity";
}

void PickWords::LoadListWords() {
  auto pairs =
      list_file::LoadListWords(shared.ListFilePath, shared.CurrentListName, shared.ListWordCount);
  for (std::string& word : pairs.words) TheWords.AddItem(std::move(word));
  for (std::string& meaning : pairs.meanings) TheDefs.AddItem(std::move(meaning));

  if (shared.ActivityKind == kRiddle) FilterForRiddle();
  if (shared.ActivityKind < kScramble) FilterForPuzzle();
  NumberWords();
  shared.ListWordCount = TheWords.ListCount();
}

void PickWords::FilterForRiddle() {
  const int count = TheWords.ListCount();
  for (int i = 1; i <= count; ++i) {
    if (RemoveIfLonger(i - 1, kLongestRiddleWord)) --i;
  }
}

// Behind a removed word the row before it loses its blanks a second time.
void PickWords::FilterForPuzzle() {
  const int count = TheWords.ListCount();
  for (int i = 1; i <= count; ++i) {
    if (RemoveIfLonger(i - 1, kLongestPuzzleWord)) --i;
    RemoveBlanks(i - 1);
  }
}

bool PickWords::RemoveIfLonger(int row, int characters) {
  if (static_cast<int>(TheWords.List(row).size()) <= characters) return false;
  TheWords.RemoveItem(row);
  TheDefs.RemoveItem(row);
  WordsRemoved = true;
  return true;
}

// One pass over the places of the row as it was: the row shrinks under it, so that of two blanks
// in a row the second stays.
void PickWords::RemoveBlanks(int row) {
  std::string word = TheWords.List(row);
  const std::size_t length = word.size();
  for (std::size_t place = 0; place < length; ++place) {
    if (place < word.size() && word[place] == ' ') word.erase(place, 1);
  }
  if (word.size() != length) TheWords.List(row, std::move(word));
}

void PickWords::NumberWords() {
  for (int i = 1; i <= TheWords.ListCount(); ++i) {
    shared.ListWords(i) = TheWords.List(i - 1);
    shared.ListMeanings(i) = TheDefs.List(i - 1);
  }
}

void PickWords::RecountMarks() {
  MarkCount = 0;
  for (int i = 1; i <= TheWords.ListCount(); ++i) {
    const bool marked = TheWords.Selected(i - 1);
    shared.WordMarks(i) = marked ? 1 : 0;
    if (marked) ++MarkCount;
  }
  ShowTotal("Total words marked: ", DisplayForm(MarkCount));
}

void PickWords::ClearAll() {
  for (int i = 1; i <= TheWords.ListCount(); ++i) {
    TheWords.Selected(i - 1, false);
    shared.WordMarks(i) = 0;
  }
  RecountMarks();
}

void PickWords::ChooseAll() {
  if (shared.BestPuzzle == 0 && shared.ListWordCount > kCrosswordLimit &&
      shared.ActivityKind == kCrossword) {
    if (!Ask("There is a limit of 50 words for a crossword puzzle. Would you like to choose the "
             "first 50 words on this list?",
             "Crossword Words")) {
      return;
    }
    ChooseFirst(kCrosswordLimit);
    runtime().MsgBox(
        "Tip: If you use the <Make Best Puzzle> option on the previous screen, you will get a "
        "much better puzzle with more words in it.",
        "Tip");
  } else if (shared.ActivityKind == kWordSearch && shared.ListWordCount >= kWordSearchLimit) {
    if (!Ask("There is a limit of 75 words for a word search puzzle. Would you like to choose "
             "the first 75 words on this list?",
             "Word Search Words")) {
      return;
    }
    ChooseFirst(kWordSearchLimit);
  } else {
    MarkRows(TheWords.ListCount());
    MarkCount = shared.ListWordCount;
    ShowTotal("Total Words Marked: ", DisplayForm(shared.ListWordCount));
  }
}

void PickWords::ChooseFirst(int count) {
  ClearAll();
  MarkRows(count);
  MarkCount = count;
  ShowTotal("Total Words Marked: ", std::to_string(count));
}

void PickWords::MarkRows(int count) {
  for (int i = 1; i <= count; ++i) {
    if (shared.WordMarks(i) != 0) continue;
    shared.WordMarks(i) = 1;
    TheWords.Selected(i - 1, true);
  }
}

void PickWords::ShowTotal(const char* wording, const std::string& number) {
  Label1.Caption = wording + number;
}

void PickWords::Done() {
  if (shared.ActivityKind == kWordSearch && MarkCount > kWordSearchLimit) {
    runtime().MsgBox("Please choose less than 75 words or less for a Word Search puzzle.", "Hey!");
    return;
  }
  if (MarkCount == 0) {
    runtime().MsgBox("You need to mark some words first!", "Hey!");
    return;
  }
  shared.MarkedCount = MarkCount;
  if (const auto next = Successor()) return StepTo(*next);
  for (int i = 1; i <= shared.ListWordCount; ++i) {
    shared.CrossMarks(i) = shared.WordMarks(i) == 1 ? 1 : 0;
  }
  StartCrossword();
}

void PickWords::BestChoice() {
  if (TheWords.ListCount() < 2) return;
  ChooseAll();
  shared.MarkedCount = MarkCount;
  StartCrossword();
}

// The build waits for the next tick, so that the request to wait is painted first.
void PickWords::StartCrossword() {
  forms().Load(Screen::CrossWord);
  forms().Load(Screen::PleaseWait);
  forms().Show(Screen::PleaseWait);
  CrossPending = true;
}

// A crossword is built by the next tick, behind this screen.
std::optional<Screen> PickWords::Successor() const {
  switch (shared.ActivityKind) {
    case kCrossword:
      return std::nullopt;
    case kWordSearch:
      return Screen::QuizOptions;
    case kScramble:
      return Screen::Scramble;
    case kStudySheet:
      return Screen::StudyGuideForm;
    case kSecretCode:
      return Screen::CodeForm;
    case kRiddle:
      return Screen::RiddleForm;
    default:
      return Screen::QuizForm;
  }
}

// Timers go on behind a box, so each flag falls before its box opens.
void PickWords::Tick() {
  if (SpacesNotice) {
    SpacesNotice = false;
    runtime().MsgBox("For this activity, spaces have been removed to create a better puzzle.",
                     "Notice:");
  }
  if (LeaveToMenu) return StepTo(Screen::Title);
  if (TheWords.ListCount() == 0) {
    TheWords.AddItem("No Words");
    runtime().MsgBox(
        "There were not enough usable words on this list for this activity The words must not "
        "contain non-letter characters, and the word length must not excede 17 characters.",
        "Oops!");
    LeaveToMenu = true;
  }
  if (CrossPending) {
    forms().Show(Screen::CrossPrint);
    forms().Hide(id());
    CrossPending = false;
  }
  if (Visible && !LeaveToMenu && WordsRemoved) {
    WordsRemoved = false;
    runtime().MsgBox(
        "Some words were removed from the list becuase they exceded the character limit for this "
        "activity or they contained non-letter characters that wouldn't work well with this "
        "activity.",
        "Unusable words");
  }
}

bool PickWords::Ask(const char* question, const char* title) {
  return runtime().MsgBox(question, title, BoxButtons::YesNo) == BoxAnswer::Yes;
}

}  // namespace brindlepage
