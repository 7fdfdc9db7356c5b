#include "desktop/grid_view.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QShowEvent>
#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "desktop/picture_view.h"
#include "desktop/rich_text_layout.h"
#include "desktop/text.h"
#include "toolkit/controls.h"
#include "toolkit/placed_form.h"

namespace brindlepage {

namespace {

constexpr double kBorder = 15;            // twips
constexpr double kGap = 10;               // between the boxes of a packed grid
constexpr double kUsualHeading = 18;      // points
constexpr double kMostDotsPerTwip = 0.1;  // on screen: half as large again as the form's own
constexpr int kRoomAround = 16;           // pixels
constexpr double kInchesPerMetre = 39.3701;

QColor ToColour(int blue_green_red) {
  return {blue_green_red & 0xFF, (blue_green_red >> 8) & 0xFF, (blue_green_red >> 16) & 0xFF};
}

template <class Seen>
void ForEachLabel(const Form& form, Seen seen) {
  for (const Control* control : form.Controls()) {
    const auto* label = dynamic_cast<const Label*>(control);
    if (label != nullptr && label->Visible) seen(*label);
  }
}

template <class Seen>
void ForEachPicture(const Form& form, Seen seen) {
  for (const Control* control : form.Controls()) {
    const auto* image = dynamic_cast<const Image*>(control);
    if (image != nullptr && image->Visible && image->Picture() != nullptr) seen(*image);
  }
}

// From a form's twips to the dots of what is drawn on.
struct Scale {
  Area area;
  QRectF room;

  double DotsPerTwip() const { return room.width() / std::max(1, area.width); }
  // The control and so much around it. Edges fall on whole dots, so that lines are crisp.
  QRect Dots(const Control& control, double around) const {
    const double across = DotsPerTwip();
    const double down = room.height() / std::max(1, area.height);
    const auto x = [&](double twips) { return qRound(room.left() + (twips - area.left) * across); };
    const auto y = [&](double twips) { return qRound(room.top() + (twips - area.top) * down); };
    return QRect(QPoint(x(control.Left - around), y(control.Top - around)),
                 QPoint(x(control.Left + control.Width + around) - 1,
                        y(control.Top + control.Height + around) - 1));
  }
};

// The background colour, and over it the pictures of the form, each over all of the room.
void PaintBackground(QPainter& painter, const Form& form, const QRectF& room) {
  painter.fillRect(room, ToColour(form.BackColor));
  ForEachPicture(form, [&](const Image& image) {
    painter.drawPixmap(room.toRect(), StretchedPicture(image.Picture, room.toRect().size()));
  });
}

// The fonts of a grid and what its texts take in them: it has hundreds of boxes, but few of these.
class Lettering {
 public:
  // The font of that name and height, in dots, or a lower one in which the text is no wider than
  // the room: a number of three digits stays in its box.
  const QFont& Fitting(const std::string& name, int height, const QString& text, int room) {
    Face& usual = FaceOf(name, height);
    auto width = usual.widths.find(text);
    if (width == usual.widths.end()) {
      width = usual.widths.insert(text, QFontMetricsF(usual.font).horizontalAdvance(text));
    }
    if (*width <= room) return usual.font;
    return FaceOf(name, static_cast<int>(usual.font.pixelSize() * room / *width)).font;
  }

 private:
  struct Face {
    QFont font;
    QHash<QString, double> widths;
  };

  Face& FaceOf(const std::string& name, int height) {
    const auto [face, is_new] = faces_.try_emplace({name, std::max(1, height)});
    if (is_new) {
      QFont& font = face->second.font;
      font.setFamilies(ShownFamilies(ToQString(name)));
      font.setStyleStrategy(QFont::PreferAntialias);
      font.setPixelSize(std::max(1, height));
    }
    return face->second;
  }

  std::map<std::pair<std::string, int>, Face> faces_;
};

void PaintText(QPainter& painter, Lettering& lettering, const Label& box, const QRect& inside,
               double dots_per_twip) {
  const QString text = ToQString(box.Caption);
  if (text.trimmed().isEmpty()) return;
  const int height = qRound(TextHeight(box) * dots_per_twip);
  painter.setFont(lettering.Fitting(box.FontName, height, text, inside.width()));
  painter.setPen(Qt::black);
  constexpr Qt::Alignment kSides[] = {Qt::AlignLeft | Qt::AlignTop, Qt::AlignRight | Qt::AlignTop,
                                      Qt::AlignCenter};
  painter.drawText(inside, static_cast<int>(kSides[qBound(0, box.Alignment(), 2)]), text);
}

void PaintBox(QPainter& painter, Lettering& lettering, const Label& box, const Scale& scale,
              double around) {
  const QRect outside = scale.Dots(box, around);
  const int border = std::max(1, qRound(kBorder * scale.DotsPerTwip()));
  const QRect inside = outside.adjusted(border, border, -border, -border);
  painter.fillRect(outside, Qt::black);
  painter.fillRect(inside, ToColour(box.BackColor));
  PaintText(painter, lettering, box, inside, scale.DotsPerTwip());
}

// Where no colour shows between the boxes, neighbours share a line.
double RoomAround(const Form& form) {
  constexpr int kWhite = 0xFFFFFF;
  bool plain = form.BackColor == kWhite;
  ForEachPicture(form, [&](const Image&) { plain = false; });
  return plain ? (kGap + kBorder) / 2 : 0;
}

void PaintBoxes(QPainter& painter, const Form& form, const Scale& scale) {
  const double around = RoomAround(form);
  Lettering lettering;
  ForEachLabel(form, [&](const Label& label) {
    if (label.BorderStyle != 0) PaintBox(painter, lettering, label, scale, around);
  });
}

// Where something of that shape stands in the middle of the room, as large as fits.
QRectF Fitted(const Area& area, const QRectF& room) {
  const double dots = std::min({kMostDotsPerTwip, room.width() / std::max(1, area.width),
                                room.height() / std::max(1, area.height)});
  QRectF fitted(QPointF(), QSizeF(area.width, area.height) * std::max(0.0, dots));
  fitted.moveCenter(room.center());
  return fitted;
}

// The labels without a border, above all boxes. What they leave of the room.
QRectF PaintHeadings(QPainter& painter, const Form& form, QRectF room) {
  ForEachLabel(form, [&](const Label& label) {
    if (label.BorderStyle != 0 || label.Caption().empty()) return;
    QFont font(ShownFamilies(ToQString(label.FontName)));
    font.setPointSizeF(label.FontSize > 0 ? label.FontSize() : kUsualHeading);
    painter.setFont(font);
    QRectF line = room;
    line.setHeight(QFontMetricsF(font).lineSpacing() * 1.4);
    // On white, as the boxes are, whatever lies behind.
    QRectF words =
        QFontMetricsF(font).boundingRect(line, Qt::AlignCenter, ToQString(label.Caption));
    painter.fillRect(words.adjusted(-12, -2, 12, 2) & line, ToColour(label.BackColor));
    painter.setPen(Qt::black);
    painter.drawText(line, Qt::AlignCenter, ToQString(label.Caption));
    room.setTop(line.bottom() + kRoomAround / 2.0);
  });
  return room;
}

}  // namespace

FormPicture PictureOfPlacedForm(const Form& form) {
  constexpr int kTwipsPerDot = kTwipsPerInch / kPictureDotsPerInch;
  const Area area = PictureArea(form);
  const Size paper = SizeOnPaper(area);
  QImage image(std::max(1, paper.width / kTwipsPerDot), std::max(1, paper.height / kTwipsPerDot),
               QImage::Format_RGB32);
  const int dots_per_metre = qRound(kPictureDotsPerInch * kInchesPerMetre);
  image.setDotsPerMeterX(dots_per_metre);
  image.setDotsPerMeterY(dots_per_metre);

  QPainter painter(&image);
  PaintBackground(painter, form, image.rect());
  PaintBoxes(painter, form, {area, image.rect()});
  painter.end();
  // A third of the time to write and to read.
  if (image.isGrayscale()) image = image.convertToFormat(QImage::Format_Grayscale8);

  QBuffer file;
  file.open(QIODevice::WriteOnly);
  image.save(&file, "png");
  return {"png", file.data().toStdString(), paper.width, paper.height};
}

GridView::GridView(const Form& form, QWidget* parent) : QWidget(parent), form_(&form) {
  setObjectName("GridView");
  setAccessibleName(ToQString(form.Caption));
  // Keys go to the form from here.
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void GridView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (form_ == nullptr) return painter.fillRect(rect(), Qt::white);
  PaintBackground(painter, *form_, rect());
  const QRectF room = PaintHeadings(
      painter, *form_, rect().adjusted(kRoomAround, kRoomAround, -kRoomAround, -kRoomAround));
  const Area area = PictureArea(*form_);
  PaintBoxes(painter, *form_, {area, Fitted(area, room)});
}

void GridView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  setFocus();
}

}  // namespace brindlepage
