#include "wordsearch/word_search_form.h"

#include <gtest/gtest.h>

#include "tests/given_draws.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

std::string TextOf(const RichText& box) {
  std::string text;
  for (const char32_t c : box.PlainText()) text += static_cast<char>(c);
  return text;
}

class WordSearchFormTest : public Teacher {
 protected:
  WordSearchForm& Sheet() { return On<WordSearchForm>(Screen::WordSearchForm); }

  // The walk from the menu to the size, with these rows of the list "Planets" marked.
  void WalkToPuzzleSize(const std::vector<int>& rows, bool easy = false, bool meanings = false) {
    WalkToPickWords("Planets", kWordSearch);
    auto& words =
        dynamic_cast<ListBox&>(*program.forms().Find(Screen::PickWords)->FindControl("TheWords"));
    for (const int row : rows) Do([&] { words.ClickCheck(row); });
    Click(Screen::PickWords, "Command2");
    if (easy) Click(Screen::QuizOptions, "Check1");
    if (meanings) Click(Screen::QuizOptions, "DefinitionQuiz");
    Click(Screen::QuizOptions, "Command1");
  }
  void Size(int across, int down) {
    auto& form = *program.forms().Find(Screen::PuzzleSize);
    Do([&] { dynamic_cast<HScrollBar&>(*form.FindControl("VScrollx")).Move(across); });
    Do([&] { dynamic_cast<HScrollBar&>(*form.FindControl("VScrolly")).Move(down); });
  }
  void Ok() { Click(Screen::PuzzleSize, "Command1"); }

  // Words that share no letter and have more of them than the largest puzzle of odd size has cells.
  void UseHopelessList() {
    std::string lines = "Planets\r\n";
    for (int i = 0; i < 75; ++i) {
      // No line of a list may begin like a separator does.
      lines += std::string(17, static_cast<char>(0xA1 + i)) + "\r\nmeaning\r\n";
    }
    folder.Write("TheLists.dat", lines);
  }
  void WalkToPuzzleSizeWithAll() {
    WalkToPickWords("Planets", kWordSearch);
    Click(Screen::PickWords, "ChooseRandom");
    Click(Screen::PickWords, "Command2");
    Click(Screen::QuizOptions, "Command1");
  }

  SharedState& shared = program.shared;
  GivenDraws draws;
};

TEST_F(WordSearchFormTest, FromTheMenuToTheFinishedSheetInAllThreeDirections) {
  WalkToPuzzleSize({0, 1, 2});
  Size(10, 10);
  program.UseRandom(draws);
  // Mars across in row 10 from column 6.
  draws.Of(3, {1});
  draws.Of(10, {10});
  draws.Of(6, {6});
  // Venus down in column 10 from row 5.
  draws.Of(3, {2});
  draws.Of(10, {10});
  draws.Of(5, {5});
  // Earth down to the right from row 5, column 1.
  draws.Of(3, {3});
  draws.Of(5, {5});
  draws.Of(5, {1});
  const std::string fillers[] = {"QQQQQQQQQQ", "RRRRRRRRRR", "SSSSSSSSSS", "TTTTTTTTTT", "UUUUUUUU",
                                 "VVVVVVVV",   "WWWWWWWW",   "XXXXXXXX",   "YYYYYYYY",   "ZZZZZZ"};
  for (const std::string& letters : fillers) draws.Letters(letters);
  Ok();

  EXPECT_TRUE(Active(Screen::WordSearchForm));
  EXPECT_FALSE(Loaded(Screen::PuzzleSize));
  EXPECT_EQ(draws.Left(), 0U);
  EXPECT_EQ(draws.Reseeds(),
            (std::vector<std::size_t>{0, 3, 6, 9, 19, 29, 39, 49, 57, 65, 73, 81, 89}));
  EXPECT_EQ(TextOf(Sheet().QuizBox),
            "\nName_____________________________     Date_______________\n\n"
            "Planets Word Search\n\n\n"
            "Directions: Find and circle each of the words listed below the puzzle.\n\n\n"
            " Q Q Q Q Q Q Q Q Q Q\n"
            " R R R R R R R R R R\n"
            " S S S S S S S S S S\n"
            " T T T T T T T T T T\n"
            " E U U U U U U U U V\n"
            " V A V V V V V V V E\n"
            " W W R W W W W W W N\n"
            " X X X T X X X X X U\n"
            " Y Y Y Y H Y Y Y Y S\n"
            " Z Z Z Z Z M A R S Z\n"
            "\nWord Bank:" +
                std::string(80, '_') + "\n Mars" + std::string(21, ' ') + "Venus" +
                std::string(20, ' ') + "Earth\n" + std::string(90, '_') + "\n" +
                std::string(90 - 51 + 9, ' '));
  EXPECT_EQ(TextOf(Sheet().AnswerBox),
            "\n\nPlanets Word Search\nAnswer Key\n\n"
            " * * * * * * * * * *\n"
            " * * * * * * * * * *\n"
            " * * * * * * * * * *\n"
            " * * * * * * * * * *\n"
            " E * * * * * * * * V\n"
            " * a * * * * * * * e\n"
            " * * r * * * * * * n\n"
            " * * * t * * * * * u\n"
            " * * * * h * * * * s\n"
            " * * * * * M a r s *\n");
}

TEST_F(WordSearchFormTest, TheMarkedWordsMoveToTheFrontWithTheirMeanings) {
  WalkToPuzzleSize({1, 2}, false, true);
  Ok();
  EXPECT_EQ(shared.ListWords(1), "Venus");
  EXPECT_EQ(shared.ListWords(2), "Earth");
  EXPECT_EQ(shared.ListWords(3), "Earth");
  EXPECT_EQ(shared.ListMeanings(1), "hot");
  EXPECT_EQ(shared.WordMarks(1), 0);
  EXPECT_EQ(shared.WordMarks(3), 1);
  EXPECT_EQ(shared.WorkWord, "Earth");
  const std::string text = TextOf(Sheet().QuizBox);
  const std::string end = "\n 1)  hot\n 2)  home\n" + std::string(90, '_') + "\n";
  EXPECT_EQ(text.substr(text.size() - end.size()), end);
}

TEST_F(WordSearchFormTest, AWordTooLongForTheSizeMakesALargerPuzzleWithoutARemark) {
  folder.Write("TheLists.dat", "Planets\r\nConstellation\r\nstars\r\nMars\r\nred\r\n");
  WalkToPuzzleSize({0, 1});
  Size(10, 10);
  program.UseRandom(random);
  Ok();
  EXPECT_EQ(shared.PuzzleAcross, 14);
  EXPECT_EQ(shared.PuzzleDown, 14);
  EXPECT_EQ(platform.log, std::vector<std::string>{});
  // Only the run that placed every word has written rows.
  const std::string text = TextOf(Sheet().AnswerBox);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 5 + 14);
}

TEST_F(WordSearchFormTest, SizesThatGrewStayUntilTheSizeIsAskedAgain) {
  folder.Write("TheLists.dat", "Planets\r\nelectromagnetisms\r\nforces\r\n");
  WalkToPuzzleSize({0});
  Size(10, 11);
  Ok();
  EXPECT_EQ(shared.PuzzleAcross, 18);
  EXPECT_EQ(shared.PuzzleDown, 19);
  Click(Screen::WordSearchForm, "Back");
  EXPECT_EQ(shared.PuzzleAcross, 18);
}

TEST_F(WordSearchFormTest, AnEasyPuzzleHasNoDiagonalAndTheNextOneNeither) {
  WalkToPuzzleSize({0}, true);
  Size(10, 10);
  program.UseRandom(draws);
  draws.Of(2, {2});
  draws.Of(10, {4});
  draws.Of(6, {6});
  draws.Letters(std::string(96, 'Z'));
  Ok();
  EXPECT_EQ(draws.Left(), 0U);
  Click(Screen::WordSearchForm, "Back");

  Click(Screen::Title, "Command1", kWordSearch);
  auto& lists =
      dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"));
  Do([&] { lists.ClickRow(0); });
  Click(Screen::ChooseList, "Command1");
  Click(Screen::QuizOptions5, "Command1");
  Click(Screen::PickWords, "ChooseRandom");
  Click(Screen::PickWords, "Command2");
  EXPECT_EQ(program.forms().Find(Screen::QuizOptions)->FindControl("Check1")->Find("Value"),
            Value(false));
  Click(Screen::QuizOptions, "Command1");
  Size(10, 10);
  for (int word = 0; word < 3; ++word) {
    draws.Of(2, {1});  // one of two
    draws.Of(10, {1 + word});
    draws.Of(word == 0 ? 6 : 5, {1});
  }
  draws.Letters(std::string(86, 'Z'));
  Ok();
  EXPECT_EQ(draws.Left(), 0U);
  EXPECT_TRUE(shared.EasyPuzzle);
}

TEST_F(WordSearchFormTest, WordsThatFitNoEvenSizeBringTheMessageAndTheMenu) {
  UseHopelessList();
  WalkToPuzzleSizeWithAll();
  platform.log.clear();
  bool loading = false;
  platform.while_box_is_open = [&] {
    loading = Loaded(Screen::WordSearchForm) && !Active(Screen::WordSearchForm) &&
              Active(Screen::PuzzleSize);
  };
  Ok();
  EXPECT_EQ(platform.log,
            std::vector<std::string>{"Error!|Unable to create this puzzle. Try using less words."});
  EXPECT_TRUE(loading);
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::WordSearchForm));
  EXPECT_FALSE(Loaded(Screen::PuzzleSize));
  EXPECT_FALSE(program.Ended());
  EXPECT_EQ(shared.PuzzleAcross, 36);
  EXPECT_EQ(shared.PuzzleDown, 36);
  EXPECT_EQ(shared.ListWords(1), "");
  // And the next one can be made.
  Click(Screen::Title, "Command1", kStudySheet);
  EXPECT_TRUE(Active(Screen::ChooseList));
}

TEST_F(WordSearchFormTest, WordsThatFitNoOddSizeEndTheProgramWithError28) {
  UseHopelessList();
  WalkToPuzzleSizeWithAll();
  platform.log.clear();
  // A shorter road to the same end: a word longer than any size.
  shared.ListWords(1) = std::string(40, 'x');
  Size(21, 20);
  Ok();
  EXPECT_EQ(platform.log, std::vector<std::string>{"error 28 Out of stack space"});
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 1);
  EXPECT_EQ(shared.PuzzleAcross, 35);
  EXPECT_EQ(shared.PuzzleDown, 36);
}

TEST_F(WordSearchFormTest, ItIsAWorksheetWithAKey) {
  WalkToPuzzleSize({0, 1, 2});
  Ok();
  WordSearchForm& sheet = Sheet();
  EXPECT_EQ(sheet.Caption(), "WordSearch");
  EXPECT_EQ(sheet.Toolbar1.ButtonCount(), 6);
  EXPECT_FALSE(sheet.AnswerBox.Visible);
  EXPECT_EQ(sheet.AnswerBox.DesignFormat().font, "Courier New");
  EXPECT_EQ(sheet.AnswerBox.DesignFormat().size, 240);
  EXPECT_EQ(sheet.QuizBox.SelStart(), 1);
  EXPECT_EQ(sheet.cmbFontColor.Text(), "Black");
  EXPECT_EQ(sheet.WindowState, kMaximised);
  ClickToolbar(Screen::WordSearchForm, "Key");
  EXPECT_TRUE(sheet.AnswerBox.Visible);
  EXPECT_FALSE(sheet.QuizBox.Visible);
  ClickToolbar(Screen::WordSearchForm, "Worksheet");
  EXPECT_TRUE(sheet.QuizBox.Visible);
}

TEST_F(WordSearchFormTest, TheMenuLeadsBackAndShowsTheProgram) {
  WalkToPuzzleSize({0, 1, 2});
  Ok();
  EXPECT_EQ(Sheet().FindControl("About")->Find("Caption"), Value("About this program"));
  Click(Screen::WordSearchForm, "About");
  EXPECT_TRUE(Loaded(Screen::AboutForm));
  Click(Screen::WordSearchForm, "Back");
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::WordSearchForm));
}

TEST_F(WordSearchFormTest, ADraggedFrameTakesBothBoxesAlongAndATinyOneNone) {
  WalkToPuzzleSize({0});
  Ok();
  WordSearchForm& sheet = Sheet();
  Do([&] { program.forms().Resize(sheet, 9000, 6000); });
  EXPECT_EQ(sheet.QuizBox.Width, 8950);
  EXPECT_EQ(sheet.AnswerBox.Width, 8950);
  EXPECT_EQ(sheet.AnswerBox.Height, sheet.QuizBox.Height);
  Do([&] { program.forms().Resize(sheet, 1000, 6000); });
  EXPECT_EQ(sheet.QuizBox.Width, 8950);
}

}  // namespace
}  // namespace brindlepage
