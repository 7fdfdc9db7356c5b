#include "desktop/picture_view.h"

#include <QHashFunctions>
#include <QPainter>
#include <QPixmapCache>
#include <future>
#include <utility>

#include "desktop/decode_picture.h"
#include "desktop/icons.h"
#include "desktop/other_thread.h"
#include "desktop/style.h"

namespace brindlepage {

namespace {
constexpr int kIconSide = 64;  // pixels
constexpr QSize kUsualPicture{360, 270};

// A picture and what of it is wanted. Both together make the name under which it is kept.
struct Wanted {
  PicturePtr picture;
  QSize room;  // pixels
  Qt::AspectRatioMode mode;

  bool IsNothing() const { return picture == nullptr || room.isEmpty(); }
  QString Key() const {
    return QString("%1/%2/%3/%4x%5")
        .arg(mode)
        .arg(qHashBits(picture->bytes.data(), picture->bytes.size()))
        .arg(picture->bytes.size())
        .arg(room.width())
        .arg(room.height());
  }
  QImage Decode() const { return DecodePicture(picture->bytes, room, mode); }
};

// What another thread is decoding, one picture at a time.
struct Coming {
  QString key;
  std::future<QImage> image;
};

Coming& TheComing() {
  static Coming coming;
  return coming;
}

void Prepare(const Wanted& wanted) {
  if (wanted.IsNothing()) return;
  const QString key = wanted.Key();
  QPixmap kept;
  if (TheComing().key == key || QPixmapCache::find(key, &kept)) return;
  TheComing() = {key, InOtherThread([wanted] { return wanted.Decode(); })};
}

QPixmap Kept(const Wanted& wanted) {
  if (wanted.IsNothing()) return {};
  const QString key = wanted.Key();
  QPixmap kept;
  if (QPixmapCache::find(key, &kept)) return kept;
  Coming coming;
  if (TheComing().key == key) coming = std::exchange(TheComing(), {});
  kept = QPixmap::fromImage(coming.image.valid() ? coming.image.get() : wanted.Decode());
  if (!kept.isNull()) QPixmapCache::insert(key, kept);
  return kept;
}

}  // namespace

void DrawCovering(QPainter& painter, const PicturePtr& picture, QSize page) {
  const double ratio = painter.device()->devicePixelRatioF();
  QPixmap covering = Kept({picture, page * ratio, Qt::KeepAspectRatioByExpanding});
  covering.setDevicePixelRatio(ratio);
  if (covering.isNull() || covering.hasAlphaChannel()) {
    painter.fillRect(QRect(QPoint(), page), palette::kPaper);
  }
  const QSizeF size = covering.deviceIndependentSize();
  painter.drawPixmap(QPointF(page.width() - size.width(), page.height() - size.height()), covering);
}

void PrepareCovering(const PicturePtr& picture, QSize page, double pixel_ratio) {
  Prepare({picture, page * pixel_ratio, Qt::KeepAspectRatioByExpanding});
}

QPixmap StretchedPicture(const PicturePtr& picture, QSize size) {
  return Kept({picture, size, Qt::IgnoreAspectRatio});
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
