#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>
#include <functional>
#include <map>
#include <set>
#include <string>

// Measures how long a window takes to answer: from the click to the moment at which the last
// thing that it changed has been painted and the program rests. A painting that leaves every dot
// as it was changes nothing, and neither does a scroll bar that learns how long a document is. A
// message box is an answer too; what it waits for is the next click, on its first button. A file
// dialog has answered when it stands there; the folder that it then goes on reading may be large.
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
  // Milliseconds since the stopwatch was made, but for those in which it looked itself.
  struct Moment {
    double time = 0;
    double work = 0;  // of the processor
  };

  Moment Now() const;
  void Begin(const std::string& name);
  // Notes the answer if nothing has been painted for as long as that. Whether it did.
  bool Rests();
  void AnswerBox();
  // Whether a window that was painted looks different now.
  bool LooksChanged();

  QElapsedTimer clock_;
  QTimer wake_;  // also inside a box
  std::string name_;
  Moment began_;
  Moment answered_;
  Moment painted_;
  Moment looking_;  // how long it has looked
  int rest_ = 0;
  bool paint_coming_ = false;
  std::set<QWidget*> being_painted_;
  std::map<QWidget*, QImage> seen_;
  bool running_ = false;
  QObject* answered_box_ = nullptr;
  Times best_;
};
