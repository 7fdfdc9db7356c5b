#pragma once

#include "worksheet/worksheet_form.h"

namespace brindlepage {

// The study sheet: the marked words with their meanings, numbered. It has no key.
class StudyGuideForm : public WorksheetForm {
 public:
  explicit StudyGuideForm(Program& program);

 private:
  void Load() override;
};

// Moves the marked words to the front of ListWords and ListMeanings, which stay so, and writes
// the numbered entries at the caret.
void BuildStudyList(SharedState& shared, RichText& box);

// The whole sheet, from an empty box.
void ComposeStudySheet(SharedState& shared, RichText& box);

}  // namespace brindlepage
