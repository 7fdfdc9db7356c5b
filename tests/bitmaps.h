#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace brindlepage {

// A number of that many bytes, the lowest first.
inline std::string LittleEndian(std::uint32_t number, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> 8 * i & 0xFF);
  return bytes;
}

// A bitmap file of 24 bits a dot, all red, that tells its dots per metre.
inline std::string BitmapFile(int width, int height, int across = 0, int down = 0) {
  const auto row = (static_cast<std::uint32_t>(width) * 3 + 3) / 4 * 4;
  const auto rows = static_cast<std::uint32_t>(height < 0 ? -height : height);
  const auto number = [](int value) { return LittleEndian(static_cast<std::uint32_t>(value), 4); };
  std::string file = "BM" + LittleEndian(54 + row * rows, 4) + number(0) + number(54);
  file += number(40) + number(width) + number(height) + LittleEndian(1, 2) + LittleEndian(24, 2);
  file += number(0) + LittleEndian(row * rows, 4) + number(across) + number(down);
  file += number(0) + number(0);
  for (std::uint32_t y = 0; y < rows; ++y) {
    std::string dots;
    for (int x = 0; x < width; ++x) dots += std::string("\0\0\xFF", 3);
    dots.resize(row);
    file += dots;
  }
  return file;
}

// The same with the short header of 12 bytes, which tells no dots per metre.
inline std::string OldBitmapFile(int width, int height) {
  const std::string file = BitmapFile(width, height);
  const auto number = [](int value, int size) {
    return LittleEndian(static_cast<std::uint32_t>(value), size);
  };
  return "BM" + number(static_cast<int>(file.size()) - 28, 4) + number(0, 4) + number(26, 4) +
         number(12, 4) + number(width, 2) + number(height, 2) + number(1, 2) + number(24, 2) +
         file.substr(54);
}

}  // namespace brindlepage
