#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <random>
#include <string>

#include "desktop/decode_picture.h"
#include "desktop/other_thread.h"
#include "desktop/picture_view.h"
#include "desktop/style.h"
#include "tests/bitmaps.h"
#include "tests/file_bytes.h"

namespace brindlepage {
namespace {

std::string Encoded(const char* format, QSize size = {6, 4}) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(image.save(&buffer, format, 100));
  return bytes.toStdString();
}

// A red dot.
std::string Gif() {
  return std::string("GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35);
}

// An icon (kind 1) or cursor (kind 2) that holds these PNG files.
std::string Icon(int kind, const std::vector<std::string>& pngs) {
  const auto number = [](std::size_t value, int size) {
    return LittleEndian(static_cast<std::uint32_t>(value), size);
  };
  std::string icon = number(0, 2) + number(static_cast<std::size_t>(kind), 2);
  icon += number(pngs.size(), 2);
  std::size_t place = 6 + 16 * pngs.size();
  for (const std::string& png : pngs) {
    icon += number(0, 4) + number(1, 2) + number(32, 2) + number(png.size(), 4) + number(place, 4);
    place += png.size();
  }
  for (const std::string& png : pngs) icon += png;
  return icon;
}

std::string Record(std::uint32_t type, std::initializer_list<std::uint32_t> words) {
  std::string record = LittleEndian(type, 4);
  record += LittleEndian(static_cast<std::uint32_t>(8 + 4 * words.size()), 4);
  for (const std::uint32_t word : words) record += LittleEndian(word, 4);
  return record;
}

// An enhanced metafile of 200 by 100 units: a red box over its left half.
std::string Emf() {
  const std::string records = Record(39, {1, 0, 0x0000FF, 0}) +  // a red brush
                              Record(37, {1}) +                  // is selected
                              Record(43, {0, 0, 100, 100}) +     // a rectangle
                              Record(14, {0, 16, 20});           // the end
  const auto size = static_cast<std::uint32_t>(88 + records.size());
  const std::string header = Record(1, {0,    0, 199, 99, 0, 0, 5200, 2600, 0x464D4520, 0x10000,
                                        size, 5, 2,   0,  0, 0, 1024, 768,  320,        240});
  return header + records;
}

void ExpectRed(const std::string& bytes, QSize size) {
  const QImage image = DecodePicture(bytes);
  ASSERT_EQ(image.size(), size);
  const QColor color = image.pixelColor(image.width() / 4, image.height() / 2);
  EXPECT_GT(color.red(), 240);
  EXPECT_LT(color.green(), 15);
  EXPECT_LT(color.blue(), 15);
}

TEST(DecodePicture, EveryKindOfTheCollectionIsRead) {
  ExpectRed(Encoded("JPG"), {6, 4});
  ExpectRed(Encoded("PNG"), {6, 4});
  ExpectRed(BitmapFile(6, 4), {6, 4});
  ExpectRed(OldBitmapFile(6, 4), {6, 4});
  ExpectRed(Gif(), {1, 1});
  ExpectRed(Icon(1, {Encoded("PNG")}), {6, 4});
  ExpectRed(Icon(2, {Encoded("PNG")}), {6, 4});
}

TEST(DecodePicture, ABitmapWithoutItsFileHeaderIsReadLikeOneWithIt) {
  ExpectRed(BitmapFile(6, 4).substr(14), {6, 4});
  // Of eight bits, with a palette of as many colours as its header tells.
  std::string palette = BitmapFile(4, 4).substr(14, 40);
  palette.replace(14, 2, LittleEndian(8, 2)).replace(32, 4, LittleEndian(2, 4));
  ExpectRed(palette + LittleEndian(0x0000FF, 4) + LittleEndian(0xFF0000, 4) + std::string(16, 1),
            {4, 4});
}

TEST(DecodePicture, OfAnIconsSizesTheLargestIsShown) {
  ExpectRed(Icon(1, {Encoded("PNG", {4, 4}), Encoded("PNG", {8, 8}), Encoded("PNG", {6, 6})}),
            {8, 8});
}

TEST(DecodePicture, AnEnhancedMetafileIsDrawnInItsProportionsAsLargeAsPaperNeeds) {
  const QImage image = DecodePicture(Emf());
  ASSERT_EQ(image.width(), 2000);
  EXPECT_NEAR(image.height(), 1000, 10);
  EXPECT_EQ(image.pixelColor(500, 500), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(1500, 500).alpha(), 0);
}

TEST(DecodePicture, BrokenPicturesAreNone) {
  for (const std::string& broken :
       {std::string(), std::string("no picture"), std::string("BM"), std::string("GIF89a"),
        Encoded("PNG").substr(0, 20), Encoded("JPG").substr(0, 60), Icon(1, {"no picture"}),
        BitmapFile(4, 4).substr(14, 30), Emf().substr(0, 90), Emf().substr(0, Emf().size() - 8)}) {
    EXPECT_TRUE(DecodePicture(broken).isNull()) << broken.substr(0, 12);
  }
}

// Without a trace of what the memory held before.
TEST(DecodePicture, ACutBitmapIsPlainWhereItsDotsAreMissing) {
  const std::string whole = BitmapFile(300, 200);
  const QImage image = DecodePicture(whole.substr(0, whole.size() / 2));
  ASSERT_EQ(image.size(), QSize(300, 200));
  EXPECT_EQ(image.pixelColor(150, 10), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(150, 190), QColor(Qt::red));
  std::string palette = whole.substr(14, 40);
  palette.replace(14, 2, LittleEndian(8, 2)).replace(32, 4, LittleEndian(2, 4));
  palette += LittleEndian(0x0000FF, 4) + LittleEndian(0xFF0000, 4) + std::string(3000, 1);
  const QImage few = DecodePicture(palette);
  ASSERT_EQ(few.size(), QSize(300, 200));
  EXPECT_EQ(few.pixelColor(150, 10), QColor(Qt::blue));
  EXPECT_EQ(few.pixelColor(150, 199), QColor(Qt::red));
}

TEST(DecodePicture, NoDamageToAMetafileDoesHarm) {
  std::mt19937 draws(5);
  for (int i = 0; i < 300; ++i) {
    std::string damaged = Emf();
    for (int dots = 0; dots < 4; ++dots) {
      damaged[44 + draws() % (damaged.size() - 44)] = static_cast<char>(draws());
    }
    DecodePicture(damaged);
  }
}

// A photograph that says how the camera was held; 6: on its side.
std::string Lying(const std::string& jpeg, char way = 6) {
  std::string orientation("Exif\0\0MM\0*\0\0\0\10\0\1\1\x12\0\3\0\0\0\1\0\6\0\0\0\0\0\0", 32);
  orientation[25] = way;
  return jpeg.substr(0, 2) + "\xFF\xE1" + std::string("\0\x22", 2) + orientation + jpeg.substr(2);
}

// Every way in which a photograph may say that it lies, as the library itself turns it.
TEST(DecodePicture, APhotographIsTurnedAsItSays) {
  QImage image(64, 32, QImage::Format_RGB32);
  image.fill(Qt::blue);
  QPainter(&image).fillRect(0, 0, 32, 16, Qt::red);
  QByteArray plain;
  QBuffer buffer(&plain);
  buffer.open(QIODevice::WriteOnly);
  ASSERT_TRUE(image.save(&buffer, "JPG", 100));
  for (int way = 1; way <= 8; ++way) {
    const std::string bytes = Lying(plain.toStdString(), static_cast<char>(way));
    const QImage whole = DecodePicture(bytes);
    const QImage scaled = DecodePicture(bytes, whole.size() / 2, Qt::IgnoreAspectRatio);
    ASSERT_EQ(scaled.size(), whole.size() / 2) << way;
    for (const QPoint at : {QPoint(3, 3), QPoint(12, 3), QPoint(3, 12), QPoint(12, 12)}) {
      EXPECT_EQ(scaled.pixelColor(at).red() > 127, whole.pixelColor(2 * at).red() > 127) << way;
    }
  }
}

TEST(DecodePicture, APictureIsScaledToCoverARoomWhateverItsKind) {
  for (const char* format : {"JPG", "PNG"}) {
    const std::string bytes = Encoded(format, {200, 100});
    const auto size = [&](QSize room, Qt::AspectRatioMode mode) {
      const QImage image = DecodePicture(bytes, room, mode);
      EXPECT_GT(image.pixelColor(image.rect().center()).red(), 240) << format;
      return image.size();
    };
    EXPECT_EQ(size({50, 50}, Qt::KeepAspectRatioByExpanding), QSize(50, 50)) << format;
    EXPECT_EQ(size({300, 301}, Qt::KeepAspectRatioByExpanding), QSize(300, 301)) << format;
    EXPECT_EQ(size({70, 10}, Qt::KeepAspectRatioByExpanding), QSize(70, 10)) << format;
    EXPECT_EQ(size({50, 50}, Qt::KeepAspectRatio), QSize(50, 25)) << format;
    EXPECT_EQ(size({50, 50}, Qt::IgnoreAspectRatio), QSize(50, 50)) << format;
  }
  EXPECT_TRUE(DecodePicture("no picture", {50, 50}, Qt::IgnoreAspectRatio).isNull());
  EXPECT_TRUE(
      DecodePicture(Encoded("JPG").substr(0, 60), {50, 50}, Qt::IgnoreAspectRatio).isNull());
}

TEST(DecodePicture, APhotographTakenOnItsSideStandsUprightInAnySize) {
  const std::string bytes = Lying(Encoded("JPG", {200, 100}));
  EXPECT_EQ(DecodePicture(bytes).size(), QSize(100, 200));
  EXPECT_EQ(DecodePicture(bytes, {50, 50}, Qt::KeepAspectRatioByExpanding).size(), QSize(50, 50));
  EXPECT_EQ(DecodePicture(bytes, {50, 50}, Qt::IgnoreAspectRatio).size(), QSize(50, 50));
}

TEST(DecodePicture, PhotographsAreReadByOneThreadAfterAnother) {
  const std::string bytes = FileBytes(PROGRAM_FOLDER "/titleback.jpg").value();
  static QStringList warnings;
  warnings.clear();
  const auto before = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { warnings << message; });
  const QSize small(50, 50);
  const auto read = [&] { return DecodePicture(bytes, small, Qt::IgnoreAspectRatio); };
  EXPECT_EQ(InOtherThread(read).get().size(), small);
  EXPECT_GT(DecodePicture(bytes).width(), small.width());
  qInstallMessageHandler(before);
  EXPECT_EQ(warnings, QStringList());
}

// Red on the left, blue on the right; `mark` makes it another file.
PicturePtr TwoHalves(const char* format, int mark) {
  QImage image(800, 200, QImage::Format_RGB32);
  image.fill(Qt::blue);
  QPainter(&image).fillRect(0, 0, 400, 200, Qt::red);
  image.setPixelColor(0, 0, QColor(mark, 0, 0));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(image.save(&buffer, format, 100));
  const std::string contents = bytes.toStdString();
  return std::make_shared<Picture>(Picture{"a", PictureFormat(contents), contents});
}

QImage Covered(const PicturePtr& picture, QSize page) {
  QImage image(page, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  DrawCovering(painter, picture, page);
  return image;
}

TEST(DrawCovering, APageShowsItsPicturesRightAndLowerEdges) {
  for (const char* format : {"JPG", "PNG"}) {
    const QImage page = Covered(TwoHalves(format, 1), {50, 100});
    for (const QPoint at : {QPoint(1, 1), QPoint(48, 98)}) {
      EXPECT_GT(page.pixelColor(at).blue(), 240) << format;
      EXPECT_LT(page.pixelColor(at).red(), 15) << format;
    }
    const QImage wide = Covered(TwoHalves(format, 1), {800, 100});
    EXPECT_GT(wide.pixelColor(300, 50).red(), 240) << format;
    EXPECT_GT(wide.pixelColor(500, 50).blue(), 240) << format;
  }
}

TEST(DrawCovering, APictureDecodedMeanwhileIsTheSame) {
  const QSize page(90, 70);
  PrepareCovering(TwoHalves("JPG", 2), page, 1);
  PrepareCovering(nullptr, page, 1);
  PrepareCovering(TwoHalves("JPG", 2), {}, 1);
  const QImage prepared = Covered(TwoHalves("JPG", 2), page);
  QPixmapCache::clear();
  EXPECT_EQ(prepared, Covered(TwoHalves("JPG", 2), page));
  EXPECT_GT(prepared.pixelColor(80, 60).blue(), 240);
}

TEST(DrawCovering, APreparedPictureThatNobodyComesForDoesNoHarm) {
  const QSize page(90, 70);
  PrepareCovering(TwoHalves("JPG", 3), page, 1);
  PrepareCovering(TwoHalves("JPG", 4), page, 1);
  EXPECT_EQ(Covered(TwoHalves("JPG", 3), page), Covered(TwoHalves("JPG", 4), page));
}

TEST(DrawCovering, WithoutAPictureOrWithABrokenOneAPageIsPlainPaper) {
  const auto broken = std::make_shared<Picture>(Picture{"a.jpg", "jpg", "\xFF\xD8\xFF no more"});
  for (const PicturePtr& picture : {PicturePtr(), PicturePtr(broken)}) {
    PrepareCovering(picture, {20, 10}, 1);
    const QImage page = Covered(picture, {20, 10});
    EXPECT_EQ(page.pixelColor(0, 0), palette::kPaper);
    EXPECT_EQ(page.pixelColor(19, 9), palette::kPaper);
  }
}

TEST(DecodePicture, AStretchedPictureHasTheSizeAskedForAndNoPictureHasNone) {
  const std::string bytes = BitmapFile(6, 4);
  const auto picture = std::make_shared<Picture>(Picture{"a.bmp", "bmp", bytes});
  EXPECT_EQ(StretchedPicture(picture, {30, 50}).size(), QSize(30, 50));
  EXPECT_TRUE(StretchedPicture(nullptr, {30, 50}).isNull());
}

}  // namespace
}  // namespace brindlepage
