#include "desktop/rich_text_layout.h"

#include <QAbstractTextDocumentLayout>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "desktop/decode_picture.h"
#include "desktop/other_thread.h"
#include "toolkit/code_page.h"

namespace brindlepage {

namespace {

constexpr int kFormatId = QTextFormat::UserProperty + 1;

// The width of a typewriter's character, in sizes of its font.
constexpr double kTypewriterPitch = 0.6;

QString FontName(const CharFormat& format) {
  return QString::fromStdString(code_page::ToUtf8(format.font));
}

bool IsTypewriter(const QString& font) {
  for (const char* name : {"Courier New", "Courrier New", "Courier"}) {
    if (font.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) return true;
  }
  return false;
}

// The font itself, or what stands for it here.
QStringList FindFamilies(const QString& font) {
  QStringList families{font};
  if (IsTypewriter(font)) {
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    families = {"Courier New", "Liberation Mono", QFontInfo(fixed).family()};
  } else if (font.compare(QLatin1String("Times New Roman"), Qt::CaseInsensitive) == 0) {
    families = {font, "Liberation Serif", QFontInfo(QFont("serif")).family()};
  }
  const auto missing = [](const QString& family) { return !QFontDatabase::hasFamily(family); };
  QStringList installed = families;
  installed.removeIf(missing);
  return installed.isEmpty() ? families : installed;
}

// Fonts of another pitch than the typewriter's are set a little closer or wider, so that a line
// of 90 characters in 10 points is as wide as the column whatever is installed.
double TypewriterSpacing(const QStringList& families) {
  QFont font(families);
  font.setPixelSize(2000);
  const double pitch = QFontMetricsF(font).horizontalAdvance(QLatin1Char('_')) / 2000;
  const bool differs = std::abs(pitch - kTypewriterPitch) > 0.0005;
  if (pitch <= 0 || !differs) return 100;
  return std::floor(kTypewriterPitch / pitch * 6400) / 64;  // the steps that Qt knows
}

void SetFont(QTextCharFormat& format, const QString& font) {
  const QStringList families = ShownFamilies(font);
  format.setFontFamilies(families);
  if (IsTypewriter(font)) {
    format.setFontStyleHint(QFont::TypeWriter);
    const double spacing = TypewriterSpacing(families);
    if (spacing != 100) {
      format.setFontLetterSpacingType(QFont::PercentageSpacing);
      format.setFontLetterSpacing(spacing);
    }
  }
}

// Qt cuts blanks that run on for thousands of characters into lines. Where they stand at the end
// of a paragraph they are drawn without width instead, in the layout alone.
class BlankTails : public QObject {
 public:
  explicit BlankTails(QTextDocument& document) : QObject(&document), document_(document) {
    connect(&document, &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { Hang(position, position + added); });
    Hang(0, document.characterCount());
  }

 private:
  enum State { kUsual = -1, kHung = 1 };  // of a block

  void Hang(int from, int to) {
    for (QTextBlock block = document_.findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
      const int tail = TailOf(block);
      if (tail == 0 && block.userState() != kHung) continue;
      QTextLayout::FormatRange range{block.length() - 1 - tail, tail, {}};
      range.format.setFontLetterSpacingType(QFont::PercentageSpacing);
      range.format.setFontLetterSpacing(1.0 / 64);  // the least that counts as a spacing
      block.layout()->setFormats(tail == 0 ? QList<QTextLayout::FormatRange>() : QList{range});
      block.setUserState(tail == 0 ? kUsual : kHung);
      document_.markContentsDirty(block.position(), block.length());
    }
  }

  // How many characters have no width; most paragraphs are too short for any.
  static int TailOf(const QTextBlock& block) {
    constexpr int kLong = 2000;
    if (block.length() <= kLong) return 0;
    const QString text = block.text();
    const auto last = std::find_if(text.rbegin(), text.rend(), [](QChar c) { return c != u' '; });
    const auto tail = static_cast<int>(last - text.rbegin());
    return tail < kLong / 2 ? 0 : tail;
  }

  QTextDocument& document_;
};

// A picture that has far more dots than it is drawn with; nothing if it has not. Fine lines would
// get lost if dots were left out.
QImage Reduced(const QImage& whole, QSize dots) {
  if (dots.isEmpty() || whole.width() <= 2 * dots.width()) return {};
  return whole.scaled(dots, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// What is shown of a picture that can't be read.
void DrawPlaceholder(QPainter& painter, const QRectF& rect) {
  painter.fillRect(rect, QColor(0xF3, 0xF1, 0xEC));
  painter.setPen(QPen(QColor(0xA0, 0x98, 0x88), 0));
  painter.drawRect(rect);
  painter.drawLine(rect.topLeft(), rect.bottomRight());
  painter.drawLine(rect.topRight(), rect.bottomLeft());
}

}  // namespace

int LayoutDevice::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return RichTextLayout::kDotsPerInch;
    case PdmWidth:
    case PdmHeight:
      return RichTextLayout::kColumnWidth;
    default:
      return QPaintDevice::metric(metric);
  }
}

// --- Pictures

void RichTextPictures::Add(std::uint32_t format_id, std::shared_ptr<const RichPicture> picture) {
  if (shown_.count(format_id)) return;
  auto coming = InOtherThread([picture] { return Decode(*picture); });
  shown_.emplace(format_id, Shown{std::move(picture), std::move(coming)});
}

RichTextPictures::Images RichTextPictures::Decode(const RichPicture& picture) {
  Images images{DecodePicture(picture.bytes), {}};
  constexpr int kTwipsPerPixel = 15;  // of most screens
  images.reduced = Reduced(images.whole, QSize(picture.width, picture.height) / kTwipsPerPixel);
  return images;
}

QSizeF RichTextPictures::intrinsicSize(QTextDocument*, int, const QTextFormat& format) {
  const auto entry = shown_.find(static_cast<std::uint32_t>(format.intProperty(kFormatId)));
  if (entry == shown_.end()) return {};
  const RichPicture& picture = *entry->second.picture;
  const QSizeF size = QSizeF(std::max(picture.width, 1), std::max(picture.height, 1)) /
                      RichTextLayout::kTwipsPerDot;
  // What is wider than the column is shown smaller, since paper can't be scrolled.
  return size * std::min(1.0, RichTextLayout::kColumnWidth / size.width());
}

void RichTextPictures::drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int,
                                  const QTextFormat& format) {
  const auto entry = shown_.find(static_cast<std::uint32_t>(format.intProperty(kFormatId)));
  if (entry == shown_.end()) return;
  Shown& shown = entry->second;
  if (shown.coming.valid()) shown.images = shown.coming.get();
  auto& [whole, reduced] = shown.images;
  painter->save();
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  if (whole.isNull()) {
    DrawPlaceholder(*painter, rect);
  } else {
    const QSize dots = painter->deviceTransform().mapRect(rect).size().toSize();
    if (reduced.size() != dots) reduced = Reduced(whole, dots);
    painter->drawImage(rect, reduced.isNull() ? whole : reduced);
  }
  painter->restore();
}

// --- The layout

RichTextLayout::RichTextLayout(const RichText& text) : text_(text) {
  // An empty document is as high as a line of the design font. Formats take from this font what
  // they do not set, so it has nothing but a family and a size.
  const CharFormat& design = text.DesignFormat();
  QFont font(ShownFamilies(FontName(design)));
  font.setPointSizeF(design.size / 20.0);
  document_.setDefaultFont(font);

  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setUseDesignMetrics(true);
  document_.setDefaultTextOption(option);
  document_.setUseDesignMetrics(true);
  document_.setDocumentMargin(0);
  // From here on it is laid out, for which the fonts in use are read.
  document_.documentLayout()->setPaintDevice(&device_);
  document_.documentLayout()->registerHandler(RichTextPictures::kObjectType, &pictures_);
  document_.setPageSize(kPage);
  LayOutMuchBySteps();
}

// After a change of much, only what is drawn is laid out at once, and the rest while nothing else
// is done: Qt does so with a document whose layout is begun anew.
void RichTextLayout::LayOutMuchBySteps() {
  constexpr int kMuch = 4000;  // characters
  QObject::connect(&document_, &QTextDocument::contentsChange, &document_,
                   [this](int, int, int added) {
                     if (added > kMuch) document_.setLayoutEnabled(false);
                   });
  QObject::connect(&document_, &QTextDocument::contentsChanged, &document_,
                   [this] { document_.setLayoutEnabled(true); });
}

void RichTextLayout::Load(int start, int end) {
  document_.setUndoRedoEnabled(false);
  document_.clear();
  QTextCursor cursor(&document_);
  cursor.beginEditBlock();
  cursor.setBlockFormat(ParagraphFormat(text_.AlignmentAt(start)));
  Insert(cursor, start, end);
  cursor.endEditBlock();
  document_.setUndoRedoEnabled(true);
}

void RichTextLayout::LoadMore(int start, int end) {
  document_.setUndoRedoEnabled(false);
  QTextCursor cursor(&document_);
  cursor.movePosition(QTextCursor::End);
  cursor.beginEditBlock();
  Insert(cursor, start, end);
  cursor.endEditBlock();
  document_.setUndoRedoEnabled(true);
}

void RichTextLayout::Insert(QTextCursor& cursor, int start, int end) {
  std::u16string run;
  for (int i = start; i < end;) {
    const std::uint32_t id = text_.FormatIdAt(i);
    run.clear();
    for (; i < end && text_.FormatIdAt(i) == id; ++i) {
      const char32_t c = text_.CharacterAt(i);
      if (c == U'\n') break;
      const auto units = QChar::fromUcs4(c);
      run.append(units.begin(), units.end());
    }
    if (!run.empty()) cursor.insertText(QStringView(run).toString(), Format(id));
    if (i < end && text_.CharacterAt(i) == U'\n' && text_.FormatIdAt(i) == id) {
      ++i;
      cursor.insertBlock(ParagraphFormat(text_.AlignmentAt(i)), Format(id));
    }
  }
}

const QTextCharFormat& RichTextLayout::Format(std::uint32_t id) {
  if (id >= formats_.size()) formats_.resize(id + 1);
  std::optional<QTextCharFormat>& shown = formats_[id];
  if (shown) return *shown;

  const CharFormat& format = text_.Format(id);
  shown.emplace();
  shown->setProperty(kFormatId, static_cast<int>(id));
  SetFont(*shown, FontName(format));
  shown->setFontPointSize(format.size / 20.0);
  if (format.bold) shown->setFontWeight(QFont::Bold);
  if (format.italic) shown->setFontItalic(true);
  if (format.underline) shown->setFontUnderline(true);
  const auto byte = [&](int shift) { return static_cast<int>(format.color >> shift & 0xFF); };
  shown->setForeground(QColor(byte(0), byte(8), byte(16)));
  if (format.picture) {
    pictures_.Add(id, format.picture);
    shown->setObjectType(RichTextPictures::kObjectType);
  }
  return *shown;
}

std::optional<std::uint32_t> RichTextLayout::FormatId(const QTextCharFormat& format) {
  if (!format.hasProperty(kFormatId)) return std::nullopt;
  return static_cast<std::uint32_t>(format.intProperty(kFormatId));
}

const QTextBlockFormat& RichTextLayout::ParagraphFormat(Alignment alignment) {
  const auto aligned = [](Qt::Alignment side) {
    QTextBlockFormat format;
    format.setAlignment(side);
    return format;
  };
  static const QTextBlockFormat left = aligned(Qt::AlignLeft | Qt::AlignAbsolute);
  static const QTextBlockFormat right = aligned(Qt::AlignRight | Qt::AlignAbsolute);
  static const QTextBlockFormat centre = aligned(Qt::AlignHCenter);
  if (alignment == Alignment::Right) return right;
  return alignment == Alignment::Centre ? centre : left;
}

Alignment RichTextLayout::AlignmentOf(const QTextBlockFormat& format) {
  if (format.alignment() & Qt::AlignHCenter) return Alignment::Centre;
  if (format.alignment() & Qt::AlignRight) return Alignment::Right;
  return Alignment::Left;
}

void RichTextLayout::HangBlanks() {
  new BlankTails(document_);  // belongs to the document
}

// Looking for a font that isn't installed takes the system a while: once is enough.
QStringList ShownFamilies(const QString& font) {
  static QHash<QString, QStringList> known;
  QStringList& families = known[font];
  if (families.isEmpty()) families = FindFamilies(font);
  return families;
}

}  // namespace brindlepage
