#include "quiz/quiz_options5.h"

namespace brindlepage {

namespace {

// What follows the list's name in the proposed heading.
const char* HeadingEnd(int activity) {
  switch (activity) {
    case kWordSearch:
      return " Word Search";
    case kCrossword:
      return " Crossword";
    case kScramble:
      return " Scramble";
    case kQuiz:
      return " Quiz";
    case kStudySheet:
      return " Study Guide";
    case kSecretCode:
      return " Secret Code Worksheet";
    case kRiddle:
      return " Secret Riddle Worksheet";
    case kAlphabetize:
      return " Alphabetize Worksheet";
    default:
      return "";
  }
}

}  // namespace

QuizOptions5::QuizOptions5(Program& owner)
    : ProgramForm(owner, Screen::QuizOptions5, "QuizOptions5", "Activity Setup") {
  Command1.Default = true;
  Command2.Cancel = true;
  Command1.Click = [this] { Continue(); };
  Command2.Click = [this] { GoBack(); };
  Arrange(Column(Label7, Wide(60, Text1), Spring(), Row(Command2, Spring(), Command1)));
}

void QuizOptions5::Load() {
  CentreForm();
  LoadBackground();
  ProposeHeading();
}

// The activities without a list take their heading for the list's name.
void QuizOptions5::ProposeHeading() {
  if (shared.ActivityKind == kCodedRiddles) shared.CurrentListName = "Coded Riddles Worksheet";
  if (shared.ActivityKind == kCryptoquip) shared.CurrentListName = "Cryptoquip Worksheet";
  Text1.Text = shared.CurrentListName + HeadingEnd(shared.ActivityKind);
}

void QuizOptions5::Continue() {
  shared.WorksheetTitle = Text1.Text;
  StepTo(*Successor());
}

std::optional<Screen> QuizOptions5::Successor() const {
  if (WithoutList()) return Screen::CodeForm;
  return shared.ActivityKind == kCrossword ? Screen::CrossOption1 : Screen::PickWords;
}

void QuizOptions5::GoBack() { StepTo(WithoutList() ? Screen::RiddleOption1 : Screen::ChooseList); }

bool QuizOptions5::WithoutList() const {
  return shared.ActivityKind == kCodedRiddles || shared.ActivityKind == kCryptoquip;
}

}  // namespace brindlepage
