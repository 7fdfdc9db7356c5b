#include "tests/random_teacher/stated_ends.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace brindlepage {

namespace {

struct StatedEnd {
  std::string_view end;
  // The forms on which the deed was done, in blanks.
  std::string_view forms;
};

// What nothing in the program handles, with the forms on which a deed can bring it about.
constexpr StatedEnd kStatedEnds[] = {
    // A list renamed before it was saved is looked for past the end of the file.
    {"error 6 \"Overflow\"", " EditList DeleteList AddWord EditWord ChangeListName MakeNewList "},
    // Rows of a first list that are one off, and deeds on a row where none is selected.
    {"error 5 \"Invalid procedure call or argument\"",
     " EditList EditChooseList AddWord EditWord ChangeListName MakeNewList "},
    // Bounds: a word of 26 letters, a twenty-first riddle, 151 words of a riddle sheet.
    {"error 9 \"Subscript out of range\"",
     " tick PickWords QuizOptions QuizOptions5 ChooseRiddle RiddleOption1 JustForFun "},
    // Words that fit no puzzle of an odd size, a crossword that starts again and again.
    {"error 28 \"Out of stack space\"", " tick PuzzleSize CrossPrint PickWords "},
    // A title that no file can have.
    {"error 52 \"Bad file name or number\"",
     " QuizForm Scramble CodeForm WordSearchForm RiddleForm CrosswordWorksheet StudyGuideForm "},
    // A list folder that was chosen without the separator behind it: its list file is missing.
    {"error 53 \"File not found\"",
     " Title ChooseList CreateList MakeNewList EditChooseList EditList DeleteList ProgramOptions"
     " QuizOptions QuizOptions3 QuizOptions5 JustForFun ScrambleOption1 ChooseRiddle "},
    // Words like "<New List>" and "*****" in a list lead its readers past the end of the file.
    {"error 62 \"Input past end of file\"",
     " tick Title ChooseList QuizOptions QuizOptions3 QuizOptions5 ScrambleOption1 ChooseRiddle"
     " EditChooseList DeleteList MakeNewList CrossOption1 CrossOption2 "},
    // A folder that isn't there.
    {"error 76 \"Path not found\"", " AddPic "},
    // Handlers that address what is no control.
    {"error 424 \"Object required\"", " ChangeList DeleteList EditChooseList MakeNewList "},
    // Draws that can never succeed; AddPic makes a worksheet anew that was closed behind it, when
    // its words have been used up.
    {"not responding", " tick PickWords QuizOptions QuizOptions5 PuzzleSize RiddleOption1 AddPic "},
};

}  // namespace

bool IsStatedEnd(std::string_view end) {
  const auto colon = end.find(": ");
  const std::string form = " " + std::string(end.substr(0, colon)) + " ";
  const std::string_view what = end.substr(colon + 2);
  if (what == "end") return true;
  return std::any_of(std::begin(kStatedEnds), std::end(kStatedEnds), [&](const StatedEnd& stated) {
    return stated.end == what && stated.forms.find(form) != std::string_view::npos;
  });
}

std::string FirstUnstatedEnd(const Tally& tally) {
  for (const auto& [end, count] : tally.ends) {
    if (!IsStatedEnd(end)) return end;
  }
  return "";
}

}  // namespace brindlepage
