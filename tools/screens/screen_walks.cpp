#include "tools/screens/steps.h"

namespace brindlepage::screens {

namespace {

// A quiz of the kind of that option button, and its key.
Walk Quiz(const char* kind) {
  const QString name = QString("QuizForm-") + kind;
  return {Click("Title", "Command1", 3),
          Select("ChooseList", "TheLists", 1),
          Click("ChooseList", "Command1"),
          Click("QuizOptions3", kind),
          Click("QuizOptions3", "Command1"),
          Click("QuizOptions5", "Command1"),
          Click("PickWords", "ChooseRandom"),
          Click("PickWords", "Command2"),
          Photo(name),
          Tool("QuizForm", "Key"),
          Photo(name + "-key")};
}

}  // namespace

std::vector<Walk> ScreenWalks() {
  return {
      {Tool("Title", "Info")},
      // Coded riddles, and a cryptoquip of a riddle.
      {Click("Title", "Command3"), Click("JustForFun", "Command2"),
       Click("RiddleOption1", "Command3"), Photo("RiddleOption1-added"),
       Click("RiddleOption1", "Image1"), Click("RiddleOption1", "Command3"),
       Click("RiddleOption1", "Command2"), Click("QuizOptions5", "Command1"),
       Photo("CodeForm-riddles"), Tool("CodeForm", "Key"), Photo("CodeForm-riddles-key")},
      {Click("Title", "Command3"), Click("JustForFun", "Command3"),
       Click("RiddleOption1", "Command2"), Click("RiddleOption1", "Image1"),
       Click("RiddleOption1", "Command3"), Click("RiddleOption1", "Command2"),
       Click("QuizOptions5", "Command1"), Photo("CodeForm-cryptoquip"), Tool("CodeForm", "Key"),
       Photo("CodeForm-cryptoquip-key")},
      // A word list can't be chosen where there is none.
      {Click("Title", "Command1", 4), DoubleClickNothing("ChooseList", "TheLists"),
       Click("ChooseReminder", "Command1"), Select("ChooseList", "TheLists", 3),
       Photo("ChooseList-chosen")},
      // A study sheet.
      {Click("Title", "Command1", 4), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Mark("PickWords", "TheWords", {0, 2, 3, 5}), Photo("PickWords-marked"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2")},
      // A scramble worksheet, a secret code and a riddle.
      {Click("Title", "Command1", 2), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("ScrambleOption1", "Command1"),
       Click("QuizOptions5", "Command1"), Click("PickWords", "ChooseRandom"),
       Click("PickWords", "Command2"), Tool("Scramble", "Key"), Photo("Scramble-key")},
      {Click("Title", "Command1", 5), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2"), Tool("CodeForm", "Key"),
       Photo("CodeForm-key")},
      {Click("Title", "Command1", 6), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("ChooseRiddle", "Label4"),
       Photo("ChooseRiddle-second"), Click("ChooseRiddle", "Command2"),
       Click("QuizOptions5", "Command1"), Click("PickWords", "ChooseRandom"),
       Click("PickWords", "Command2"), Tool("RiddleForm", "Key"), Photo("RiddleForm-key")},
      // The quizzes.
      Quiz("MC"),
      Quiz("MC2"),
      Quiz("Match"),
      Quiz("FillNo"),
      Quiz("FillYes"),
      // The alphabetize sheet.
      {Click("Title", "Command4"), Select("ChooseList", "TheLists", 1),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2"),
       Photo("QuizForm-alphabetize"), Tool("QuizForm", "Key"), Photo("QuizForm-alphabetize-key")},
      // The same, saved, opened again and given a picture.
      {Click("Title", "Command1", 4), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2"), DrawSun(),
       Tool("StudyGuideForm", "Save"), Click("StudyGuideForm", "Back"), Click("Title", "Command2"),
       Select("OpenWorksheet", "File1", 1), Photo("OpenWorksheet-chosen"),
       Click("OpenWorksheet", "Command1"), Tool("QuizForm", "Clipart"),
       Select("AddPic", "File1", 0), Photo("AddPic-chosen"), Click("AddPic", "Command1"),
       Photo("QuizForm-with-picture")},
      // A word search.
      {Click("Title", "Command1", 0), Select("ChooseList", "TheLists", 1),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2"),
       Click("QuizOptions", "Command1"), Click("PuzzleSize", "Command1"),
       Tool("WordSearchForm", "Key"), Photo("WordSearchForm-key")},
      // A new list.
      {Tool("Title", "Create"), Type("CreateList", "NewName", "Volcanoes"),
       Click("CreateList", "Command2"), Type("MakeNewList", "TheWord", "lava"),
       Type("MakeNewList", "TheMeaning", "melted rock that has come out"),
       Tool("MakeNewList", "Add Word"), Type("MakeNewList", "TheWord", "ash"),
       Type("MakeNewList", "TheMeaning", "grey dust"), Tool("MakeNewList", "Add Word"),
       Type("MakeNewList", "TheWord", "crater"), Photo("MakeNewList-words"),
       Tool("MakeNewList", "Foreign")},
      // A list under change.
      {Tool("Title", "Edit"), Select("EditChooseList", "TheLists", 3),
       Photo("EditChooseList-chosen"), Click("EditChooseList", "Command1"),
       Select("EditList", "WordList", 2), Photo("EditList-selected"), Tool("EditList", "Add Word"),
       Click("AddWord", "Command3"), Photo("AddWord-letters"), Click("AddWord", "Command2"),
       Tool("EditList", "Edit Word"), Click("EditWord", "Command2"),
       Tool("EditList", "Rename List")},
      // A list that goes, and the options.
      {Tool("Title", "Delete"), Select("DeleteList", "TheLists", 1),
       Click("DeleteList", "Command1"), Photo("DeleteList-asking")},
      {Tool("Title", "Opts"), Click("ProgramOptions", "Command5")},
      {Tool("Title", "Opts"), Click("ProgramOptions", "Command3")},
      // A crossword, coloured, up to its worksheet and key.
      {Click("Title", "Command1", 1),
       Select("ChooseList", "TheLists", 2),
       Click("ChooseList", "Command1"),
       Click("QuizOptions5", "Command1"),
       Click("CrossOption1", "Command1"),
       Click("CrossOption2", "Command2"),
       Click("PickWords", "ChooseRandom"),
       Click("PickWords", "Command2"),
       Await("CrossPrint", "Command1"),
       Photo("CrossPrint"),
       Click("CrossPrint", "Command1"),
       Photo("CrossWord-preview"),
       PressKey(),
       Click("CrossPrint", "ColorLabel", 8),
       Photo("CrossPrint-graphic"),
       Click("CrossPrint", "ColorLabel", 3),
       Click("CrossPrint", "AutoS"),
       Click("CrossPrint", "Command5"),
       Await("CrosswordWorksheet", "Toolbar1"),
       Photo("CrosswordWorksheet-done"),
       Tool("CrosswordWorksheet", "Key"),
       Photo("CrosswordWorksheet-key")},
  };
}

}  // namespace brindlepage::screens
