#pragma once

namespace brindlepage {

// Begins to read what the system tells of its fonts, in a thread of its own: that takes longer than
// most else at the start. To be called before there is a QApplication, which has to wait for the
// window system meanwhile.
void ReadFontsAhead();

// Waits until they are read, if they are being read. To be called before text is shown for the
// first time; else the fonts are read twice.
void AwaitFonts();

}  // namespace brindlepage
