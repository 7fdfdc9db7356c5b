#include "desktop/decode_picture.h"

#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QImageIOHandler>
#include <QImageReader>
#include <QLibrary>
#include <QPluginLoader>
#include <QThread>
#include <QTransform>
#include <QtEndian>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <string>

#include "toolkit/picture.h"

#ifdef BRINDLEPAGE_EMF
#include <emf2svg.h>
#endif

namespace brindlepage {

namespace {

constexpr int kDrawnSide = 2000;  // pixels of a drawing's longer side, for paper

// Dots for a bitmap to be read into, since the decoder leaves those that a cut file lacks as it
// finds them: white, or of the palette's first colour.
QImage PlainDots(QImageReader& reader) {
  constexpr qint64 kMostDots = 50'000'000;
  const QSize size = reader.size();
  if (reader.format() != "bmp" || qint64{size.width()} * size.height() > kMostDots) return {};
  QImage dots(size, reader.imageFormat());
  dots.fill(dots.depth() > 8 ? 0xFFFFFFFF : 0);
  return dots;
}

QImage ReadByQt(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  QImageReader reader(&buffer);
  reader.setAutoTransform(true);
  QImage largest = PlainDots(reader);
  if (!reader.read(&largest)) largest = {};
  // An icon holds itself in several sizes.
  for (int i = 1; i < reader.imageCount() && !reader.supportsAnimation(); ++i) {
    if (!reader.jumpToImage(i)) break;
    QImage other = reader.read();
    if (other.width() > largest.width()) largest = std::move(other);
  }
  return largest;
}

QByteArray Unowned(std::string_view bytes) {
  return QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

// QImageReader would load the decoders of all kinds to ask which of them reads photographs.
std::unique_ptr<QImageIOHandler> PhotographDecoder(QIODevice& file) {
  QPluginLoader loader("imageformats/qjpeg");
  auto* plugin = qobject_cast<QImageIOPlugin*>(loader.instance());
  if (plugin == nullptr) return nullptr;
  // All threads share it, and the one that made it may end.
  if (plugin->thread() == QThread::currentThread()) {
    plugin->moveToThread(QCoreApplication::instance()->thread());
  }
  return std::unique_ptr<QImageIOHandler>(plugin->create(&file, "jpg"));
}

// What is seen of a picture that covers the room.
QRect SeenPart(QSize picture, QSize room) {
  QRect seen({}, picture.boundedTo(room));
  seen.moveBottomRight(QRect({}, picture).bottomRight());
  return seen;
}

// A photograph, whose decoder leaves out what the size has no need of. A null image if there is
// no such decoder.
QImage ReadScaled(std::string_view bytes, QSize room, Qt::AspectRatioMode mode) {
  QByteArray contents = Unowned(bytes);
  QBuffer buffer(&contents);
  buffer.open(QIODevice::ReadOnly);
  const auto decoder = PhotographDecoder(buffer);
  if (decoder == nullptr) return {};
  const QSize whole = decoder->option(QImageIOHandler::Size).toSize();
  const int turned = decoder->option(QImageIOHandler::ImageTransformation).toInt();
  const bool lies = turned & QImageIOHandler::TransformationRotate90;
  QSize size = (lies ? whole.transposed() : whole).scaled(room, mode);
  if (turned == 0 && mode == Qt::KeepAspectRatioByExpanding) {
    const QRect seen = SeenPart(whole, room.scaled(whole, Qt::KeepAspectRatio));
    decoder->setOption(QImageIOHandler::ClipRect, seen);
    size = room;
  }
  decoder->setOption(QImageIOHandler::ScaledSize, lies ? size.transposed() : size);
  QImage image;
  if (!decoder->read(&image)) return {};
  if (turned & QImageIOHandler::TransformationRotate180) {
    image = image.mirrored(turned & QImageIOHandler::TransformationMirror,
                           turned & QImageIOHandler::TransformationFlip);
  }
  return lies ? image.transformed(QTransform().rotate(90)) : image;
}

// In front of a bitmap that has none, the file header: where its dots begin.
QByteArray WithFileHeader(std::string_view bitmap) {
  constexpr quint32 kFileHeader = 14;
  constexpr quint32 kInfoHeader = 40;
  constexpr quint32 kMasks = 3;  // the compression in which three masks follow the header
  if (bitmap.size() < kInfoHeader) return {};
  const auto number = [bitmap](std::size_t at) {
    return qFromLittleEndian<quint32>(bitmap.data() + at);
  };
  const quint32 bits = qFromLittleEndian<quint16>(bitmap.data() + 14);
  quint32 colors = number(32);
  if (colors == 0 && bits <= 8) colors = 1U << bits;
  if (colors > 256) colors = 0;
  const quint32 masks = number(16) == kMasks ? 12 : 0;
  const quint32 dots = kFileHeader + kInfoHeader + masks + 4 * colors;

  QByteArray file("BM");
  const auto append = [&file](quint32 value) {
    const quint32 little = qToLittleEndian(value);
    file.append(reinterpret_cast<const char*>(&little), sizeof little);
  };
  append(kFileHeader + static_cast<quint32>(bitmap.size()));
  append(0);
  append(dots);
  return file.append(bitmap.data(), static_cast<qsizetype>(bitmap.size()));
}

#ifdef BRINDLEPAGE_EMF

// Whether the file is one record behind another, up to its end record.
bool HasWholeRecords(std::string_view emf) {
  constexpr quint32 kEnd = 14;
  std::size_t at = 0;
  while (at + 8 <= emf.size()) {
    const auto type = qFromLittleEndian<quint32>(emf.data() + at);
    const auto size = qFromLittleEndian<quint32>(emf.data() + at + 4);
    if (size < 8 || size % 4 != 0 || size > emf.size() - at) return false;
    if (type == kEnd) return true;
    at += size;
  }
  return false;
}

// The converter is loaded when the first metafile is, which few sheets have.
QByteArray SvgOf(std::string_view emf) {
  static const auto convert =
      reinterpret_cast<decltype(&emf2svg)>(QLibrary("emf2svg", 1).resolve("emf2svg"));
  if (convert == nullptr) return {};
  // The converter does not say that it can be used by several threads.
  static std::mutex one_at_a_time;
  const std::lock_guard lock(one_at_a_time);
  // The converter looks a little behind records that are shorter than they should be.
  constexpr std::size_t kRoom = 65536;
  std::string contents(emf);
  contents.resize(emf.size() + kRoom);
  generatorOptions options{};
  options.svgDelimiter = true;
  options.emfplus = true;
  char* svg = nullptr;
  std::size_t length = 0;
  const bool converted = convert(contents.data(), emf.size(), &svg, &length, &options) != 0;
  const std::unique_ptr<char, void (*)(void*)> owned(svg, std::free);
  if (!converted || svg == nullptr) return {};
  return {svg, static_cast<qsizetype>(length)};
}

QImage DrawEmf(std::string_view emf) {
  if (!HasWholeRecords(emf)) return {};
  QByteArray svg = SvgOf(emf);
  QBuffer buffer(&svg);
  QImageReader reader(&buffer, "svg");
  reader.setScaledSize(reader.size().scaled(kDrawnSide, kDrawnSide, Qt::KeepAspectRatio));
  return reader.read();
}

#else

QImage DrawEmf(std::string_view) { return {}; }

#endif

}  // namespace

QImage DecodePicture(std::string_view bytes) {
  const std::string format = PictureFormat(bytes);
  if (format == "emf") return DrawEmf(bytes);
  if (format == "dib") return ReadByQt(WithFileHeader(bytes));
  if (format.empty() || format == "wmf") return {};
  return ReadByQt(Unowned(bytes));
}

QImage DecodePicture(std::string_view bytes, QSize room, Qt::AspectRatioMode mode) {
  QImage image;
  if (PictureFormat(bytes) == "jpg") image = ReadScaled(bytes, room, mode);
  if (image.isNull()) image = DecodePicture(bytes);
  if (image.isNull()) return image;
  image = image.scaled(room, mode, Qt::SmoothTransformation);
  return image.size() == room ? image : image.copy(SeenPart(image.size(), room));
}

}  // namespace brindlepage
