#include "desktop/rich_text_clipboard.h"

#include <QBuffer>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "toolkit/platform.h"
#include "worksheet/pasted_rtf.h"
#include "worksheet/rtf_writer.h"

namespace brindlepage {

namespace {

constexpr QLatin1String kHtml("text/html");
constexpr QLatin1String kPlain("text/plain");

// Rich text as desktops name it; the last is Qt's word for the name on Windows.
constexpr const char* kRtf[] = {"text/rtf", "application/rtf", "text/richtext",
                                "application/x-qt-windows-mime;value=\"Rich Text Format\""};

bool IsRtf(const QString& format) {
  return std::any_of(std::begin(kRtf), std::end(kRtf),
                     [&](const char* name) { return format == QLatin1String(name); });
}

bool HasRtf(const QMimeData& data) {
  const QStringList formats = data.formats();
  return std::any_of(formats.begin(), formats.end(), IsRtf);
}

QByteArray RtfOf(const QMimeData& data) {
  for (const char* const name : kRtf) {
    const QByteArray bytes = data.data(QString::fromLatin1(name));
    if (!bytes.isEmpty()) return bytes;
  }
  return {};
}

QString WordsOf(const RichContent& stretch) {
  std::u32string words = stretch.text;
  std::erase(words, kPictureCharacter);
  return QString::fromStdU32String(words);
}

std::shared_ptr<const RichPicture> PictureOf(const QImage& image, int widest) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  auto picture = std::make_shared<RichPicture>();
  picture->format = "png";
  picture->bytes = bytes.toStdString();
  picture->width = std::min(image.width() * kTwipsPerPixel, widest);
  picture->height = static_cast<int>(
      std::max<qint64>(qint64{image.height()} * picture->width / image.width(), 1));
  return picture;
}

// Addresses of files are no text, though the library would give them for it.
QString PlainWords(const QMimeData& data) {
  return data.hasFormat(kPlain) ? data.text() : QString();
}

std::optional<RichContent> RichWords(const QMimeData& data, int widest) {
  if (!HasRtf(data)) return std::nullopt;
  const QByteArray rtf = RtfOf(data);
  return PastedRtf({rtf.data(), static_cast<std::size_t>(rtf.size())},
                   PlainWords(data).toStdU32String(), widest);
}

// A line break within a paragraph ends it here. Blanks beside a picture are no words.
std::u32string Words(const QMimeData& data) {
  QString words = PlainWords(data);
  if (words.isEmpty() && data.hasHtml()) {
    words = QTextDocumentFragment::fromHtml(data.html()).toPlainText();
  }
  if (data.hasImage() && words.trimmed().isEmpty()) return {};
  std::u32string text = words.toStdU32String();
  std::replace(text.begin(), text.end(), char32_t{QChar::LineSeparator}, U'\n');
  return text;
}

// What was copied in a program that shows pictures, or one that shows files.
QImage ImageOf(const QMimeData& data) {
  if (data.hasImage()) return qvariant_cast<QImage>(data.imageData());
  const QList<QUrl> files = data.urls();
  return files.size() == 1 ? QImage(files.front().toLocalFile()) : QImage();
}

}  // namespace

RichTextMimeData::RichTextMimeData(RichContent stretch, QTextDocumentFragment shown)
    : stretch_(std::move(stretch)), shown_(std::move(shown)) {}

QStringList RichTextMimeData::formats() const {
  QStringList formats;
  for (const char* const name : kRtf) formats << QString::fromLatin1(name);
  if (!shown_.isEmpty()) formats << kHtml;
  return formats << kPlain;
}

QVariant RichTextMimeData::retrieveData(const QString& format, QMetaType) const {
  if (format == kPlain) return WordsOf(stretch_);
  if (format == kHtml) return shown_.toHtml();
  if (IsRtf(format)) return QByteArray::fromStdString(WriteRtfStretch(stretch_));
  return {};
}

bool CanInsertMimeData(const QMimeData& data) {
  return HasRtf(data) || data.hasText() || data.hasHtml() || data.hasImage();
}

void InsertMimeData(RichText& text, const QMimeData& data, int widest) {
  if (const auto* own = qobject_cast<const RichTextMimeData*>(&data)) {
    text.SelContent(own->Stretch());
  } else if (const auto stretch = RichWords(data, widest)) {
    text.SelContent(*stretch);
  } else if (const std::u32string words = Words(data); !words.empty()) {
    text.SelUnicode(words);
  } else if (const QImage image = ImageOf(data); !image.isNull()) {
    text.InsertPicture(PictureOf(image, widest));
  }
}

}  // namespace brindlepage
