#include "toolkit/placed_form.h"

#include <algorithm>
#include <limits>

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace brindlepage {

namespace {

constexpr int kMargin = 100;                        // twips
constexpr Size kRoom = {10800, 9 * kTwipsPerInch};  // on paper

constexpr double kTwipsPerPoint = 20;
constexpr double kUsualBox = 315;  // twips
constexpr double kUsualPoints = 10;

}  // namespace

Area PictureArea(const Form& form) {
  constexpr int kFar = std::numeric_limits<int>::max();
  int left = kFar;
  int top = kFar;
  int right = 0;
  int bottom = 0;
  for (const Control* control : form.Controls()) {
    const auto* label = dynamic_cast<const Label*>(control);
    if (label == nullptr || !label->Visible || label->BorderStyle == 0) continue;
    left = std::min(left, label->Left());
    top = std::min(top, label->Top());
    right = std::max(right, label->Left + label->Width);
    bottom = std::max(bottom, label->Top + label->Height);
  }
  if (left == kFar) return {0, 0, form.Width, form.Height};
  return {left - kMargin, top - kMargin, right - left + 2 * kMargin, bottom - top + 2 * kMargin};
}

Size SizeOnPaper(const Area& area) {
  const double across = static_cast<double>(kRoom.width) / std::max(1, area.width);
  const double down = static_cast<double>(kRoom.height) / std::max(1, area.height);
  const double shrink = std::min({1.0, across, down});
  return {static_cast<int>(area.width * shrink), static_cast<int>(area.height * shrink)};
}

double TextHeight(const Label& box) {
  const double points = box.FontSize > 0 ? box.FontSize() : kUsualPoints;
  const double side = std::min(box.Width(), box.Height());
  return points * kTwipsPerPoint * std::max(1.0, side / kUsualBox);
}

}  // namespace brindlepage
