#include "tools/screens/photographer.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFrame>
#include <QPushButton>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "desktop/text.h"
#include "tools/screens/page_picture.h"

namespace brindlepage::screens {

namespace {

// Milliseconds.
constexpr int kSettleTime = 100;
constexpr int kPatience = 120'000;
constexpr int kBoxWatch = 30;

constexpr int kAroundPanel = 26;  // pixels

QRect RectIn(const QWidget& window, const QWidget& widget) {
  return QRect(widget.mapTo(&window, QPoint()), widget.size());
}

// A toolbar or menus.
bool HasBarAbove(const QWidget& window, int bottom) {
  const auto widgets = window.findChildren<QWidget*>();
  return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
    const QRect rect = RectIn(window, *widget);
    return widget->isVisible() && rect.width() == window.width() && rect.bottom() < bottom;
  });
}

// The whole width of the screen, but no more of its height than its panel and a little around it.
QRect PartThatMatters(const QWidget& window) {
  QRect part = window.rect();
  for (const QFrame* panel : window.findChildren<QFrame*>("Panel")) {
    if (!panel->isVisible()) continue;
    const QRect shown = RectIn(window, *panel);
    if (!HasBarAbove(window, shown.top())) part.setTop(std::max(0, shown.top() - kAroundPanel));
    part.setBottom(std::min(part.bottom(), shown.bottom() + kAroundPanel));
  }
  return part;
}

}  // namespace

Photographer::Photographer(QString folder, QSize screen, Album album)
    : folder_(std::move(folder)), screen_(screen), album_(album) {
  QObject::connect(&boxes_, &QTimer::timeout, [this] { AnswerBox(); });
  boxes_.start(kBoxWatch);
}

void Photographer::Watch(Stage& stage) {
  stage_ = &stage;
  stage.windows().main().setFixedSize(screen_);
}

void Photographer::TakeNewForms() {
  Settle();
  if (album_ != Album::Everything) return;
  for (const auto& form : stage_->program().forms().Loaded()) {
    if (form->Visible && taken_.insert(form->Name()).second) Take(ToQString(form->Name()), *form);
  }
}

void Photographer::TakeFront(const QString& name) {
  Settle();
  if (Form* form = stage_->Front()) Take(name, *form);
}

void Photographer::Take(const QString& name, Form& form) {
  FormView* view = stage_->windows().Find(form);
  // A page behind another one is taken by itself.
  if (view != nullptr) Save(name, view->isVisible() ? *view->window() : *view);
}

void Photographer::TakePage(const RichTextBox& box, int start, int length) {
  if (sheet_.isEmpty()) return;
  const bool key = sheet_.endsWith("-key");
  const QString name = key ? sheet_ : sheet_ + "-sheet";
  sheet_ = key ? QString() : sheet_ + "-key";
  Save(name, PagePicture(box, start, length));
}

void Photographer::Await(const std::string& what, const std::function<bool()>& so) {
  QElapsedTimer clock;
  clock.start();
  while (!so() || QApplication::activeModalWidget() != nullptr) {
    QApplication::processEvents(QEventLoop::AllEvents, 10);
    if (clock.elapsed() < kPatience) continue;
    std::fprintf(stderr, "waited in vain for %s\n", what.c_str());
    std::exit(1);
  }
}

void Photographer::Settle() {
  QElapsedTimer clock;
  clock.start();
  // A window that is about to be made larger is not painted before.
  const auto still = [this] {
    return stage_ == nullptr || stage_->windows().main().updatesEnabled();
  };
  while (clock.elapsed() < kSettleTime || !still()) {
    QApplication::processEvents(QEventLoop::AllEvents, 20);
  }
}

void Photographer::Save(const QString& name, QWidget& window) {
  const QImage image = window.grab().toImage();
  Save(name, album_ == Album::Manual ? image.copy(PartThatMatters(window)) : image);
}

void Photographer::Save(const QString& name, const QImage& image) {
  const QString file = QString("%1/%2.png").arg(folder_, name);
  if (image.save(file)) return;
  std::fprintf(stderr, "can't write %s\n", qPrintable(file));
  std::exit(1);
}

void Photographer::AnswerBox() {
  auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (box == nullptr) return;
  if (album_ == Album::Everything) Save(QString("message-%1").arg(++messages_), *box);
  if (!next_box_.isEmpty()) Save(std::exchange(next_box_, QString()), *box);
  for (const char* first : {"OK", "Yes"}) {
    if (auto* button = box->findChild<QPushButton*>(first)) return button->click();
  }
  box->accept();
}

}  // namespace brindlepage::screens
