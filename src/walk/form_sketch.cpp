#include "walk/form_sketch.h"

#include <algorithm>

#include "toolkit/controls.h"
#include "toolkit/placed_form.h"
#include "walk/png.h"

namespace brindlepage::walk {

namespace {

constexpr int kTwipsPerDot = 60;
enum Colors : char { kBackground, kWhite, kBlack };

std::uint32_t RedGreenBlue(int blue_green_red) {
  const auto color = static_cast<std::uint32_t>(blue_green_red);
  return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

void Fill(PalettePicture& sketch, const Area& dots, char color) {
  const int right = std::min(dots.Right(), sketch.width);
  const int bottom = std::min(dots.Bottom(), sketch.height);
  for (int y = std::max(0, dots.top); y < bottom; ++y) {
    for (int x = std::max(0, dots.left); x < right; ++x) {
      sketch.pixels[static_cast<std::size_t>(y * sketch.width + x)] = color;
    }
  }
}

}  // namespace

FormPicture SketchOf(const Form& form) {
  const Area area = PictureArea(form);
  PalettePicture sketch{std::max(1, area.width / kTwipsPerDot),
                        std::max(1, area.height / kTwipsPerDot),
                        {RedGreenBlue(form.BackColor), 0xFFFFFF, 0},
                        {}};
  sketch.pixels.assign(static_cast<std::size_t>(sketch.width * sketch.height), kBackground);
  for (const Control* control : form.Controls()) {
    const auto* box = dynamic_cast<const Label*>(control);
    if (box == nullptr || !box->Visible || box->BorderStyle == 0) continue;
    const Area dots = {(box->Left - area.left) / kTwipsPerDot, (box->Top - area.top) / kTwipsPerDot,
                       box->Width / kTwipsPerDot, box->Height / kTwipsPerDot};
    Fill(sketch, dots, kBlack);
    Fill(sketch, {dots.left + 1, dots.top + 1, dots.width - 2, dots.height - 2}, kWhite);
  }
  const Size size = SizeOnPaper(area);
  return {"png", WritePng(sketch), size.width, size.height};
}

}  // namespace brindlepage::walk
