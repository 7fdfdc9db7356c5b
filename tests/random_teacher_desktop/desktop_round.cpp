#include "tests/random_teacher_desktop/desktop_round.h"

#include <QApplication>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <filesystem>

#include "desktop/text.h"
#include "tests/random_teacher/inclinations.h"
#include "tests/random_teacher/stated_ends.h"
#include "toolkit/controls.h"
#include "toolkit/file_lists.h"
#include "walk/print.h"

namespace brindlepage {

DesktopRound::DesktopRound(std::uint64_t seed, Clock::time_point until, std::ostream& log)
    : dice_(seed),
      until_(until),
      boxes_(dice_,
             [this](const std::string& title, BoxAnswer answer) {
               static const char* const kAnswers[] = {"OK", "Yes", "No", "Cancel"};
               Note("  answers " + title + " with " + kAnswers[int(answer)]);
               bystander_->Answered(title, answer);
             }),
      log_(log) {}

std::string DesktopRound::Play(int deeds, Tally& tally) {
  tally_ = &tally;
  bystander_.emplace(std::filesystem::current_path());
  std::string wrong;
  while (deeds > 0 && wrong.empty() && Clock::now() < until_) wrong = PlayOneRun(deeds);
  tally.lists = bystander_->Noted();
  return wrong;
}

std::string DesktopRound::PlayOneRun(int& deeds_left) {
  bystander_->ProgramStarts();
  visits_.ProgramStarts();
  boxes_.Forget();
  Note("starts the program");
  form_ = "Title";
  desktop_ = std::make_unique<Desktop>();
  desktop_->Start();
  std::string wrong;
  while (!program().Ended() && wrong.empty() && deeds_left-- > 0 && Clock::now() < until_) {
    bystander_->Look(program());
    visits_.Look(program().forms(), *tally_);
    Act();
    ++tally_->deeds;
    LetTimePass();
    wrong = bystander_->Compare();
  }
  if (program().Ended() && wrong.empty()) wrong = NoteEnd();
  // A teacher who has lost the list file stands before the menu for ever.
  if (boxes_.Fault().starts_with("error 53")) deeds_left = std::min(deeds_left, 20);
  desktop_.reset();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return wrong;
}

// Mostly on what is in front.
void DesktopRound::Act() {
  Form* active = program().forms().Active();
  if (active != nullptr) form_ = active->Name();
  if (dice_.OneIn(15)) return ActOnKeyboard();
  if (dice_.OneIn(150)) return ActOnWindow();
  std::vector<Form*> shown;
  for (const auto& form : program().forms().Loaded()) {
    if (form->Visible) shown.push_back(form.get());
  }
  if (shown.empty()) return;
  ActOn(active != nullptr && !dice_.OneIn(8) ? *active : *dice_.AnyOf(shown));
}

void DesktopRound::ActOn(Form& form) {
  form_ = form.Name();
  std::vector<Control*> controls;
  std::vector<int> weights;
  for (Control* control : form.Controls()) {
    if (!IsReachable(*control)) continue;
    const int weight = Inclination(*control);
    controls.push_back(control);
    weights.push_back(weight);
  }
  if (!controls.empty()) return ActOnControl(*dice_.AnyOf(controls, weights));
  ActOnKeyboard();
}

void DesktopRound::ActOnKeyboard() {
  Note("presses a key on " + form_);
  hands_.OnKeyboard();
}

bool DesktopRound::IsReachable(const Control& control) const {
  if (dynamic_cast<const MenuItem*>(&control) != nullptr) {
    FormView* view = desktop_->windows().Find(control.form());
    return view != nullptr && view->isVisible() && control.CanAct();
  }
  // To other drives, and where starting programs begins, the teacher doesn't go.
  if (dynamic_cast<const DriveListBox*>(&control) != nullptr) return false;
  const QWidget* widget = WidgetOf(control);
  return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

void DesktopRound::ActOnControl(Control& control) {
  const std::string name = walk::PrintedName(control);
  if (auto* bar = dynamic_cast<Toolbar*>(&control)) return ActOnToolbar(*WidgetOf(*bar));
  Note("at " + name);
  if (dynamic_cast<MenuItem*>(&control) != nullptr) {
    auto* bar = desktop_->windows().Find(control.form())->findChild<QMenuBar*>();
    return hands_.OnMenuItem(*bar, ToQString(control.Name()));
  }
  QWidget& widget = *WidgetOf(control);
  if (auto* list = qobject_cast<QListView*>(&widget)) {
    // The first of a list of folders leads out of the program's folder.
    const bool folders = dynamic_cast<DirListBox*>(&control) != nullptr;
    return hands_.OnRow(*list, folders ? 1 : 0);
  }
  const bool names = form_ == "ChangeListName" && dice_.OneIn(2);
  hands_.On(widget, form_ == "ChangeList" ? dice_.Link() : names ? dice_.ListName() : dice_.Text());
}

void DesktopRound::ActOnToolbar(QWidget& strip) {
  std::vector<QToolButton*> buttons;
  std::vector<int> weights;
  for (auto* button : strip.findChildren<QToolButton*>()) {
    if (!button->isVisible() || !button->isEnabled()) continue;
    buttons.push_back(button);
    weights.push_back(Inclination(button->objectName().toStdString()));
  }
  if (buttons.empty()) return;
  QToolButton* button = dice_.AnyOf(buttons, weights);
  Note("clicks " + form_ + " " + button->objectName().toStdString());
  WidgetDeeds::Click(*button, button->rect().center());
}

void DesktopRound::ActOnWindow() {
  QWidget* window = QApplication::activeWindow();
  if (window == nullptr) return;
  if (dice_.OneIn(8)) {
    Note("closes the window");
    window->close();
  } else {
    Note("resizes the window");
    window->resize(640 + dice_.Below(900), 440 + dice_.Below(600));
  }
}

// Mostly none, now and then enough for the timers.
void DesktopRound::LetTimePass() {
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
  hands_.ClosePopups();
  if (program().Ended()) return;
  const Form* active = program().forms().Active();
  const bool waits = active != nullptr && active->Name() != form_ && active->PlacesControls();
  if (dice_.OneIn(12)) QTest::qWait(20);
  if (waits || dice_.OneIn(150)) QTest::qWait(1100);
}

void DesktopRound::Note(const std::string& deed) {
  deeds_.push_back(deed);
  log_ << deed << std::endl;
}

std::string DesktopRound::NoteEnd() {
  const std::string end = boxes_.Fault().empty() ? "end" : boxes_.Fault();
  ++tally_->ends[form_ + ": " + end];
  // What a timer did looks like what was done last.
  const bool stated = IsStatedEnd(form_ + ": " + end) || IsStatedEnd("tick: " + end);
  return stated ? bystander_->Compare() : form_ + ": " + end;
}

QWidget* DesktopRound::WidgetOf(const Control& control) const {
  FormView* view = desktop_->windows().Find(control.form());
  ControlView* shown = view == nullptr ? nullptr : view->Find(const_cast<Control&>(control));
  return shown == nullptr ? nullptr : shown->widget();
}

}  // namespace brindlepage
