#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QString>
#include <QStringList>

#include "toolkit/platform.h"

namespace brindlepage {

// A message with its answers, the first of which is the Enter key's.
class ChoiceBox : public QDialog {
 public:
  // Escape and closing the box give answer number `escape`, from 0.
  ChoiceBox(const QString& title, const QString& text, const QStringList& answers, int escape,
            QWidget* parent);

  int Ask();  // the answer's number

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int answer_;
};

BoxAnswer AskMessage(const QString& title, const QString& text, BoxButtons buttons,
                     QWidget* parent);

// Asks for a line of text that the code page has.
class LineBox : public QDialog {
 public:
  LineBox(const QString& title, const QString& prompt, const QString& text, QWidget* parent);

  QString Text() const { return line_->text(); }

 private:
  QLineEdit* line_;
};

}  // namespace brindlepage
