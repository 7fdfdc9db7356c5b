#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace brindlepage::walk {

// A picture of few colours, a byte a pixel, row by row.
struct PalettePicture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> colors;  // 0xRRGGBB, 256 at most
  std::string pixels;
};

// As a PNG file, not compressed.
std::string WritePng(const PalettePicture& picture);

}  // namespace brindlepage::walk
