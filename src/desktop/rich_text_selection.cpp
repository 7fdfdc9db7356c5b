#include "desktop/rich_text_selection.h"

#include <QAbstractTextDocumentLayout>
#include <QGlyphRun>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

namespace brindlepage {

namespace {

// A selected paragraph's end shows as a stretch of this part of the line's height.
constexpr double kEnd = 0.25;

bool RunsToTheLeft(QStringView text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) {
    return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
  });
}

// Calls `take(left, right)` for the stretches that the characters from `from` to `to` fill.
template <class Take>
void ForEachStretch(const QTextLine& line, QStringView text, int from, int to, Take take) {
  if (from >= to) return;
  if (!RunsToTheLeft(text.mid(line.textStart(), line.textLength()))) {
    return take(line.cursorToX(from), line.cursorToX(to));
  }
  for (const QGlyphRun& run : line.glyphRuns(from, to - from)) {
    take(run.boundingRect().left(), run.boundingRect().right());
  }
}

// `from` and `to` are places in the paragraph; `to` is behind its length where its end is selected.
void PaintLine(QPainter& painter, const QTextBlock& block, const QTextLine& line, QPointF origin,
               int from, int to, const QColor& color) {
  const double top = origin.y() + line.y();
  const auto fill = [&](double left, double right) {
    painter.fillRect(QRectF(origin.x() + left, top, right - left, line.height()), color);
  };
  const int line_end = line.textStart() + line.textLength();
  const QString text = block.text();
  ForEachStretch(line, text, std::max(from, line.textStart()), std::min(to, line_end), fill);
  const bool ends_paragraph = line_end >= text.size();
  if (ends_paragraph && to > text.size()) {
    const double end = line.cursorToX(line_end);
    fill(end, end + line.height() * kEnd);
  }
}

}  // namespace

void PaintSelection(QPainter& painter, const QTextCursor& selection, const QRectF& exposed,
                    const QColor& color) {
  const QTextDocument& document = *selection.document();
  const QAbstractTextDocumentLayout& layout = *document.documentLayout();
  const int first_shown = layout.hitTest(exposed.topLeft(), Qt::FuzzyHit);
  for (QTextBlock block = document.findBlock(std::max(first_shown, selection.selectionStart()));
       block.isValid() && block.position() < selection.selectionEnd(); block = block.next()) {
    const QRectF room = layout.blockBoundingRect(block);
    if (room.top() > exposed.bottom()) return;
    const int from = std::max(selection.selectionStart() - block.position(), 0);
    const int to = std::min(selection.selectionEnd() - block.position(), block.length());
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
      PaintLine(painter, block, block.layout()->lineAt(i), room.topLeft(), from, to, color);
    }
  }
}

}  // namespace brindlepage
