#pragma once

#include <QImage>

#include "worksheet/rich_text_box.h"

namespace brindlepage::screens {

// The first page of what is printed of the box, as the paper shows it: 800 pixels wide, without
// the empty part at its foot, a thin line around it. Needs pdftoppm; without it the tool ends.
QImage PagePicture(const RichTextBox& box, int start, int length);

}  // namespace brindlepage::screens
