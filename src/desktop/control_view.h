#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QWidget>
#include <functional>

#include "desktop/loop.h"
#include "desktop/mnemonics.h"
#include "toolkit/control.h"

namespace brindlepage {

// Shows one control and hands on what the teacher does with it. The widget belongs to its parent
// widget, the view to the form's view. A control that goes is let go at once by Detach, after
// which the widget is dead but still there.
class ControlView : public QObject {
 public:
  ControlView(Loop& loop, Control& control, QWidget* widget);

  QWidget* widget() const { return widget_; }
  // Null once detached.
  Control* control() const { return control_; }

  // Brings the widget up to the control's state.
  void Sync();
  virtual void Detach() { control_ = nullptr; }
  // Called a while after the page came up: what isn't seen yet has its widget filled all the same.
  virtual void FillHidden() {}

  // Set by Sync, cleared by whoever learns of a change.
  bool in_sync = false;

 protected:
  // The state beyond visible and enabled. Not called when detached.
  virtual void SyncState() = 0;

  Loop& loop() const { return loop_; }

 private:
  Loop& loop_;
  Control* control_;
  QWidget* widget_;
};

// A view of one kind of control.
template <class ControlType>
class ViewOf : public ControlView {
 public:
  ViewOf(Loop& loop, ControlType& control, QWidget* widget) : ControlView(loop, control, widget) {}

 protected:
  ControlType& box() const { return static_cast<ControlType&>(*control()); }

  // The deed goes to the control if it is still there and can act.
  void Act(const std::function<void(ControlType&)>& deed) {
    if (control() == nullptr) return;
    ControlType& target = box();
    loop().Act(target, [&] { deed(target); });
  }
};

// A caption with its letter, chosen once for each wording.
class LetteredCaption {
 public:
  explicit LetteredCaption(Mnemonics& letters) : letters_(letters) {}

  const QString& Of(const std::string& caption);

 private:
  Mnemonics& letters_;
  QHash<QByteArray, QString> known_;
};

// What a view is made with.
struct ViewSetting {
  Loop& loop;
  Mnemonics& letters;
  QWidget* page;    // of the whole form
  QWidget* parent;  // what the control stands on: the page, or a part of it
  // Of a label that stands beside a box without a caption: that box's widget.
  QWidget* partner = nullptr;
  // A label that may take more than one line.
  bool wraps = false;
};

}  // namespace brindlepage
