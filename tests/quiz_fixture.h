#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "quiz/quiz_sheet.h"
#include "tests/given_draws.h"
#include "tests/sheet_runs.h"

namespace brindlepage {

// A list, the words marked on it, and the two boxes of a quiz.
class QuizTest : public ::testing::Test {
 protected:
  using Pairs = std::vector<std::pair<std::string, std::string>>;
  using Lines = std::vector<std::string>;

  // Formats of runs.
  inline static const std::string kBody = "Times New Roman 240 --- l|";
  inline static const std::string kBoldBody = "Times New Roman 240 b-- l|";
  inline static const std::string kHeader = "Times New Roman 240 b-u l|";
  inline static const std::string kRow = "Courrier New 200 --- l|";
  inline static const std::string kBoldRow = "Courrier New 200 b-- l|";
  inline static const std::string kRule = "Courrier New 200 b-u l|";

  static std::string Blanks(int count) { return std::string(count, ' '); }
  static std::string Underscores(int count) { return std::string(count, '_'); }

  void UseList(const Pairs& pairs) {
    shared.ListWordCount = static_cast<int>(pairs.size());
    int number = 0;
    for (const auto& [word, meaning] : pairs) {
      shared.ListWords(++number) = word;
      shared.ListMeanings(number) = meaning;
    }
  }
  void UseVolcanoes() {
    UseList({{"lava", "melted rock"},
             {"ash", "grey dust"},
             {"magma", "rock below"},
             {"crater", "a deep mouth"},
             {"vent", "an opening"},
             {"geyser", "a hot spring"}});
  }
  void Mark(std::initializer_list<int> words) {
    for (const int word : words) shared.WordMarks(word) = 1;
    shared.MarkedCount = static_cast<int>(words.size());
  }

  // With the very draws that it takes, no more and no less.
  void Compose(int quiz_kind, GivenDraws& draws, const std::string& title = "Fire") {
    shared.QuizKind = quiz_kind;
    shared.WorksheetTitle = title;
    ComposeQuiz(shared, draws, quiz, key);
    EXPECT_EQ(draws.Left(), 0u);
    for (int word = 0; word <= 300; ++word) EXPECT_EQ(shared.WordMarks(word), 0) << word;
  }

  // What stands above the questions.
  static Lines Opening(const std::string& directions, const std::string& title = "Fire") {
    const std::string name =
        "Name_____________________________                            Date_______________\n";
    return {"Times New Roman 200 --- c|\n", "Times New Roman 200 --- c|" + name,
            "Times New Roman 360 b-- c|\n", "Times New Roman 360 b-- c|" + title + "\n",
            "Times New Roman 240 bi- c|\n", "Times New Roman 240 bi- c|" + directions + "\n",
            "Times New Roman 240 bi- c|\n", "Times New Roman 240 bi- c|\n"};
  }
  void ExpectSheet(const std::string& directions, const Lines& questions) {
    Lines expected = Opening(directions);
    expected.insert(expected.end(), questions.begin(), questions.end());
    EXPECT_EQ(Runs(quiz), expected);
  }
  void ExpectKey(const Lines& answers, const std::string& title = "Fire") {
    Lines expected = {"Times New Roman 320 --- c|\n", "Times New Roman 320 --- c|" + title + "\n",
                      "Times New Roman 280 --u c|Answer Key\n", "Times New Roman 280 --u c|\n"};
    for (const std::string& answer : answers)
      expected.push_back("Times New Roman 280 --- l|" + answer);
    EXPECT_EQ(Runs(key), expected);
  }

  SharedState shared;
  RichText quiz{"Courier New", 9.75};
  RichText key{"Times New Roman", 14.25};
};

}  // namespace brindlepage
