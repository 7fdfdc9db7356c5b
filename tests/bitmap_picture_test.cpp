#include "worksheet/bitmap_picture.h"

#include <gtest/gtest.h>

#include "tests/bitmaps.h"
#include "tests/expect_fault.h"

namespace brindlepage {
namespace {

std::shared_ptr<const RichPicture> Embedded(const std::string& file) {
  return EmbeddedBitmap({"a.bmp", PictureFormat(file), file});
}

void ExpectSize(const std::string& file, int width, int height) {
  const auto picture = Embedded(file);
  EXPECT_EQ(picture->width, width);
  EXPECT_EQ(picture->height, height);
  EXPECT_EQ(picture->format, "bmp");
  EXPECT_EQ(picture->bytes, file);
}

TEST(BitmapPicture, WithoutDotsPerMetreADotIs15Twips) {
  ExpectSize(BitmapFile(40, 20), 600, 300);
  ExpectSize(OldBitmapFile(40, 20), 600, 300);
}

TEST(BitmapPicture, ItsDotsPerMetreMakeItsSize) {
  // 11811 dots to the metre are 300 to the inch: an inch and half of one.
  ExpectSize(BitmapFile(300, 150, 11811, 11811), 1440, 720);
  // Only across: the other way a dot is 15 twips.
  ExpectSize(BitmapFile(300, 150, 11811, 0), 1440, 2250);
}

TEST(BitmapPicture, AsWideAsTheColumnItKeepsItsSize) {
  ExpectSize(BitmapFile(720, 10), 10800, 150);
}

TEST(BitmapPicture, WiderThanTheColumnItIsFittedInItsProportions) {
  ExpectSize(BitmapFile(1440, 100), 10800, 750);
}

TEST(BitmapPicture, HigherThanAPageItIsFittedInItsProportions) {
  ExpectSize(BitmapFile(100, 1728), 750, 12960);
}

TEST(BitmapPicture, StoredFromTheTopItIsAsHigh) { ExpectSize(BitmapFile(4, -6), 60, 90); }

TEST(BitmapPicture, SoThinThatNothingWouldBeLeftItKeepsATwip) {
  ExpectSize(BitmapFile(40000, 1), 10800, 1);
}

TEST(BitmapPicture, WhatIsNoBitmapIsAnInvalidPicture) {
  EXPECT_FAULT(481, Embedded("GIF89a"));
  EXPECT_FAULT(481, Embedded("no picture"));
  EXPECT_FAULT(481, Embedded(""));
}

TEST(BitmapPicture, CutBeforeItsFirstDotItIsAnInvalidPicture) {
  const std::string file = BitmapFile(4, 4);
  for (std::size_t size = 2; size <= 54; ++size) {
    EXPECT_FAULT(481, Embedded(file.substr(0, size)));
  }
}

TEST(BitmapPicture, AHeaderThatMakesNoSenseIsAnInvalidPicture) {
  EXPECT_FAULT(481, Embedded(BitmapFile(0, 4)));
  EXPECT_FAULT(481, Embedded(BitmapFile(4, 0)));
  std::string negative = BitmapFile(4, 4);
  negative.replace(18, 4, LittleEndian(0xFFFFFFFC, 4));
  EXPECT_FAULT(481, Embedded(negative));
  std::string unknown_header = BitmapFile(4, 4);
  unknown_header.replace(14, 4, LittleEndian(13, 4));
  EXPECT_FAULT(481, Embedded(unknown_header));
  std::string dots_elsewhere = BitmapFile(4, 4);
  dots_elsewhere.replace(10, 4, LittleEndian(5000, 4));
  EXPECT_FAULT(481, Embedded(dots_elsewhere));
}

TEST(BitmapPicture, TheLargestNumbersStillMakeASize) {
  std::string huge = BitmapFile(4, 4, 1, 1);
  huge.replace(18, 8, LittleEndian(0x7FFFFFFF, 4) + LittleEndian(0x80000000, 4));
  const auto picture = Embedded(huge);
  EXPECT_EQ(picture->width, 10800);
  EXPECT_EQ(picture->height, 10800);
}

}  // namespace
}  // namespace brindlepage
