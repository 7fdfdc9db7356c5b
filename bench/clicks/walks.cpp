#include "bench/clicks/walks.h"

#include <QImage>
#include <QPainter>
#include <fstream>
#include <random>

namespace {

// The lists, as they stand sorted.
enum List { kFullList, kCrosswordWords, kPuzzleWords, kRiddleWords };

struct Wanted {
  const char* list;
  int words;
  int shortest;
  int longest;
};
constexpr Wanted kLists[] = {{"A full list", 300, 20, 30},
                             {"Crossword words", 75, 4, 11},
                             {"Long words for puzzles", 75, 4, 17},
                             {"Words for a riddle", 75, 13, 13}};

std::string Word(std::mt19937& draws, int shortest, int longest) {
  static constexpr const char* kSyllables[] = {"ba",  "cri", "dos", "fe",  "gum", "hal", "jin",
                                               "ko",  "lup", "mer", "nav", "ox",  "pyr", "qui",
                                               "ras", "tev", "vun", "wyl", "zet"};
  const int length =
      shortest + static_cast<int>(draws() % static_cast<unsigned>(longest - shortest + 1));
  std::string word;
  while (static_cast<int>(word.size()) < length) word += kSyllables[draws() % 19];
  word.resize(static_cast<std::size_t>(length));
  return word;
}

void WriteLists(const std::filesystem::path& file) {
  std::mt19937 draws(1);
  std::ofstream out(file, std::ios::binary);
  for (const Wanted& wanted : kLists) {
    if (&wanted != kLists) out << "<New List>\r\n";
    out << wanted.list << "\r\n";
    for (int i = 0; i < wanted.words; ++i) {
      out << Word(draws, wanted.shortest, wanted.longest) << "\r\n";
      for (int part = 0; part < 8; ++part) out << Word(draws, 6, 8) << ' ';
      out << "\r\n";
    }
  }
}

void DrawClipart(const std::filesystem::path& file) {
  QImage picture(800, 600, QImage::Format_RGB32);
  QPainter painter(&picture);
  for (int y = 0; y < 600; ++y) {
    painter.fillRect(0, y, 800, 1, QColor(y * 255 / 600, 120, 200));
  }
  painter.end();
  picture.save(QString::fromStdString(file.string()));
}

void ChooseWords(Hand& hand, List list) {
  hand.Row("ChooseList", "TheLists", list);
  hand.Click("ChooseList", "Command1");
}

void MarkAll(Hand& hand) {
  hand.Click("QuizOptions5", "Command1");
  hand.Space("PickWords", "TheWords");
  hand.Click("PickWords", "Command1");
  hand.Click("PickWords", "ChooseRandom");
}

// What a teacher does with a finished sheet.
void WorkOn(Hand& hand, const std::string& form, bool has_key) {
  hand.Wait(600);  // nobody reads a sheet faster, and its key is loaded
  hand.Type(form, "QuizBox", "ab");
  hand.Press(Qt::Key_Return, {}, "line end");
  hand.Press(Qt::Key_End, Qt::ControlModifier, "to the end");
  hand.Press(Qt::Key_Home, Qt::ControlModifier, "to the start");
  hand.Press(Qt::Key_PageDown, {}, "page down");
  hand.Press(Qt::Key_A, Qt::ControlModifier, "all");
  hand.Click(form, "BoldButton");
  hand.Choose(form, "cmbFontSize", 4);
  hand.Choose(form, "cmbFontColor", 2);
  hand.Choose(form, "cmbFontName", 1);
  hand.Press(Qt::Key_Z, Qt::ControlModifier, "undo");
  if (has_key) {
    hand.Tool(form, "Key");
    hand.Tool(form, "Worksheet");
  }
}

// From the word picker to the sheet of all its words, and back to the menu.
void MakeSheet(Hand& hand, const std::string& form) {
  MarkAll(hand);
  hand.Click("PickWords", "Command2");
  WorkOn(hand, form, true);
  hand.Item(form, "Back");
}

void Menu(Hand& hand) {
  hand.Tool("Title", "Info");
  hand.Click("AboutForm", "Command1");
  hand.Click("Title", "Command3");
  hand.Click("JustForFun", "Command1");
  hand.Tool("Title", "Opts");
  hand.Click("ProgramOptions", "Command3");
}

void WordProcessor(Hand& hand) {
  hand.Tool("Title", "Opts");
  hand.Click("ProgramOptions", "Command2");
  hand.Tool("Title", "Opts");
  hand.Click("ProgramOptions", "Command5");
  hand.Click("QuickWordOption", "Checks1");
  hand.Click("QuickWordOption", "Command1");
}

void StudySheet(Hand& hand) {
  hand.Click("Title", "Command1", 4);
  ChooseWords(hand, kFullList);
  MarkAll(hand);
  hand.Click("PickWords", "Command2");
  WorkOn(hand, "StudyGuideForm", false);
  hand.Tool("StudyGuideForm", "Save");
  hand.Item("StudyGuideForm", "Back");
  hand.Click("Title", "Command2");
  hand.Row("OpenWorksheet", "File1", 0);
  hand.Click("OpenWorksheet", "Command1");
  hand.Tool("QuizForm", "Clipart");
  hand.Row("AddPic", "File1", 0);
  hand.Click("AddPic", "Command1");
  hand.Item("QuizForm", "Back");
}

void Scramble(Hand& hand) {
  hand.Click("Title", "Command1", 2);
  ChooseWords(hand, kPuzzleWords);
  hand.Click("ScrambleOption1", "Command1");
  MakeSheet(hand, "Scramble");
}

void SecretCode(Hand& hand) {
  hand.Click("Title", "Command1", 5);
  ChooseWords(hand, kFullList);
  MakeSheet(hand, "CodeForm");
}

void Riddle(Hand& hand) {
  hand.Click("Title", "Command1", 6);
  ChooseWords(hand, kRiddleWords);
  hand.Click("ChooseRiddle", "Label4");
  hand.Click("ChooseRiddle", "Label5");
  hand.Click("ChooseRiddle", "Command2");
  MarkAll(hand);
  hand.Click("PickWords", "Command2", -1, Hand::kLong);
  hand.Await("RiddleForm");
  WorkOn(hand, "RiddleForm", true);
  hand.Item("RiddleForm", "Back");
}

void CodedRiddles(Hand& hand) {
  hand.Click("Title", "Command3");
  hand.Click("JustForFun", "Command2");
  for (int i = 0; i < 5; ++i) {
    hand.Click("RiddleOption1", "Command3");
    hand.Click("RiddleOption1", "Image1");
  }
  hand.Click("RiddleOption1", "Command2");
  hand.Click("QuizOptions5", "Command1");
  WorkOn(hand, "CodeForm", true);
  hand.Item("CodeForm", "Back");
}

std::function<void(Hand&)> Quiz(const char* kind) {
  return [kind](Hand& hand) {
    hand.Click("Title", "Command1", 3);
    ChooseWords(hand, kPuzzleWords);
    hand.Click("QuizOptions3", kind);
    hand.Click("QuizOptions3", "Command1");
    MakeSheet(hand, "QuizForm");
  };
}

void Alphabetize(Hand& hand) {
  hand.Click("Title", "Command4");
  ChooseWords(hand, kFullList);
  MakeSheet(hand, "QuizForm");
}

void WordSearch(Hand& hand) {
  hand.Click("Title", "Command1", 0);
  ChooseWords(hand, kPuzzleWords);
  MarkAll(hand);
  hand.Click("PickWords", "Command2");
  hand.Click("QuizOptions", "DefinitionQuiz");
  hand.Click("QuizOptions", "Check1");
  hand.Click("QuizOptions", "Command1");
  hand.Slide("PuzzleSize", "VScrollx", 30);
  hand.Slide("PuzzleSize", "VScrolly", 30);
  hand.Click("PuzzleSize", "Command1", -1, Hand::kLong);
  hand.Await("WordSearchForm");
  WorkOn(hand, "WordSearchForm", true);
  hand.Item("WordSearchForm", "Back");
}

void Crossword(Hand& hand) {
  hand.Click("Title", "Command1", 1);
  ChooseWords(hand, kCrosswordWords);
  hand.Click("QuizOptions5", "Command1");
  hand.Click("CrossOption1", "Command1");
  hand.Click("CrossOption2", "Command2");
  hand.Click("PickWords", "ChooseRandom");
  hand.Click("PickWords", "Command2", -1, Hand::kLong);
  hand.Await("CrossPrint");
  hand.Wait(1200);  // it looks at its words once more
  hand.Click("CrossPrint", "Command1");
  hand.PressForm();
  hand.Click("CrossPrint", "ColorLabel", 3);
  hand.Click("CrossPrint", "AutoS");
  hand.Click("CrossPrint", "Command1");
  hand.PressForm();
  hand.Click("CrossPrint", "Command5", -1, Hand::kLong);
  hand.AwaitReady("CrosswordWorksheet", "QuizBox");
  WorkOn(hand, "CrosswordWorksheet", true);
}

void Lists(Hand& hand) {
  hand.Tool("Title", "Create");
  hand.Type("CreateList", "NewName", "Volcanoes");
  hand.Click("CreateList", "Command2");
  hand.Type("MakeNewList", "TheWord", "lava");
  hand.Type("MakeNewList", "TheMeaning", "melted rock");
  hand.Tool("MakeNewList", "Add Word");
  hand.Tool("MakeNewList", "Foreign");
  hand.Click("FLForm", "Command1");
}

void Editing(Hand& hand) {
  hand.Tool("Title", "Edit");
  hand.Row("EditChooseList", "TheLists", kFullList);
  hand.Click("EditChooseList", "Command1");
  hand.Row("EditList", "WordList", 150);
  hand.Tool("EditList", "Add Word");
  hand.Type("AddWord", "Text1", "lava");
  hand.Click("AddWord", "Command2");
  hand.Tool("EditList", "Edit Word");
  hand.Click("EditWord", "Command1");
  hand.Tool("EditList", "Rename List");
  hand.Click("ChangeListName", "Command2");
}

void Deleting(Hand& hand) {
  hand.Tool("Title", "Delete");
  hand.Row("DeleteList", "TheLists", kFullList);
  hand.Click("DeleteList", "Command1");
  hand.Click("DeleteList", "Yes");
}

}  // namespace

std::vector<Walk> AllWalks() {
  return {{"menu", Menu},
          {"word processor", WordProcessor},
          {"study sheet", StudySheet},
          {"scramble", Scramble},
          {"secret code", SecretCode},
          {"riddle", Riddle},
          {"coded riddles", CodedRiddles},
          {"quiz MC", Quiz("MC")},
          {"quiz MC2", Quiz("MC2")},
          {"quiz Match", Quiz("Match")},
          {"quiz FillNo", Quiz("FillNo")},
          {"quiz FillYes", Quiz("FillYes")},
          {"alphabetize", Alphabetize},
          {"word search", WordSearch},
          {"crossword", Crossword},
          {"new list", Lists},
          {"edit list", Editing},
          {"delete list", Deleting}};
}

void PrepareFolder(const std::filesystem::path& folder) {
  WriteLists(folder / "TheLists.dat");
  DrawClipart(folder / "clipart.png");
}
