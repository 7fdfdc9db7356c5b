#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>
#include <map>
#include <string>

// Measures how long a window takes to answer: from the click to the moment at which the last
// thing that it changed has been painted and the program rests. A message box is an answer too;
// what it waits for is the next click, on its first button.
class Stopwatch : public QObject {
 public:
  // Milliseconds, the best of all rounds.
  struct Time {
    double answer = 0;  // from the click to the last thing painted
    double work = 0;    // the processor's part of it, of all threads
  };
  // By the name of the click.
  using Times = std::map<std::string, Time>;

  Stopwatch();

  // Does the click and waits until nothing has been painted for `rest` milliseconds.
  void Measure(const std::string& name, const std::function<void()>& click, int rest);

  // In the order of the clicks' names.
  const Times& Best() const { return best_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Begin(const std::string& name);
  // Notes the answer if nothing has been painted for as long as that. Whether it did.
  bool Rests();
  void AnswerBox();
  void NotePainted();
  double Now() const { return static_cast<double>(clock_.nsecsElapsed()) / 1e6; }

  QElapsedTimer clock_;
  QTimer wake_;  // also inside a box
  std::string name_;
  double began_ = 0;
  double painted_ = 0;
  double work_began_ = 0;
  double work_painted_ = 0;
  int rest_ = 0;
  bool paint_coming_ = false;
  bool running_ = false;
  QObject* answered_box_ = nullptr;
  Times best_;
};
