#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPixmapCache>

#include "desktop/icons.h"

namespace brindlepage {
namespace {

QImage Painted(int side, double ratio, QIcon::Mode mode) {
  const int dots = qRound(side * ratio);
  QImage image(dots, dots, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  QPainter painter(&image);
  NamedIcon("print").paint(&painter, QRect(0, 0, side, side), Qt::AlignCenter, mode);
  painter.end();
  image.setDevicePixelRatio(1);
  return image;
}

TEST(AnIcon, IsDrawnOnceInEachSizeAndState) {
  const auto key = [](int side, QIcon::Mode mode) {
    return NamedIcon("print").pixmap(QSize(side, side), 1, mode).cacheKey();
  };
  QPixmapCache::clear();
  const qint64 usual = key(26, QIcon::Normal);
  EXPECT_EQ(key(26, QIcon::Normal), usual);
  EXPECT_NE(key(27, QIcon::Normal), usual);
  EXPECT_NE(key(26, QIcon::Disabled), usual);
  EXPECT_NE(NamedIcon("save").pixmap(QSize(26, 26), 1).cacheKey(), usual);
}

TEST(AnIcon, IsAsFineAsTheScreen) {
  for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
    EXPECT_EQ(Painted(26, 2, mode), Painted(52, 1, mode));
  }
  EXPECT_NE(Painted(26, 1, QIcon::Normal), Painted(26, 1, QIcon::Disabled));
}

}  // namespace
}  // namespace brindlepage
