#include "desktop/boxes.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <vector>

#include "desktop/mnemonics.h"
#include "desktop/text.h"
#include "toolkit/code_page.h"

namespace brindlepage {

namespace {

constexpr int kRoom = 24;  // pixels around a box's content

QLabel* WrappedText(const QString& text) {
  constexpr int kNarrowest = 300;
  constexpr int kWidest = 440;
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setObjectName("Text");
  const int width = label->fontMetrics().size(Qt::TextExpandTabs, text).width() + 2;
  label->setFixedWidth(qBound(kNarrowest, width, kWidest));
  return label;
}

void PrepareBox(QDialog& box, const QString& title) {
  box.setWindowTitle(title);
  box.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  box.setModal(true);
}

QPushButton* MainButton(const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setDefault(true);
  button->setProperty("main", true);
  return button;
}

// Takes no character that the code page lacks.
class CodePageLine : public QLineEdit {
 public:
  explicit CodePageLine(const QString& text) : QLineEdit(text) {
    connect(this, &QLineEdit::textEdited, this, [this] { RefuseForeign(); });
  }

 private:
  void RefuseForeign() {
    const auto known = [](const QString& part) {
      return ToQString(code_page::KeepTypeable(part.toStdU32String()));
    };
    const QString kept = known(text());
    if (kept == text()) return;
    const auto caret = known(text().left(cursorPosition())).size();
    setText(kept);
    setCursorPosition(static_cast<int>(caret));
    QApplication::beep();
  }
};

}  // namespace

ChoiceBox::ChoiceBox(const QString& title, const QString& text, const QStringList& answers,
                     int escape, QWidget* parent)
    : QDialog(parent), answer_(escape) {
  PrepareBox(*this, title);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kRoom, kRoom, kRoom, kRoom - 4);
  column->setSpacing(kRoom);
  column->addWidget(WrappedText(text));

  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  row->addStretch(1);
  Mnemonics letters;
  for (int i = 0; i < answers.size(); ++i) {
    const QString caption = letters.Assign(FromQString(answers[i]));
    auto* button = i == 0 ? MainButton(caption) : new QPushButton(caption);
    button->setObjectName(answers[i]);
    connect(button, &QPushButton::clicked, this, [this, i] {
      answer_ = i;
      accept();
    });
    row->addWidget(button);
  }
  column->addLayout(row);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

// In a question a letter needs no Alt.
void ChoiceBox::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::ShiftModifier) {
    const QKeySequence letter(Qt::ALT | static_cast<Qt::Key>(event->key()));
    for (QPushButton* button : findChildren<QPushButton*>()) {
      if (button->shortcut() == letter) return button->click();
    }
  }
  QDialog::keyPressEvent(event);
}

int ChoiceBox::Ask() {
  exec();
  return answer_;
}

BoxAnswer AskMessage(const QString& title, const QString& text, BoxButtons buttons,
                     QWidget* parent) {
  struct Choice {
    const char* caption;
    BoxAnswer answer;
  };
  std::vector<Choice> choices;
  switch (buttons) {
    case BoxButtons::Ok:
      choices = {{"OK", BoxAnswer::Ok}};
      break;
    case BoxButtons::YesNo:
      choices = {{"Yes", BoxAnswer::Yes}, {"No", BoxAnswer::No}};
      break;
    case BoxButtons::YesNoCancel:
      choices = {{"Yes", BoxAnswer::Yes}, {"No", BoxAnswer::No}, {"Cancel", BoxAnswer::Cancel}};
      break;
  }
  QStringList captions;
  for (const Choice& choice : choices) captions << choice.caption;
  ChoiceBox box(title, text, captions, static_cast<int>(choices.size()) - 1, parent);
  return choices[static_cast<std::size_t>(box.Ask())].answer;
}

LineBox::LineBox(const QString& title, const QString& prompt, const QString& text, QWidget* parent)
    : QDialog(parent), line_(new CodePageLine(text)) {
  PrepareBox(*this, title);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kRoom, kRoom, kRoom, kRoom - 4);
  column->setSpacing(kRoom / 2);
  auto* label = WrappedText(prompt);
  label->setFixedWidth(qMax(label->width(), 380));
  column->addWidget(label);
  line_->selectAll();
  column->addWidget(line_);
  column->addSpacing(kRoom / 2);

  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  row->addStretch(1);
  auto* ok = MainButton("&OK");
  ok->setObjectName("OK");
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  row->addWidget(ok);
  auto* cancel = new QPushButton("&Cancel");
  cancel->setObjectName("Cancel");
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  row->addWidget(cancel);
  column->addLayout(row);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  line_->setFocus();
}

}  // namespace brindlepage
