#pragma once

#include <string>

#include "crossword/cross_word_fill.h"

namespace brindlepage {

// The crossword straight to the printer: the background's picture in the upper left corner, the
// name line and the title over it, the clues below.
void PrintCrossword(Platform& platform, CrossWordFill& fill, const std::string& title);

// A form as it stands, on a page of its own.
void PrintPicture(Platform& platform, Form& form);

}  // namespace brindlepage
