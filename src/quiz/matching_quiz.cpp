#include "quiz/matching_quiz.h"

#include "quiz/bank_rows.h"
#include "quiz/quiz_draws.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

std::string TakeQuestions(SharedState& shared, RandomSource& random, Bank& bank) {
  std::string questions;
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    const int word = PickQuestionWord(shared, random);
    questions += "____" + DisplayForm(number) + ")  " + shared.ListMeanings(word) + "\n\n";
    bank(number) = shared.ListWords(word);
    shared.WordMarks(word) = 0;
    shared.AnswerTable(number) = word;
  }
  return questions;
}

// An entry that holds a choice's number is taken for a word's number all the same.
void ReplaceInAnswers(SharedState& shared, const std::string& word, int choice) {
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    if (shared.ListWords(shared.AnswerTable(number)) == word) shared.AnswerTable(number) = choice;
  }
}

void WriteBank(SharedState& shared, RandomSource& random, Bank& bank, RichText& box) {
  UseBankFont(box, false);
  BankRows rows(box);
  for (int choice = 1; choice <= shared.MarkedCount; ++choice) {
    const int entry = PickBankWord(bank, shared.ListWordCount, random);
    rows.PutBankWord(DisplayForm(choice) + ") " + bank(entry));
    ReplaceInAnswers(shared, bank(entry), choice);
    bank(entry).clear();
  }
  rows.Close();
}

}  // namespace

void MakeMatchingQuiz(SharedState& shared, RandomSource& random, RichText& box) {
  Bank bank;
  WriteBankHeader(box, "Matching Choices:");
  const std::string questions = TakeQuestions(shared, random, bank);
  WriteBank(shared, random, bank, box);
  WriteRule(box);
  UseBodyFont(box);
  compose::AppendRun(box, compose::kLineFeed + questions);
}

}  // namespace brindlepage
