#pragma once

#include <QDialog>
#include <QTimer>
#include <functional>
#include <string>

#include "tests/random_teacher/dice.h"
#include "toolkit/platform.h"

namespace brindlepage {

// Answers the boxes and dialogs that open while the teacher waits in a click, some after a while.
class BoxAnswers {
 public:
  using Listener = std::function<void(const std::string& title, BoxAnswer answer)>;

  // `listener` is told just before the button is clicked.
  BoxAnswers(Dice& dice, Listener listener);

  // What a box said of a fault that ends the program, as a walk prints it, or "".
  const std::string& Fault() const { return fault_; }
  void Forget() { fault_.clear(); }

 private:
  void Look();
  void AnswerLine(QDialog& box);
  void AnswerChoice(QDialog& box);
  void AnswerPrint(QDialog& box);
  void ReadFault(const QString& text);

  Dice& dice_;
  Listener listener_;
  std::string fault_;
  QTimer timer_;
};

}  // namespace brindlepage
