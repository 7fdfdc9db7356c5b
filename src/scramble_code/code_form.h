#pragma once

#include "worksheet/worksheet_form.h"

namespace brindlepage {

// The worksheet in code: meanings, riddles, or a cryptoquip.
class CodeForm : public WorksheetForm {
 public:
  explicit CodeForm(Program& program);

 private:
  void Load() override;
};

}  // namespace brindlepage
