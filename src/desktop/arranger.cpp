#include "desktop/arranger.h"

#include <QBoxLayout>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include "desktop/large_button.h"

namespace brindlepage {

namespace {

using Kind = Arrangement::Kind;

// Pixels.
constexpr int kSpacing = 12;
constexpr int kGap = 14;

// The room for so many characters, and for what surrounds them.
void MakeWide(QWidget& widget, int characters) {
  constexpr int kAround = 36;
  widget.setFixedWidth(widget.fontMetrics().averageCharWidth() * characters + kAround);
}

class Arranger {
 public:
  explicit Arranger(const WidgetOf& widget_of) : widget_of_(widget_of) {}

  QLayout* LayOutGroup(const Arrangement& group) {
    if (group.kind == Kind::Grid) return LayOutGrid(group);
    const bool row = group.kind == Kind::Row;
    auto* box = new QBoxLayout(row ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    box->setSpacing(kSpacing);
    box->setContentsMargins(0, 0, 0, 0);
    for (const Arrangement& part : group.parts) AddTo(*box, part);
    return box;
  }

 private:
  QLayout* LayOutGrid(const Arrangement& group) {
    auto* grid = new QGridLayout;
    grid->setSpacing(kSpacing);
    grid->setContentsMargins(0, 0, 0, 0);
    const int columns = qMax(1, group.columns);
    for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
    int cell = 0;
    for (const Arrangement& part : group.parts) {
      const int row = cell / columns;
      const int column = cell % columns;
      ++cell;
      if (QWidget* widget = WidgetFor(part)) {
        grid->addWidget(widget, row, column);
      } else if (!part.parts.empty()) {
        grid->addLayout(LayOutGroup(part), row, column);
      }
    }
    return grid;
  }

  // Of a control or a frame; null of everything else.
  QWidget* WidgetFor(const Arrangement& part) {
    if (part.control == nullptr) return nullptr;
    QWidget* widget = widget_of_(*part.control);
    if (part.kind == Kind::Framed) widget->setLayout(LayOutGroup(part.parts.front()));
    if (part.width > 0) MakeWide(*widget, part.width);
    return widget;
  }

  void AddTo(QBoxLayout& box, const Arrangement& part) {
    const bool column = box.direction() == QBoxLayout::TopToBottom;
    switch (part.kind) {
      case Kind::Gap:
        return box.addSpacing(kGap);
      case Kind::Spring:
        if (column) box.addSpacing(kGap);  // at least
        return box.addStretch(part.weight);
      case Kind::Control:
      case Kind::Framed: {
        QWidget* widget = WidgetFor(part);
        const bool keeps_width = column && (part.width > 0 || IsPlainButton(*widget));
        box.addWidget(widget, part.weight, keeps_width ? Qt::AlignLeft : Qt::Alignment());
        return;
      }
      default:
        return box.addLayout(LayOutGroup(part), part.weight);
    }
  }

  static bool IsPlainButton(const QWidget& widget) {
    return qobject_cast<const QPushButton*>(&widget) != nullptr &&
           dynamic_cast<const LargeButton*>(&widget) == nullptr;
  }

  const WidgetOf& widget_of_;
};

}  // namespace

bool IsGroup(const Arrangement& part) {
  return part.kind == Kind::Column || part.kind == Kind::Row || part.kind == Kind::Grid;
}

QLayout* LayOut(const Arrangement& group, const WidgetOf& widget_of) {
  return Arranger(widget_of).LayOutGroup(group);
}

bool WantsRoom(const Arrangement& part) {
  // What grows in a row grows in width.
  const bool row = part.kind == Kind::Row;
  for (const Arrangement& inside : part.parts) {
    if (inside.kind == Kind::Spring) continue;
    if ((inside.weight > 0 && !row) || WantsRoom(inside)) return true;
  }
  return false;
}

void ForEachControl(const Arrangement& part, const std::function<void(Control&)>& visit) {
  if (part.control != nullptr) visit(*part.control);
  for (const Arrangement& inside : part.parts) ForEachControl(inside, visit);
}

}  // namespace brindlepage
