#pragma once

#include <QWidget>
#include <string>

#include "bench/clicks/stopwatch.h"
#include "desktop/desktop.h"

// Clicks on the real widgets of the program, each click under the stopwatch.
class Hand {
 public:
  Hand(brindlepage::Desktop& desktop, Stopwatch& stopwatch, std::string walk)
      : desktop_(desktop), stopwatch_(stopwatch), walk_(std::move(walk)) {}

  // `how_long`: kLong for what is told to take its time.
  enum HowLong { kAtOnce, kLong };

  void Click(const std::string& form, const std::string& control, int index = -1,
             HowLong how_long = kAtOnce);
  void Tool(const std::string& form, const std::string& caption, HowLong how_long = kAtOnce);
  void Item(const std::string& form, const std::string& item);
  void Row(const std::string& form, const std::string& list, int row);
  void Space(const std::string& form, const std::string& list);
  void Choose(const std::string& form, const std::string& combo, int row);
  void Slide(const std::string& form, const std::string& bar, int value);
  // The last of the letters is measured.
  void Type(const std::string& form, const std::string& box, const std::string& letters);
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers, const std::string& what);
  // The answer to a press on the form itself, as of a preview.
  void PressForm();

  // Until that form is on screen; for what timers do. Fails loudly after a while.
  void Await(const std::string& form);
  // And for its control, which can't act while the form makes something.
  void AwaitReady(const std::string& form, const std::string& control);
  void Wait(int milliseconds);

 private:
  brindlepage::Form* Loaded(const std::string& name) const;
  QWidget& Widget(const std::string& form, const std::string& control, int index = -1) const;
  void Measure(const std::string& what, HowLong how_long, const std::function<void()>& click);

  brindlepage::Desktop& desktop_;
  Stopwatch& stopwatch_;
  std::string walk_;
  int clicks_ = 0;
};
