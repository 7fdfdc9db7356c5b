#pragma once

#include <QObject>
#include <QPointer>
#include <QStackedLayout>
#include <QTimer>
#include <QWidget>
#include <map>
#include <vector>

#include "desktop/form_view.h"
#include "desktop/loop.h"

namespace brindlepage {

class Windows;

// The window of all screens, their pages one behind the other; or the small one of a box.
class FormWindow : public QWidget {
 public:
  FormWindow(Windows& windows, QWidget* owner, bool box);

  // The page on top, or null.
  FormView* Page() const;
  void ShowPage(FormView& page);
  // Behind the others.
  void AddPage(FormView& page);
  // As large as its page needs, and no larger.
  void FitToPage();
  // Without the page at the size before first.
  void ShowMaximisedAtOnce();
  void ShowNormalAtOnce();
  // Paints what has changed; the library would wait 5 ms for more.
  void PaintNow();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void LetPaint();

  Windows& windows_;
  QStackedLayout* pages_;
};

// The forms on screen. All screens share the main window, so that they follow one another
// without a flash; a box has a small window of its own over it. What the program changes is
// gathered and shown in one step, when its handler is done or a box opens.
class Windows : public QObject {
 public:
  explicit Windows(Loop& loop);
  ~Windows() override;

  // What the program does.
  void Activated(Form& form);
  void Hidden(Form& form);
  void Unloaded(Form& form);
  void Changed(Form& form);
  void Changed(Control& control);

  // Shows everything that has changed.
  void Flush();
  // Flush as soon as the handler is done.
  void FlushSoon();

  FormWindow& main() { return *main_; }
  // The view of a form that is or was on screen, or null.
  FormView* Find(Form& form) const;
  // The window that boxes open over.
  QWidget* Front() const;

  // What the teacher does.
  void WindowActivated(FormWindow& window);
  void WindowClosed(FormWindow& window);

 private:
  void ShowTopPage();
  void ShowChanges();
  void ShowBoxes();
  void ShowFocus();
  void Bury();
  void TellSizes();
  void PaintNow();

  void FollowWindowState(Form& form);
  // While the teacher looks at this one.
  void MakeNextPage();
  void Place();
  FormView& ViewFor(Form& form, QWidget& window, QSize size);
  FormWindow& BoxFor(Form& form);
  void FocusMoved(QWidget* now);
  void ApplicationLeft();

  Loop& loop_;
  FormWindow* main_;
  std::vector<Form*> shown_;  // the one shown last is at the back
  std::map<Form*, FormView*> views_;
  std::map<Form*, FormWindow*> boxes_;
  std::vector<ControlView*> changed_controls_;
  std::vector<Form*> changed_forms_;
  std::vector<QWidget*> dead_;
  QTimer pause_;  // since the last page was turned to
  Form* active_shown_ = nullptr;
  QPointer<QWidget> activating_;  // asked for, and not yet in front
  int state_followed_ = kNormal;
  bool turning_ = false;  // to another page
  bool showing_changes_ = false;
  bool placed_ = false;
  bool maximised_by_program_ = false;
  bool flush_coming_ = false;
};

}  // namespace brindlepage
