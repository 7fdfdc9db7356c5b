#include "desktop/rich_text_find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPalette>
#include <QToolButton>

namespace brindlepage {

namespace {

QToolButton* AddButton(QFrame* bar, const QString& caption, const QString& tip) {
  auto* button = new QToolButton(bar);
  button->setText(caption);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setAutoRaise(true);
  bar->layout()->addWidget(button);
  return button;
}

}  // namespace

RichTextFindBar::RichTextFindBar(QWidget* parent) : QFrame(parent), text_(new QLineEdit(this)) {
  setObjectName("RichTextFindBar");
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setCursor(Qt::ArrowCursor);

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 4, 4, 4);
  row->setSpacing(2);
  text_->setPlaceholderText(tr("Find"));
  text_->setAccessibleName(tr("Find"));
  text_->setClearButtonEnabled(true);
  text_->setMinimumWidth(180);
  row->addWidget(text_);
  auto* previous = AddButton(this, QString(QChar(0x25B2)), tr("Find previous"));
  auto* next = AddButton(this, QString(QChar(0x25BC)), tr("Find next"));
  auto* close = AddButton(this, QString(QChar(0x2715)), tr("Close"));

  connect(text_, &QLineEdit::textEdited, this, &RichTextFindBar::FindAgain);
  connect(previous, &QToolButton::clicked, this, [this] { emit Find(true); });
  connect(next, &QToolButton::clicked, this, [this] { emit Find(false); });
  connect(close, &QToolButton::clicked, this, &RichTextFindBar::Closed);
  hide();
}

void RichTextFindBar::Open(const QString& text) {
  if (!text.isEmpty()) text_->setText(text);
  ShowFound(true);
  show();
  raise();
  text_->selectAll();
  text_->setFocus(Qt::ShortcutFocusReason);
}

QString RichTextFindBar::Text() const { return text_->text(); }

void RichTextFindBar::ShowFound(bool found) {
  QPalette colours = palette();
  if (!found) {
    colours.setColor(QPalette::Base, QColor(0xFB, 0xE3, 0xDD));
    colours.setColor(QPalette::Text, QColor(0x7A, 0x1F, 0x12));
  }
  text_->setPalette(colours);
}

void RichTextFindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    emit Closed();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit Find(event->modifiers().testFlag(Qt::ShiftModifier));
  } else {
    QFrame::keyPressEvent(event);
  }
  event->accept();
}

}  // namespace brindlepage
