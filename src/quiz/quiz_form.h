#pragma once

#include "worksheet/worksheet_form.h"

namespace brindlepage {

// The worksheet of all kinds of quiz and of the alphabetize sheet. It also opens a saved
// worksheet of any kind, as a plain editor.
class QuizForm : public WorksheetForm {
 public:
  explicit QuizForm(Program& program);

 private:
  void Load() override;
  void OpenSavedWorksheet();
  bool OffersKeyFile() const override { return shared.ActivityKind != kSavedWorksheet; }
};

}  // namespace brindlepage
