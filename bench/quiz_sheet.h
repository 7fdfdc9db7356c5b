#pragma once

#include <string>

#include "worksheet/compose.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// A quiz of 300 questions as the program makes them: a heading, and for each question its number,
// a meaning, four words to choose from and some lines to write on.
inline void WriteQuiz(RichText& box) {
  constexpr int kQuestions = 300;
  box.SelFontName(compose::kTimes);
  box.SelFontSize(10);
  box.SelAlignment(Alignment::Centre);
  compose::WriteNameDateLine(box, compose::NameLine::Wide);
  compose::WriteTitleBlock(box, "Volcanoes and mountains");
  box.SelFontSize(12);
  box.SelAlignment(Alignment::Left);
  for (int question = 1; question <= kQuestions; ++question) {
    box.SelBold(true);
    box.SelText(std::to_string(question) + ") ");
    box.SelBold(false);
    box.SelText("A hill or mountain out of which hot rock, ash and steam come in an eruption\n");
    for (const char* choice : {"a. volcano\n", "b. crater\n", "c. glacier\n", "d. ca\xF1on\n"}) {
      box.SelItalic(choice[0] == 'a');
      box.SelText(choice);
    }
    box.SelItalic(false);
    box.SelFontName("Courier New");
    box.SelText("____________________________________________________________\n\n");
    box.SelFontName(compose::kTimes);
  }
}

}  // namespace brindlepage
