#include "quiz/fill_in_quiz.h"

#include "quiz/quiz_draws.h"
#include "worksheet/compose.h"

namespace brindlepage {

std::string FillInLine(int number, const std::string& meaning) {
  return DisplayForm(number) + ")  " + std::string(14, '_') + " -- " + meaning + "\n\n";
}

void MakeFillInQuiz(SharedState& shared, RandomSource& random, RichText& box) {
  std::string questions;
  for (int number = 1; number <= shared.MarkedCount; ++number) {
    const int word = PickQuestionWord(shared, random);
    questions += FillInLine(number, shared.ListMeanings(word));
    shared.WordMarks(word) = 0;
    shared.AnswerTable(number) = word;
  }
  compose::AppendRun(box, questions);
}

}  // namespace brindlepage
