#include "quiz/alphabetize_sheet.h"

#include "quiz/bank_rows.h"
#include "quiz/quiz_draws.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

std::string BlankLines(int count) {
  std::string blanks;
  for (int number = 1; number <= count; ++number) {
    blanks += DisplayForm(number) + ") " + std::string(22, '_') + "\n\n";
  }
  return blanks;
}

void WriteWords(SharedState& shared, RandomSource& random, RichText& box) {
  UseBankFont(box, true);
  BankRows rows(box);
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    const int word = PickQuestionWord(shared, random);
    shared.AnswerTable(number) = word;
    rows.PutBankWord(shared.ListWords(word));
    shared.WordMarks(word) = 0;
  }
  rows.Close();
}

void WriteCentredRule(RichText& box) {
  box.SelAlignment(Alignment::Centre);
  WriteRule(box);
  box.SelAlignment(Alignment::Left);
}

}  // namespace

void MakeAlphabetizeSheet(SharedState& shared, RandomSource& random, RichText& box) {
  WriteWords(shared, random, box);
  WriteCentredRule(box);
  UseBodyFont(box);
  compose::AppendRun(box, "\n\n" + BlankLines(shared.MarkedCount));
}

}  // namespace brindlepage
