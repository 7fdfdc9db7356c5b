#include "core/choose_list.h"

#include "core/list_file.h"

namespace brindlepage {

ChooseList::ChooseList(Program& owner)
    : ProgramForm(owner, Screen::ChooseList, "ChooseList", "Choose a list to work from") {
  Command1.Enabled = false;
  Command1.Default = true;
  Command2.Cancel = true;

  TheLists.Click = [this] { Command1.Enabled = true; };
  TheLists.DblClick = [this] { Begin(); };
  Command1.Click = [this] { Begin(); };
  Command2.Click = [this] { StepTo(Screen::Title); };
  Return.Click = [this] { StepTo(Screen::Title); };
  Quit.Click = [this] { runtime().End(); };
  About.Click = [this] { forms().Show(Screen::AboutForm); };

  Arrange(Column(Label1, Fill(TheLists), Row(Command2, Spring(), Command1)));
}

void ChooseList::Load() {
  CentreForm();
  LoadBackground();
  shared.CurrentListName = "";
  TheLists.AddItems(list_file::FillListNames(shared.ListFilePath));
}

void ChooseList::Begin() {
  shared.AnswerKeyWanted = 1;
  if (TheLists.ListIndex < 0) {
    forms().Show(Screen::ChooseReminder);
    runtime().Beep();
    return;
  }
  shared.CurrentListName = TheLists.Text();
  shared.ListWordCount = list_file::CountListWords(shared.ListFilePath, shared.CurrentListName);
  StepTo(*Successor());
}

std::optional<Screen> ChooseList::Successor() const {
  switch (shared.ActivityKind) {
    case kRiddle:
      return Screen::ChooseRiddle;
    case kScramble:
      return Screen::ScrambleOption1;
    case kQuiz:
      return Screen::QuizOptions3;
    default:
      return Screen::QuizOptions5;
  }
}

}  // namespace brindlepage
