#pragma once

#include <QFrame>

class QLineEdit;

namespace brindlepage {

// A small bar over a corner of the text in which a teacher types what to look for. Enter finds
// the next place, Shift+Enter the one before, Escape closes the bar.
class RichTextFindBar : public QFrame {
  Q_OBJECT

 public:
  explicit RichTextFindBar(QWidget* parent);

  // Shows the bar, ready to type; a text stands there to begin with, if there is one.
  void Open(const QString& text);
  QString Text() const;
  // Tells by its colour that there is no such place.
  void ShowFound(bool found);

 signals:
  void Find(bool backward);
  // The text changed; the place found last may still fit.
  void FindAgain();
  void Closed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLineEdit* text_;
};

}  // namespace brindlepage
