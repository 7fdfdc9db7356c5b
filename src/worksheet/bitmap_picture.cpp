#include "worksheet/bitmap_picture.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "toolkit/platform.h"
#include "toolkit/run_time_error.h"

namespace brindlepage {

namespace {

constexpr double kTwipsPerMetre = 1440 / 0.0254;

constexpr double kColumnWidth = 10800;  // twips, seven and a half inches
constexpr double kPageHeight = 12960;   // nine inches, which a page has room for beside a line

constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kCoreHeader = 12;
constexpr std::uint32_t kInfoHeader = 40;

// The header of a bitmap: numbers of 16 and 32 bits, the lowest byte first.
class Header {
 public:
  explicit Header(std::string_view bytes) : bytes_(bytes) {}

  std::int32_t Word(std::size_t at) const { return static_cast<std::uint16_t>(Number(at, 2)); }
  std::int32_t Long(std::size_t at) const { return static_cast<std::int32_t>(Number(at, 4)); }

 private:
  std::uint32_t Number(std::size_t at, std::size_t size) const {
    if (at + size > bytes_.size()) throw RunTimeError(Fault::InvalidPicture);
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;) {
      number = number << 8 | static_cast<unsigned char>(bytes_[at + i]);
    }
    return number;
  }

  std::string_view bytes_;
};

struct Extent {
  double width;  // twips
  double height;
};

double Twips(double dots, std::int32_t dots_per_metre) {
  return dots_per_metre > 0 ? dots * kTwipsPerMetre / dots_per_metre : dots * kTwipsPerPixel;
}

Extent ExtentOf(std::string_view bytes) {
  const Header header(bytes);
  const auto header_size = static_cast<std::uint32_t>(header.Long(kFileHeader));
  const auto pixels = static_cast<std::uint32_t>(header.Long(10));
  if (header_size != kCoreHeader && header_size < kInfoHeader) {
    throw RunTimeError(Fault::InvalidPicture);
  }
  const bool core = header_size == kCoreHeader;
  const double width = core ? header.Word(18) : header.Long(18);
  // A picture that is stored from its top has a negative height.
  const double height = core ? header.Word(20) : std::abs(static_cast<double>(header.Long(22)));
  if (width <= 0 || height <= 0 || pixels >= bytes.size()) {
    throw RunTimeError(Fault::InvalidPicture);
  }
  return {Twips(width, core ? 0 : header.Long(38)), Twips(height, core ? 0 : header.Long(42))};
}

}  // namespace

std::shared_ptr<const RichPicture> EmbeddedBitmap(const Picture& picture) {
  if (picture.format != "bmp") throw RunTimeError(Fault::InvalidPicture);
  const Extent extent = ExtentOf(picture.bytes);
  const double scale = std::min({1.0, kColumnWidth / extent.width, kPageHeight / extent.height});
  const auto shown = [scale](double twips) {
    return std::max(1, static_cast<int>(std::lround(twips * scale)));
  };
  return std::make_shared<RichPicture>(
      RichPicture{picture.format, picture.bytes, shown(extent.width), shown(extent.height)});
}

}  // namespace brindlepage
