#pragma once

#include "toolkit/form.h"
#include "toolkit/picture.h"

namespace brindlepage::walk {

// A form's picture where there is no display: its boxes on its background colour, in coarse dots
// and without letters, as large on paper as the desktop's.
FormPicture SketchOf(const Form& form);

}  // namespace brindlepage::walk
