#include "desktop/picture_view.h"

#include <QHashFunctions>
#include <QPainter>
#include <QPixmapCache>

#include "desktop/decode_picture.h"
#include "desktop/icons.h"

namespace brindlepage {

namespace {
constexpr int kIconSide = 64;  // pixels
constexpr QSize kUsualPicture{360, 270};

// What `make` makes of the decoded picture, kept for the next time.
template <class Make>
QPixmap KeptPicture(const char* how, const PicturePtr& picture, QSize size, Make make) {
  if (picture == nullptr || size.isEmpty()) return {};
  const QString key = QString("%1/%2/%3/%4x%5")
                          .arg(how)
                          .arg(qHashBits(picture->bytes.data(), picture->bytes.size()))
                          .arg(picture->bytes.size())
                          .arg(size.width())
                          .arg(size.height());
  QPixmap kept;
  if (QPixmapCache::find(key, &kept)) return kept;
  const QImage image = DecodePicture(picture->bytes);
  if (image.isNull()) return {};
  kept = QPixmap::fromImage(make(image));
  QPixmapCache::insert(key, kept);
  return kept;
}

}  // namespace

QPixmap CoveringPicture(const PicturePtr& picture, QSize size, double pixel_ratio) {
  const QSize wanted = size * pixel_ratio;
  QPixmap covering = KeptPicture("covering", picture, wanted, [wanted](const QImage& image) {
    const QSize whole = image.size().scaled(wanted, Qt::KeepAspectRatioByExpanding);
    const QRect part(QPoint(whole.width() - wanted.width(), whole.height() - wanted.height()),
                     wanted);
    return image.scaled(whole, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).copy(part);
  });
  covering.setDevicePixelRatio(pixel_ratio);
  return covering;
}

QPixmap StretchedPicture(const PicturePtr& picture, QSize size) {
  return KeptPicture("stretched", picture, size, [size](const QImage& image) {
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  });
}

PictureView::PictureView(const QIcon& icon, QWidget* parent) : QWidget(parent), icon_(icon) {
  if (!icon.isNull()) setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureView::Show(const PicturePtr& picture) {
  if (picture == picture_) return;
  picture_ = picture;
  image_ = picture == nullptr ? QImage() : DecodePicture(picture->bytes);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  updateGeometry();
  update();
}

QSize PictureView::sizeHint() const {
  if (image_.isNull()) return {kIconSide, kIconSide};
  return image_.size().scaled(image_.size().boundedTo(kUsualPicture), Qt::KeepAspectRatio);
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (image_.isNull()) {
    const QIcon shown = picture_ != nullptr ? NamedIcon("picture") : icon_;
    shown.paint(&painter, rect());
    return;
  }
  QRect room(QPoint(), image_.size().scaled(image_.size().boundedTo(size()), Qt::KeepAspectRatio));
  room.moveCenter(rect().center());
  painter.drawImage(room, image_);
}

}  // namespace brindlepage
