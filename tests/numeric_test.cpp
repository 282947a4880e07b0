#include "vorlex/Numeric.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "error_matchers.h"

using namespace vorlex;

TEST(RoundHalfEven, TiesGoToTheEvenNeighbour) {
  EXPECT_EQ(RoundHalfEven(0.5), 0.0);
  EXPECT_EQ(RoundHalfEven(1.5), 2.0);
  EXPECT_EQ(RoundHalfEven(2.5), 2.0);
  EXPECT_EQ(RoundHalfEven(-2.5), -2.0);
  EXPECT_EQ(RoundHalfEven(-3.5), -4.0);
  EXPECT_EQ(RoundHalfEven(2.5000001), 3.0);
  EXPECT_EQ(RoundHalfEven(-0.4), 0.0);
}

TEST(IntFloor, TruncatesTowardMinusInfinity) {
  EXPECT_EQ(IntFloor(2.9), 2.0);
  EXPECT_EQ(IntFloor(-2.1), -3.0);
  EXPECT_EQ(IntFloor(-2.0), -2.0);
}

TEST(ToInteger, RoundsThenChecksTheSixteenBitRange) {
  EXPECT_EQ(ToInteger(32767.4), 32767);
  EXPECT_AUTOMATION_ERROR(ToInteger(32767.5), kErrOverflow);
  EXPECT_EQ(ToInteger(-32768.5), -32768);  // ties to even stay in range
  EXPECT_AUTOMATION_ERROR(ToInteger(-32768.6), kErrOverflow);
  EXPECT_EQ(ToInteger(2.5), 2);
  EXPECT_AUTOMATION_ERROR(ToInteger(std::nan("")), kErrOverflow);
}

TEST(ToLong, RoundsThenChecksTheThirtyTwoBitRange) {
  EXPECT_EQ(ToLong(2147483647.4), 2147483647);
  EXPECT_AUTOMATION_ERROR(ToLong(2147483647.5), kErrOverflow);
  EXPECT_EQ(ToLong(-2147483648.5), std::numeric_limits<int32_t>::min());
  EXPECT_AUTOMATION_ERROR(ToLong(1e300), kErrOverflow);
}

TEST(ToByte, AcceptsZeroTo255Only) {
  EXPECT_EQ(ToByte(255.0), 255);
  EXPECT_EQ(ToByte(-0.5), 0);
  EXPECT_AUTOMATION_ERROR(ToByte(256.0), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(ToByte(-1.0), kErrOverflow);
}

TEST(ToSingle, OverflowsBeyondTheSingleRange) {
  EXPECT_EQ(ToSingle(8.25), 8.25f);
  EXPECT_AUTOMATION_ERROR(ToSingle(1e39), kErrOverflow);
}

TEST(CheckedArithmetic, SixteenBitOverflowIsError6) {
  EXPECT_EQ(CheckedAdd(int16_t{32766}, int16_t{1}), 32767);
  EXPECT_AUTOMATION_ERROR(CheckedAdd(int16_t{32767}, int16_t{1}), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(CheckedSub(int16_t{100}, int16_t{-32700}), kErrOverflow);
  EXPECT_EQ(CheckedSub(int16_t{-32767}, int16_t{1}), -32768);
  EXPECT_AUTOMATION_ERROR(CheckedMul(int16_t{200}, int16_t{200}), kErrOverflow);
}

TEST(CheckedArithmetic, ThirtyTwoBitOverflowIsError6) {
  EXPECT_AUTOMATION_ERROR(CheckedAdd(int32_t{2147483647}, int32_t{1}), kErrOverflow);
  EXPECT_EQ(CheckedMul(int32_t{46340}, int32_t{46340}), 2147395600);
  EXPECT_AUTOMATION_ERROR(CheckedMul(int32_t{46341}, int32_t{46341}), kErrOverflow);
}

TEST(IntegerDivide, TruncatesTowardZeroAndRejectsZero) {
  EXPECT_EQ(IntegerDivide(int16_t{300}, int16_t{15}), 20);
  EXPECT_EQ(IntegerDivide(int16_t{-7}, int16_t{15}), 0);
  EXPECT_EQ(IntegerDivide(int16_t{-31}, int16_t{15}), -2);
  EXPECT_AUTOMATION_ERROR(IntegerDivide(int16_t{1}, int16_t{0}), kErrDivisionByZero);
  EXPECT_AUTOMATION_ERROR(IntegerDivide(int16_t{-32768}, int16_t{-1}), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(IntegerDivide(int32_t{5}, int32_t{0}), kErrDivisionByZero);
}

TEST(VariantBool, TrueIsAllBitsSet) {
  EXPECT_EQ(ToVariantBool(true), -1);
  EXPECT_EQ(ToVariantBool(false), 0);
  EXPECT_TRUE(IsCanonicalTrue(-1));
  EXPECT_FALSE(IsCanonicalTrue(1));
}

TEST(AutomationError, CarriesTheStandardNumberAndText) {
  EXPECT_STREQ(AutomationError(kErrOverflow).what(), "Overflow");
  EXPECT_STREQ(AutomationError(kErrSubscript).what(), "Subscript out of range");
  EXPECT_STREQ(AutomationError(kErrDivisionByZero).what(), "Division by zero");
  EXPECT_STREQ(AutomationError(kErrTypeMismatch).what(), "Type mismatch");
  EXPECT_EQ(AutomationError(kErrGetNotAtRunTime).Number(), 393);
  EXPECT_EQ(StandardErrorText(393), "Get not supported at run time");
}
