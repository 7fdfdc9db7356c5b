#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "toolkit/picture.h"

class QPainter;

namespace brindlepage {

// Draws the picture as it covers a page of that size, its right and lower edges showing. What has
// been drawn is kept for the next page with the same picture. Without a picture, plain paper.
void DrawCovering(QPainter& painter, const PicturePtr& picture, QSize page);

// The picture will soon cover a page of that size: decodes it meanwhile in another thread.
void PrepareCovering(const PicturePtr& picture, QSize page, double pixel_ratio);

// The picture of exactly that size in pixels, whatever its proportions. Kept likewise.
QPixmap StretchedPicture(const PicturePtr& picture, QSize size);

// Shows a picture as large as fits, or while there is none a drawing.
class PictureView : public QWidget {
 public:
  PictureView(const QIcon& icon, QWidget* parent);

  void Show(const PicturePtr& picture);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {32, 32}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QIcon icon_;
  PicturePtr picture_;
  QImage image_;
};

}  // namespace brindlepage
