#include "desktop/large_button.h"

#include <QPainter>
#include <QStyle>

#include "desktop/style.h"

namespace brindlepage {

namespace {

// Pixels.
constexpr int kSmallestIcon = 34;
constexpr int kRoom = 12;
constexpr int kLowest = 58;
constexpr int kUsualHeight = 70;
constexpr int kHighest = 104;
constexpr int kNarrowest = 200;
constexpr int kUsualWidth = 330;

}  // namespace

LargeButton::LargeButton(QWidget* parent) : QPushButton(parent) {
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setMaximumHeight(kHighest);
}

QSize LargeButton::sizeHint() const { return {kUsualWidth, kUsualHeight}; }

QSize LargeButton::minimumSizeHint() const { return {kNarrowest, kLowest}; }

void LargeButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);

  const bool hot = isEnabled() && underMouse();
  const bool focused = hasFocus();
  painter.setPen(QPen(focused || hot ? palette::kInk : palette::kPale, focused ? 2 : 1));
  painter.setBrush(isDown() ? palette::kMist : palette::kSheet);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 10, 10);

  const int side = qMax(kSmallestIcon, height() / 2);
  const QRect icon_room(kRoom, (height() - side) / 2, side, side);
  icon().paint(&painter, icon_room, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);

  const QRect text_room = rect().adjusted(kRoom + side + kRoom, 4, -kRoom / 2, -4);
  const int letters = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0
                          ? Qt::TextShowMnemonic
                          : Qt::TextHideMnemonic;
  QFont caption_font = font();
  caption_font.setWeight(QFont::DemiBold);
  // A higher button has larger letters.
  const double growth = qBound(1.0, static_cast<double>(height()) / kUsualHeight, 1.3);
  caption_font.setPointSizeF(caption_font.pointSizeF() * growth);
  painter.setFont(caption_font);
  painter.setPen(isEnabled() ? palette::kInk : palette::kFaded);
  painter.drawText(text_room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | letters,
                   text());
}

void LargeButton::enterEvent(QEnterEvent* event) {
  QPushButton::enterEvent(event);
  update();
}

void LargeButton::leaveEvent(QEvent* event) {
  QPushButton::leaveEvent(event);
  update();
}

}  // namespace brindlepage
