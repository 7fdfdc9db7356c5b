#include "tools/screens/small_png.h"

#include <algorithm>
#include <map>
#include <vector>

namespace brindlepage::screens {

namespace {

struct Colour {
  int channel[3];  // red, green, blue
  int count;       // pixels
};

using Colours = std::vector<Colour>;

QRgb ToRgb(const Colour& colour) {
  return qRgb(colour.channel[0], colour.channel[1], colour.channel[2]);
}

Colours ColoursOf(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) ++counts[pixels[x] | 0xFF000000];
  }
  Colours colours;
  for (const auto& [rgb, count] : counts) {
    colours.push_back({{qRed(rgb), qGreen(rgb), qBlue(rgb)}, count});
  }
  return colours;
}

// How far the colours of a box lie apart, and along which channel most.
struct Spread {
  int channel = 0;
  int width = 0;
};

Spread SpreadOf(const Colours& box) {
  Spread widest;
  for (int channel = 0; channel < 3; ++channel) {
    const auto [low, high] = std::minmax_element(
        box.begin(), box.end(),
        [&](const auto& a, const auto& b) { return a.channel[channel] < b.channel[channel]; });
    const int width = high->channel[channel] - low->channel[channel];
    if (width > widest.width) widest = {channel, width};
  }
  return widest;
}

// The rarer half of the pixels counts as well: half of the colours on either side.
Colours CutOff(Colours& box, int channel) {
  const auto middle = box.begin() + static_cast<std::ptrdiff_t>(box.size() / 2);
  std::nth_element(box.begin(), middle, box.end(), [&](const auto& a, const auto& b) {
    return std::pair(a.channel[channel], ToRgb(a)) < std::pair(b.channel[channel], ToRgb(b));
  });
  Colours upper(middle, box.end());
  box.erase(middle, box.end());
  return upper;
}

// Large plain areas keep their very colour: the colour of most pixels stands for its box.
Colour Representative(const Colours& box) {
  return *std::max_element(box.begin(), box.end(),
                           [](const auto& a, const auto& b) { return a.count < b.count; });
}

std::vector<Colours> MedianCut(Colours colours, int count) {
  std::vector<Colours> boxes{std::move(colours)};
  while (boxes.size() < static_cast<std::size_t>(count)) {
    const auto widest = std::max_element(
        boxes.begin(), boxes.end(),
        [](const auto& a, const auto& b) { return SpreadOf(a).width < SpreadOf(b).width; });
    const Spread spread = SpreadOf(*widest);
    if (spread.width == 0) break;
    Colours upper = CutOff(*widest, spread.channel);
    boxes.push_back(std::move(upper));
  }
  return boxes;
}

}  // namespace

bool SaveSmallPng(const QImage& image, const QString& file, int colours) {
  const QImage full = image.convertToFormat(QImage::Format_RGB32);
  QList<QRgb> table;
  std::map<QRgb, uchar> places;
  for (const Colours& box : MedianCut(ColoursOf(full), colours)) {
    for (const Colour& colour : box) places[ToRgb(colour)] = static_cast<uchar>(table.size());
    table.push_back(ToRgb(Representative(box)));
  }
  QImage small(full.size(), QImage::Format_Indexed8);
  small.setColorTable(table);
  for (int y = 0; y < full.height(); ++y) {
    const auto* pixels = reinterpret_cast<const QRgb*>(full.constScanLine(y));
    uchar* row = small.scanLine(y);
    for (int x = 0; x < full.width(); ++x) row[x] = places[pixels[x] | 0xFF000000];
  }
  constexpr int kSmallest = 0;
  return small.save(file, "PNG", kSmallest);
}

}  // namespace brindlepage::screens
