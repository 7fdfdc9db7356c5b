#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStringList>
#include <functional>
#include <string>
#include <vector>

#include "toolkit/keys.h"
#include "toolkit/lists.h"

namespace brindlepage {

// The rows of a list box as they were when they were last taken over.
class ListRows : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  // Takes the rows over and tells the view what changed of them, if anything did.
  void TakeOver(const ListBox& box);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  bool with_marks_ = false;
  std::vector<std::string> texts_;
  std::vector<bool> marks_;
};

// A list that does nothing itself: what the teacher does is told, and the rows and the selection
// follow the list box.
class ListView : public QListView {
 public:
  explicit ListView(QWidget* parent);

  // Rows from 0, -1 for the empty part.
  std::function<void(int row)> on_click;
  std::function<void(int row)> on_double_click;
  std::function<void(Key key)> on_key;
  std::function<void()> on_enter;          // unset: the key is the form's
  std::function<void(int row)> on_search;  // the row that begins like what was typed

  void Select(int row);

  QSize sizeHint() const override { return {320, 240}; }
  QSize minimumSizeHint() const override { return {120, 90}; }

  void keyboardSearch(const QString& typed) override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString searched_;
  qint64 searched_at_ = 0;
};

}  // namespace brindlepage
