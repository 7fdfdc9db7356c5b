#pragma once

#include <QImage>

namespace brindlepage::screens {

// Writes the image as a PNG file of at most so many colours, 2 to 256: those of the image that
// stand best for it, chosen by median cut (Heckbert, 1982). False if it can't be written.
bool SaveSmallPng(const QImage& image, const QString& file, int colours);

}  // namespace brindlepage::screens
