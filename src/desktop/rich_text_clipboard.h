#pragma once

#include <QMimeData>
#include <string>
#include <vector>

#include "worksheet/rich_text.h"

namespace brindlepage {

// A stretch of a document on its way through the clipboard. Rich, with its pictures, for the
// program's own boxes; plain text and HTML for others.
class RichTextMimeData : public QMimeData {
  Q_OBJECT

 public:
  // The characters from `start` to `end`.
  RichTextMimeData(const RichText& text, int start, int end);

  // Puts them in the place of the selection; the caret ends behind.
  void InsertInto(RichText& text) const;

 private:
  struct Run {
    std::u32string text;
    CharFormat format;
  };
  std::vector<Run> runs_;
  std::vector<Alignment> alignments_;  // of the paragraphs that end in the stretch
};

// Whether InsertMimeData may have a use for it: text of this program, other text, of which it takes
// the words alone, a picture, or a picture's file.
bool CanInsertMimeData(const QMimeData& data);

// Puts what another program or this one copied in the place of the selection. A picture from
// outside becomes a PNG of its size at 96 dots to the inch, or as wide as `widest` twips.
void InsertMimeData(RichText& text, const QMimeData& data, int widest);

}  // namespace brindlepage
