#pragma once

#include <QBasicTimer>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QTextCursor>

namespace brindlepage {

// A white sheet of paper with a text in a column of 7.5 inches, in a window that scrolls and zooms:
// as high as the text, or as the window when that is more. Points and sizes are dots of the text's
// layout, counted from the column's upper left corner, unless they are told to be pixels.
class PaperView : public QGraphicsView {
  Q_OBJECT

 public:
  explicit PaperView(QWidget* parent = nullptr);

  // As shown.
  const QTextDocument& document() const { return *text_->document(); }
  QTextCursor Caret() const { return text_->textCursor(); }

  // Per cent of the true size, 30 to 400.
  int Zoom() const { return zoom_; }
  void Zoom(int percent);

 protected:
  // Shows the text; called once, before anything else. The item's document must live until
  // DeleteText, and the item is deleted with that.
  void SetText(QGraphicsTextItem* text);
  void DeleteText();

  double PixelsPerDot() const;
  QRectF CaretRect(const QTextCursor& cursor) const;
  // The pixel of the window nearest to `point` that lies over the column.
  QPoint IntoColumn(const QPoint& point) const;
  void ScrollTo(const QTextCursor& cursor);
  void ScrollToTop();

  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void drawBackground(QPainter* painter, const QRectF& exposed) override;

 private:
  QMouseEvent InsideColumn(const QMouseEvent& event) const;
  void LaidOut(const QSizeF& so_far);
  void PlaceSheet();

  QGraphicsScene scene_;
  QGraphicsTextItem* text_ = nullptr;
  int zoom_ = 100;
  int wheel_turned_ = 0;
  double text_height_ = 0;
  QRectF paper_;
  QBasicTimer drag_timer_;
  QPoint drag_point_;  // pixels
};

}  // namespace brindlepage
