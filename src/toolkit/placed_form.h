#pragma once

#include "toolkit/geometry.h"

namespace brindlepage {

class Form;
class Label;

// Forms that place their controls themselves: what of them is shown, and how large on paper.

// What a picture of the form shows, in the form's twips: its boxes, that is visible labels with a
// border, and a margin around them. Of a form without boxes, the whole form.
Area PictureArea(const Form& form);

// How large that is on paper: as it stands, or shrunk until it fits a worksheet's column of 7.5
// inches and a page's 9 inches, whichever is more.
Size SizeOnPaper(const Area& area);

// The height of a box's letters in twips: the font's, but never less than the share of the box
// that the font has of a box of the usual size, so that large boxes are not left empty.
double TextHeight(const Label& box);

}  // namespace brindlepage
