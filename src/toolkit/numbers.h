#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>

#include "toolkit/run_time_error.h"

namespace brindlepage {

// A signed 16-bit counter. Sums are computed wide; a value that no longer fits when it is stored
// throws RunTimeError 6 "Overflow".
class Integer {
 public:
  constexpr Integer() = default;
  constexpr Integer(long long value) : value_(Checked(value)) {}  // NOLINT: stands for a number

  constexpr operator int() const { return value_; }  // NOLINT: stands for a number
  constexpr Integer& operator+=(long long n) { return *this = Integer(value_ + n); }
  constexpr Integer& operator-=(long long n) { return *this = Integer(value_ - n); }
  constexpr Integer& operator++() { return *this += 1; }
  constexpr Integer& operator--() { return *this -= 1; }

 private:
  static constexpr std::int16_t Checked(long long value) {
    if (value < INT16_MIN || value > INT16_MAX) throw RunTimeError(Fault::Overflow);
    return static_cast<std::int16_t>(value);
  }

  std::int16_t value_ = 0;
};

// An array with the fixed bounds Low to High; an index outside throws RunTimeError 9
// "Subscript out of range".
template <class T, int Low, int High>
class BoundedArray {
 public:
  T& operator()(int index) { return items_[Place(index)]; }
  const T& operator()(int index) const { return items_[Place(index)]; }
  void Erase() { items_.fill(T()); }

  static constexpr int low = Low;
  static constexpr int high = High;

 private:
  static std::size_t Place(int index) {
    if (index < Low || index > High) throw RunTimeError(Fault::Subscript);
    return static_cast<std::size_t>(index - Low);
  }

  std::array<T, static_cast<std::size_t>(High - Low + 1)> items_{};
};

// A number as it stands in a text line or a label: one blank in front if it isn't negative.
std::string DisplayForm(int number);

}  // namespace brindlepage
