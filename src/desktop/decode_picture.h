#pragma once

#include <QImage>
#include <string_view>

namespace brindlepage {

// The picture of a file's bytes: all kinds that Qt reads, device-independent bitmaps without a
// file header, and Windows metafiles, which are drawn as large as paper needs. A null image for
// what is broken or of no known kind.
QImage DecodePicture(std::string_view bytes);

// The same picture scaled to a room as QSize::scaled tells, and of one that covers the room and
// more the part at the right and below. A large photograph is decoded at about that size at once,
// in a fraction of the time and memory. May be called from any thread.
QImage DecodePicture(std::string_view bytes, QSize room, Qt::AspectRatioMode mode);

}  // namespace brindlepage
