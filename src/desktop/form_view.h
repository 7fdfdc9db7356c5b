#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/grid_view.h"
#include "desktop/loop.h"
#include "desktop/menu_bar.h"
#include "desktop/mnemonics.h"
#include "toolkit/form.h"

class QBoxLayout;
class QFrame;

namespace brindlepage {

// Shows any form: its controls as they are arranged, on its background.
//
// A form with rich text boxes fills the page with them. Another screen stands on a calm panel in
// the middle, so that it can be read over its picture. An image named "Image1" outside of the
// arrangement is the backdrop of the page; the controls then keep to its left, quiet part. A form
// that places its controls itself fills the page with a GridView.
class FormView : public QWidget {
 public:
  // `size`: the size in which it will first be shown.
  FormView(Form& form, Loop& loop, QWidget* parent, QSize size);

  // Null once detached.
  Form* form() const { return form_; }
  // The form goes: nothing of it is touched after this.
  void Detach();

  // Does ahead what showing it would: styles it, lays it out, draws its letters and icons.
  void PrepareToShow();

  // The view of the control, or null if it isn't shown.
  ControlView* Find(Control& control) const;
  // The control whose widget is `widget` or holds it, or null.
  Control* Holder(const QWidget* widget) const;

  // Brings what belongs to no control's widget up to date: background, menus.
  void SyncForm();
  // Gives the keys to the control that has the focus; at first to the first field.
  void SyncFocus();

  std::function<void()> on_resize;
  // The size that the form was told last.
  QSize told_size;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void FindBackdrop();
  // What a part of the page stands on. Its widgets are made there: one that is put on another
  // widget later has to be styled anew.
  using GroundOf = std::function<QWidget*(const Arrangement& part)>;
  void MakeViews();
  void MakeViews(const Arrangement& group, const GroundOf& ground_of);
  QWidget* MakeGround();
  QWidget* MakeStrip();
  void LayOutPage();
  void PutBarsOnStrips(QBoxLayout& content);
  void AddPanel(QBoxLayout& page, QLayout* content, bool wants_room);
  void AddOnBackdrop(QBoxLayout& page, QLayout* content);
  void SetTabOrder();
  void SyncControls();
  Control* FirstField() const;
  // A worksheet and its key lie over each other: the keys are for the one that shows.
  Control* ShownDocument() const;
  bool CanClick(bool default_button) const;
  PicturePtr Background() const;

  Form* form_;
  Loop& loop_;
  Mnemonics letters_;
  std::vector<Control*> arranged_;  // as they stand on the page, which is the Tab key's order
  Control* backdrop_ = nullptr;
  MenuBar* menu_bar_ = nullptr;
  GridView* grid_ = nullptr;  // of a form that places its controls
  QFrame* panel_ = nullptr;
  QWidget* backdrop_content_ = nullptr;
  std::vector<QFrame*> strips_;  // from the top
  std::map<Control*, std::unique_ptr<ControlView>> views_;
  Control* focus_shown_ = nullptr;
  bool focus_set_ = false;

  PicturePtr background_;
};

}  // namespace brindlepage
