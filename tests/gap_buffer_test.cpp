#include "worksheet/gap_buffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>

namespace brindlepage {
namespace {

std::string Contents(const GapBuffer<char>& buffer) {
  std::string contents;
  for (int i = 0; i < buffer.Size(); ++i) contents += buffer[i];
  return contents;
}

void Put(GapBuffer<char>& buffer, int position, std::string_view text) {
  std::copy(text.begin(), text.end(), buffer.Insert(position, static_cast<int>(text.size())));
}

TEST(GapBuffer, ANewOneIsEmpty) { EXPECT_EQ(GapBuffer<char>().Size(), 0); }

TEST(GapBuffer, WhatIsInsertedStandsInFrontOfThePosition) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "ac");
  Put(buffer, 1, "b");
  Put(buffer, 3, "d");
  Put(buffer, 0, "_");
  EXPECT_EQ(Contents(buffer), "_abcd");
}

TEST(GapBuffer, AnElementCanBeChangedOnBothSidesOfTheGap) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "abcd");
  Put(buffer, 2, "-");
  buffer[0] = 'A';
  buffer[4] = 'D';
  EXPECT_EQ(Contents(buffer), "Ab-cD");
}

TEST(GapBuffer, AStretchAroundTheGapIsRemoved) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "abcdef");
  Put(buffer, 3, "-");
  buffer.Remove(2, 3);
  EXPECT_EQ(Contents(buffer), "abef");
}

TEST(GapBuffer, AStretchAwayFromTheGapIsRemoved) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "abcdef");
  buffer.Remove(0, 2);
  EXPECT_EQ(Contents(buffer), "cdef");
  buffer.Remove(3, 1);
  EXPECT_EQ(Contents(buffer), "cde");
}

TEST(GapBuffer, GrowingKeepsBothSidesOfTheGap) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "<>");
  Put(buffer, 1, std::string(1000, 'x'));
  EXPECT_EQ(Contents(buffer), "<" + std::string(1000, 'x') + ">");
}

TEST(GapBuffer, RandomChangesGiveWhatAStringGives) {
  for (unsigned seed = 0; seed < 200; ++seed) {
    std::mt19937 random(seed);
    const auto draw = [&](std::size_t n) { return static_cast<int>(random() % n); };
    GapBuffer<char> buffer;
    std::string model;
    for (int step = 0; step < 100; ++step) {
      const int position = draw(model.size() + 1);
      if (draw(2) == 0) {
        const std::string text(static_cast<std::size_t>(draw(40)),
                               static_cast<char>('a' + draw(26)));
        Put(buffer, position, text);
        model.insert(static_cast<std::size_t>(position), text);
      } else {
        const int count = draw(model.size() - static_cast<std::size_t>(position) + 1);
        buffer.Remove(position, count);
        model.erase(static_cast<std::size_t>(position), static_cast<std::size_t>(count));
      }
      ASSERT_EQ(Contents(buffer), model) << "seed " << seed << " step " << step;
    }
  }
}

}  // namespace
}  // namespace brindlepage
