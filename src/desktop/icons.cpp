#include "desktop/icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <algorithm>
#include <charconv>
#include <string_view>

#include "desktop/style.h"

namespace brindlepage {

namespace {

// A drawing is a row of shapes, each ended by ';': its role, then its path.
//
//   i ink line   s soft line   a accent line   w white sheet with an ink edge   e with an accent
//   one I ink   S soft ink   A accent   X white   P pale   B brindle: filled without an edge
//
//   M x y   L x y   C x1 y1 x2 y2 x y   Z   as in SVG, positions absolute;
//   O x y r a circle, R x y width height r a rectangle with round corners
struct Drawing {
  std::string_view name;
  int side;  // of the square that the positions are told in
  const char* shapes;
};

constexpr Drawing kDrawings[] = {
    // The menu.
    {"word-search", 24,
     "w R 2.5 2.5 19 19 3; S O 12 7 1; S O 17 7 1; S O 17 12 1; S O 7 12 1; S O 7 17 1; S O 12 17 "
     "1;"
     "I O 8 8 1.1; I O 12 12 1.1; I O 16 16 1.1;"
     "a M 6.16 9.84 L 14.16 17.84 C 16.61 20.29 20.29 16.61 17.84 14.16 L 9.84 6.16 "
     "C 7.39 3.71 3.71 7.39 6.16 9.84 Z;"},
    {"crossword", 24,
     "w R 2 9.5 5 5 0.8; w R 7 9.5 5 5 0.8; w R 17 9.5 5 5 0.8; w R 12 4.5 5 5 0.8;"
     "w R 12 14.5 5 5 0.8; A R 12 9.5 5 5 0.8; i R 12 9.5 5 5 0.8;"},
    {"scramble", 24,
     "a M 2.5 17 L 6.5 17 C 11 17 13 7 17 7 L 21 7; a M 18 4 L 21 7 L 18 10;"
     "i M 2.5 7 L 6.5 7 C 11 7 13 17 17 17 L 21 17; i M 18 14 L 21 17 L 18 20;"},
    {"quiz", 24,
     "w R 4 2.5 16 19 2.5; a M 7.3 8.2 L 8.9 9.8 L 11.6 6.6; i M 14 8.3 L 17 8.3;"
     "i R 7.5 13.6 3.6 3.6 0.9; i M 14 15.5 L 17 15.5;"},
    {"study-sheet", 24,
     "w M 12 6 C 9 4.2 6 3.6 2.5 4 L 2.5 18.5 C 6 18.1 9 18.7 12 20.5 C 15 18.7 18 18.1 21.5 18.5 "
     "L 21.5 4 C 18 3.6 15 4.2 12 6 Z; i M 12 6 L 12 20.5; a M 15.2 9.4 L 18.5 8.9;"
     "a M 15.2 13 L 18.5 12.5; s M 5.5 8.9 L 8.8 9.4; s M 5.5 12.5 L 8.8 13;"},
    {"secret-code", 24,
     "i M 7.5 10.5 L 7.5 7.5 C 7.5 1.2 16.5 1.2 16.5 7.5 L 16.5 10.5; w R 4.5 10.5 15 11 2.5;"
     "A O 12 15 1.6; a M 12 15 L 12 17.8;"},
    {"riddle", 24,
     "w M 6 2.8 L 18 2.8 C 20 2.8 21.5 4.3 21.5 6.3 L 21.5 13.5 C 21.5 15.5 20 17 18 17 L 12 17 "
     "L 7.2 21.3 L 7.2 17 L 6 17 C 4 17 2.5 15.5 2.5 13.5 L 2.5 6.3 C 2.5 4.3 4 2.8 6 2.8 Z;"
     "a M 9.6 7.9 C 9.6 4.7 14.4 4.7 14.4 7.9 C 14.4 9.7 12 9.7 12 11.4; A O 12 14 1.05;"},
    {"alphabetize", 24,
     "i M 3 11 L 6.5 3 L 10 11; i M 4.3 8.4 L 8.7 8.4; i M 3.5 14 L 9.5 14 L 3.5 21 L 9.5 21;"
     "a M 17 3.5 L 17 20; a M 13.5 16.5 L 17 20.3 L 20.5 16.5;"},
    {"just-for-fun", 24,
     "w O 12 12 9.3; I O 8.7 9.6 1.25; I O 15.3 9.6 1.25; a M 7.4 14 C 9 17.8 15 17.8 16.6 14;"},
    {"open-worksheet", 24,
     "i M 3 19.5 L 3 5.7 C 3 4.8 3.7 4 4.6 4 L 9 4 L 11.5 6.7 L 18.3 6.7 C 19.2 6.7 20 7.4 20 8.3 "
     "L 20 10.5; w M 3 19.8 L 6 10.5 L 22 10.5 L 19 19.8 Z; a M 9.5 15.2 L 15.8 15.2;"},
    // The toolbars.
    {"list-new", 24,
     "w M 18 11.5 L 18 4.5 C 18 3.4 17.1 2.5 16 2.5 L 5.5 2.5 C 4.4 2.5 3.5 3.4 3.5 4.5 L 3.5 18.5 "
     "C 3.5 19.6 4.4 20.5 5.5 20.5 L 11.5 20.5; s M 7 7 L 14.5 7; s M 7 11 L 13 11;"
     "s M 7 15 L 10.5 15; a M 18 14.2 L 18 21.8; a M 14.2 18 L 21.8 18;"},
    {"list-edit", 24,
     "w M 18 5.5 L 18 4.5 C 18 3.4 17.1 2.5 16 2.5 L 5.5 2.5 C 4.4 2.5 3.5 3.4 3.5 4.5 L 3.5 18.5 "
     "C 3.5 19.6 4.4 20.5 5.5 20.5 L 16 20.5 C 17.1 20.5 18 19.6 18 18.5 L 18 17;"
     "s M 7 7 L 13 7; s M 7 11 L 10.5 11; e M 10.5 17.2 L 11.4 13.4 L 18.2 6.6 L 21.2 9.6 L 14.4 "
     "16.4 Z;"},
    {"list-delete", 24,
     "w M 18 11.5 L 18 4.5 C 18 3.4 17.1 2.5 16 2.5 L 5.5 2.5 C 4.4 2.5 3.5 3.4 3.5 4.5 L 3.5 18.5 "
     "C 3.5 19.6 4.4 20.5 5.5 20.5 L 11.5 20.5; s M 7 7 L 14.5 7; s M 7 11 L 13 11;"
     "s M 7 15 L 10.5 15; a M 15 15 L 21 21; a M 21 15 L 15 21;"},
    {"options", 24,
     "i M 3 6 L 21 6; i M 3 12 L 21 12; i M 3 18 L 21 18; w O 8 6 2.4; e O 15.5 12 2.4;"
     "w O 9.5 18 2.4;"},
    {"info", 24, "w O 12 12 9.3; A O 12 7.4 1.25; i M 12 11 L 12 17;"},
    {"quit", 24,
     "i M 13 3.5 L 6 3.5 C 4.9 3.5 4 4.4 4 5.5 L 4 18.5 C 4 19.6 4.9 20.5 6 20.5 L 13 20.5;"
     "a M 9.5 12 L 21 12; a M 17 8 L 21 12 L 17 16;"},
    {"print", 24,
     "i M 7 8 L 7 3 L 17 3 L 17 8; w R 3 8 18 9.5 2; w R 7 13.8 10 7.4 1; A O 17.6 11 1;"},
    {"clipart", 24,
     "w R 2.5 4 19 16 2.2; i M 2.8 17 L 8.8 11 L 13.3 15.5 L 16 13 L 21 18; A O 15.6 8.4 1.7;"},
    {"save", 24,
     "w M 5.5 3.5 L 16.3 3.5 L 20.5 7.7 L 20.5 18.5 C 20.5 19.6 19.6 20.5 18.5 20.5 L 5.5 20.5 "
     "C 4.4 20.5 3.5 19.6 3.5 18.5 L 3.5 5.5 C 3.5 4.4 4.4 3.5 5.5 3.5 Z;"
     "i M 8 3.7 L 8 8 L 15 8 L 15 3.7; i M 7.5 20.3 L 7.5 13.5 L 16.5 13.5 L 16.5 20.3;"
     "a M 10.3 17 L 13.7 17;"},
    {"word-processor", 24,
     "w R 4 2.5 16 19 2.2; a M 7.6 6.8 L 9.5 12 L 12 7.6 L 14.5 12 L 16.4 6.8;"
     "s M 8 15.3 L 16 15.3; s M 8 18.3 L 13 18.3;"},
    {"key", 24,
     "i M 11 11 L 20.5 20.5; a M 17.2 17.2 L 19.8 14.6; a M 14.2 14.2 L 16.2 12.2; w O 7.8 7.8 4.8;"
     "S O 7 7 1.1;"},
    {"add", 24, "w O 12 12 9.3; a M 12 7.7 L 12 16.3; a M 7.7 12 L 16.3 12;"},
    {"delete", 24,
     "w M 5.6 6 L 6.6 19.2 C 6.7 20.3 7.5 21 8.5 21 L 15.5 21 C 16.5 21 17.3 20.3 17.4 19.2 L 18.4 "
     "6; i M 3.8 6 L 20.2 6; i M 9 5.8 L 9.5 3.2 L 14.5 3.2 L 15 5.8; a M 10 10 L 10.3 17;"
     "a M 14 10 L 13.7 17;"},
    {"edit", 24,
     "w M 3.8 20.2 L 5 15 L 16 4 C 17 3 18.6 3 19.7 4.2 C 20.9 5.3 20.9 7 20 8 L 9 19 Z;"
     "a M 13.4 6.6 L 17.4 10.6;"},
    {"foreign", 24,
     "i M 7 20.5 L 7 10.5; i M 7 14 C 8 9.5 17 9 17 15 L 17 20.5;"
     "a M 8 6.3 C 10 3 13.5 8.3 16 5;"},
    {"rename", 24,
     "w R 2.5 7 19 10 2; s M 6 12 L 11 12; a M 15 4 L 15 20; a M 13 4 L 17 4; a M 13 20 L 17 20;"},
    // The options.
    {"backup", 24,
     "w R 4.5 3 15 10 1.8; s M 8 6.3 L 16 6.3; s M 8 9.6 L 13 9.6; a M 12 13.2 L 12 17.6;"
     "a M 9.4 15.2 L 12 17.8 L 14.6 15.2; i M 4 18 L 4 21 L 20 21 L 20 18;"},
    {"restore", 24,
     "i M 4 18 L 4 21 L 20 21 L 20 18; w R 4.5 3 15 10 1.8; s M 8 6.3 L 16 6.3;"
     "s M 8 9.6 L 13 9.6; a M 12 17.8 L 12 13.4; a M 9.4 15.8 L 12 13.2 L 14.6 15.8;"},
    {"list-link", 24,
     "i M 2.5 18.5 L 2.5 6.2 C 2.5 5.3 3.2 4.5 4.1 4.5 L 8.5 4.5 L 11 7.2 L 19.9 7.2 "
     "C 20.8 7.2 21.5 8 21.5 8.9 L 21.5 18.5 C 21.5 19.3 20.8 20 20 20 L 4 20 "
     "C 3.2 20 2.5 19.3 2.5 18.5 Z; a M 7.5 13.6 L 16 13.6; a M 13 10.6 L 16 13.6 L 13 16.6;"},
    // Others.
    {"next", 24, "i M 4 12 L 20 12; a M 14 6 L 20 12 L 14 18;"},
    {"previous", 24, "i M 20 12 L 4 12; a M 10 6 L 4 12 L 10 18;"},
    {"page-next", 24,
     "w M 6 2.5 L 18 2.5 C 19.1 2.5 20 3.4 20 4.5 L 20 15 L 13.5 21.5 L 6 21.5 C 4.9 21.5 4 20.6 4 "
     "19.5 L 4 4.5 C 4 3.4 4.9 2.5 6 2.5 Z;"
     "w M 20 15 L 15.5 15 C 14.4 15 13.5 15.9 13.5 17 L 13.5 21.5 Z;"
     "a M 7.5 9.5 L 16 9.5; a M 12.8 6.3 L 16 9.5 L 12.8 12.7;"},
    {"page-previous", 24,
     "w M 18 2.5 L 6 2.5 C 4.9 2.5 4 3.4 4 4.5 L 4 15 L 10.5 21.5 L 18 21.5 C 19.1 21.5 20 20.6 20 "
     "19.5 L 20 4.5 C 20 3.4 19.1 2.5 18 2.5 Z;"
     "w M 4 15 L 8.5 15 C 9.6 15 10.5 15.9 10.5 17 L 10.5 21.5 Z;"
     "a M 16.5 9.5 L 8 9.5; a M 11.2 6.3 L 8 9.5 L 11.2 12.7;"},
    {"speed", 24,
     "i M 4 18 C 1.2 10 6.5 4.5 12 4.5 C 17.5 4.5 22.8 10 20 18; a M 12 15.5 L 16.3 9.5;"
     "I O 12 15.5 1.7;"},
    {"picture", 24,
     "w R 2.5 4 19 16 2.2; s M 2.8 17 L 8.8 11 L 13.3 15.5 L 16 13 L 21 18; S O 15.6 8.4 1.7;"},
    {"program", 64,
     "I R 0 0 64 64 14;"
     "X M 16 9 L 40 9 L 50 19 L 50 53 C 50 54.1 49.1 55 48 55 L 16 55 C 14.9 55 14 54.1 14 53 "
     "L 14 11 C 14 9.9 14.9 9 16 9 Z; P M 40 9 L 50 19 L 42 19 C 40.9 19 40 18.1 40 17 Z;"
     "B M 14 14 C 21 13 27 16 33 17 C 27 19.5 20 19 14 18 Z;"
     "P M 14 22 C 18 21.5 22 23 26 24 C 22 25.5 18 25.5 14 25 Z;"
     "B M 14 29 C 22 27.5 30 31 37 32.5 C 30 35 21 34.5 14 33 Z;"
     "P M 14 37 C 17 36.5 20 37.5 23 38.5 C 20 40 17 40 14 39.5 Z;"
     "B M 14 44 C 19 43 24 45 29 46.5 C 24 49 19 49 14 48 Z;"
     "I M 43 25 L 57 25 L 59 27 L 59 57 L 57 59 L 43 59 L 41 57 L 41 27 Z;"
     "S R 43 27 14 14 2; A R 43 43 14 14 2;"},
};

const Drawing* FindDrawing(std::string_view name) {
  for (const Drawing& drawing : kDrawings) {
    if (drawing.name == name) return &drawing;
  }
  return nullptr;
}

// Reads a drawing word by word.
class Words {
 public:
  explicit Words(std::string_view text) : text_(text) {}

  // The next letter, or 0 at the end.
  char Letter() {
    SkipBlanks();
    if (text_.empty()) return 0;
    const char letter = text_.front();
    text_.remove_prefix(1);
    return letter;
  }
  double Number() {
    SkipBlanks();
    double number = 0;
    const auto end = std::from_chars(text_.data(), text_.data() + text_.size(), number).ptr;
    text_.remove_prefix(static_cast<std::size_t>(end - text_.data()));
    return number;
  }

 private:
  void SkipBlanks() { text_.remove_prefix(std::min(text_.find_first_not_of(' '), text_.size())); }

  std::string_view text_;
};

// Up to the end of the shape.
QPainterPath ReadPath(Words& words) {
  QPainterPath path;
  for (;;) {
    double n[6] = {};
    const auto read = [&](int count) {
      for (int i = 0; i < count; ++i) n[i] = words.Number();
    };
    switch (words.Letter()) {
      case 'M':
        read(2);
        path.moveTo(n[0], n[1]);
        break;
      case 'L':
        read(2);
        path.lineTo(n[0], n[1]);
        break;
      case 'C':
        read(6);
        path.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]);
        break;
      case 'Z':
        path.closeSubpath();
        break;
      case 'O':
        read(3);
        path.addEllipse(QPointF(n[0], n[1]), n[2], n[2]);
        break;
      case 'R':
        read(5);
        path.addRoundedRect(n[0], n[1], n[2], n[3], n[4], n[4]);
        break;
      default:
        return path;
    }
  }
}

struct Paint {
  QColor edge;  // invalid: none
  QColor fill;
};

Paint RolePaint(char role) {
  switch (role) {
    case 'i':
      return {palette::kInk, {}};
    case 's':
      return {palette::kSoftInk, {}};
    case 'a':
      return {palette::kAccent, {}};
    case 'w':
      return {palette::kInk, palette::kSheet};
    case 'e':
      return {palette::kAccent, palette::kSheet};
    case 'S':
      return {{}, palette::kSoftInk};
    case 'A':
      return {{}, palette::kAccent};
    case 'X':
      return {{}, palette::kSheet};
    case 'P':
      return {{}, palette::kPale};
    case 'B':
      return {{}, palette::kBrindle};
    default:
      return {{}, palette::kInk};
  }
}

QColor Faded(const QColor& colour) {
  if (!colour.isValid() || colour == palette::kSheet) return colour;
  QColor faded = palette::kFaded;
  faded.setAlpha(170);
  return faded;
}

void Draw(const Drawing& drawing, QPainter& painter, const QRectF& room, bool disabled) {
  constexpr double kThinnest = 1.25;  // pixels
  const double side = qMin(room.width(), room.height());
  const double scale = side / drawing.side;
  const double line = qMax(1.7, kThinnest / scale);

  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(room.center() - QPointF(side, side) / 2);
  painter.scale(scale, scale);
  Words words(drawing.shapes);
  while (const char role = words.Letter()) {
    Paint paint = RolePaint(role);
    if (disabled) paint = {Faded(paint.edge), Faded(paint.fill)};
    painter.setPen(paint.edge.isValid()
                       ? QPen(paint.edge, line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                       : QPen(Qt::NoPen));
    painter.setBrush(paint.fill.isValid() ? QBrush(paint.fill) : QBrush(Qt::NoBrush));
    painter.drawPath(ReadPath(words));
  }
  painter.restore();
}

class DrawnIcon : public QIconEngine {
 public:
  explicit DrawnIcon(const Drawing& drawing) : drawing_(drawing) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double ratio = painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
  }

  // Drawn once in each size.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const bool disabled = mode == QIcon::Disabled;
    const QString name =
        QString::fromUtf8(drawing_.name.data(), static_cast<qsizetype>(drawing_.name.size()));
    const QString key = QStringLiteral("icon %1 %2 %3 %4")
                            .arg(name)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(disabled);
    QPixmap drawn;
    if (QPixmapCache::find(key, &drawn)) return drawn;
    drawn = QPixmap(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    Draw(drawing_, painter, drawn.rect(), disabled);
    painter.end();
    QPixmapCache::insert(key, drawn);
    return drawn;
  }

  QIconEngine* clone() const override { return new DrawnIcon(drawing_); }

  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
    return {QSize(16, 16), QSize(32, 32), QSize(48, 48), QSize(64, 64), QSize(128, 128)};
  }

 private:
  const Drawing& drawing_;
};

}  // namespace

QIcon NamedIcon(std::string_view name) {
  if (const Drawing* drawing = FindDrawing(name)) return QIcon(new DrawnIcon(*drawing));
  return QIcon::fromTheme(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}

}  // namespace brindlepage
