#pragma once

#include "worksheet/worksheet_form.h"

namespace brindlepage {

// The worksheet of scrambled words.
class Scramble : public WorksheetForm {
 public:
  explicit Scramble(Program& program);

 private:
  void Load() override;
};

}  // namespace brindlepage
