#include "tools/screens/steps.h"

namespace brindlepage::screens {

namespace {

Walk Joined(std::initializer_list<Walk> walks) {
  Walk joined;
  for (const Walk& walk : walks) joined.insert(joined.end(), walk.begin(), walk.end());
  return joined;
}

Walk Times(int count, const Step& step) { return Walk(static_cast<std::size_t>(count), step); }

// From the menu to the choice of a list, and on with that list.
Walk Begin(const Step& activity, const std::string& list) {
  return {activity, SelectText("ChooseList", "TheLists", list), Click("ChooseList", "Command1")};
}

Walk KeepHeading() { return {Click("QuizOptions5", "Command1")}; }

Walk PickRows(int first, int last) {
  return {MarkRows("PickWords", "TheWords", first, last), Click("PickWords", "Command2")};
}

Walk PickAll() { return {Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2")}; }

// What every activity has in common.
Walk CommonRoad() {
  return {Photo("menu", "Title"),
          Click("Title", "Command1", 4),
          SelectText("ChooseList", "TheLists", "Weather and Climate"),
          Photo("choose-list", "ChooseList"),
          Click("ChooseList", "Command1"),
          Photo("heading", "QuizOptions5"),
          Click("QuizOptions5", "Command1"),
          Mark("PickWords", "TheWords", {0, 1, 2, 4, 7}),
          Photo("pick-words", "PickWords")};
}

Walk WordSearch() {
  return Joined({Begin(Click("Title", "Command1", 0), "Solar System"),
                 KeepHeading(),
                 PickAll(),
                 {Photo("word-search-options", "QuizOptions"), Click("QuizOptions", "Command1"),
                  Slide("PuzzleSize", "VScrollx", 18), Slide("PuzzleSize", "VScrolly", 18),
                  Photo("word-search-size", "PuzzleSize"), Click("PuzzleSize", "Command1"),
                  Photo("worksheet", "WordSearchForm"), Tool("WordSearchForm", "Key"),
                  Photo("worksheet-key", "WordSearchForm"), PhotoOfNextBox("save"),
                  Tool("WordSearchForm", "Save"), PhotoOfPages("word-search", "WordSearchForm")}});
}

Walk Crossword() {
  return Joined(
      {Begin(Click("Title", "Command1", 1), "Weather and Climate"),
       KeepHeading(),
       {Photo("crossword-quality", "CrossOption1"), Click("CrossOption1", "Command1"),
        Photo("crossword-words", "CrossOption2"), Click("CrossOption2", "Command2")},
       PickRows(0, 15),
       {Click("CrossPrint", "AutoS"), Photo("crossword-ready", "CrossPrint"),
        Click("CrossPrint", "Command5"), PhotoOfPages("crossword", "CrosswordWorksheet")}});
}

Walk Scramble() {
  return Joined({Begin(Click("Title", "Command1", 2), "Music Room"),
                 {Photo("scramble-hint", "ScrambleOption1"), Click("ScrambleOption1", "Command1")},
                 KeepHeading(),
                 PickRows(0, 11),
                 {PhotoOfPages("scramble", "Scramble")}});
}

// `kind` is the option button of the quiz.
Walk Quiz(const QString& name, const std::string& kind, const std::string& list, int first,
          int last, std::uint64_t seed = 1) {
  return Joined({{Seed(seed)},
                 Begin(Click("Title", "Command1", 3), list),
                 {Click("QuizOptions3", kind), Click("QuizOptions3", "Command1")},
                 KeepHeading(),
                 PickRows(first, last),
                 {PhotoOfPages(name, "QuizForm")}});
}

Walk QuizKinds() {
  return Joined({Begin(Click("Title", "Command1", 3), "Maps and Landforms"),
                 {Photo("quiz-kinds", "QuizOptions3")}});
}

Walk Alphabetize() {
  return Joined({Begin(Click("Title", "Command4"), "Tricky Spellings"),
                 KeepHeading(),
                 {MarkRows("PickWords", "TheWords", 4, 19), Photo("alphabetize-words", "PickWords"),
                  Click("PickWords", "Command2"), PhotoOfPages("alphabetize", "QuizForm")}});
}

Walk StudySheet() {
  return Joined(
      {Begin(Click("Title", "Command1", 4), "The Middle Ages"),
       KeepHeading(),
       PickRows(0, 15),
       {Photo("study-screen", "StudyGuideForm"), PhotoOfPages("study", "StudyGuideForm")}});
}

Walk SecretCode() {
  return Joined(
      {Begin(Click("Title", "Command1", 5), "Parts of a Flower"),
       KeepHeading(),
       PickAll(),
       {Photo("secret-code-screen", "CodeForm"), PhotoOfPages("secret-code", "CodeForm")}});
}

Walk Riddle() {
  return Joined({Begin(Click("Title", "Command1", 6), "Cells and Living Things"),
                 Times(13, Click("ChooseRiddle", "Label4")),
                 {Photo("riddle-choice", "ChooseRiddle"), Click("ChooseRiddle", "Command2")},
                 KeepHeading(),
                 PickRows(0, 7),
                 {PhotoOfPages("riddle", "RiddleForm")}});
}

// Adds the riddle on show and those behind it.
Walk AddRiddles(int count) {
  Walk walk{Click("RiddleOption1", "Command3")};
  for (int i = 1; i < count; ++i) {
    walk.push_back(Click("RiddleOption1", "Image1"));
    walk.push_back(Click("RiddleOption1", "Command3"));
  }
  return walk;
}

Walk CodedRiddles() {
  return Joined({{Click("Title", "Command3"), Photo("just-for-fun", "JustForFun"),
                  Click("JustForFun", "Command2")},
                 AddRiddles(4),
                 {Click("RiddleOption1", "Image1"), Photo("coded-riddles-choice", "RiddleOption1"),
                  Click("RiddleOption1", "Command2")},
                 KeepHeading(),
                 {PhotoOfPages("coded-riddles", "CodeForm")}});
}

Walk Cryptoquip() {
  return Joined({{Seed(3), Click("Title", "Command3"), Click("JustForFun", "Command3")},
                 Times(19, Click("RiddleOption1", "Image1")),
                 AddRiddles(4),
                 {Click("RiddleOption1", "Command2"), Photo("cryptoquip-heading", "QuizOptions5")},
                 KeepHeading(),
                 {PhotoOfPages("cryptoquip", "CodeForm")}});
}

Walk NewList() {
  return {Tool("Title", "Create"),
          Type("CreateList", "NewName", "Volcanoes"),
          Photo("new-list-name", "CreateList"),
          Click("CreateList", "Command2"),
          Type("MakeNewList", "TheWord", "lava"),
          Type("MakeNewList", "TheMeaning", "melted rock that has come out"),
          Tool("MakeNewList", "Add Word"),
          Type("MakeNewList", "TheWord", "ash"),
          Type("MakeNewList", "TheMeaning", "grey dust that falls from the sky"),
          Tool("MakeNewList", "Add Word"),
          Type("MakeNewList", "TheMeaning", "the bowl at the top of the mountain"),
          Type("MakeNewList", "TheWord", "crater"),
          Photo("new-list", "MakeNewList")};
}

Walk ChangedList() {
  return {Tool("Title", "Edit"),
          SelectText("EditChooseList", "TheLists", "Spanish Home and School"),
          Click("EditChooseList", "Command1"),
          Select("EditList", "WordList", 4),
          Photo("edit-list", "EditList"),
          Tool("EditList", "Edit Word"),
          Photo("edit-word", "EditWord"),
          Click("EditWord", "Command2"),
          Tool("EditList", "Add Word"),
          Click("AddWord", "Command3"),
          Type("AddWord", "Text1", "pi"),
          Type("AddWord", "Text2", "pineapple (f.)"),
          Slide("AddWord", "LScroll", 241),
          Photo("add-word", "AddWord")};
}

Walk DeletedList() {
  return {Tool("Title", "Delete"), SelectText("DeleteList", "TheLists", "Weather and Climate"),
          Click("DeleteList", "Command1"), Photo("delete-list", "DeleteList")};
}

Walk Options() {
  return {Tool("Title", "Opts"), Photo("options", "ProgramOptions"),
          Click("ProgramOptions", "Command5"), Photo("quick-word", "QuickWordOption")};
}

Walk OtherListFile() {
  return {Tool("Title", "Opts"), Click("ProgramOptions", "Command3"),
          Type("ChangeList", "Text1", "d:\\school\\lists\\"),
          Photo("other-list-file", "ChangeList")};
}

Walk SavedWorksheet() {
  return Joined(
      {Begin(Click("Title", "Command1", 4), "Solar System"),
       KeepHeading(),
       PickAll(),
       {DrawSun(), Tool("StudyGuideForm", "Save"), Click("StudyGuideForm", "Back"),
        Click("Title", "Command2"), Select("OpenWorksheet", "File1", 1),
        Photo("open-worksheet", "OpenWorksheet"), Click("OpenWorksheet", "Command1"),
        CaretBefore("QuizForm", "QuizBox", "\n 1)"), Tool("QuizForm", "Clipart"),
        Select("AddPic", "File1", 0), Photo("add-picture", "AddPic"), Click("AddPic", "Command1"),
        CaretBefore("QuizForm", "QuizBox", "Solar"), Photo("worksheet-with-picture", "QuizForm")}});
}

}  // namespace

std::vector<Walk> ManualWalks() {
  return {CommonRoad(), WordSearch(), Crossword(), Scramble(), QuizKinds(),
          Quiz("quiz-choose-word", "MC", "Maps and Landforms", 0, 9),
          Quiz("quiz-choose-meaning", "MC2", "Egypt, Greece and Rome", 0, 5, 2),
          // Words from the end of the list, whose key is right.
          Quiz("quiz-matching", "Match", "The Human Body", 13, 24),
          Quiz("quiz-fill-in", "FillNo", "Geometry", 10, 24),
          Quiz("quiz-word-bank", "FillYes", "Computer Words", 0, 14), Alphabetize(), StudySheet(),
          SecretCode(), Riddle(), CodedRiddles(), Cryptoquip(), NewList(), ChangedList(),
          DeletedList(), Options(), OtherListFile(), SavedWorksheet()};
}

}  // namespace brindlepage::screens
