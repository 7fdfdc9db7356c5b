#include "quiz/quiz_sheet.h"

#include "quiz/alphabetize_sheet.h"
#include "quiz/choose_meaning_quiz.h"
#include "quiz/choose_word_quiz.h"
#include "quiz/fill_in_quiz.h"
#include "quiz/matching_quiz.h"
#include "quiz/quiz_key.h"
#include "quiz/word_bank_quiz.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

const char* Directions(int quiz_kind) {
  switch (quiz_kind) {
    case kChooseWord:
      return "Directions: Choose the word that best matches the meaning.";
    case kMatching:
      return "Directions: Write the number of each word beside the meaning it best matches.";
    case kFillIn:
      return "Directions: Fill in the word that best matches the meaning provided.";
    case kWordBank:
      return "Directions: Using the words provided, fill in each blank with the most appropriate "
             "answer.";
    case kChooseMeaning:
      return "Directions: Choose the meaning that best matches the word.";
    case kAlphabetizeSheet:
      return "Directions: Put the words below in alphabetical order.";
    default:
      return "";
  }
}

void WriteHeading(RichText& box, const std::string& title) {
  box.Text("");
  box.SelFontSize(10);
  box.SelFontName(compose::kTimes);
  box.SelAlignment(Alignment::Centre);
  compose::WriteNameDateLine(box, compose::NameLine::Wide);
  compose::WriteTitleBlock(box, title);
  compose::CaretToEnd(box);
  box.SelFontSize(12);
  box.SelBold(false);
  box.SelAlignment(Alignment::Left);
}

void WriteDirections(RichText& box, int quiz_kind) {
  box.SelBold(true);
  box.SelItalic(true);
  box.SelAlignment(Alignment::Centre);
  compose::AppendRun(box, std::string("\n") + Directions(quiz_kind) + "\n\n\n");
  box.SelAlignment(Alignment::Left);
  compose::CaretToEnd(box);
  box.SelItalic(false);
  box.SelBold(false);
}

void WriteQuestions(SharedState& shared, RandomSource& random, RichText& box) {
  switch (shared.QuizKind) {
    case kChooseWord:
      return MakeChooseWordQuiz(shared, random, box);
    case kMatching:
      return MakeMatchingQuiz(shared, random, box);
    case kFillIn:
      return MakeFillInQuiz(shared, random, box);
    case kWordBank:
      return MakeWordBankQuiz(shared, random, box);
    case kChooseMeaning:
      return MakeChooseMeaningQuiz(shared, random, box);
    case kAlphabetizeSheet:
      return MakeAlphabetizeSheet(shared, random, box);
    default:
      return;
  }
}

}  // namespace

void ComposeQuiz(SharedState& shared, RandomSource& random, RichText& quiz_box,
                 RichText& answer_box) {
  WriteHeading(quiz_box, shared.WorksheetTitle);
  WriteDirections(quiz_box, shared.QuizKind);
  WriteQuestions(shared, random, quiz_box);
  MakeQuizKey(shared, answer_box);
}

}  // namespace brindlepage
