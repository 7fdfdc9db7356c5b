#include "desktop/paper_view.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/rich_text_layout.h"
#include "desktop/style.h"

namespace brindlepage {

namespace {

constexpr int kSmallestZoom = 30;
constexpr int kLargestZoom = 400;
constexpr int kNotch = 120;        // of a mouse wheel
constexpr int kDragInterval = 40;  // milliseconds

// Dots of the layout.
constexpr double kPaperMargin = 0.5 * RichTextLayout::kDotsPerInch;
constexpr double kLeastMargin = kPaperMargin / 3;
constexpr int kGround = 10;  // pixels around the sheet
constexpr int kCaretWidth = 4;
constexpr int kCaretHeight = 48;  // where there is no line yet

}  // namespace

PaperView::PaperView(QWidget* parent) : QGraphicsView(parent) {
  setFrameShape(QFrame::NoFrame);
  setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  setResizeAnchor(QGraphicsView::NoAnchor);
  setBackgroundRole(QPalette::Base);
  viewport()->setCursor(Qt::IBeamCursor);
  // The paper and its ground cover it: nothing has to be painted under them.
  viewport()->setAutoFillBackground(false);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  scene_.setItemIndexMethod(QGraphicsScene::NoIndex);
  scene_.setStickyFocus(true);
  setScene(&scene_);
}

void PaperView::SetText(QGraphicsTextItem* text) {
  text_ = text;
  scene_.addItem(text);
  scene_.setFocusItem(text);
  QAbstractTextDocumentLayout* layout = text->document()->documentLayout();
  layout->setProperty("cursorWidth", kCaretWidth);
  // The item takes all the room that a text can need, once and for all. Otherwise it would be
  // painted anew with each step in which a long text is laid out, and no further than that.
  emit layout->documentSizeChanged(RichTextLayout::kPage);
  disconnect(layout, &QAbstractTextDocumentLayout::documentSizeChanged, nullptr, nullptr);
  connect(layout, &QAbstractTextDocumentLayout::documentSizeChanged, this, &PaperView::LaidOut);
  LaidOut(text->document()->size());
}

void PaperView::DeleteText() {
  disconnect(text_->document()->documentLayout(), nullptr, this, nullptr);
  delete std::exchange(text_, nullptr);
}

double PaperView::PixelsPerDot() const {
  return logicalDpiX() * zoom_ / 100.0 / RichTextLayout::kDotsPerInch;
}

QRectF PaperView::CaretRect(const QTextCursor& cursor) const {
  const QTextBlock block = cursor.block();
  // Lays it out if that has not come to it yet.
  const QPointF origin = document().documentLayout()->blockBoundingRect(block).topLeft();
  const QTextLayout& layout = *block.layout();
  const QTextLine line = layout.lineForTextPosition(cursor.positionInBlock());
  if (!line.isValid()) return {origin, QSizeF(kCaretWidth, kCaretHeight)};
  const QPointF place(line.cursorToX(cursor.positionInBlock()), line.y());
  return {origin + place, QSizeF(kCaretWidth, line.height())};
}

void PaperView::Zoom(int percent) {
  percent = std::clamp(percent, kSmallestZoom, kLargestZoom);
  if (percent == zoom_) return;
  zoom_ = percent;
  PlaceSheet();
}

// The rest of a long document may still have to be laid out, but never what is in the window.
void PaperView::LaidOut(const QSizeF& so_far) {
  const double bottom = mapToScene(viewport()->rect()).boundingRect().bottom();
  const int shown_end = document().documentLayout()->hitTest(
      QPointF(RichTextLayout::kColumnWidth, bottom), Qt::FuzzyHit);
  const bool ends_there = shown_end >= document().characterCount() - 1;
  const double height = ends_there ? document().size().height() : std::max(so_far.height(), bottom);
  const double height_before = std::exchange(text_height_, height);
  PlaceSheet();
  // A caret that went to what was not laid out could not be scrolled to.
  const QTextCursor caret = Caret();
  if (caret.isNull() || caret.hasSelection() || caret.atStart()) return;
  if (CaretRect(caret).bottom() > height_before) ScrollTo(caret);
}

// The sheet is as high as its text, or as the window when that is more; its margins give way in a
// narrow window before the column has to be scrolled.
void PaperView::PlaceSheet() {
  const double scale = PixelsPerDot();
  const double ground = kGround / scale;
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  const double width = (this->width() - bar) / scale - 2 * ground;
  const double height = (this->height() - 1) / scale - 2 * ground;
  const double margin =
      std::clamp((width - RichTextLayout::kColumnWidth) / 2, kLeastMargin, kPaperMargin);
  const QRectF paper(-margin, -kPaperMargin, RichTextLayout::kColumnWidth + 2 * margin,
                     std::max(text_height_ + 2 * kPaperMargin, std::floor(height)));
  const QRectF before = std::exchange(paper_, paper);
  QScrollBar& down = *verticalScrollBar();
  const bool at_top = down.value() == down.minimum();
  setTransform(QTransform::fromScale(scale, scale));
  // Told, as the library would find out when it has painted once.
  const bool fits = paper.width() <= width;
  setHorizontalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
  setSceneRect(paper_.adjusted(-ground, -ground, ground, ground));
  if (at_top) down.setValue(down.minimum());
  const QRectF window = mapToScene(viewport()->rect()).boundingRect();
  if (paper.intersected(window) != before.intersected(window)) viewport()->update();
}

void PaperView::ScrollTo(const QTextCursor& cursor) {
  ensureVisible(CaretRect(cursor), 0, kGround);
}

void PaperView::ScrollToTop() {
  horizontalScrollBar()->setValue(horizontalScrollBar()->minimum());
  verticalScrollBar()->setValue(verticalScrollBar()->minimum());
}

// The point of the column that is nearest, so that a click beside the text is one into it.
QPoint PaperView::IntoColumn(const QPoint& point) const {
  // By a pixel, since the point is rounded to one.
  const double pixel = 1 / PixelsPerDot();
  const QRectF column = QRectF(0, 0, RichTextLayout::kColumnWidth, text_height_)
                            .adjusted(pixel, pixel, -pixel, -pixel);
  const QPointF from = mapToScene(point);
  const QPointF inside(std::clamp(from.x(), column.left(), column.right()),
                       std::clamp(from.y(), column.top(), column.bottom()));
  return mapFromScene(inside);
}

QMouseEvent PaperView::InsideColumn(const QMouseEvent& event) const {
  const QPoint point = IntoColumn(event.pos());
  return QMouseEvent(event.type(), point, viewport()->mapToGlobal(point), event.button(),
                     event.buttons(), event.modifiers());
}

void PaperView::mousePressEvent(QMouseEvent* event) {
  QMouseEvent inside = InsideColumn(*event);
  QGraphicsView::mousePressEvent(&inside);
}

void PaperView::mouseDoubleClickEvent(QMouseEvent* event) {
  QMouseEvent inside = InsideColumn(*event);
  QGraphicsView::mouseDoubleClickEvent(&inside);
}

// A selection that is drawn beyond the edge scrolls on.
void PaperView::mouseMoveEvent(QMouseEvent* event) {
  QGraphicsView::mouseMoveEvent(event);
  drag_point_ = event->pos();
  const bool outside =
      event->buttons().testFlag(Qt::LeftButton) && !viewport()->rect().contains(drag_point_);
  if (!outside) {
    drag_timer_.stop();
  } else if (!drag_timer_.isActive()) {
    drag_timer_.start(kDragInterval, this);
  }
}

void PaperView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != drag_timer_.timerId()) return QGraphicsView::timerEvent(event);
  const auto beyond = [](int at, int end) { return std::min(at, 0) + std::max(at - end, 0); };
  QScrollBar& across = *horizontalScrollBar();
  QScrollBar& down = *verticalScrollBar();
  across.setValue(across.value() + beyond(drag_point_.x(), viewport()->width()) / 2);
  down.setValue(down.value() + beyond(drag_point_.y(), viewport()->height()) / 2);
  QMouseEvent move(QEvent::MouseMove, drag_point_, viewport()->mapToGlobal(drag_point_),
                   Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QGraphicsView::mouseMoveEvent(&move);
}

void PaperView::mouseReleaseEvent(QMouseEvent* event) {
  drag_timer_.stop();
  QGraphicsView::mouseReleaseEvent(event);
}

void PaperView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QGraphicsView::wheelEvent(event);
  wheel_turned_ += event->angleDelta().y();
  Zoom(zoom_ + 10 * (wheel_turned_ / kNotch));
  wheel_turned_ %= kNotch;
  event->accept();
}

// A scene counts what makes it active, and loses count when a hidden page's sheet is hidden.
bool PaperView::viewportEvent(QEvent* event) {
  const auto type = event->type();
  const bool of_window = type == QEvent::WindowActivate || type == QEvent::WindowDeactivate;
  const bool counted = of_window || type == QEvent::Show || type == QEvent::Hide;
  if (!counted) return QGraphicsView::viewportEvent(event);
  const bool active = isVisible() && isActiveWindow();
  QEvent change(active ? QEvent::WindowActivate : QEvent::WindowDeactivate);
  if (active != scene_.isActive()) QApplication::sendEvent(&scene_, &change);
  return QAbstractScrollArea::viewportEvent(event);
}

void PaperView::resizeEvent(QResizeEvent* event) {
  QGraphicsView::resizeEvent(event);
  PlaceSheet();
}

void PaperView::drawBackground(QPainter* painter, const QRectF& exposed) {
  painter->fillRect(exposed, palette::kPaperShade);
  painter->fillRect(paper_.intersected(exposed), Qt::white);
  painter->setPen(QPen(palette::kPale, 0));
  painter->drawRect(paper_);
}

}  // namespace brindlepage
