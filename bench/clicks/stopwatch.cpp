#include "bench/clicks/stopwatch.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QtTest/QTest>
#include <algorithm>
#include <ctime>

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
  NotePainted();
  began_ = painted_;
  work_began_ = work_painted_;
}

void Stopwatch::NotePainted() {
  painted_ = Now();
  work_painted_ = 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

bool Stopwatch::Rests() {
  if (!running_) return true;
  if (paint_coming_ || Now() - painted_ < rest_) return false;
  running_ = false;
  const Time time{painted_ - began_, work_painted_ - work_began_};
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

bool Stopwatch::eventFilter(QObject*, QEvent* event) {
  // All parts of a window are painted in one go, and this waits until they are.
  if (event->type() == QEvent::Paint && !paint_coming_) {
    paint_coming_ = true;
    QTimer::singleShot(0, this, [this] {
      paint_coming_ = false;
      NotePainted();
    });
  }
  return false;
}
