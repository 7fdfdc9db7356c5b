#pragma once

#include "core/program.h"
#include "toolkit/lists.h"
#include "toolkit/timer.h"

namespace brindlepage {

// The choice of the words: reads the list, drops what the activity can't use, and leaves the
// marked words for the generators.
class PickWords : public ProgramForm {
 public:
  explicit PickWords(Program& program);

  Menu Go{*this, "Go", "Go"};
  MenuItem Back{Go, "Back", "Back to Main Screen"};
  MenuItem Quit{Go, "Quit", "Quit"};
  Menu Help{*this, "Help", "Help"};
  Label Label2{*this, "Label2", "", Look::Heading};
  Label Directions{*this, "Directions",
                   "Use the use the spacebar or click a word with the mouse to mark/unmark that "
                   "word for use."};
  ListBox TheWords{*this, "TheWords", ListStyle::CheckBoxes};
  ListBox TheDefs{*this, "TheDefs"};
  Label Label1{*this, "Label1", "Total words marked: 0", Look::Note};
  CommandButton ChooseRandom{*this, "ChooseRandom", "Choose All"};
  CommandButton Command1{*this, "Command1", "Clear All"};
  CommandButton Command2{*this, "Command2", "Done"};
  Timer Timer1{*this, "Timer1", 1, true};

  // Marks all words and starts the crossword, if the list has at least two.
  void BestChoice();

  std::optional<Screen> Successor() const override;

 private:
  void Load() override;

  void LoadListWords();
  void FilterForRiddle();
  void FilterForPuzzle();
  bool RemoveIfLonger(int row, int characters);
  void RemoveBlanks(int row);
  void NumberWords();

  void RecountMarks();
  void ClearAll();
  void ChooseAll();
  void ChooseFirst(int count);
  void MarkRows(int count);
  void ShowTotal(const char* wording, const std::string& number);

  void Done();
  void StartCrossword();

  void Tick();
  bool Ask(const char* question, const char* title);

  Integer MarkCount;
  bool WordsRemoved = false;  // the report on removed words is due
  bool LeaveToMenu = false;   // no usable word: the next tick returns to the menu
  bool CrossPending = false;  // the next tick builds the crossword
  bool SpacesNotice = false;  // the notice on removed blanks is due
};

}  // namespace brindlepage
