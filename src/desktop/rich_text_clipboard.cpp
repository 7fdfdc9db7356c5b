#include "desktop/rich_text_clipboard.h"

#include <QBuffer>
#include <QImage>
#include <QString>
#include <QTextDocumentFragment>
#include <QUrl>
#include <algorithm>

#include "toolkit/platform.h"

namespace brindlepage {

namespace {

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

// Addresses of files are no text, though the library would give them for it. A line break within a
// paragraph ends it here.
std::u32string PlainText(const QMimeData& data) {
  QString words;
  if (data.hasFormat("text/plain")) {
    words = data.text();
  } else if (data.hasHtml()) {
    words = QTextDocumentFragment::fromHtml(data.html()).toPlainText();
  }
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

RichTextMimeData::RichTextMimeData(const RichText& text, int start, int end) {
  std::u32string plain;
  const CharFormat* before = nullptr;
  for (int i = start; i < end; ++i) {
    const CharFormat& format = text.FormatAt(i);
    if (&format != before) runs_.push_back({{}, format});
    before = &format;
    const char32_t c = text.CharacterAt(i);
    runs_.back().text.push_back(c);
    if (c == U'\n') alignments_.push_back(text.AlignmentAt(i));
    if (!format.picture) plain.push_back(c);
  }
  setText(QString::fromStdU32String(plain));
}

void RichTextMimeData::InsertInto(RichText& text) const {
  const int start = text.SelStart();
  const bool opens_paragraph = start == 0 || text.CharacterAt(start - 1) == U'\n';
  text.Replace(start, text.SelLength(), {}, text.CaretFormat());
  int end = start;
  for (const Run& run : runs_) {
    text.Replace(end, 0, run.text, run.format);
    end += static_cast<int>(run.text.size());
  }
  // A first paragraph that is only joined to what stands there takes the alignment of that.
  std::size_t paragraph = 0;
  for (int i = start; i < end; ++i) {
    if (text.CharacterAt(i) != U'\n') continue;
    if (paragraph > 0 || opens_paragraph) text.Align(i, 1, alignments_[paragraph]);
    ++paragraph;
  }
  text.SelStart(end);
}

bool CanInsertMimeData(const QMimeData& data) {
  return qobject_cast<const RichTextMimeData*>(&data) != nullptr || data.hasText() ||
         data.hasHtml() || data.hasImage();
}

void InsertMimeData(RichText& text, const QMimeData& data, int widest) {
  if (const auto* own = qobject_cast<const RichTextMimeData*>(&data)) {
    own->InsertInto(text);
  } else if (const std::u32string words = PlainText(data); !words.empty()) {
    text.SelUnicode(words);
  } else if (const QImage image = ImageOf(data); !image.isNull()) {
    text.InsertPicture(PictureOf(image, widest));
  }
}

}  // namespace brindlepage
