#pragma once

#include "toolkit/arrangement.h"
#include "toolkit/controls.h"

namespace brindlepage {

// The letters that a keyboard may lack, the codes 191 to 255 of the code page, on a scroll bar.
// What its two buttons do is the form's matter.
class ForeignPanel {
 public:
  explicit ForeignPanel(Form& form);

  Frame Frame1;
  HScrollBar LScroll;
  // The letter on show. Until the bar is first moved it is an "A", whatever the bar says.
  Label CharLabel;
  ControlArray<CommandButton> FLButton;  // 0 for the word, 1 for its meaning

  Arrangement Arranged();
  // Puts the letter on show behind the text, wherever the caret is.
  void Append(TextBox& target) { target.Text = target.Text() + CharLabel.Caption(); }

 private:
  void ShowLetter();
};

}  // namespace brindlepage
