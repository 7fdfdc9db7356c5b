#include "toolkit/numbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "tests/expect_fault.h"

namespace brindlepage {
namespace {

TEST(DisplayForm, PutsOneBlankBeforeANumberThatIsNotNegative) {
  EXPECT_EQ(DisplayForm(7), " 7");
  EXPECT_EQ(DisplayForm(0), " 0");
  EXPECT_EQ(DisplayForm(32767), " 32767");
  EXPECT_EQ(DisplayForm(INT_MAX), " 2147483647");
}

TEST(DisplayForm, NegativeNumberHasItsSignInPlaceOfTheBlank) {
  EXPECT_EQ(DisplayForm(-1), "-1");
  EXPECT_EQ(DisplayForm(INT_MIN), "-2147483648");
}

TEST(Integer, StartsAtZero) { EXPECT_EQ(Integer(), 0); }

TEST(Integer, HoldsSixteenBits) {
  EXPECT_EQ(Integer(32767), 32767);
  EXPECT_EQ(Integer(-32768), -32768);
  EXPECT_FAULT(6, Integer(32768));
  EXPECT_FAULT(6, Integer(-32769));
  EXPECT_FAULT(6, Integer(4294967296LL));  // would be 0 if it were cut to its low bits
}

TEST(Integer, CountsUpToItsLimitAndThenOverflows) {
  Integer count = 32766;
  ++count;
  EXPECT_EQ(count, 32767);
  EXPECT_FAULT(6, ++count);
  EXPECT_EQ(count, 32767);
}

TEST(Integer, CountsDownToItsLimitAndThenOverflows) {
  Integer count = -32767;
  --count;
  EXPECT_EQ(count, -32768);
  EXPECT_FAULT(6, --count);
  EXPECT_EQ(count, -32768);
}

TEST(Integer, AddsAndSubtractsInPlace) {
  Integer count = 30000;
  count += 2767;
  EXPECT_EQ(count, 32767);
  count -= 65535;
  EXPECT_EQ(count, -32768);
  EXPECT_FAULT(6, count -= 1);
  EXPECT_FAULT(6, count += 65536);
}

TEST(Integer, SumIsComputedWideAndChecksOnlyWhereItIsStored) {
  Integer half = 20000;
  EXPECT_EQ(half + half, 40000);
  EXPECT_EQ(Integer((half + half) / 2), 20000);
  EXPECT_FAULT(6, half = half + half);
  EXPECT_EQ(half, 20000);
}

TEST(Integer, ComparesLikeANumber) {
  Integer three = 3;
  EXPECT_TRUE(three == 3);
  EXPECT_TRUE(three < Integer(4));
  EXPECT_TRUE(three >= 3);
  EXPECT_FALSE(three != Integer(3));
}

TEST(BoundedArray, TakesBothBoundsAndRefusesTheirNeighbours) {
  BoundedArray<int, 0, 300> marks;
  marks(0) = 5;
  marks(300) = 6;
  EXPECT_EQ(marks(0), 5);
  EXPECT_EQ(marks(300), 6);
  EXPECT_FAULT(9, marks(301) = 1);
  EXPECT_FAULT(9, marks(-1) = 1);
  const auto& read_only = marks;
  EXPECT_EQ(read_only(300), 6);
  EXPECT_FAULT(9, static_cast<void>(read_only(301)));
}

TEST(BoundedArray, MayBeginAnywhere) {
  BoundedArray<int, -2, 2> around;
  around(-2) = 1;
  around(2) = 2;
  EXPECT_EQ(around(-2), 1);
  EXPECT_EQ(around(2), 2);
  EXPECT_FAULT(9, static_cast<void>(around(-3)));
  EXPECT_FAULT(9, static_cast<void>(around(3)));
}

TEST(BoundedArray, StartsEmptyAndIsEmptyAfterErase) {
  BoundedArray<std::string, 0, 2> words;
  EXPECT_EQ(words(1), "");
  words(0) = "cat";
  words(2) = "dog";
  words.Erase();
  EXPECT_EQ(words(0), "");
  EXPECT_EQ(words(2), "");

  BoundedArray<int, 1, 3> numbers;
  EXPECT_EQ(numbers(1), 0);
  numbers(3) = 7;
  numbers.Erase();
  EXPECT_EQ(numbers(3), 0);
}

}  // namespace
}  // namespace brindlepage
