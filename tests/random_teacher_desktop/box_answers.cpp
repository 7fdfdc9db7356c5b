#include "tests/random_teacher_desktop/box_answers.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QTest>

#include "desktop/boxes.h"
#include "desktop/text.h"
#include "tests/random_teacher_desktop/widget_deeds.h"
#include "toolkit/runtime.h"

namespace brindlepage {

namespace {

BoxAnswer AnswerOf(const QString& button) {
  return button == "Yes"      ? BoxAnswer::Yes
         : button == "No"     ? BoxAnswer::No
         : button == "Cancel" ? BoxAnswer::Cancel
                              : BoxAnswer::Ok;
}

}  // namespace

BoxAnswers::BoxAnswers(Dice& dice, Listener listener)
    : dice_(dice), listener_(std::move(listener)) {
  constexpr int kLook = 4;  // milliseconds
  QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
  timer_.start(kLook);
}

void BoxAnswers::Look() {
  auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (box == nullptr || dice_.OneIn(4)) return;
  if (dynamic_cast<LineBox*>(box) != nullptr) return AnswerLine(*box);
  if (dynamic_cast<ChoiceBox*>(box) != nullptr) return AnswerChoice(*box);
  if (qobject_cast<QPrintDialog*>(box) != nullptr) return AnswerPrint(*box);
  // A file dialog leads out of the teacher's folder.
  box->reject();
}

void BoxAnswers::AnswerLine(QDialog& box) {
  auto* line = box.findChild<QLineEdit*>();
  if (dice_.OneIn(2)) {
    line->selectAll();
    WidgetDeeds::TypeText(*line, dice_.Text());
  }
  QTest::mouseClick(box.findChild<QPushButton*>(dice_.OneIn(4) ? "Cancel" : "OK"), Qt::LeftButton);
}

// The first answer is the likeliest, the last is what the Escape key gives.
void BoxAnswers::AnswerChoice(QDialog& box) {
  const auto buttons = box.findChildren<QPushButton*>();
  ReadFault(box.findChild<QLabel*>("Text")->text());
  const bool waits = buttons.front()->objectName() == "Wait";
  if (waits) fault_ = "not responding";
  const bool escapes = !waits && dice_.OneIn(10);
  QPushButton* button = escapes || waits ? buttons.back()
                        : dice_.OneIn(2) ? buttons.front()
                                         : buttons[dice_.Below(int(buttons.size()))];
  listener_(FromQString(box.windowTitle()), AnswerOf(button->objectName()));
  if (escapes) {
    QTest::keyClick(&box, Qt::Key_Escape);
  } else {
    QTest::mouseClick(button, Qt::LeftButton);
  }
}

void BoxAnswers::AnswerPrint(QDialog& box) {
  auto* buttons = box.findChild<QDialogButtonBox*>();
  auto* print = buttons == nullptr ? nullptr : buttons->button(QDialogButtonBox::Ok);
  if (print == nullptr || !print->isEnabled() || dice_.OneIn(2)) return box.reject();
  QTest::mouseClick(print, Qt::LeftButton);
}

// "Run-time error '53':\n\nFile not found"
void BoxAnswers::ReadFault(const QString& text) {
  if (!text.startsWith("Run-time error '")) return;
  const QString number = text.section('\'', 1, 1);
  fault_ = ("error " + number + " \"" + text.section("\n\n", 1) + "\"").toStdString();
}

}  // namespace brindlepage
