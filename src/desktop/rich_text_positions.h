#pragma once

#include <algorithm>
#include <vector>

namespace brindlepage {

// Qt counts a character beyond U+FFFF double, the document counts every character once. Knows
// where such characters stand and so leads from the one to the other; without any it is free.
class RichTextPositions {
 public:
  int ToQt(int position) const {
    return position +
           static_cast<int>(std::lower_bound(wide_.begin(), wide_.end(), position) - wide_.begin());
  }

  int FromQt(int qt_position) const {
    int wide_before = 0;  // the first that does not end before the position, by halving
    int end = Count();
    while (wide_before < end) {
      const int middle = (wide_before + end) / 2;
      const int qt_end = wide_[static_cast<std::size_t>(middle)] + middle + 2;
      if (qt_end <= qt_position) {
        wide_before = middle + 1;
      } else {
        end = middle;
      }
    }
    return qt_position - wide_before;
  }

  // How many characters Qt counts double.
  int Count() const { return static_cast<int>(wide_.size()); }

  // `removed` characters at `position` gave way to `inserted` ones, of which `is_wide(i)` tells
  // whether the i-th is counted double.
  template <class IsWide>
  void Replace(int position, int removed, int inserted, IsWide is_wide) {
    const auto first = std::lower_bound(wide_.begin(), wide_.end(), position);
    const auto last = std::lower_bound(first, wide_.end(), position + removed);
    for (auto it = last; it != wide_.end(); ++it) *it += inserted - removed;
    auto at = wide_.erase(first, last);
    for (int i = 0; i < inserted; ++i) {
      if (is_wide(i)) at = wide_.insert(at, position + i) + 1;
    }
  }

 private:
  std::vector<int> wide_;  // ascending positions in the document
};

}  // namespace brindlepage
