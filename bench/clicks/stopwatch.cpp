#include "bench/clicks/stopwatch.h"

#include <QApplication>
#include <QBackingStore>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest/QTest>
#include <algorithm>
#include <ctime>
#include <utility>

namespace {

// All that is seen in the window but for its scroll bars.
QImage Dots(QWidget& window) {
  auto& painted = dynamic_cast<QImage&>(*window.backingStore()->paintDevice());
  QImage dots = painted.copy();
  QPainter painter(&dots);
  for (const QScrollBar* bar : window.findChildren<QScrollBar*>()) {
    if (bar->isVisible()) {
      painter.fillRect(QRect(bar->mapTo(&window, QPoint()), bar->size()), Qt::gray);
    }
  }
  return dots;
}

}  // namespace

Stopwatch::Stopwatch() {
  constexpr int kWake = 5;
  clock_.start();
  qApp->installEventFilter(this);
  connect(&wake_, &QTimer::timeout, this, [this] { AnswerBox(); });
  wake_.start(kWake);
}

void Stopwatch::Measure(const std::string& name, const std::function<void()>& click, int rest) {
  rest_ = rest;
  Begin(name);
  click();
  while (!Rests()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Stopwatch::Begin(const std::string& name) {
  name_ = name;
  running_ = true;
  began_ = answered_ = painted_ = Now();
}

Stopwatch::Moment Stopwatch::Now() const {
  return {static_cast<double>(clock_.nsecsElapsed()) / 1e6 - looking_.time,
          1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC - looking_.work};
}

bool Stopwatch::Rests() {
  if (!running_) return true;
  if (paint_coming_ || Now().time - painted_.time < rest_) return false;
  running_ = false;
  const Time time{answered_.time - began_.time, answered_.work - began_.work};
  Time& best = best_.try_emplace(name_, time).first->second;
  best.answer = std::min(best.answer, time.answer);
  best.work = std::min(best.work, time.work);
  return true;
}

void Stopwatch::AnswerBox() {
  auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (box == nullptr || box == answered_box_ || !Rests()) return;
  answered_box_ = box;
  const auto* text = box->findChild<QLabel*>("Text");
  const QString about = text == nullptr ? box->windowTitle() : text->text().simplified();
  Begin(name_ + " > " + about.left(40).toStdString());
  auto* button = box->findChild<QPushButton*>();
  const bool asks = text != nullptr && button != nullptr;
  asks ? QTest::mouseClick(button, Qt::LeftButton) : box->reject();
  answered_box_ = nullptr;
}

bool Stopwatch::LooksChanged() {
  bool changed = false;
  for (QWidget* window : std::exchange(being_painted_, {})) {
    if (!window->isVisible()) continue;  // made ahead
    const bool reads_on = qobject_cast<QFileDialog*>(window) != nullptr && seen_.count(window) != 0;
    if (reads_on) continue;
    QImage seen = Dots(*window);
    QImage& before = seen_[window];
    changed = changed || seen != before;
    before = std::move(seen);
  }
  return changed;
}

bool Stopwatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Destroy || event->type() == QEvent::Hide) {
    auto* gone = static_cast<QWidget*>(watched);
    being_painted_.erase(gone);
    seen_.erase(gone);
  }
  if (event->type() != QEvent::Paint) return false;
  if (auto* widget = qobject_cast<QWidget*>(watched)) being_painted_.insert(widget->window());
  // All parts of a window are painted in one go, and this waits until they are.
  if (!paint_coming_) {
    paint_coming_ = true;
    QTimer::singleShot(0, this, [this] {
      paint_coming_ = false;
      painted_ = Now();
      if (LooksChanged()) answered_ = painted_;
      const Moment looked = Now();
      looking_.time += looked.time - painted_.time;
      looking_.work += looked.work - painted_.work;
    });
  }
  return false;
}
