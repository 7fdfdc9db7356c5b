#pragma once

#include <QImage>
#include <QObject>
#include <QPaintDevice>
#include <QSizeF>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <cstdint>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "worksheet/rich_text.h"

namespace brindlepage {

// A device with four dots to the point. Sizes of quarter points are whole numbers of dots there,
// so that nothing is rounded and lines break alike on all screens and printers.
class LayoutDevice : public QPaintDevice {
 public:
  QPaintEngine* paintEngine() const override { return nullptr; }

 protected:
  int metric(PaintDeviceMetric metric) const override;
};

// The pictures of a document, as Qt asks for them. Other threads decode them, from the moment on
// that they are added.
class RichTextPictures : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  static constexpr int kObjectType = QTextFormat::UserObject + 1;

  void Add(std::uint32_t format_id, std::shared_ptr<const RichPicture> picture);

  QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int,
                  const QTextFormat& format) override;

 private:
  struct Images {
    QImage whole;
    QImage reduced;  // as it was drawn last on a screen of fewer dots
  };
  struct Shown {
    std::shared_ptr<const RichPicture> picture;
    std::future<Images> coming;  // until it is first drawn
    Images images{};
  };
  static Images Decode(const RichPicture& picture);
  std::map<std::uint32_t, Shown> shown_;
};

// A rich text document, or a stretch of it, as a QTextDocument laid out in dots: what is drawn
// from it is scaled, on screen by the zoom and on paper by the printer's resolution. Each of its
// characters carries the id of its format, so that what the document says of it (a font that is
// not installed, say) is never lost.
class RichTextLayout {
 public:
  static constexpr int kDotsPerInch = 288;
  static constexpr int kTwipsPerDot = 1440 / kDotsPerInch;
  static constexpr int kColumnWidth = 7 * kDotsPerInch + kDotsPerInch / 2;  // dots
  // All the room that lines may take. They reach over the column's edge by less than a hundredth of
  // an inch, by the strokes with which underscores join. Qt's own page without end is too short for
  // a very long document.
  static constexpr QSizeF kPage{kColumnWidth + 2.5, 3.2e7};  // dots

  // `text` must live as long as Insert and Format are called.
  explicit RichTextLayout(const RichText& text);
  RichTextLayout(const RichTextLayout&) = delete;
  RichTextLayout& operator=(const RichTextLayout&) = delete;

  QTextDocument& document() { return document_; }
  const QTextDocument& document() const { return document_; }

  // Replaces all that is shown by the characters from `start` to `end`. Undo forgets what was.
  void Load(int start, int end);
  // Puts those that follow behind what Load() showed. Undo forgets what was.
  void LoadMore(int start, int end);
  // Inserts the characters from `start` to `end` at a cursor without a selection.
  void Insert(QTextCursor& cursor, int start, int end);

  const QTextCharFormat& Format(std::uint32_t id);
  // Nothing for a format that did not come from Format().
  static std::optional<std::uint32_t> FormatId(const QTextCharFormat& format);

  static const QTextBlockFormat& ParagraphFormat(Alignment alignment);
  static Alignment AlignmentOf(const QTextBlockFormat& format);

  // From now on, blanks without end behind a paragraph's last word take no line of their own.
  // Whoever follows the document's changes has to be connected before.
  void HangBlanks();

 private:
  void LayOutMuchBySteps();

  const RichText& text_;
  LayoutDevice device_;
  RichTextPictures pictures_;
  std::vector<std::optional<QTextCharFormat>> formats_;  // by id
  QTextDocument document_;
};

// The families that show a font of a document: itself, and what stands in for it.
QStringList ShownFamilies(const QString& font);

}  // namespace brindlepage
