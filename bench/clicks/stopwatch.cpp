#include "bench/clicks/stopwatch.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QtTest/QTest>

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
  began_ = painted_ = Now();
}

bool Stopwatch::Rests() {
  if (!running_) return true;
  if (paint_coming_ || Now() - painted_ < rest_) return false;
  running_ = false;
  const double time = painted_ - began_;
  const auto known = best_.find(name_);
  if (known == best_.end()) {
    best_[name_] = time;
  } else {
    known->second = std::min(known->second, time);
  }
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

bool Stopwatch::eventFilter(QObject*, QEvent* event) {
  // All parts of a window are painted in one go, and this waits until they are.
  if (event->type() == QEvent::Paint && !paint_coming_) {
    paint_coming_ = true;
    QTimer::singleShot(0, this, [this] {
      paint_coming_ = false;
      painted_ = Now();
    });
  }
  return false;
}
