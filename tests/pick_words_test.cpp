#include "core/pick_words.h"

#include "tests/teacher.h"

namespace brindlepage {
namespace {

using Log = std::vector<std::string>;

const char kSpaces[] =
    "Notice:|For this activity, spaces have been removed to create a better puzzle.";
const char kOops[] =
    "Oops!|There were not enough usable words on this list for this activity The words must not "
    "contain non-letter characters, and the word length must not excede 17 characters.";
const char kRemoved[] =
    "Unusable words|Some words were removed from the list becuase they exceded the character limit "
    "for this activity or they contained non-letter characters that wouldn't work well with this "
    "activity.";
const char kCrosswordQuestion[] =
    "Crossword Words|There is a limit of 50 words for a crossword puzzle. Would you like to choose "
    "the first 50 words on this list?";
const char kBestTip[] =
    "Tip|Tip: If you use the <Make Best Puzzle> option on the previous screen, you will get a much "
    "better puzzle with more words in it.";
const char kWordSearchQuestion[] =
    "Word Search Words|There is a limit of 75 words for a word search puzzle. Would you like to "
    "choose the first 75 words on this list?";

std::string ListOf(int words) {
  std::string file = "Long\r\n";
  for (int i = 1; i <= words; ++i) {
    file += "word" + std::to_string(i) + "\r\nmeaning " + std::to_string(i) + "\r\n";
  }
  return file;
}

class PickWordsTest : public Teacher {
 protected:
  // On the screen with these words, their meanings being m1, m2, ...
  void Open(int activity, const std::vector<std::string>& words) {
    std::string file = "Long\r\n";
    for (std::size_t i = 0; i < words.size(); ++i) {
      file += words[i] + "\r\nm" + std::to_string(i + 1) + "\r\n";
    }
    OpenFile(activity, file);
  }
  void OpenFile(int activity, const std::string& file) {
    folder.Write("TheLists.dat", file);
    Start();
    Do([&] {
      shared.ActivityKind = activity;
      shared.CurrentListName = "Long";
      shared.ListWordCount = static_cast<int>(std::count(file.begin(), file.end(), '\n')) / 2;
      program.forms().Show(Screen::PickWords);
      program.forms().Unload(Screen::Title);
    });
  }
  PickWords& Form() { return On<PickWords>(Screen::PickWords); }
  int Marked() {
    int marked = 0;
    for (int i = 1; i <= 300; ++i) marked += shared.WordMarks(i);
    return marked;
  }
  Log TakeLog() { return std::exchange(platform.log, {}); }

  SharedState& shared = program.shared;
};

TEST_F(PickWordsTest, TheLabelsStandAsDesigned) {
  Open(kStudySheet, {"Mars", "Venus"});
  EXPECT_EQ(Form().Label2.Caption(),
            "This list contains  2 total words that are usable for this activity");
  EXPECT_EQ(Form().Label1.Caption(), "Total words marked: 0");
  EXPECT_EQ(Form().Directions.Caption(),
            "Use the use the spacebar or click a word with the mouse to mark/unmark that word for "
            "use.");
  EXPECT_EQ(Form().Caption(), "Choose the words to use with this activity");
}

TEST_F(PickWordsTest, AClickAndTheSpacebarMarkAWord) {
  Open(kStudySheet, {"Mars", "Venus", "Earth"});
  Do([&] { Form().TheWords.ClickCheck(1); });
  EXPECT_EQ(shared.WordMarks(2), 1);
  EXPECT_EQ(Form().Label1.Caption(), "Total words marked:  1");
  Do([&] { Form().TheWords.Press(Key::Down); });
  Do([&] { Form().TheWords.Press(Key::Space); });
  EXPECT_EQ(shared.WordMarks(3), 1);
  EXPECT_EQ(Form().Label1.Caption(), "Total words marked:  2");
  Do([&] { Form().TheWords.Press(Key::Space); });
  EXPECT_EQ(shared.WordMarks(3), 0);
}

TEST_F(PickWordsTest, AllWordsAreUsableForStudySheets) {
  Open(kStudySheet, {"an entry of many more characters", "two words"});
  EXPECT_EQ(shared.ListWords(1), "an entry of many more characters");
  EXPECT_EQ(shared.ListWords(2), "two words");
  EXPECT_EQ(shared.ListMeanings(2), "m2");
  Tick();
  EXPECT_EQ(platform.log, Log{});
}

TEST_F(PickWordsTest, ARiddleDropsWordsOfMoreThan13Characters) {
  Open(kRiddle,
       {"abcdefghijklmn", "abcdefghijklmn", "abcdefghijklm", "two words", "abcdefghijklmno"});
  EXPECT_EQ(shared.ListWordCount, 2);
  EXPECT_EQ(shared.ListWords(1), "abcdefghijklm");
  EXPECT_EQ(shared.ListMeanings(1), "m3");
  EXPECT_EQ(shared.ListWords(2), "two words");
  Tick(3);
  EXPECT_EQ(platform.log, (Log{kRemoved}));
}

TEST_F(PickWordsTest, APuzzleDropsWordsOf18CharactersAndTakesBlanksOut) {
  Open(kWordSearch, {"abcdefghijklmnopq", "abcdefghi klmnopqr", "two words"});
  EXPECT_EQ(shared.ListWordCount, 2);
  EXPECT_EQ(shared.ListWords(1), "abcdefghijklmnopq");
  EXPECT_EQ(shared.ListWords(2), "twowords");
  EXPECT_EQ(shared.ListMeanings(2), "m3");
  Tick();
  EXPECT_EQ(platform.log, (Log{kSpaces, kRemoved}));
}

TEST_F(PickWordsTest, OfTwoBlanksInARowTheSecondStays) {
  Open(kCrossword, {"one  two", " lead", "trail ", "a   b"});
  EXPECT_EQ(shared.ListWords(1), "one two");
  EXPECT_EQ(shared.ListWords(2), "lead");
  EXPECT_EQ(shared.ListWords(3), "trail");
  EXPECT_EQ(shared.ListWords(4), "a b");
}

TEST_F(PickWordsTest, BehindARemovedWordTheRowBeforeLosesBlanksAgain) {
  Open(kCrossword, {"one  two", "abcdefghijklmnopqr", "x"});
  EXPECT_EQ(shared.ListWords(1), "onetwo");
  EXPECT_EQ(shared.ListWords(2), "x");
}

TEST_F(PickWordsTest, TheNoticeOnSpacesComesForEveryWordSearchAndNeverForTheCrossword) {
  Open(kWordSearch, {"Mars"});
  Tick(5);
  EXPECT_EQ(TakeLog(), (Log{kSpaces}));
}

TEST_F(PickWordsTest, TheCrosswordLosesItsBlanksWithoutANotice) {
  Open(kCrossword, {"red planet"});
  Tick(5);
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(shared.ListWords(1), "redplanet");
}

TEST_F(PickWordsTest, AMessageDoesNotStopTheTimerAndComesOnceAllTheSame) {
  Open(kWordSearch, {"Mars"});
  platform.while_box_is_open = [&] { Tick(20); };
  Tick();
  EXPECT_EQ(TakeLog(), (Log{kSpaces}));
}

TEST_F(PickWordsTest, NoUsableWordShowsNoWordsAndReturnsToTheMenu) {
  Open(kRiddle, {"abcdefghijklmn"});
  EXPECT_EQ(Form().Label2.Caption(),
            "This list contains  0 total words that are usable for this activity");
  Tick();
  EXPECT_EQ(TakeLog(), (Log{kOops}));
  EXPECT_EQ(Form().TheWords.List(0), "No Words");
  Tick();
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::PickWords));
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(PickWordsTest, TheOopsMessageComesOnceThoughTheTimerGoesOnBehindIt) {
  Open(kStudySheet, {});
  platform.while_box_is_open = [&] { Tick(50); };
  Tick();
  EXPECT_EQ(TakeLog(), (Log{kOops}));
}

TEST_F(PickWordsTest, ACountOfMinusOneFindsNoWords) {
  folder.Write("TheLists.dat", "<New List>\r\nPlanets\r\nMars\r\nred\r\n");
  WalkToPickWords("<New List>");
  EXPECT_EQ(Form().TheWords.ListCount(), 0);
  Tick();
  EXPECT_EQ(TakeLog(), (Log{kOops}));
}

TEST_F(PickWordsTest, ThreeHundredWordsAreRead) {
  OpenFile(kStudySheet, ListOf(300));
  EXPECT_EQ(shared.ListWordCount, 300);
  EXPECT_EQ(shared.ListWords(300), "word300");
  Click(Screen::PickWords, "ChooseRandom");
  EXPECT_EQ(Marked(), 300);
}

TEST_F(PickWordsTest, TheThreeHundredAndFirstUsableWordEndsTheProgram) {
  OpenFile(kStudySheet, ListOf(301));
  EXPECT_EQ(TakeLog(), (Log{"error 9 Subscript out of range"}));
  EXPECT_EQ(program.Status(), 1);
}

TEST_F(PickWordsTest, OnlyUsableWordsCountForTheLimit) {
  std::string file = ListOf(300) + "abcdefghijklmnopqrstuvwxyz\r\ntoo long\r\n";
  OpenFile(kCrossword, file);
  EXPECT_FALSE(program.Ended());
  EXPECT_EQ(shared.ListWordCount, 300);
}

TEST_F(PickWordsTest, ACrosswordOf50WordsIsChosenWithNoQuestion) {
  OpenFile(kCrossword, ListOf(50));
  Click(Screen::PickWords, "ChooseRandom");
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(Marked(), 50);
  EXPECT_EQ(Form().Label1.Caption(), "Total Words Marked:  50");
}

TEST_F(PickWordsTest, ACrosswordOf51WordsAsksAndYesMarksTheFirst50) {
  OpenFile(kCrossword, ListOf(51));
  Click(Screen::PickWords, "ChooseRandom");
  EXPECT_EQ(TakeLog(), (Log{kCrosswordQuestion, kBestTip}));
  EXPECT_EQ(Marked(), 50);
  EXPECT_EQ(shared.WordMarks(51), 0);
  EXPECT_TRUE(Form().TheWords.Selected(49));
  EXPECT_FALSE(Form().TheWords.Selected(50));
  EXPECT_EQ(Form().Label1.Caption(), "Total Words Marked: 50");
}

TEST_F(PickWordsTest, NoToTheQuestionDoesNothingMore) {
  OpenFile(kCrossword, ListOf(51));
  Do([&] { Form().TheWords.ClickCheck(50); });
  platform.answers = {BoxAnswer::No};
  Click(Screen::PickWords, "ChooseRandom");
  EXPECT_EQ(TakeLog(), (Log{kCrosswordQuestion}));
  EXPECT_EQ(Marked(), 1);
  EXPECT_EQ(Form().Label1.Caption(), "Total words marked:  1");
}

TEST_F(PickWordsTest, WithTheBestPuzzleAllWordsAreMarkedWithNoQuestion) {
  shared.BestPuzzle = 1;
  OpenFile(kCrossword, ListOf(60));
  Click(Screen::PickWords, "ChooseRandom");
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(Marked(), 60);
}

TEST_F(PickWordsTest, AWordSearchOf74WordsIsChosenWithNoQuestion) {
  OpenFile(kWordSearch, ListOf(74));
  Click(Screen::PickWords, "ChooseRandom");
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(Marked(), 74);
}

TEST_F(PickWordsTest, AWordSearchOf75WordsAsksAndYesMarksTheSame75) {
  OpenFile(kWordSearch, ListOf(75));
  Click(Screen::PickWords, "ChooseRandom");
  EXPECT_EQ(TakeLog(), (Log{kWordSearchQuestion}));
  EXPECT_EQ(Marked(), 75);
  EXPECT_EQ(Form().Label1.Caption(), "Total Words Marked: 75");
}

TEST_F(PickWordsTest, SeventySixMarkedWordsAreRefusedForAWordSearchAnd75Pass) {
  OpenFile(kWordSearch, ListOf(76));
  Do([&] {
    for (int row = 0; row < 76; ++row) Form().TheWords.ClickCheck(row);
  });
  Click(Screen::PickWords, "Command2");
  EXPECT_EQ(TakeLog(),
            (Log{"Hey!|Please choose less than 75 words or less for a Word Search puzzle."}));
  EXPECT_TRUE(Active(Screen::PickWords));
  Do([&] { Form().TheWords.ClickCheck(75); });
  Click(Screen::PickWords, "Command2");
  EXPECT_TRUE(Active(Screen::QuizOptions));
  EXPECT_EQ(shared.MarkedCount, 75);
}

TEST_F(PickWordsTest, DoneWithNothingMarkedStays) {
  Open(kStudySheet, {"Mars"});
  Click(Screen::PickWords, "Command2");
  EXPECT_EQ(TakeLog(), (Log{"Hey!|You need to mark some words first!"}));
  EXPECT_TRUE(Active(Screen::PickWords));
}

TEST_F(PickWordsTest, ClearAllPutsTwoBlanksBeforeTheZero) {
  Open(kStudySheet, {"Mars", "Venus"});
  Click(Screen::PickWords, "Command1");
  EXPECT_EQ(Form().Label1.Caption(), "Total words marked:  0");
  Click(Screen::PickWords, "ChooseRandom");
  EXPECT_EQ(Form().Label1.Caption(), "Total Words Marked:  2");
  Click(Screen::PickWords, "Command1");
  EXPECT_EQ(Marked(), 0);
  EXPECT_FALSE(Form().TheWords.Selected(0));
}

TEST_F(PickWordsTest, TheNextClickChangesTheLabelBackToSmallLetters) {
  Open(kStudySheet, {"Mars", "Venus"});
  Click(Screen::PickWords, "ChooseRandom");
  Do([&] { Form().TheWords.ClickRow(0); });
  EXPECT_EQ(Form().Label1.Caption(), "Total words marked:  2");
}

TEST_F(PickWordsTest, DoneLeadsToEachActivitysNextScreen) {
  const std::pair<int, Screen> roads[] = {{kWordSearch, Screen::QuizOptions},
                                          {kScramble, Screen::Scramble},
                                          {kQuiz, Screen::QuizForm},
                                          {kAlphabetize, Screen::QuizForm},
                                          {kStudySheet, Screen::StudyGuideForm},
                                          {kSecretCode, Screen::CodeForm},
                                          {kRiddle, Screen::RiddleForm}};
  Start();
  for (const auto& [kind, screen] : roads) {
    Do([&, activity = kind] {
      shared.ActivityKind = activity;
      shared.CurrentListName = "Planets";
      shared.ListWordCount = 3;
      program.forms().Show(Screen::PickWords);
    });
    EXPECT_TRUE(program.forms().Find(Screen::PickWords)->Visible);
    Click(Screen::PickWords, "ChooseRandom");
    Click(Screen::PickWords, "Command2");
    EXPECT_TRUE(Loaded(screen)) << kind;
    EXPECT_FALSE(Loaded(Screen::PickWords)) << kind;
    if (program.Ended()) break;
    Do([&, next = screen] { program.forms().Unload(next); });
  }
}

TEST_F(PickWordsTest, ReturningFromTheWordSearchOptionsShrinksTheList) {
  Open(kWordSearch, {"abcdefghijklmnopqr", "one", "two", "three"});
  Tick();
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  EXPECT_EQ(shared.ListWordCount, 3);
  Click(Screen::QuizOptions, "Command2");
  EXPECT_EQ(Form().TheWords.ListCount(), 2);
  EXPECT_EQ(Form().TheWords.List(0), "one");
  EXPECT_EQ(Form().TheWords.List(1), "two");
  EXPECT_FALSE(Form().TheWords.Selected(0));
  EXPECT_EQ(shared.ListWordCount, 2);
}

TEST_F(PickWordsTest, BestChoiceMarksAllWordsAndQueuesTheCrossword) {
  shared.BestPuzzle = 1;
  Open(kCrossword, {"Mars", "Venus", "Earth"});
  Do([&] { Form().BestChoice(); });
  EXPECT_EQ(Marked(), 3);
  EXPECT_EQ(shared.MarkedCount, 3);
  EXPECT_EQ(shared.CrossMarks(1), 0);
  EXPECT_TRUE(Loaded(Screen::CrossWord));
  EXPECT_TRUE(Active(Screen::PleaseWait));
  EXPECT_TRUE(Form().Visible);
}

TEST_F(PickWordsTest, BestChoiceOnAListOfOneUsableWordStays) {
  shared.BestPuzzle = 1;
  Open(kCrossword, {"Mars", "abcdefghijklmnopqr"});
  Do([&] { Form().BestChoice(); });
  EXPECT_EQ(Marked(), 0);
  EXPECT_TRUE(Active(Screen::PickWords));
}

TEST_F(PickWordsTest, DoneOnACrosswordKeepsTheMarksForRetries) {
  Open(kCrossword, {"Mars", "Venus", "Earth"});
  shared.CrossMarks(1) = 1;
  Do([&] { Form().TheWords.ClickCheck(1); });
  Click(Screen::PickWords, "Command2");
  EXPECT_EQ(shared.CrossMarks(1), 0);
  EXPECT_EQ(shared.CrossMarks(2), 1);
  EXPECT_FALSE(program.forms().Find(Screen::CrossWord)->Visible);
  EXPECT_TRUE(Active(Screen::PleaseWait));
}

TEST_F(PickWordsTest, TheMenuLeadsBackAndQuits) {
  Open(kStudySheet, {"Mars"});
  Click(Screen::PickWords, "Back");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::PickWords));
  WalkToPickWords("Long");
}

TEST_F(PickWordsTest, QuitEndsTheProgram) {
  Open(kStudySheet, {"Mars"});
  Click(Screen::PickWords, "Quit");
  EXPECT_TRUE(program.Ended());
}

TEST_F(PickWordsTest, MarksOfAnEarlierVisitAreNotRestored) {
  Open(kStudySheet, {"Mars", "Venus"});
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Back");
  Do([&] {
    shared.ListWordCount = 2;
    shared.CurrentListName = "Long";
    program.forms().Show(Screen::PickWords);
  });
  EXPECT_FALSE(Form().TheWords.Selected(0));
  EXPECT_EQ(Marked(), 0);
}

}  // namespace
}  // namespace brindlepage
