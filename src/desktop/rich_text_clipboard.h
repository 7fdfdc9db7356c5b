#pragma once

#include <QMimeData>
#include <QTextDocumentFragment>

#include "worksheet/rich_text.h"

namespace brindlepage {

// A stretch of a document on its way through the clipboard: as it is for the program's own boxes,
// as rich text (RTF) with its pictures for word processors, as HTML and as plain text for others.
// Each is made when it is asked for.
class RichTextMimeData : public QMimeData {
  Q_OBJECT

 public:
  // HTML, which lacks the pictures, is made of the stretch as it is shown, and not offered without.
  explicit RichTextMimeData(RichContent stretch, QTextDocumentFragment shown = {});

  const RichContent& Stretch() const { return stretch_; }

  QStringList formats() const override;

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override;

 private:
  RichContent stretch_;
  QTextDocumentFragment shown_;
};

// Whether InsertMimeData may have a use for it: text of this program, rich text of another, other
// text, of which it takes the words alone, a picture, or a picture's file.
bool CanInsertMimeData(const QMimeData& data);

// Puts what another program or this one copied in the place of the selection. A picture from
// outside is at most `widest` twips wide; one that comes alone becomes a PNG of its size at 96 dots
// to the inch.
void InsertMimeData(RichText& text, const QMimeData& data, int widest);

}  // namespace brindlepage
