#include "desktop/windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/after_painting.h"
#include "desktop/double_clicks.h"
#include "desktop/icons.h"
#include "desktop/style.h"
#include "desktop/text.h"
#include "toolkit/controls.h"

namespace brindlepage {

namespace {

constexpr QSize kUsualSize{1000, 720};
constexpr QSize kSmallestSize{640, 440};
constexpr QSize kFrame{16, 40};  // about what a window's frame takes
constexpr int kMoment = 100;     // milliseconds

bool InBox() { return QApplication::activeModalWidget() != nullptr; }

}  // namespace

FormWindow::FormWindow(Windows& windows, QWidget* owner, bool box)
    : QWidget(owner, box ? Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                               Qt::WindowCloseButtonHint
                         : Qt::Window),
      windows_(windows),
      pages_(new QStackedLayout(this)) {
  // The pages of screens that are left may be larger than what is on top.
  pages_->setSizeConstraint(QLayout::SetNoConstraint);
  if (!box) setMinimumSize(kSmallestSize);
}

FormView* FormWindow::Page() const { return static_cast<FormView*>(pages_->currentWidget()); }

void FormWindow::ShowPage(FormView& page) {
  AddPage(page);
  pages_->setCurrentWidget(&page);
}

void FormWindow::AddPage(FormView& page) {
  if (pages_->indexOf(&page) < 0) pages_->addWidget(&page);
}

void FormWindow::FitToPage() {
  // The style's fonts and margins count.
  PolishAll(*this);
  const QLayout& content = *Page()->layout();
  QSize fit = content.totalSizeHint().expandedTo(Page()->minimumSize());
  if (content.hasHeightForWidth()) fit.setHeight(content.totalHeightForWidth(fit.width()));
  if (fit != size()) setFixedSize(fit);
}

// A window manager takes its time to make a window larger, and may do nothing at all.
void FormWindow::ShowMaximisedAtOnce() {
  if (isVisible()) {
    setUpdatesEnabled(false);
    QTimer::singleShot(kMoment, this, &FormWindow::LetPaint);
  }
  showMaximized();
}

void FormWindow::ShowNormalAtOnce() {
  const QSize size = normalGeometry().size();
  showNormal();
  resize(size);
  LetPaint();
}

// What was asked for before counts as under way, and would not be asked for again.
void FormWindow::LetPaint() {
  if (updatesEnabled()) return;
  setUpdatesEnabled(true);
  QTimer::singleShot(0, this, &FormWindow::PaintNow);
}

void FormWindow::PaintNow() {
  if (!isVisible() || !windowHandle()->isExposed()) return;
  QEvent update(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(this, &update);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LetPaint();
}

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) windows_.WindowActivated(*this);
  return QWidget::event(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The program decides what a closed frame means.
  event->ignore();
  windows_.WindowClosed(*this);
}

Windows::Windows(Loop& loop) : loop_(loop), main_(new FormWindow(*this, nullptr, false)) {
  main_->setObjectName("MainWindow");
  QApplication::setWindowIcon(NamedIcon("program"));
  new DoubleClicks(this);
  pause_.setSingleShot(true);
  pause_.setInterval(kUntilPainted);
  connect(&pause_, &QTimer::timeout, this, [this] { MakeNextPage(); });
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { FocusMoved(now); });
  connect(qApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            // Between two windows of the program it may look left for a moment.
            if (state == Qt::ApplicationInactive) {
              QTimer::singleShot(kMoment, this, [this] { ApplicationLeft(); });
            }
          });
}

Windows::~Windows() {
  disconnect(qApp, nullptr, this, nullptr);
  for (auto& [form, view] : views_) view->Detach();
  delete main_;
}

void Windows::Activated(Form& form) {
  std::erase(shown_, &form);
  shown_.push_back(&form);
  FlushSoon();
}

void Windows::Hidden(Form& form) {
  std::erase(shown_, &form);
  FlushSoon();
}

void Windows::Unloaded(Form& form) {
  std::erase(shown_, &form);
  std::erase(changed_forms_, &form);
  if (active_shown_ == &form) active_shown_ = nullptr;
  if (const auto view = views_.find(&form); view != views_.end()) {
    std::erase_if(changed_controls_,
                  [&](ControlView* changed) { return &changed->control()->form() == &form; });
    view->second->Detach();
    if (boxes_.count(&form) == 0) dead_.push_back(view->second);
    views_.erase(view);
  }
  if (const auto box = boxes_.find(&form); box != boxes_.end()) {
    dead_.push_back(box->second);
    boxes_.erase(box);
  }
  FlushSoon();
}

void Windows::Changed(Form& form) {
  if (std::find(changed_forms_.begin(), changed_forms_.end(), &form) != changed_forms_.end()) {
    return;
  }
  if (Find(form) == nullptr) return;
  changed_forms_.push_back(&form);
  FlushSoon();
}

void Windows::Changed(Control& control) {
  FormView* form = Find(control.form());
  if (form == nullptr) return;
  ControlView* view = form->Find(control);
  if (view == nullptr) return Changed(control.form());
  if (view->in_sync) {
    view->in_sync = false;
    changed_controls_.push_back(view);
    FlushSoon();
  }
  // Progress shows while the handler goes on.
  if (dynamic_cast<ProgressBar*>(&control) != nullptr && control.OnScreen()) {
    Flush();
    view->widget()->repaint();
    loop_.LetWindowsPaint();
  }
}

void Windows::FlushSoon() {
  if (flush_coming_) return;
  flush_coming_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        Flush();
        // In the middle of a handler nothing but painting is done.
        if (loop_.Held()) return;
        TellSizes();
        loop_.TakeStock();
        PaintNow();
      },
      Qt::QueuedConnection);
}

void Windows::Flush() {
  flush_coming_ = false;
  ShowTopPage();
  ShowChanges();
  ShowBoxes();
  ShowFocus();
  Bury();
  // What was shown asks to be painted, and would once more when it had been.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
}

FormView* Windows::Find(Form& form) const {
  const auto view = views_.find(&form);
  return view == views_.end() ? nullptr : view->second;
}

QWidget* Windows::Front() const {
  if (QWidget* box = QApplication::activeModalWidget()) return box;
  if (QWidget* window = QApplication::activeWindow()) return window;
  return main_->isVisible() ? main_ : nullptr;
}

FormView& Windows::ViewFor(Form& form, QWidget& window, QSize size) {
  FormView*& view = views_[&form];
  if (view == nullptr) {
    view = new FormView(form, loop_, &window, size);
    view->on_resize = [this] { FlushSoon(); };
  }
  return *view;
}

FormWindow& Windows::BoxFor(Form& form) {
  FormWindow*& box = boxes_[&form];
  if (box == nullptr) {
    box = new FormWindow(*this, main_, true);
    box->setObjectName(ToQString(form.Name()) + "Window");
    box->ShowPage(ViewFor(form, *box, box->size()));
  }
  return *box;
}

void Windows::Place() {
  if (placed_) return;
  placed_ = true;
  const QSize room = main_->screen()->availableSize() - kFrame;
  main_->resize(kUsualSize.boundedTo(room));
}

void Windows::ShowTopPage() {
  const auto top = std::find_if(shown_.rbegin(), shown_.rend(),
                                [](const Form* form) { return form->kind() == FormKind::Screen; });
  if (top == shown_.rend()) {
    main_->hide();
    return;
  }
  Form& form = **top;
  Place();
  const bool goes_back = maximised_by_program_ && form.WindowState == kNormal;
  const QSize size = goes_back ? main_->normalGeometry().size() : main_->size();
  FormView& page = ViewFor(form, *main_, size);
  const bool turned = main_->Page() != &page;
  turning_ = true;
  main_->ShowPage(page);
  turning_ = false;
  main_->setWindowTitle(ToQString(form.Caption));
  if (turned || !main_->isVisible() || form.WindowState != state_followed_) {
    state_followed_ = form.WindowState;
    FollowWindowState(form);
  }
  if (turned) pause_.start();
}

void Windows::MakeNextPage() {
  if (loop_.runtime().InHandler()) return pause_.start();  // a box is open
  Form* next = loop_.runtime().forms().MakeAhead();
  if (next == nullptr) return;
  FormView& page = ViewFor(*next, *main_, main_->size());
  main_->AddPage(page);
  page.PrepareToShow();
}

// A window that the teacher maximised stays so; one that the program did goes back.
void Windows::FollowWindowState(Form& form) {
  const bool is_maximised = main_->isMaximized();
  if (form.WindowState == kMaximised && !is_maximised) {
    maximised_by_program_ = true;
    main_->ShowMaximisedAtOnce();
  } else if (form.WindowState == kNormal && maximised_by_program_) {
    maximised_by_program_ = false;
    main_->ShowNormalAtOnce();
  } else if (!main_->isVisible()) {
    is_maximised ? main_->showMaximized() : main_->show();
  }
}

// What is hidden or shown passes the keys on, upon which the program may take others away.
void Windows::ShowBoxes() {
  for (const auto& [form, box] : std::map(boxes_)) {
    if (boxes_.count(form) != 0 && !form->Visible) box->hide();
  }
  for (Form* form : std::vector(shown_)) {
    const bool is_there = std::find(shown_.begin(), shown_.end(), form) != shown_.end();
    if (!is_there || form->kind() != FormKind::Box) continue;
    FormWindow& box = BoxFor(*form);
    box.setWindowTitle(ToQString(form->Caption));
    box.FitToPage();
    if (box.isVisible()) continue;
    box.move(main_->geometry().center() - box.rect().center());
    box.show();
  }
}

void Windows::ShowChanges() {
  // What is hidden passes the keys on to its neighbour, which counts only if the program has not
  // given them to another.
  showing_changes_ = true;
  // Showing one may change another.
  while (!changed_controls_.empty() || !changed_forms_.empty()) {
    const auto controls = std::exchange(changed_controls_, {});
    const auto forms = std::exchange(changed_forms_, {});
    for (ControlView* view : controls) view->Sync();
    for (Form* form : forms) {
      if (FormView* view = Find(*form)) view->SyncForm();
    }
  }
  showing_changes_ = false;
  Form* active = loop_.runtime().forms().Active();
  Control* holder = active == nullptr ? nullptr : active->Focused();
  if (holder != nullptr && !holder->CanAct()) FocusMoved(QApplication::focusWidget());
}

void Windows::ShowFocus() {
  Form* active = loop_.runtime().forms().Active();
  if (active == nullptr || !active->Visible || Find(*active) == nullptr) return;
  Find(*active)->SyncFocus();
  if (active == active_shown_) return;
  active_shown_ = active;
  QWidget* window = Find(*active)->window();
  if (window->isActiveWindow() || !window->isVisible()) return;
  activating_ = window;
  window->activateWindow();
}

void Windows::Bury() {
  for (QWidget* widget : std::exchange(dead_, {})) {
    widget->hide();
    DeleteAfterPainting(widget);  // it may have a long document
  }
}

void Windows::TellSizes() {
  for (const auto& [form, view] : std::map(views_)) {
    if (views_.count(form) == 0 || !form->Visible || !view->isVisible()) continue;
    if (view->size() == view->told_size) continue;
    view->told_size = view->size();
    Form& resized = *form;
    const QSize twips = view->size() * kTwipsPerPixel;
    loop_.Dispatch([&] { loop_.runtime().forms().Resize(resized, twips.width(), twips.height()); });
  }
}

void Windows::PaintNow() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  main_->PaintNow();
  for (const auto& [form, box] : boxes_) box->PaintNow();
}

void Windows::WindowActivated(FormWindow& window) {
  // The window that a handler has just put aside may still come to the front for a moment.
  if (activating_ == &window) activating_ = nullptr;
  if (activating_ != nullptr && activating_->isVisible()) return;
  FormView* page = window.Page();
  if (InBox() || page == nullptr || page->form() == nullptr) return;
  Form& form = *page->form();
  if (!form.Visible || loop_.runtime().forms().Active() == &form) return;
  loop_.Dispatch([&] { loop_.runtime().forms().Activate(form); });
}

void Windows::WindowClosed(FormWindow& window) {
  FormView* page = window.Page();
  if (page == nullptr || page->form() == nullptr) return;
  Form& form = *page->form();
  loop_.Act(form, [&] { loop_.runtime().forms().Close(form); });
}

void Windows::FocusMoved(QWidget* now) {
  // A page that is turned to has a field of its own choice.
  if (turning_ || showing_changes_) return;
  for (const auto& [form, view] : views_) {
    if (now == nullptr || !view->isAncestorOf(now) || !form->Visible) continue;
    Control* holder = view->Holder(now);
    if (holder != nullptr) form->Focus(*holder);
    return;
  }
}

void Windows::ApplicationLeft() {
  if (QGuiApplication::applicationState() == Qt::ApplicationActive || InBox()) return;
  Form* active = loop_.runtime().forms().Active();
  if (active == nullptr) return;
  active_shown_ = nullptr;
  loop_.Dispatch([&] { loop_.runtime().forms().Deactivate(*active); });
}

}  // namespace brindlepage
