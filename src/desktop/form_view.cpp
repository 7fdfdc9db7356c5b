#include "desktop/form_view.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <vector>

#include "desktop/arranger.h"
#include "desktop/control_views.h"
#include "desktop/fonts_ahead.h"
#include "desktop/picture_view.h"
#include "desktop/style.h"
#include "desktop/text.h"
#include "toolkit/controls.h"
#include "toolkit/lists.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage {

namespace {

// Pixels.
constexpr int kPanelWidth = 820;
constexpr int kPanelHeight = 860;
constexpr int kPanelRoom = 28;
constexpr int kPageRoom = 24;
constexpr int kBoxRoom = 24;
constexpr int kNarrowestBox = 320;
constexpr int kBackdropContentWidth = 900;
constexpr int kAtLeisure = 400;       // milliseconds
constexpr double kQuietPart = 0.605;  // of a backdrop's width

template <class Kind>
bool Is(const Control* control) {
  return dynamic_cast<const Kind*>(control) != nullptr;
}

// An option button or a check box whose caption is the label beside it.
bool IsBareMark(Control* control) {
  if (const auto* option = dynamic_cast<OptionButton*>(control)) {
    return option->Caption().empty();
  }
  const auto* check = dynamic_cast<CheckBox*>(control);
  return check != nullptr && check->Caption().empty();
}

// Lists that stand side by side have their rows in common.
void CollectTables(const Arrangement& part, std::vector<std::pair<Control*, Control*>>& tables) {
  for (std::size_t i = 0; i < part.parts.size(); ++i) {
    CollectTables(part.parts[i], tables);
    if (part.kind != Arrangement::Kind::Row || i == 0) continue;
    Control* left = part.parts[i - 1].control;
    Control* right = part.parts[i].control;
    if (Is<ListBox>(left) && Is<ListBox>(right)) tables.emplace_back(left, right);
  }
}

void ScrollTogether(const QAbstractScrollArea& one, const QAbstractScrollArea& other) {
  QScrollBar* bars[] = {one.verticalScrollBar(), other.verticalScrollBar()};
  QObject::connect(bars[0], &QScrollBar::valueChanged, bars[1], &QScrollBar::setValue);
  QObject::connect(bars[1], &QScrollBar::valueChanged, bars[0], &QScrollBar::setValue);
}

// The arrangement without the toolbars at its top.
Arrangement WithoutToolbars(Arrangement page) {
  std::erase_if(page.parts, [](const Arrangement& part) { return Is<Toolbar>(part.control); });
  return page;
}

// All together in the middle of the height; grids take most of what is left over.
Arrangement Gathered(Arrangement page) {
  for (Arrangement& part : page.parts) {
    if (part.kind == Arrangement::Kind::Spring) part = Gap();
    if (part.kind == Arrangement::Kind::Grid) part.weight = 24;
  }
  page.parts.insert(page.parts.begin(), Spring());
  page.parts.push_back(Spring());
  return page;
}

bool HasRichText(const Arrangement& page) {
  bool found = false;
  ForEachControl(page, [&](Control& control) { found = found || Is<RichTextBox>(&control); });
  return found;
}

}  // namespace

FormView::FormView(Form& form, Loop& loop, QWidget* parent, QSize size)
    : QWidget(parent), form_(&form), loop_(loop) {
  setObjectName(ToQString(form.Name()));
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  resize(size);
  // First, so that its picture is decoded while everything else is made.
  FindBackdrop();
  SyncForm();
  MakeViews();
  AwaitFonts();
  LayOutPage();
  SetTabOrder();
  SyncControls();
}

void FormView::Detach() {
  for (auto& [control, view] : views_) view->Detach();
  if (menu_bar_ != nullptr) menu_bar_->Detach();
  if (grid_ != nullptr) grid_->Detach();
  arranged_.clear();
  focus_shown_ = nullptr;
  backdrop_ = nullptr;
  form_ = nullptr;
}

void FormView::PrepareToShow() {
  PolishAll(*this);
  grab();  // lays it out, and leaves the letters and icons that it draws with the library
}

ControlView* FormView::Find(Control& control) const {
  const auto view = views_.find(&control);
  return view == views_.end() ? nullptr : view->second.get();
}

Control* FormView::Holder(const QWidget* widget) const {
  if (form_ == nullptr) return nullptr;
  // The innermost, since a frame holds others.
  for (; widget != nullptr && widget != this; widget = widget->parentWidget()) {
    for (const auto& [control, view] : views_) {
      if (view->widget() == widget) return control;
    }
  }
  return nullptr;
}

// An image named "Image1" that is not arranged.
void FormView::FindBackdrop() {
  for (Control* control : form_->Controls()) {
    if (Is<Image>(control) && control->Name() == "Image1") backdrop_ = control;
  }
  ForEachControl(form_->arrangement(), [&](Control& control) {
    if (&control == backdrop_) backdrop_ = nullptr;
  });
}

void FormView::MakeViews() {
  const Arrangement& page = form_->arrangement();
  if (MenuBar::HasMenus(*form_)) menu_bar_ = new MenuBar(*form_, loop_, letters_, this);
  const bool has_document = HasRichText(page);
  QWidget* ground = MakeGround();
  MakeViews(page, [&](const Arrangement& part) -> QWidget* {
    if (Is<Toolbar>(part.control)) return this;
    return has_document && IsGroup(part) ? MakeStrip() : ground;
  });

  std::vector<std::pair<Control*, Control*>> tables;
  CollectTables(page, tables);
  const auto list_of = [this](Control* list) -> const QAbstractScrollArea& {
    return dynamic_cast<const QAbstractScrollArea&>(*views_[list]->widget());
  };
  for (const auto& [left, right] : tables) ScrollTogether(list_of(left), list_of(right));
}

void FormView::MakeViews(const Arrangement& group, const GroundOf& ground_of) {
  QWidget* mark = nullptr;  // the one in front
  for (const Arrangement& part : group.parts) {
    QWidget* ground = ground_of(part);
    QWidget* partner = Is<Label>(part.control) ? mark : nullptr;
    mark = nullptr;
    if (Control* control = part.control) {
      // A label wraps that has a column's width to itself, or a share of the room.
      const bool wraps = group.kind == Arrangement::Kind::Column || part.weight > 0;
      arranged_.push_back(control);
      views_[control] = MakeControlView(*control, {loop_, letters_, this, ground, partner, wraps});
      QWidget* widget = views_[control]->widget();
      if (IsBareMark(control)) mark = widget;
      if (!part.parts.empty()) ground = widget;  // a frame
    }
    MakeViews(part, [ground](const Arrangement&) { return ground; });
  }
}

// What all but toolbars and strips stand on.
QWidget* FormView::MakeGround() {
  if (backdrop_ != nullptr) {
    backdrop_content_ = new QWidget(this);
    backdrop_content_->setProperty("backdrop", true);
    return backdrop_content_;
  }
  const bool fills = form_->PlacesControls() || form_->kind() == FormKind::Box;
  if (fills || HasRichText(form_->arrangement())) return this;
  panel_ = new QFrame(this);
  panel_->setObjectName("Panel");
  panel_->setMaximumSize(kPanelWidth, kPanelHeight);
  return panel_;
}

// For a row of controls above a document.
QWidget* FormView::MakeStrip() {
  auto* strip = new QFrame(this);
  strip->setObjectName("FontStrip");
  strips_.push_back(strip);
  return strip;
}

void FormView::LayOutPage() {
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(0, 0, 0, 0);
  page->setSpacing(0);
  if (form_->PlacesControls()) {
    grid_ = new GridView(*form_, this);
    page->addWidget(grid_);
    return;
  }
  if (menu_bar_ != nullptr) page->addWidget(menu_bar_);
  for (const Arrangement& part : form_->arrangement().parts) {
    if (Is<Toolbar>(part.control)) page->addWidget(Find(*part.control)->widget());
  }

  Arrangement rest = WithoutToolbars(form_->arrangement());
  if (backdrop_ != nullptr) rest = Gathered(std::move(rest));
  QLayout* content = LayOut(rest, [this](Control& control) { return Find(control)->widget(); });
  if (HasRichText(rest)) {
    content->setSpacing(0);
    PutBarsOnStrips(*static_cast<QBoxLayout*>(content));
    page->addLayout(content, 1);
  } else if (backdrop_ != nullptr) {
    AddOnBackdrop(*page, content);
  } else if (panel_ != nullptr) {
    AddPanel(*page, content, WantsRoom(rest));
  } else {
    setMinimumWidth(kNarrowestBox);
    content->setContentsMargins(kBoxRoom, kBoxRoom, kBoxRoom, kBoxRoom - 4);
    page->addLayout(content, 1);
  }
}

void FormView::PutBarsOnStrips(QBoxLayout& content) {
  auto strip = strips_.begin();
  for (int i = 0; i < content.count(); ++i) {
    QLayout* bar = content.itemAt(i)->layout();
    if (bar == nullptr) continue;
    content.takeAt(i);
    bar->setParent(nullptr);
    bar->setContentsMargins(14, 6, 14, 6);
    (*strip)->setLayout(bar);
    content.insertWidget(i, *strip++);
  }
}

void FormView::AddPanel(QBoxLayout& page, QLayout* content, bool wants_room) {
  content->setContentsMargins(kPanelRoom, kPanelRoom - 4, kPanelRoom, kPanelRoom - 4);
  panel_->setLayout(content);

  auto* across = new QHBoxLayout;
  across->setContentsMargins(kPageRoom, 0, kPageRoom, 0);
  across->addStretch(1);
  across->addWidget(panel_, 1000);
  across->addStretch(1);
  page.addSpacing(kPageRoom);
  page.addStretch(2);
  page.addLayout(across, wants_room ? 1000 : 0);
  page.addStretch(3);
  page.addSpacing(kPageRoom);
}

void FormView::AddOnBackdrop(QBoxLayout& page, QLayout* content) {
  backdrop_content_->setLayout(content);
  auto* across = new QHBoxLayout;
  across->setContentsMargins(0, 0, 0, 0);
  across->addWidget(backdrop_content_);
  across->addStretch(1);
  page.addLayout(across, 1);
}

void FormView::SetTabOrder() {
  QWidget* before = nullptr;
  const auto chain = [&](bool toolbars) {
    for (Control* control : arranged_) {
      ControlView* view = Find(*control);
      if (Is<Toolbar>(control) != toolbars) continue;
      QList<QWidget*> stops{view->widget()};
      if (toolbars) stops = view->widget()->findChildren<QWidget*>();
      for (QWidget* stop : stops) {
        if (before != nullptr) QWidget::setTabOrder(before, stop);
        before = stop;
      }
    }
  };
  chain(false);
  chain(true);
}

PicturePtr FormView::Background() const {
  // A document leaves nothing of it to be seen.
  if (HasRichText(form_->arrangement())) return nullptr;
  if (const auto* image = dynamic_cast<const Image*>(backdrop_)) return image->Picture;
  return form_->Picture;
}

void FormView::SyncForm() {
  if (form_ == nullptr) return;
  if (menu_bar_ != nullptr) menu_bar_->Sync();
  if (grid_ != nullptr) grid_->update();
  const PicturePtr background = Background();
  if (background == background_) return;
  background_ = background;
  if (form_->kind() == FormKind::Screen) {
    PrepareCovering(background, size(), devicePixelRatioF());
  }
  update();
}

// A letter is chosen when its caption first shows. The menus have theirs already; the large buttons
// come last, whose long captions leave a choice.
void FormView::SyncControls() {
  const auto turn_of = [](const Control* control) {
    const auto* button = dynamic_cast<const CommandButton*>(control);
    if (button != nullptr && !button->icon.empty()) return 2;
    return Is<Toolbar>(control) ? 1 : 0;
  };
  for (const int turn : {0, 1, 2}) {
    for (Control* control : arranged_) {
      if (turn_of(control) == turn) Find(*control)->Sync();
    }
  }
}

void FormView::SyncFocus() {
  if (form_ == nullptr) return;
  Control* focused = form_->Focused();
  if (focused == nullptr && !focus_set_) focused = FirstField();
  if (Is<RichTextBox>(focused) && !focused->CanAct()) focused = ShownDocument();
  if (focused == nullptr) return;
  // The page may have given the keys to its first field by itself.
  form_->Focus(*focused);
  ControlView* view = Find(*focused);
  if (view == nullptr || !view->widget()->isVisibleTo(this)) return;
  QWidget* now = focusWidget();
  const bool has_it =
      now != nullptr && (now == view->widget() || view->widget()->isAncestorOf(now));
  if (has_it && focus_set_ && focus_shown_ == focused) return;
  // What a field proposes gives way to what is typed.
  auto* line = qobject_cast<QLineEdit*>(view->widget());
  if (line != nullptr && !focus_set_) line->selectAll();
  focus_shown_ = focused;
  focus_set_ = true;
  QWidget* place = has_it ? now : view->widget();  // a tool, for one
  if (!place->hasFocus()) place->setFocus(Qt::TabFocusReason);
}

Control* FormView::FirstField() const {
  Control* first_button = nullptr;
  for (Control* control : arranged_) {
    ControlView* view = Find(*control);
    if (Is<Toolbar>(control) || !control->CanAct()) continue;
    if (!(view->widget()->focusPolicy() & Qt::TabFocus)) continue;
    if (!Is<CommandButton>(control)) return control;
    if (first_button == nullptr) first_button = control;
  }
  return first_button;
}

Control* FormView::ShownDocument() const {
  const auto shown = std::find_if(arranged_.begin(), arranged_.end(), [](const Control* control) {
    return Is<RichTextBox>(control) && control->CanAct();
  });
  return shown == arranged_.end() ? nullptr : *shown;
}

bool FormView::CanClick(bool default_button) const {
  return std::any_of(form_->Controls().begin(), form_->Controls().end(),
                     [&](const Control* control) {
                       const auto* button = dynamic_cast<const CommandButton*>(control);
                       if (button == nullptr || !button->CanAct()) return false;
                       return default_button ? button->Default() : button->Cancel();
                     });
}

void FormView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawCovering(painter, background_, size());
}

void FormView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (on_resize) on_resize();
  if (backdrop_content_ == nullptr) return;
  const int left = qMax(kPageRoom, width() / 28);
  const int content = qMin(static_cast<int>(width() * kQuietPart) - left, kBackdropContentWidth);
  backdrop_content_->layout()->setContentsMargins(left, kPageRoom / 2, 0, kPageRoom / 2);
  backdrop_content_->setFixedWidth(left + content);
}

void FormView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  QTimer::singleShot(kAtLeisure, this, [this] {
    for (const auto& [control, view] : views_) view->FillHidden();
  });
}

void FormView::keyPressEvent(QKeyEvent* event) {
  if (form_ == nullptr || event->isAutoRepeat()) return;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool escape = event->key() == Qt::Key_Escape;
  Form& form = *form_;
  if (auto* tool = qobject_cast<QToolButton*>(focusWidget()); tool != nullptr && enter) {
    return tool->click();
  }
  Control* focused = form.Focused();
  const bool used = focused != nullptr && focused->CanAct() &&
                    (Is<CommandButton>(focused) || Is<TextBox>(focused) || Is<ListBox>(focused));
  if ((enter || escape) && (used || CanClick(enter))) {
    return loop_.Act(form, [&] {
      if (focused != nullptr && focused->CanAct()) {
        focused->Press(enter ? Key::Enter : Key::Escape);
      } else {
        enter ? form.ClickDefault() : form.ClickCancel();
      }
    });
  }
  const bool modifier = event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control ||
                        event->key() == Qt::Key_Alt || event->key() == Qt::Key_Meta ||
                        event->key() == Qt::Key_AltGr;
  if (!modifier) loop_.Act(form, [&] { loop_.runtime().forms().Key(form); });
}

void FormView::mousePressEvent(QMouseEvent* event) {
  if (form_ == nullptr || event->button() != Qt::LeftButton) return;
  Form& form = *form_;
  loop_.Act(form, [&] { loop_.runtime().forms().Click(form); });
}

}  // namespace brindlepage
