#pragma once

#include "crossword/grid_form.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage {

// Never shown: it carries the clues to the worksheet, and the background of a quick print.
class CrossWordFill : public GridForm {
 public:
  explicit CrossWordFill(Program& program);

  RichTextBox ClueBox{*this, "ClueBox", "Courier New", 9.75};    // across
  RichTextBox ClueBox2{*this, "ClueBox2", "Courier New", 9.75};  // down
  Control ColorShape{*this, "ColorShape"};
  Image Picture1{*this, "Picture1"};
  Image Picture2{*this, "Picture2"};

 private:
  void FormKey() override { forms().Hide(id()); }
};

}  // namespace brindlepage
