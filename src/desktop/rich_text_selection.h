#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QTextCursor>

namespace brindlepage {

// Fills the ground of what is selected in a document that is laid out, as far as `exposed` shows
// it: the text is then drawn over it once, in its own colours. (The library's way draws it twice,
// within outlines of everything selected, which takes more than twice as long.)
void PaintSelection(QPainter& painter, const QTextCursor& selection, const QRectF& exposed,
                    const QColor& color);

}  // namespace brindlepage
