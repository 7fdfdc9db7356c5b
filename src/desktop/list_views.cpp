#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <QtMath>

#include "desktop/control_views.h"
#include "desktop/list_view.h"
#include "desktop/text.h"

namespace brindlepage {

namespace {

class ListBoxView : public ViewOf<ListBox> {
 public:
  ListBoxView(ListBox& list_box, const ViewSetting& setting)
      : ViewOf(setting.loop, list_box, new ListView(setting.parent)) {
    list().setModel(&rows_);
    list().on_click = [this](int row) { Act([row](ListBox& box) { Click(box, row); }); };
    list().on_double_click = [this](int row) {
      Act([row](ListBox& box) {
        Click(box, row);
        box.UserDoubleClick();
      });
    };
    list().on_key = [this](Key key) { Act([key](ListBox& box) { box.Press(key); }); };
    list().on_search = [this](int row) { Act([row](ListBox& box) { box.MoveByKey(row); }); };
    if (dynamic_cast<DirListBox*>(&list_box) != nullptr) {
      list().on_enter = [this] { Act([](ListBox& box) { box.UserDoubleClick(); }); };
    }
  }

 protected:
  void SyncState() override {
    rows_.TakeOver(box());
    list().Select(box().ListIndex);
  }

 private:
  ListView& list() const { return static_cast<ListView&>(*widget()); }

  // Anywhere on a row of check boxes is a click on its box.
  static void Click(ListBox& box, int row) {
    if (box.style() == ListStyle::CheckBoxes && row >= 0) {
      box.ClickCheck(row);
    } else {
      box.ClickRow(row);
    }
  }

  ListRows rows_;
};

// Fills a combo box with the rows of a list when they have changed.
template <class List>
void SyncRows(QComboBox& combo, const List& list, QStringList& shown) {
  QStringList rows;
  for (int row = 0; row < list.ListCount(); ++row) rows << ToQString(list.List(row));
  if (rows == shown) return;
  shown = rows;
  combo.clear();
  combo.addItems(rows);
}

class DriveListView : public ViewOf<DriveListBox> {
 public:
  DriveListView(DriveListBox& drives, const ViewSetting& setting)
      : ViewOf(setting.loop, drives, new QComboBox(setting.parent)) {
    connect(&combo(), &QComboBox::activated, this,
            [this](int row) { Act([row](DriveListBox& box) { box.Move(box.List(row)); }); });
  }

 protected:
  void SyncState() override {
    SyncRows(combo(), box(), rows_);
    combo().setCurrentText(ToQString(box().Drive));
  }

 private:
  QComboBox& combo() const { return static_cast<QComboBox&>(*widget()); }

  QStringList rows_;
};

// One whose width the page tells. None of its rows is measured, which with many fonts takes long.
class SizedComboBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

  QSize sizeHint() const override {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QFontMetricsF font(fontMetrics());
    const QSize line(qCeil(font.averageCharWidth()), qCeil(font.height()) + 2);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, line, this);
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

class ComboBoxView : public ViewOf<ComboBox> {
 public:
  ComboBoxView(ComboBox& combo_box, const ViewSetting& setting)
      : ViewOf(setting.loop, combo_box, new SizedComboBox(setting.parent)) {
    // Which makes it editable, and unlike setEditable() does not make its list before it is opened.
    combo().setLineEdit(new QLineEdit(&combo()));
    combo().setInsertPolicy(QComboBox::NoInsert);
    combo().setMaxVisibleItems(18);
    combo().installEventFilter(this);
    connect(&combo(), &QComboBox::activated, this,
            [this](int row) { Act([row](ComboBox& box) { box.PickRow(row); }); });
    connect(combo().lineEdit(), &QLineEdit::returnPressed, this, [this] { Confirm(); });
    connect(combo().lineEdit(), &QLineEdit::editingFinished, this, [this] {
      // What was typed and not confirmed goes when the focus goes.
      if (control() != nullptr && !combo().hasFocus()) SyncText();
    });
  }

  bool eventFilter(QObject*, QEvent* event) override {
    // The mouse passes over here on its way: its wheel picks nothing.
    if (event->type() == QEvent::Wheel) return true;
    if (event->type() != QEvent::KeyPress) return false;
    if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
    if (control() == nullptr || combo().currentText() == ToQString(box().Text)) return false;
    SyncText();
    return true;
  }

 protected:
  void SyncState() override {
    SyncRows(combo(), box(), rows_);
    SyncText();
  }

 private:
  QComboBox& combo() const { return static_cast<QComboBox&>(*widget()); }

  void SyncText() {
    combo().setCurrentIndex(box().ListIndex);
    const QString text = ToQString(box().Text);
    if (combo().currentText() == text) return;
    combo().setEditText(text);
    combo().lineEdit()->setCursorPosition(0);
  }

  // A text of the list has been picked by Qt already.
  void Confirm() {
    const QString text = combo().currentText();
    if (combo().findText(text, Qt::MatchFixedString) >= 0) return;
    Act([&](ComboBox& box) { box.Type(text.toStdU32String()); });
  }

  QStringList rows_;
};

}  // namespace

std::unique_ptr<ControlView> MakeView(ListBox& list_box, const ViewSetting& setting) {
  return std::make_unique<ListBoxView>(list_box, setting);
}

std::unique_ptr<ControlView> MakeView(DriveListBox& drives, const ViewSetting& setting) {
  return std::make_unique<DriveListView>(drives, setting);
}

std::unique_ptr<ControlView> MakeView(ComboBox& combo_box, const ViewSetting& setting) {
  return std::make_unique<ComboBoxView>(combo_box, setting);
}

}  // namespace brindlepage
