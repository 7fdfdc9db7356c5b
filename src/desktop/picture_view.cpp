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
}  // namespace

QPixmap CoveringPicture(const PicturePtr& picture, QSize size, double pixel_ratio) {
  if (picture == nullptr || size.isEmpty()) return {};
  const QSize wanted = size * pixel_ratio;
  const QString key = QString("covering/%1/%2/%3x%4")
                          .arg(qHashBits(picture->bytes.data(), picture->bytes.size()))
                          .arg(picture->bytes.size())
                          .arg(wanted.width())
                          .arg(wanted.height());
  QPixmap covering;
  if (QPixmapCache::find(key, &covering)) return covering;
  const QImage image = DecodePicture(picture->bytes);
  if (image.isNull()) return {};
  const QSize whole = image.size().scaled(wanted, Qt::KeepAspectRatioByExpanding);
  const QRect part(QPoint(whole.width() - wanted.width(), whole.height() - wanted.height()),
                   wanted);
  covering = QPixmap::fromImage(
      image.scaled(whole, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).copy(part));
  covering.setDevicePixelRatio(pixel_ratio);
  QPixmapCache::insert(key, covering);
  return covering;
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
