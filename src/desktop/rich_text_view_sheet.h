#pragma once

#include <QGraphicsTextItem>

#include "desktop/rich_text_view.h"

namespace brindlepage {

// The text on the scene. Before an event the box's changes are shown, after it the caret is taken
// over, so that nothing else has to watch for it. An event within another, as when what the caret
// scrolls passes under the mouse, leaves both to that one.
class RichTextView::Sheet : public QGraphicsTextItem {
 public:
  explicit Sheet(RichTextView& view) : view_(view) {}

  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

 protected:
  bool sceneEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
  void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
  void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
  void dropEvent(QGraphicsSceneDragDropEvent* event) override;

 private:
  void PaintSelected(QPainter& painter, const QStyleOptionGraphicsItem& option);
  void TellFocus();

  RichTextView& view_;
  bool dragged_over_ = false;
  bool focus_told_ = false;  // to the library's text
  bool may_drag_ = false;    // the mouse was pressed on the selection
};

}  // namespace brindlepage
