#include "desktop/rich_text_view_sheet.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionGraphicsItem>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>
#include <utility>

#include "desktop/rich_text_selection.h"

namespace brindlepage {

namespace {

// Whether an event reaches no further than what the window shows. A sheet that opens gets these
// before it is painted.
bool StaysAtTop(const QEvent& event) {
  switch (event.type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
      return true;
    default:
      return false;
  }
}

}  // namespace

void RichTextView::Sheet::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                                QWidget* widget) {
  // What is seen comes first.
  if (view_.mirror_.HasRest()) QTimer::singleShot(0, &view_, &RichTextView::Mirror);
  if (textCursor().hasSelection() && !dragged_over_) return PaintSelected(*painter, *option);
  if (hasFocus() != focus_told_) QTimer::singleShot(0, this, &Sheet::TellFocus);
  QStyleOptionGraphicsItem plain = *option;
  plain.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);  // no frame
  QGraphicsTextItem::paint(painter, &plain, widget);
}

void RichTextView::Sheet::PaintSelected(QPainter& painter, const QStyleOptionGraphicsItem& option) {
  PaintSelection(painter, textCursor(), option.exposedRect,
                 view_.palette().color(QPalette::Highlight));
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, defaultTextColor());
  context.clip = option.exposedRect;
  document()->documentLayout()->draw(&painter, context);
}

// The focus shows in the caret alone, which a selection has none of. The library would paint all
// that is selected, and for that lay out a long document whole.
void RichTextView::Sheet::TellFocus() {
  if (textCursor().hasSelection() || hasFocus() == focus_told_) return;
  focus_told_ = hasFocus();
  QFocusEvent change(focus_told_ ? QEvent::FocusIn : QEvent::FocusOut);
  QGraphicsTextItem::sceneEvent(&change);
}

bool RichTextView::Sheet::sceneEvent(QEvent* event) {
  // What is dragged over the text has a caret of its own, which the library paints.
  if (event->type() == QEvent::GraphicsSceneDragEnter) dragged_over_ = true;
  if (event->type() == QEvent::GraphicsSceneDragLeave) dragged_over_ = false;
  if (event->type() == QEvent::GraphicsSceneDrop) dragged_over_ = false;
  const bool of_focus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
  if (of_focus && textCursor().hasSelection()) return true;
  if (of_focus) focus_told_ = event->type() == QEvent::FocusIn;
  if (view_.moving_caret_) return QGraphicsTextItem::sceneEvent(event);
  StaysAtTop(*event) ? view_.mirror_.ShowTop() : view_.mirror_.ShowBox();
  const QScopedValueRollback<bool> guard(view_.moving_caret_, true);
  const bool taken = QGraphicsTextItem::sceneEvent(event);
  view_.mirror_.TakeCaret();
  return taken;
}

void RichTextView::Sheet::keyPressEvent(QKeyEvent* event) {
  if (!view_.TypeText(event)) QGraphicsTextItem::keyPressEvent(event);
}

// --- Dragging, which the library would offer in its own words

void RichTextView::Sheet::mousePressEvent(QGraphicsSceneMouseEvent* event) {
  const auto selected = [this] {
    const QTextCursor cursor = textCursor();
    return std::pair(cursor.selectionStart(), cursor.selectionEnd());
  };
  const auto before = selected();
  QGraphicsTextItem::mousePressEvent(event);
  may_drag_ =
      event->button() == Qt::LeftButton && textCursor().hasSelection() && selected() == before;
}

void RichTextView::Sheet::mouseMoveEvent(QGraphicsSceneMouseEvent* event) {
  if (!may_drag_ || !event->buttons().testFlag(Qt::LeftButton)) {
    return QGraphicsTextItem::mouseMoveEvent(event);
  }
  const QPoint way = event->screenPos() - event->buttonDownScreenPos(Qt::LeftButton);
  if (way.manhattanLength() < QApplication::startDragDistance()) return;
  may_drag_ = false;
  view_.DragSelection();
}

void RichTextView::Sheet::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) {
  may_drag_ = false;
  QGraphicsTextItem::mouseDoubleClickEvent(event);
}

void RichTextView::Sheet::dropEvent(QGraphicsSceneDragDropEvent* event) {
  QGraphicsSceneDragDropEvent leave(QEvent::GraphicsSceneDragLeave);
  QGraphicsTextItem::dragLeaveEvent(&leave);  // takes the drop's caret away
  const bool own = event->source() == &view_ || event->source() == view_.viewport();
  const bool move = own && event->dropAction() == Qt::MoveAction;
  event->setDropAction(Qt::CopyAction);  // a move is done here, whole
  event->accept();
  view_.Drop(*event->mimeData(), event->pos(), own, move);
}

}  // namespace brindlepage
