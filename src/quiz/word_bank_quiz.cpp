#include "quiz/word_bank_quiz.h"

#include "quiz/bank_rows.h"
#include "quiz/fill_in_quiz.h"
#include "quiz/quiz_draws.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

std::string TakeQuestions(SharedState& shared, RandomSource& random, Bank& bank) {
  std::string questions;
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    const int word = PickQuestionWord(shared, random);
    questions += FillInLine(number, shared.ListMeanings(word));
    bank(number) = shared.ListWords(word);
    shared.WordMarks(word) = 0;
    shared.AnswerTable(number) = word;
  }
  return questions;
}

void WriteBank(const SharedState& shared, RandomSource& random, Bank& bank, RichText& box) {
  UseBankFont(box, true);
  BankRows rows(box);
  for (int i = 1; i <= shared.MarkedCount; ++i) {
    const int entry = PickBankWord(bank, shared.MarkedCount, random);
    rows.PutBankWord(bank(entry));
    bank(entry).clear();
  }
  rows.Close();
}

}  // namespace

void MakeWordBankQuiz(SharedState& shared, RandomSource& random, RichText& box) {
  Bank bank;
  const std::string questions = TakeQuestions(shared, random, bank);
  WriteBankHeader(box, "Word Bank:");
  WriteBank(shared, random, bank, box);
  WriteRule(box);
  UseBodyFont(box);
  compose::AppendRun(box, "\n\n" + questions);
}

}  // namespace brindlepage
