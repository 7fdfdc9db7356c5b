#include "desktop/list_view.h"

#include <QApplication>
#include <QDateTime>
#include <QKeyEvent>
#include <QMouseEvent>
#include <optional>

#include "desktop/text.h"

namespace brindlepage {

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
