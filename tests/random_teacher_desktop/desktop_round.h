#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "desktop/desktop.h"
#include "tests/random_teacher/bystander.h"
#include "tests/random_teacher/dice.h"
#include "tests/random_teacher/tally.h"
#include "tests/random_teacher_desktop/box_answers.h"
#include "tests/random_teacher_desktop/widget_deeds.h"

namespace brindlepage {

// A teacher without a plan at real widgets.
class DesktopRound {
 public:
  using Clock = std::chrono::steady_clock;

  // Each deed is written to `log` before it is done.
  DesktopRound(std::uint64_t seed, Clock::time_point until, std::ostream& log);

  // Plays in the working directory, which is a program folder, and starts the program again when
  // it has ended, until that many deeds are done or the time is over. What is wrong, or "".
  std::string Play(int deeds, Tally& tally);

  // In words.
  const std::vector<std::string>& Deeds() const { return deeds_; }

 private:
  std::string PlayOneRun(int& deeds_left);
  void Act();
  void ActOn(Form& form);
  void ActOnControl(Control& control);
  bool IsReachable(const Control& control) const;
  void ActOnToolbar(QWidget& strip);
  void ActOnKeyboard();
  void ActOnWindow();
  void LetTimePass();
  void Note(const std::string& deed);
  std::string NoteEnd();

  BrindlepageProgram& program() { return desktop_->program(); }
  QWidget* WidgetOf(const Control& control) const;

  Dice dice_;
  Clock::time_point until_;
  WidgetDeeds hands_{dice_};
  std::optional<Bystander> bystander_;
  BoxAnswers boxes_;
  VisitCounter visits_;
  std::unique_ptr<Desktop> desktop_;
  std::ostream& log_;
  std::vector<std::string> deeds_;
  std::string form_;  // on which the teacher acted last
  Tally* tally_ = nullptr;
};

}  // namespace brindlepage
