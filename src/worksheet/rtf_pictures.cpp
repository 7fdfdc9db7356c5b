#include "worksheet/rtf_pictures.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <utility>

#include "toolkit/picture.h"

namespace brindlepage {

namespace {

constexpr std::size_t kBitmapHeader = 14;
constexpr std::size_t kMetafileHeader = 22;
constexpr std::string_view kPlaceable = "\xD7\xCD\xC6\x9A";

constexpr std::int64_t kTwipsPerInch = 1440;
constexpr std::int64_t kTwipsPerPixel = 15;
constexpr std::int64_t kHundredthsOfMillimetrePerInch = 2540;

struct Size {
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool IsKnown() const { return width > 0 && height > 0; }
};

bool IsKnownFormat(std::string_view format) {
  return std::any_of(std::begin(kRtfPictureKinds), std::end(kRtfPictureKinds),
                     [&](const RtfPictureKind& kind) { return kind.format == format; });
}

bool IsMetafile(std::string_view format) { return format == "wmf" || format == "emf"; }

// --- Numbers in the files, least byte first; 0 behind the end.

std::uint32_t Byte(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}
std::uint32_t Short(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) | Byte(bytes, at + 1) << 8;
}
std::uint32_t Long(std::string_view bytes, std::size_t at) {
  return Short(bytes, at) | Short(bytes, at + 2) << 16;
}
std::int64_t SignedLong(std::string_view bytes, std::size_t at) {
  return static_cast<std::int32_t>(Long(bytes, at));
}
std::uint32_t ShortFromMost(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) << 8 | Byte(bytes, at + 1);
}

void AppendShort(std::string& bytes, std::int64_t number) {
  bytes.push_back(static_cast<char>(number & 0xFF));
  bytes.push_back(static_cast<char>(number >> 8 & 0xFF));
}
void AppendLong(std::string& bytes, std::int64_t number) {
  AppendShort(bytes, number & 0xFFFF);
  AppendShort(bytes, number >> 16 & 0xFFFF);
}

// --- Headers

// Where the dots of a bitmap begin in its data, behind the head and the palette.
std::optional<std::uint64_t> BitsOffset(std::string_view data) {
  constexpr std::uint64_t kOldHead = 12;
  constexpr std::uint64_t kHead = 40;
  const std::uint64_t head = Long(data, 0);
  if (head != kOldHead && (head < kHead || head > 124)) return std::nullopt;
  if (head > data.size()) return std::nullopt;

  std::uint64_t offset = head;
  if (head == kOldHead) {
    const std::uint32_t bits = Short(data, 10);
    if (bits <= 8) offset += std::uint64_t{3} << bits;
  } else {
    const std::uint32_t bits = Short(data, 14);
    const std::uint32_t compression = Long(data, 16);
    const std::uint64_t used = Long(data, 32);
    if (head == kHead && compression == 3) offset += 12;
    if (head == kHead && compression == 6) offset += 16;
    offset += 4 * (used == 0 && bits <= 8 ? std::uint64_t{1} << bits : used);
  }
  return offset <= data.size() ? std::optional(offset) : std::nullopt;
}

std::string BitmapHeader(std::string_view data) {
  const auto offset = BitsOffset(data);
  if (!offset) return "";
  std::string header = "BM";
  AppendLong(header, static_cast<std::int64_t>(kBitmapHeader + data.size()));
  AppendLong(header, 0);
  AppendLong(header, static_cast<std::int64_t>(kBitmapHeader + *offset));
  return header;
}

// A placeable metafile's: its frame in twips, and the exclusive or of what stands before.
std::string MetafileHeader(std::string_view data, std::int64_t width, std::int64_t height) {
  if (PictureFormat(data) != "wmf") return "";
  constexpr std::int64_t kWidest = 0x7FFF;
  std::string header(kPlaceable);
  AppendShort(header, 0);
  AppendLong(header, 0);
  AppendShort(header, std::min(width, kWidest));
  AppendShort(header, std::min(height, kWidest));
  AppendShort(header, kTwipsPerInch);
  AppendLong(header, 0);
  std::uint32_t sum = 0;
  for (std::size_t at = 0; at < header.size(); at += 2) sum ^= Short(header, at);
  AppendShort(header, sum);
  return header;
}

std::string HeaderOf(std::string_view format, std::string_view data, std::int64_t width,
                     std::int64_t height) {
  if (format == "bmp") return BitmapHeader(data);
  if (format == "wmf") return MetafileHeader(data, width, height);
  return "";
}

std::size_t HeaderLength(const RichPicture& picture) {
  const std::string_view bytes = picture.bytes;
  if (picture.format == "bmp" && bytes.starts_with("BM") && bytes.size() >= kBitmapHeader) {
    return kBitmapHeader;
  }
  if (picture.format == "wmf" && bytes.starts_with(kPlaceable) && bytes.size() >= kMetafileHeader) {
    return kMetafileHeader;
  }
  return 0;
}

// --- Sizes

// Of the first frame that a JPEG file tells.
Size JpegPixels(std::string_view data) {
  for (std::size_t at = 2; at + 9 < data.size() && Byte(data, at) == 0xFF;) {
    const std::uint32_t marker = Byte(data, at + 1);
    const bool tables = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
    if (marker >= 0xC0 && marker <= 0xCF && !tables) {
      return {ShortFromMost(data, at + 7), ShortFromMost(data, at + 5)};
    }
    at += 2 + std::max(ShortFromMost(data, at + 2), 2U);
  }
  return {};
}

Size Pixels(std::string_view format, std::string_view data) {
  if (format == "png") {
    return {ShortFromMost(data, 16) << 16 | ShortFromMost(data, 18),
            ShortFromMost(data, 20) << 16 | ShortFromMost(data, 22)};
  }
  if (format == "jpg") return JpegPixels(data);
  if (format == "gif") return {Short(data, 6), Short(data, 8)};
  if (format == "bmp") {
    if (Long(data, 0) == 12) return {Short(data, 4), Short(data, 6)};
    return {SignedLong(data, 4), std::abs(SignedLong(data, 8))};
  }
  return {};
}

// In hundredths of a millimetre.
Size Frame(std::string_view format, std::string_view data) {
  if (format != "emf") return {};
  return {SignedLong(data, 32) - SignedLong(data, 24), SignedLong(data, 36) - SignedLong(data, 28)};
}

Size TwipsOfPixels(Size size) {
  return {size.width * kTwipsPerPixel, size.height * kTwipsPerPixel};
}

Size TwipsOfFrame(Size size) {
  return {size.width * kTwipsPerInch / kHundredthsOfMillimetrePerInch,
          size.height * kTwipsPerInch / kHundredthsOfMillimetrePerInch};
}

int Side(std::int64_t twips) {
  return static_cast<int>(std::clamp<std::int64_t>(twips, 1, kLongestPictureSide));
}

// A bitmap may claim billions of dots, and the file to show them a million times as large.
int ScaledSide(std::int64_t twips, int per_cent) {
  constexpr std::int64_t kEnough = 100 * std::int64_t{kLongestPictureSide};
  return Side(std::min(twips, kEnough) * std::max(per_cent, 1) / 100);
}

int FileSide(std::int64_t twips, bool metafile) {
  const std::int64_t side =
      metafile ? twips * kHundredthsOfMillimetrePerInch / kTwipsPerInch : twips / kTwipsPerPixel;
  return static_cast<int>(std::max<std::int64_t>(side, 1));
}

// What the file says of the size on paper, or what the picture says itself, or an inch.
Size ShownSize(const RtfPicture& told) {
  const Size goal{told.goal_width, told.goal_height};
  if (goal.IsKnown()) return goal;
  const bool metafile = IsMetafile(told.format);
  const Size size{told.width, told.height};
  const Size own = metafile ? TwipsOfFrame(Frame(told.format, told.data))
                            : TwipsOfPixels(Pixels(told.format, told.data));
  const Size said = metafile ? TwipsOfFrame(size) : TwipsOfPixels(size);
  const Size first = metafile ? said : own;
  const Size second = metafile ? own : said;
  if (first.IsKnown()) return first;
  if (second.IsKnown()) return second;
  return {kTwipsPerInch, kTwipsPerInch};
}

}  // namespace

void RtfPicture::Take(RtfWord word, const RtfToken& token) {
  switch (word.effect) {
    case RtfEffect::PictureKind:
      format = kRtfPictureKinds[word.value].format;
      break;
    case RtfEffect::PictureWidth:
      width = token.number;
      break;
    case RtfEffect::PictureHeight:
      height = token.number;
      break;
    case RtfEffect::GoalWidth:
      goal_width = token.number;
      break;
    case RtfEffect::GoalHeight:
      goal_height = token.number;
      break;
    case RtfEffect::ScaleWidth:
      scale_width = token.NumberOr(100);
      break;
    case RtfEffect::ScaleHeight:
      scale_height = token.NumberOr(100);
      break;
    default:
      break;
  }
}

std::shared_ptr<const RichPicture> PictureFromRtf(RtfPicture&& told) {
  if (told.format.empty()) told.format = PictureFormat(told.data);
  if (told.format == "dib") told.format = "bmp";
  if (!IsKnownFormat(told.format)) return nullptr;

  const Size size = ShownSize(told);
  auto picture = std::make_shared<RichPicture>();
  picture->width = ScaledSide(size.width, told.scale_width);
  picture->height = ScaledSide(size.height, told.scale_height);
  picture->bytes = told.header ? std::move(*told.header)
                               : HeaderOf(told.format, told.data, picture->width, picture->height);
  if (picture->bytes.empty()) {
    picture->bytes = std::move(told.data);
  } else {
    picture->bytes += told.data;
  }
  picture->format = std::move(told.format);
  return picture;
}

RtfPictureParts PictureToRtf(const RichPicture& picture) {
  const std::string_view bytes = picture.bytes;
  const std::size_t length = HeaderLength(picture);
  RtfPictureParts parts{.header = bytes.substr(0, length),
                        .data = bytes.substr(length),
                        .header_follows = true,
                        .width = Side(picture.width),
                        .height = Side(picture.height),
                        .file_width = 0,
                        .file_height = 0};
  const bool metafile = IsMetafile(picture.format);
  parts.file_width = FileSide(parts.width, metafile);
  parts.file_height = FileSide(parts.height, metafile);
  parts.header_follows =
      parts.header == HeaderOf(picture.format, parts.data, parts.width, parts.height);
  return parts;
}

}  // namespace brindlepage
