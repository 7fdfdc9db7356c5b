#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace brindlepage {

// A teacher who double-clicks a button means that one button. The second click does not reach the
// screen, the box or the button that the first one brought under the mouse.
class DoubleClicks : public QObject {
 public:
  // Watches the whole application.
  explicit DoubleClicks(QObject* parent);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QWidget> pressed_;  // what took the last press
};

}  // namespace brindlepage
