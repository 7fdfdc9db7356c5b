#pragma once

#include <memory>

#include "toolkit/picture.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// A bitmap file (Windows BMP, headers of 12 bytes and of 40 and more) as a document holds it: as
// large as its dots per metre make it, 15 twips a dot where it tells none, and no larger than the
// text column and a page, in its proportions. Throws RunTimeError 481 if the picture is no bitmap,
// or its header makes no sense.
std::shared_ptr<const RichPicture> EmbeddedBitmap(const Picture& picture);

}  // namespace brindlepage
