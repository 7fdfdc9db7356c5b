#include "desktop/list_view.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QDateTime>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QtMath>
#include <algorithm>
#include <optional>

#include "desktop/style.h"
#include "desktop/text.h"

namespace brindlepage {

namespace {

// Pixels.
constexpr int kAboveText = 5;
constexpr int kBesideText = 11;
constexpr int kMark = 20;
constexpr int kBesideMark = 6;
constexpr int kRound = 5;

// Draws rows with one layout of each text; the library's own delegate makes five. What is too long
// is cut, and shown whole while the mouse rests on it.
class RowDelegate : public QAbstractItemDelegate {
 public:
  using QAbstractItemDelegate::QAbstractItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int text = qCeil(QFontMetricsF(option.font).height());
    return {0, (HasMark(index) ? std::max(text, kMark) : text) + 2 * kAboveText};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    DrawGround(*painter, option);
    if (HasMark(index)) DrawMark(*painter, option, index);
    const QRect room = TextRoom(option.rect, index);
    const QFontMetrics& font = option.fontMetrics;
    const int baseline = room.top() + (room.height() - font.height()) / 2 + font.ascent();
    painter->setPen(option.state & QStyle::State_Enabled ? palette::kInk : palette::kFaded);
    painter->drawText(QPoint(room.left(), baseline),
                      font.elidedText(Text(index), option.textElideMode, room.width()));
  }

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const bool is_cut =
        event->type() == QEvent::ToolTip && index.isValid() &&
        option.fontMetrics.horizontalAdvance(Text(index)) > TextRoom(option.rect, index).width();
    // As rich text it is wrapped.
    const QString whole = is_cut ? "<p>" + Text(index).toHtmlEscaped() + "</p>" : QString();
    QToolTip::showText(event->globalPos(), whole, view);
    return true;
  }

 private:
  static QString Text(const QModelIndex& index) { return index.data(Qt::DisplayRole).toString(); }
  static bool HasMark(const QModelIndex& index) { return index.data(Qt::CheckStateRole).isValid(); }
  static QRect TextRoom(const QRect& row, const QModelIndex& index) {
    const int mark = HasMark(index) ? kMark + kBesideMark : 0;
    return row.adjusted(kBesideText + mark, 0, -kBesideText, 0);
  }

  static void DrawGround(QPainter& painter, const QStyleOptionViewItem& option) {
    const bool selected = option.state & QStyle::State_Selected;
    const bool hot = option.state & QStyle::State_MouseOver;
    if (!selected && !hot) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(selected ? palette::kMist : palette::kPaper);
    painter.drawRoundedRect(option.rect, kRound, kRound);
    painter.restore();
  }

  static void DrawMark(QPainter& painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) {
    QStyleOptionViewItem mark = option;
    mark.rect = QRect(0, 0, kMark, kMark);
    mark.rect.moveCenter(option.rect.center());
    mark.rect.moveLeft(option.rect.left() + kBesideText);
    mark.state.setFlag(QStyle::State_HasFocus, false);
    const bool on = index.data(Qt::CheckStateRole) == Qt::Checked;
    mark.state |= on ? QStyle::State_On : QStyle::State_Off;
    option.widget->style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &mark, &painter,
                                          option.widget);
  }
};

}  // namespace

void ListRows::TakeOver(const ListBox& box) {
  std::vector<std::string> texts;
  std::vector<bool> marks;
  texts.reserve(static_cast<std::size_t>(box.ListCount()));
  for (int row = 0; row < box.ListCount(); ++row) texts.push_back(box.List(row));
  with_marks_ = box.style() == ListStyle::CheckBoxes;
  for (int row = 0; with_marks_ && row < box.ListCount(); ++row) {
    marks.push_back(box.Selected(row));
  }

  if (texts != texts_) {
    beginResetModel();
    texts_ = std::move(texts);
    marks_ = std::move(marks);
    endResetModel();
  } else if (marks != marks_) {
    marks_ = std::move(marks);
    emit dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
  }
}

int ListRows::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(texts_.size());
}

QVariant ListRows::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const auto row = static_cast<std::size_t>(index.row());
  if (role == Qt::DisplayRole) return ToQString(texts_[row]);
  if (role == Qt::CheckStateRole && with_marks_) {
    return marks_[row] ? Qt::Checked : Qt::Unchecked;
  }
  return {};
}

ListView::ListView(QWidget* parent) : QListView(parent) {
  setItemDelegate(new RowDelegate(this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setVerticalScrollMode(ScrollPerPixel);
  setMouseTracking(true);
}

void ListView::Select(int row) {
  const QModelIndex index = row < 0 ? QModelIndex() : model()->index(row, 0);
  if (index == currentIndex() && selectionModel()->isSelected(index) == index.isValid()) return;
  if (!index.isValid()) selectionModel()->clear();
  setCurrentIndex(index);
}

void ListView::keyboardSearch(const QString& typed) {
  const qint64 now = QDateTime::currentMSecsSinceEpoch();
  const bool goes_on = now - searched_at_ < QApplication::keyboardInputInterval();
  searched_ = goes_on ? searched_ + typed : typed;
  searched_at_ = now;

  const int rows = model()->rowCount();
  const int first = currentIndex().row() + (goes_on ? 0 : 1);
  for (int i = 0; i < rows; ++i) {
    const int row = (qMax(first, 0) + i) % rows;
    const QString text = model()->index(row, 0).data().toString();
    if (!text.startsWith(searched_, Qt::CaseInsensitive)) continue;
    if (row != currentIndex().row() && on_search) on_search(row);
    return;
  }
}

void ListView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && on_click) on_click(indexAt(event->pos()).row());
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  // Without a button, for the row under the mouse; a drag selects nothing.
  if (event->buttons() == Qt::NoButton) QListView::mouseMoveEvent(event);
}

void ListView::mouseReleaseEvent(QMouseEvent*) {}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && on_double_click) {
    on_double_click(indexAt(event->pos()).row());
  }
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const auto key = [&]() -> std::optional<Key> {
    switch (event->key()) {
      case Qt::Key_Up:
        return Key::Up;
      case Qt::Key_Down:
        return Key::Down;
      case Qt::Key_Home:
        return Key::Home;
      case Qt::Key_End:
        return Key::End;
      case Qt::Key_PageUp:
        return Key::PageUp;
      case Qt::Key_PageDown:
        return Key::PageDown;
      case Qt::Key_Space:
        return Key::Space;
      default:
        return std::nullopt;
    }
  }();
  if (key) {
    if (on_key) on_key(*key);
    return;
  }
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && on_enter) return on_enter();
  const bool types = !event->text().isEmpty() && event->text()[0].isPrint() &&
                     !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (types) return keyboardSearch(event->text());
  event->ignore();
}

}  // namespace brindlepage
