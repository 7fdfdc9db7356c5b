#pragma once

class QPainter;
class QPrinter;

namespace brindlepage {

// Ends what `painter` draws on the printer. Throws RunTimeError 57 if the printer fails, and 61 if
// it writes a file and the file isn't whole, which the printer doesn't tell of itself.
void FinishPrint(QPainter& painter, const QPrinter& printer);

}  // namespace brindlepage
