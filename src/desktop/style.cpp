#include "desktop/style.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>

namespace brindlepage {

namespace {

class DesktopStyle : public QProxyStyle {
 public:
  DesktopStyle() : QProxyStyle("Fusion") {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_UnderlineShortcut) return alt_held_ ? 1 : 0;
    if (hint == SH_DialogButtonLayout) return 0;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    switch (metric) {
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
        return 20;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    switch (element) {
      case PE_IndicatorCheckBox:
      case PE_IndicatorItemViewItemCheck:
        return DrawCheckMark(*option, *painter);
      case PE_IndicatorRadioButton:
        return DrawOptionMark(*option, *painter);
      case PE_FrameFocusRect:
        return;
      default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void HoldAlt(bool held) {
    if (alt_held_ == held) return;
    alt_held_ = held;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      for (QWidget* child : window->findChildren<QWidget*>()) child->update();
    }
  }

 private:
  static QColor Edge(const QStyleOption& option) {
    if (!(option.state & State_Enabled)) return palette::kFaded;
    const bool lit = option.state & (State_HasFocus | State_MouseOver);
    return lit ? palette::kInk : palette::kSoftInk;
  }
  static QRectF Square(const QRect& room) {
    const double side = qMin(room.width(), room.height()) - 3;
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(room).center());
    return square;
  }

  static void DrawCheckMark(const QStyleOption& option, QPainter& painter) {
    const QRectF box = Square(option.rect);
    const bool on = option.state & State_On;
    const bool usable = option.state & State_Enabled;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Edge(option), option.state & State_HasFocus ? 2 : 1.4));
    painter.setBrush(!on ? palette::kSheet : usable ? palette::kInk : palette::kFaded);
    painter.drawRoundedRect(box, 4, 4);
    if (on) {
      painter.setPen(QPen(palette::kSheet, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      const auto at = [&](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
      };
      painter.drawPolyline(QPolygonF{at(0.23, 0.53), at(0.43, 0.73), at(0.78, 0.29)});
    }
    painter.restore();
  }

  static void DrawOptionMark(const QStyleOption& option, QPainter& painter) {
    const QRectF box = Square(option.rect);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Edge(option), option.state & State_HasFocus ? 2 : 1.4));
    painter.setBrush(palette::kSheet);
    painter.drawEllipse(box);
    if (option.state & State_On) {
      const double inset = box.width() * 0.27;
      painter.setPen(Qt::NoPen);
      painter.setBrush(option.state & State_Enabled ? palette::kInk : palette::kFaded);
      painter.drawEllipse(box.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
  }

  bool alt_held_ = false;
};

// Tells the style when Alt is held.
class AltWatcher : public QObject {
 public:
  AltWatcher(QApplication& application, DesktopStyle& style)
      : QObject(&application), style_(style) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt) style_.HoldAlt(true);
        break;
      case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt) style_.HoldAlt(false);
        break;
      case QEvent::ApplicationDeactivate:
        style_.HoldAlt(false);
        break;
      default:
        break;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  DesktopStyle& style_;
};

QPalette Colours() {
  QPalette colours;
  colours.setColor(QPalette::Window, palette::kPaper);
  colours.setColor(QPalette::WindowText, palette::kInk);
  colours.setColor(QPalette::Base, palette::kSheet);
  colours.setColor(QPalette::AlternateBase, palette::kPaper);
  colours.setColor(QPalette::Text, palette::kInk);
  colours.setColor(QPalette::PlaceholderText, palette::kSoftInk);
  colours.setColor(QPalette::Button, palette::kSheet);
  colours.setColor(QPalette::ButtonText, palette::kInk);
  colours.setColor(QPalette::BrightText, palette::kAccent);
  colours.setColor(QPalette::Highlight, palette::kMist);
  colours.setColor(QPalette::HighlightedText, palette::kInk);
  colours.setColor(QPalette::ToolTipBase, palette::kInk);
  colours.setColor(QPalette::ToolTipText, palette::kSheet);
  colours.setColor(QPalette::Link, palette::kSoftInk);
  colours.setColor(QPalette::Light, palette::kSheet);
  colours.setColor(QPalette::Midlight, palette::kPaper);
  colours.setColor(QPalette::Mid, palette::kPale);
  colours.setColor(QPalette::Dark, palette::kBrindle);
  colours.setColor(QPalette::Shadow, palette::kSoftInk);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role, palette::kFaded);
  }
  return colours;
}

// Colour names stand as @name and are put in below.
constexpr char kStyleSheet[] = R"(
QMenuBar { background: @sheet; border-bottom: 1px solid @pale; padding: 2px 6px; }
QMenuBar::item { padding: 5px 11px; border-radius: 5px; background: transparent; }
QMenuBar::item:selected { background: @mist; }
QMenu { background: @sheet; border: 1px solid @pale; padding: 5px; }
QMenu::item { padding: 7px 28px 7px 14px; border-radius: 5px; }
QMenu::item:selected { background: @mist; }
QToolTip { background: @ink; color: @sheet; border: none; padding: 5px 8px; }

#ToolStrip { background: @sheet; border-bottom: 1px solid @pale; }
#FontStrip { background: @paper; border-bottom: 1px solid @pale; }
#ToolStrip QToolButton {
  border: 2px solid transparent; border-radius: 8px; padding: 5px 8px; min-width: 56px;
}
#ToolStrip QToolButton:hover { background: @shade; }
#ToolStrip QToolButton:pressed { background: @mist; }
#ToolStrip QToolButton:focus { border-color: @softink; }

#Panel { background: rgba(255, 255, 255, 235); border: 1px solid @pale; border-radius: 14px; }

QLabel[look="heading"] { font-size: @headingpt; font-weight: 600; }
QLabel[look="note"] { color: @softink; }
QLabel[look="link"] { color: @accent; text-decoration: underline; padding: 2px; }
QLabel[look="link"]:focus { border: 1px dotted @softink; padding: 1px; }
QLabel[look="warning"] { color: @accent; font-weight: 600; }
QWidget[backdrop="true"] QLabel[look="heading"] { font-size: @titlept; font-weight: 700; }
QWidget[backdrop="true"] QLabel[look="note"] { font-size: @subtitlept; }
QLabel:disabled { color: @faded; }

QPushButton {
  background: @sheet; border: 1px solid @softink; border-radius: 7px;
  padding: 7px 20px; min-width: 84px; min-height: 20px;
}
QPushButton:hover { background: @paper; border-color: @ink; }
QPushButton:pressed { background: @mist; }
QPushButton:focus { border: 2px solid @ink; padding: 6px 19px; }
QPushButton:disabled { color: @faded; border-color: @pale; background: @paper; }
QPushButton[main="true"] { background: @ink; color: @sheet; border-color: @ink; font-weight: 600; }
QPushButton[main="true"]:hover { background: #2c4d7a; }
QPushButton[main="true"]:pressed { background: @softink; }
QPushButton[main="true"]:focus { border: 2px solid @brindle; }
QPushButton[main="true"]:disabled { background: @mist; color: @softink; border-color: @mist; }
QPushButton[small="true"] { min-width: 22px; padding: 4px 5px; border-color: @pale; }
QPushButton[small="true"]:focus { padding: 3px 4px; border-color: @softink; }
QPushButton[small="true"]:hover { background: @shade; }

QLineEdit, QPlainTextEdit {
  background: @sheet; border: 1px solid @softink; border-radius: 6px; padding: 6px 8px;
  selection-background-color: @mist; selection-color: @ink;
}
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid @ink; padding: 5px 7px; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { border: none; padding: 0 2px; border-radius: 0; }

QListView {
  background: @sheet; border: 1px solid @pale; border-radius: 8px; padding: 4px; outline: 0;
}
QListView:focus { border: 2px solid @softink; padding: 3px; }
QListView::item { padding: 5px 8px; border-radius: 5px; color: @ink; }
QListView::item:hover { background: @paper; }
QListView::item:selected { background: @mist; color: @ink; }

QGroupBox {
  border: 1px solid @pale; border-radius: 8px; margin-top: 1.9em; padding: 14px 12px 10px 12px;
  font-weight: 600; font-size: @grouppt;
}
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 0; padding: 0; }
QGroupBox[plain="true"] { margin-top: 0; }

QCheckBox, QRadioButton { spacing: 9px; padding: 3px 0; }

QProgressBar {
  border: 1px solid @pale; border-radius: 7px; background: @sheet; min-height: 14px;
  text-align: center;
}
QProgressBar::chunk { background: @softink; border-radius: 6px; }

QSlider:horizontal { min-height: 24px; }
QSlider::groove:horizontal { height: 6px; border-radius: 3px; background: @mist; }
QSlider::sub-page:horizontal { background: @softink; border-radius: 3px; }
QSlider::handle:horizontal {
  background: @sheet; border: 2px solid @ink; width: 16px; margin: -7px 0; border-radius: 10px;
}
QSlider::handle:horizontal:focus { background: @accent; }

QScrollBar:vertical { background: transparent; width: 13px; margin: 2px; }
QScrollBar:horizontal { background: transparent; height: 13px; margin: 2px; }
QScrollBar::handle { background: @pale; border-radius: 4px; min-height: 32px; min-width: 32px; }
QScrollBar::handle:hover { background: @brindle; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
)";

QString StyleSheet(double points) {
  const std::pair<const char*, QColor> colours[] = {
      {"@softink", palette::kSoftInk}, {"@ink", palette::kInk},
      {"@sheet", palette::kSheet},     {"@pale", palette::kPale},
      {"@paper", palette::kPaper},     {"@shade", palette::kPaperShade},
      {"@mist", palette::kMist},       {"@brindle", palette::kBrindle},
      {"@accent", palette::kAccent},   {"@faded", palette::kFaded},
  };
  const std::pair<const char*, double> sizes[] = {
      {"@headingpt", 1.45}, {"@titlept", 2.9}, {"@subtitlept", 1.25}, {"@grouppt", 1.15}};
  QString sheet = kStyleSheet;
  for (const auto& [name, colour] : colours) sheet.replace(name, colour.name());
  for (const auto& [name, factor] : sizes) {
    sheet.replace(name, QString::number(points * factor, 'f', 1) + "pt");
  }
  return sheet;
}

}  // namespace

void ApplyStyle(QApplication& application) {
  constexpr double kSmallestFont = 10;  // points
  auto* style = new DesktopStyle;
  application.setStyle(style);
  application.setPalette(Colours());
  QFont font = application.font();
  if (font.pointSizeF() < kSmallestFont) font.setPointSizeF(kSmallestFont);
  application.setFont(font);
  application.setStyleSheet(StyleSheet(font.pointSizeF()));
  // The backgrounds of a few pages, as they cover a large screen.
  constexpr int kPixmapCache = 64 * 1024;  // kilobytes
  QPixmapCache::setCacheLimit(kPixmapCache);
  application.installEventFilter(new AltWatcher(application, *style));
}

void PolishAll(QWidget& widget) {
  widget.ensurePolished();
  for (QWidget* part : widget.findChildren<QWidget*>()) part->ensurePolished();
}

void SetStyleProperty(QWidget& widget, const char* name, const QVariant& value) {
  if (widget.property(name) == value) return;
  widget.setProperty(name, value);
  if (!widget.testAttribute(Qt::WA_WState_Polished)) return;
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}

}  // namespace brindlepage
