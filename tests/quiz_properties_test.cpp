// What holds for every sheet, over ten thousand seeds for each kind of quiz, each with a list of
// its own size up to 300 words and its own marks.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <numeric>
#include <set>

#include "tests/quiz_fixture.h"
#include "toolkit/code_page.h"

namespace brindlepage {
namespace {

constexpr int kSeeds = 10000;

// Takes a text apart from front to back. A part that isn't there makes it fail for good.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  void Skip(std::string_view part) {
    if (text_.starts_with(part)) {
      text_.remove_prefix(part.size());
    } else {
      failed_ = true;
    }
  }
  std::string Until(std::string_view end) {
    const std::size_t at = text_.find(end);
    if (at == text_.npos) failed_ = true;
    if (failed_) return "";
    const std::string part(text_.substr(0, at));
    text_.remove_prefix(at + end.size());
    return part;
  }
  int Number(std::string_view end) {
    const std::string digits = Until(end);
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (std::to_string(number) != digits) failed_ = true;
    return number;
  }
  std::size_t SkipBlanks() {
    const std::size_t blanks = std::min(text_.find_first_not_of(' '), text_.size());
    text_.remove_prefix(blanks);
    return blanks;
  }
  bool AtEnd() const { return text_.empty() && !failed_; }
  bool Failed() const { return failed_; }

 private:
  std::string_view text_;
  bool failed_ = false;
};

std::string Word(int number) { return "word" + std::to_string(number); }
std::string Meaning(int number) { return "meaning" + std::to_string(number); }
// The number of a word or a meaning; 0 if the text is none.
int NumberOf(const std::string& text, const std::string& kind) {
  if (!text.starts_with(kind)) return 0;
  return std::atoi(text.c_str() + kind.size());
}

class QuizProperties : public QuizTest {
 protected:
  // Small lists more often than large ones, and any part of their words; now and then as many as
  // can be.
  void ComposeSeed(int quiz_kind, int seed, int least_words, int most_marked = 300) {
    SeededRandom random(seed);
    const bool largest = seed % 1000 == 0;
    const double size = std::pow(random.NextRandom(), 4);
    const int words = largest ? 300 : least_words + static_cast<int>((301 - least_words) * size);
    Pairs pairs;
    for (int i = 1; i <= words; ++i) pairs.emplace_back(Word(i), Meaning(i));
    UseList(pairs);
    marked_.resize(words);
    std::iota(marked_.begin(), marked_.end(), 1);
    for (int i = words; i > 1; --i) std::swap(marked_[i - 1], marked_[random.DrawIndex(i) - 1]);
    const int most = std::min(words, most_marked);
    marked_.resize(largest ? most : random.DrawIndex(random.DrawIndex(most)));
    for (const int word : marked_) shared.WordMarks(word) = 1;
    shared.MarkedCount = static_cast<int>(marked_.size());
    std::sort(marked_.begin(), marked_.end());

    shared.QuizKind = quiz_kind;
    shared.WorksheetTitle = "Title";
    ComposeQuiz(shared, random, quiz, key);
    for (int word = 0; word <= 300; ++word) ASSERT_EQ(shared.WordMarks(word), 0);
  }

  int Count() const { return shared.MarkedCount; }

  // Behind the heading and the directions.
  Reader Sheet() {
    text_ = PlainBytes(quiz);
    Reader reader(text_);
    reader.Until("\nDirections: ");
    reader.Until("\n\n\n");
    return reader;
  }
  // The key's answers, from element 0.
  Lines KeyAnswers(const std::string& line_end) {
    key_text_ = PlainBytes(key);
    Reader reader(key_text_);
    reader.Skip("\nTitle\nAnswer Key\n\n");
    Lines answers;
    for (int i = 1; i <= Count(); ++i) {
      reader.Skip(" " + std::to_string(i) + ")  ");
      answers.push_back(reader.Until(line_end));
    }
    EXPECT_TRUE(reader.AtEnd());
    return answers;
  }

  // The bank's entries, each at its column.
  Lines ReadBank(Reader& reader) {
    Lines entries;
    while (static_cast<int>(entries.size()) < Count() && !reader.Failed()) {
      std::size_t at = 0;
      for (int column = 1; column <= 76 && static_cast<int>(entries.size()) < Count();
           column += 25) {
        at += reader.SkipBlanks();
        const bool last = column == 76 || static_cast<int>(entries.size()) == Count() - 1;
        // Numbered entries begin with a blank.
        const bool numbered = shared.QuizKind == kMatching;
        EXPECT_EQ(static_cast<int>(at), column + (numbered ? 1 : 0));
        std::string entry;
        if (numbered) entry = reader.Until(") ") + ") ";
        entry += reader.Until(last ? "\n" : " ");
        at += entry.size() + 1;
        entries.push_back(entry);
      }
    }
    reader.Skip(Underscores(70) + "\n");
    return entries;
  }
  // What is left of the rows' blanks, and nothing else.
  void ExpectBlanksAlone(Reader& reader) {
    reader.SkipBlanks();
    EXPECT_TRUE(reader.AtEnd());
  }

  std::vector<int> marked_;  // in order

 private:
  std::string text_;
  std::string key_text_;
};

std::vector<int> Sorted(std::vector<int> numbers) {
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

TEST_F(QuizProperties, OfChoosingTheWord) {
  for (int seed = 1; seed <= kSeeds && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    // More questions than that don't fit into the caret's 16 bits.
    ComposeSeed(kChooseWord, seed, 6, 250);
    Reader reader = Sheet();
    const Lines answers = KeyAnswers("\n");
    std::vector<int> asked;
    Lines before(4);
    for (int question = 1; question <= Count(); ++question) {
      reader.Skip("_____ " + std::to_string(question) + ")  ");
      const int word = NumberOf(reader.Until("\n"), "meaning");
      asked.push_back(word);
      Lines choices;
      for (const char* letter : {"A", "B", "C", "D"}) {
        const bool left = letter[0] == 'A' || letter[0] == 'C';
        // Columns 10 and 40, less "A) ", its word and the blank that ended it.
        const std::size_t margin = left ? 10 : 30 - 3 - choices.back().size() - 1;
        ASSERT_EQ(reader.SkipBlanks(), margin);
        reader.Skip(std::string(letter) + ") ");
        choices.push_back(reader.Until(left ? " " : "\n"));
      }
      reader.Skip("\n");
      ASSERT_FALSE(reader.Failed());

      const int place = shared.AnswerTable(question);
      ASSERT_EQ(answers[question - 1], std::string(1, "ABCD"[place - 1]));
      ASSERT_EQ(choices[place - 1], Word(word));
      ASSERT_EQ(std::set<std::string>(choices.begin(), choices.end()).size(), 4u);
      for (int slot = 1; slot <= 4; ++slot) {
        const int number = NumberOf(choices[slot - 1], "word");
        ASSERT_TRUE(number >= 1 && number <= shared.ListWordCount);
        // A wrong choice did not stand in the same or a later slot one question before.
        if (slot == place) continue;
        ASSERT_EQ(std::count(before.begin() + slot - 1, before.end(), choices[slot - 1]), 0);
      }
      before = choices;
    }
    EXPECT_EQ(Sorted(asked), marked_);
    ExpectBlanksAlone(reader);
  }
}

TEST_F(QuizProperties, OfChoosingTheMeaning) {
  int twice = 0;
  for (int seed = 1; seed <= kSeeds && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    ComposeSeed(kChooseMeaning, seed, 5);
    Reader reader = Sheet();
    const Lines answers = KeyAnswers("\n");
    std::vector<int> asked;
    for (int question = 1; question <= Count(); ++question) {
      reader.Skip("_____ " + std::to_string(question) + ")  ");
      const int word = NumberOf(reader.Until("\n"), "word");
      asked.push_back(word);
      Lines choices;
      for (const char* letter : {"A", "B", "C", "D"}) {
        reader.Skip(Blanks(15) + letter + ") ");
        choices.push_back(reader.Until("\n"));
      }
      reader.Skip("\n");
      ASSERT_FALSE(reader.Failed());

      const int place = shared.AnswerTable(question);
      ASSERT_EQ(answers[question - 1], std::string(1, "ABCD"[place - 1]));
      ASSERT_EQ(choices[place - 1], Meaning(word));
      // Nothing but the right meaning can stand there twice.
      const auto right = std::count(choices.begin(), choices.end(), Meaning(word));
      const std::set<std::string> different(choices.begin(), choices.end());
      ASSERT_LE(right, 2);
      ASSERT_EQ(different.size(), static_cast<std::size_t>(5 - right));
      twice += right == 2;
      for (const std::string& choice : choices) {
        const int number = NumberOf(choice, "meaning");
        ASSERT_TRUE(number >= 1 && number <= shared.ListWordCount);
      }
    }
    EXPECT_EQ(Sorted(asked), marked_);
    EXPECT_TRUE(reader.AtEnd());
  }
  EXPECT_GT(twice, 0);
}

TEST_F(QuizProperties, OfFillingIn) {
  for (int seed = 1; seed <= kSeeds && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    ComposeSeed(kFillIn, seed, 1);
    Reader reader = Sheet();
    const Lines answers = KeyAnswers("\n\n");
    std::vector<int> asked;
    for (int question = 1; question <= Count(); ++question) {
      reader.Skip(" " + std::to_string(question) + ")  ______________ -- ");
      asked.push_back(NumberOf(reader.Until("\n\n"), "meaning"));
      ASSERT_EQ(answers[question - 1], Word(asked.back()));
      ASSERT_EQ(shared.AnswerTable(question), asked.back());
    }
    EXPECT_EQ(Sorted(asked), marked_);
    EXPECT_TRUE(reader.AtEnd());
  }
}

TEST_F(QuizProperties, OfFillingInWithAWordBank) {
  for (int seed = 1; seed <= kSeeds && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    ComposeSeed(kWordBank, seed, 1);
    Reader reader = Sheet();
    const Lines answers = KeyAnswers("\n\n");
    reader.Skip("Word Bank:" + Underscores(60) + "\n");
    std::vector<int> bank;
    for (const std::string& word : ReadBank(reader)) bank.push_back(NumberOf(word, "word"));
    EXPECT_EQ(Sorted(bank), marked_);
    reader.Skip("\n\n");
    std::vector<int> asked;
    for (int question = 1; question <= Count(); ++question) {
      reader.Skip(" " + std::to_string(question) + ")  ______________ -- ");
      asked.push_back(NumberOf(reader.Until("\n\n"), "meaning"));
      ASSERT_EQ(answers[question - 1], Word(asked.back()));
    }
    EXPECT_EQ(Sorted(asked), marked_);
    ExpectBlanksAlone(reader);
  }
}

// A right number that is also the number of a word further on in the bank becomes that word's
// number there, and so on.
TEST_F(QuizProperties, OfMatching) {
  int right = 0;
  int wrong = 0;
  for (int seed = 1; seed <= kSeeds && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    ComposeSeed(kMatching, seed, 1);
    Reader reader = Sheet();
    const Lines answers = KeyAnswers("\n\n");
    reader.Skip("Matching Choices:" + Underscores(53) + "\n");
    std::vector<int> bank;
    std::map<int, int> choice_of;
    for (const std::string& entry : ReadBank(reader)) {
      const std::string number = std::to_string(bank.size() + 1) + ") ";
      ASSERT_TRUE(entry.starts_with(number)) << entry;
      bank.push_back(NumberOf(entry.substr(number.size()), "word"));
      choice_of[bank.back()] = static_cast<int>(bank.size());
    }
    EXPECT_EQ(Sorted(bank), marked_);
    reader.Skip("\n");
    std::vector<int> asked;
    for (int question = 1; question <= Count(); ++question) {
      reader.Skip("____ " + std::to_string(question) + ")  ");
      asked.push_back(NumberOf(reader.Until("\n\n"), "meaning"));
      int number = choice_of[asked.back()];
      const int rightly = number;
      while (choice_of.contains(number) && choice_of[number] > number) number = choice_of[number];
      ASSERT_EQ(answers[question - 1], " " + std::to_string(number));
      ASSERT_EQ(shared.AnswerTable(question), number);
      ASSERT_GE(number, rightly);
      ++(number == rightly ? right : wrong);
    }
    EXPECT_EQ(Sorted(asked), marked_);
    ExpectBlanksAlone(reader);
  }
  EXPECT_GT(right, 0);
  EXPECT_GT(wrong, 0);
}

TEST_F(QuizProperties, OfTheAlphabetizeSheet) {
  for (int seed = 1; seed <= kSeeds && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    ComposeSeed(kAlphabetizeSheet, seed, 1);
    Reader reader = Sheet();
    Lines answers = KeyAnswers("\n\n");
    Lines words = ReadBank(reader);
    for (int i = 1; i <= Count(); ++i) ASSERT_EQ(words[i - 1], Word(shared.AnswerTable(i)));
    reader.Skip("\n\n");
    for (int i = 1; i <= Count(); ++i) {
      reader.Skip(" " + std::to_string(i) + ") " + Underscores(22) + "\n\n");
    }
    ExpectBlanksAlone(reader);

    for (int i = 1; i < Count(); ++i) ASSERT_LT(code_page::Compare(answers[i - 1], answers[i]), 0);
    std::vector<int> numbers;
    for (const std::string& answer : answers) numbers.push_back(NumberOf(answer, "word"));
    EXPECT_EQ(Sorted(numbers), marked_);
  }
}

}  // namespace
}  // namespace brindlepage
