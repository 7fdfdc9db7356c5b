#pragma once

namespace brindlepage {

// Twips, 1440 to the inch.
inline constexpr int kTwipsPerInch = 1440;

struct Size {
  int width = 0;
  int height = 0;

  bool operator==(const Size&) const = default;
};

struct Area {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  int Right() const { return left + width; }
  int Bottom() const { return top + height; }
  bool operator==(const Area&) const = default;
};

}  // namespace brindlepage
