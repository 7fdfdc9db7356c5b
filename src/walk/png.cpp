#include "walk/png.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace brindlepage::walk {

namespace {

// Most significant byte first, as PNG has its numbers.
std::string BigEndian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(number >> shift & 0xFF);
  return bytes;
}

std::array<std::uint32_t, 256> MakeCrcTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t rest = byte;
    for (int bit = 0; bit < 8; ++bit) rest = rest & 1 ? 0xEDB88320U ^ (rest >> 1) : rest >> 1;
    table[byte] = rest;
  }
  return table;
}

std::uint32_t Crc32(std::string_view bytes) {
  static const auto kTable = MakeCrcTable();
  std::uint32_t crc = 0xFFFFFFFF;
  for (const char byte : bytes) {
    crc = kTable[(crc ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (crc >> 8);
  }
  return ~crc;
}

std::uint32_t Adler32(std::string_view bytes) {
  constexpr std::uint32_t kModulus = 65521;
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (const char byte : bytes) {
    low = (low + static_cast<unsigned char>(byte)) % kModulus;
    high = (high + low) % kModulus;
  }
  return high << 16 | low;
}

// A zlib stream of stored blocks.
std::string Stored(std::string_view bytes) {
  constexpr std::size_t kLargestBlock = 0xFFFF;
  std::string stream = "\x78\x01";
  const std::string checksum = BigEndian(Adler32(bytes));
  do {
    const std::size_t size = std::min(bytes.size(), kLargestBlock);
    stream += size == bytes.size() ? '\1' : '\0';
    for (const std::size_t number : {size, ~size}) {
      stream += static_cast<char>(number & 0xFF);
      stream += static_cast<char>(number >> 8 & 0xFF);
    }
    stream += bytes.substr(0, size);
    bytes.remove_prefix(size);
  } while (!bytes.empty());
  return stream + checksum;
}

std::string Chunk(std::string_view type, std::string_view data) {
  const std::string body = std::string(type) + std::string(data);
  return BigEndian(static_cast<std::uint32_t>(data.size())) + body + BigEndian(Crc32(body));
}

}  // namespace

std::string WritePng(const PalettePicture& picture) {
  using namespace std::string_view_literals;
  const auto width = static_cast<std::size_t>(picture.width);
  std::string header = BigEndian(static_cast<std::uint32_t>(picture.width)) +
                       BigEndian(static_cast<std::uint32_t>(picture.height));
  header += "\x08\x03\x00\x00\x00"sv;  // eight bits to a pixel, a palette, nothing else
  std::string palette;
  for (const std::uint32_t color : picture.colors) palette += BigEndian(color).substr(1);
  std::string rows;
  for (std::size_t row = 0; row < static_cast<std::size_t>(picture.height); ++row) {
    rows += '\0';  // no filter
    rows += picture.pixels.substr(row * width, width);
  }
  return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", header) + Chunk("PLTE", palette) +
         Chunk("IDAT", Stored(rows)) + Chunk("IEND", "");
}

}  // namespace brindlepage::walk
