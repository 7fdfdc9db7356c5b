#pragma once

#include <QImage>
#include <string_view>

namespace brindlepage {

// The picture of a file's bytes: all kinds that Qt reads, device-independent bitmaps without a
// file header, and Windows metafiles, which are drawn as large as paper needs. A null image for
// what is broken or of no known kind.
QImage DecodePicture(std::string_view bytes);

}  // namespace brindlepage
