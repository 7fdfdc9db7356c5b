#pragma once

#include "worksheet/worksheet_form.h"

namespace brindlepage {

// The worksheet whose words hide the answer of a riddle.
class RiddleForm : public WorksheetForm {
 public:
  explicit RiddleForm(Program& program);

 private:
  void Load() override;
  void BackToMenu() override;
};

}  // namespace brindlepage
