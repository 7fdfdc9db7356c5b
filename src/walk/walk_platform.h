#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/platform.h"
#include "walk/script.h"

namespace brindlepage::walk {

// A window system without windows. Each box and dialog takes an answer that the script has queued
// and is printed with it; the clock stands still until it is moved.
class WalkPlatform : public Platform {
 public:
  // `screen` in twips.
  WalkPlatform(std::ostream& out, Size screen);

  // A text, or one of yes, no, ok, cancel, all and selection; anything else is a ScriptError.
  void QueueAnswer(Token answer);
  void SetClock(Milliseconds now) { now_ = now; }
  // What can be typed into a box of words, in Windows-1252; the rest is refused with a beep.
  std::string Typed(std::string_view utf8);

  // A message with OK alone takes an `ok` if that is next. Any other box takes the next answer,
  // and throws ScriptError if it does not fit. With none queued a box gets its first button, an
  // input box its default, a dialog is cancelled.
  BoxAnswer MessageBox(std::string_view text, std::string_view title, BoxButtons buttons) override;
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                      std::string_view default_text) override;
  std::optional<PrintChoice> PrintDialog(unsigned flags) override;
  void Print(Control& box, int start, int length) override;
  std::optional<std::string> OpenDialog(std::string_view title, std::string_view filter,
                                        std::string_view folder) override;
  void StartProgram(std::string_view command_line) override;
  void Beep() override;

  Size ScreenSize() const override { return screen_; }
  std::vector<std::string> ScreenFonts() const override;
  Milliseconds Now() const override { return now_; }
  void Pause(Milliseconds) override {}

  // A sketch (walk/form_sketch.h).
  FormPicture PictureOf(Form& form) override;
  std::unique_ptr<PrinterPages> StartPages() override;

  void FatalError(int number, std::string_view text) override;

  void FormActivated(Form&) override {}
  void FormHidden(Form&) override {}
  void FormUnloaded(Form&) override {}
  void FormChanged(Form&) override {}
  void ControlChanged(Control&) override {}

 private:
  // What a button or a choice of a box is called in a script.
  template <class Choice>
  struct Option {
    const char* word;
    Choice choice;
  };
  template <class Choice>
  Option<Choice> Choose(const std::string& box, const std::vector<Option<Choice>>& options,
                        Option<Choice> unasked);
  // The text of a box that asks for one; nothing when cancelled.
  std::optional<std::string> AskText(const std::string& box, std::optional<std::string> unasked);
  std::optional<Token> TakeAnswer();

  std::ostream& out_;
  Size screen_;
  Milliseconds now_ = 0;
  std::deque<Token> answers_;
};

}  // namespace brindlepage::walk
