#include "vorlex/Variant.h"

#include <gtest/gtest.h>

#include "error_matchers.h"
#include "vorlex/Font.h"

using namespace vorlex;

TEST(VariantConversion, HalfwayValuesRoundToEven) {
  EXPECT_AUTOMATION_ERROR(Variant(32767.5).ToInteger(), kErrOverflow);
  EXPECT_EQ(Variant(-32768.5).ToInteger(), -32768);
  EXPECT_EQ(Variant(3.5f).ToInteger(), 4);
  EXPECT_EQ(Variant(4.5).ToLong(), 4);
}

TEST(VariantConversion, NumericStringsAreNumbers) {
  EXPECT_EQ(Variant("2.5").ToInteger(), 2);
  EXPECT_EQ(Variant(" 42 ").ToLong(), 42);
  EXPECT_EQ(Variant("-1e2").ToInteger(), -100);
  EXPECT_EQ(Variant("&HFF").ToInteger(), 255);
  EXPECT_EQ(Variant("&HFFFF").ToInteger(), -1);
  EXPECT_EQ(Variant("&O17").ToInteger(), 15);
  EXPECT_TRUE(Variant("2").IsNumeric());
  EXPECT_FALSE(Variant("2x").IsNumeric());
}

TEST(VariantConversion, NonNumericStringIsTypeMismatch) {
  EXPECT_AUTOMATION_ERROR(Variant("abc").ToInteger(), kErrTypeMismatch);
  EXPECT_AUTOMATION_ERROR(Variant("").ToLong(), kErrTypeMismatch);
  EXPECT_AUTOMATION_ERROR(Variant("1.2.3").ToDouble(), kErrTypeMismatch);
  EXPECT_FALSE(Variant("abc").IsNumeric());
}

TEST(VariantConversion, NumericStringBeyondRangeOverflows) {
  EXPECT_AUTOMATION_ERROR(Variant("40000").ToInteger(), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(Variant("1e999").ToDouble(), kErrOverflow);
}

TEST(VariantConversion, EmptyIsZeroAndEmptyText) {
  const Variant empty;
  EXPECT_TRUE(empty.IsNumeric());
  EXPECT_EQ(empty.ToInteger(), 0);
  EXPECT_EQ(empty.ToLong(), 0);
  EXPECT_EQ(empty.ToBoolean(), VARIANT_FALSE);
  EXPECT_EQ(empty.ToString(), "");
}

TEST(VariantConversion, BooleansAreMinusOneAndZero) {
  EXPECT_EQ(Variant::Boolean(true).ToInteger(), -1);
  EXPECT_EQ(Variant::Boolean(false).ToLong(), 0);
  EXPECT_EQ(Variant::Boolean(true).ToString(), "True");
  EXPECT_EQ(Variant(int16_t{5}).ToBoolean(), VARIANT_TRUE);
  EXPECT_EQ(Variant("true").ToBoolean(), VARIANT_TRUE);
  EXPECT_EQ(Variant("False").ToBoolean(), VARIANT_FALSE);
  EXPECT_EQ(Variant("0").ToBoolean(), VARIANT_FALSE);
  EXPECT_AUTOMATION_ERROR(Variant("yes").ToBoolean(), kErrTypeMismatch);
}

TEST(VariantConversion, LongNarrowsToIntegerWithOverflowCheck) {
  EXPECT_EQ(Variant(int32_t{32767}).ToInteger(), 32767);
  EXPECT_AUTOMATION_ERROR(Variant(int32_t{32768}).ToInteger(), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(Variant(int32_t{256}).ToByte(), kErrOverflow);
}

TEST(VariantConversion, ObjectsAreNoNumbersOrText) {
  const Variant font(std::static_pointer_cast<Object>(std::make_shared<Font>()));
  EXPECT_FALSE(font.IsNumeric());
  EXPECT_AUTOMATION_ERROR(font.ToInteger(), kErrTypeMismatch);
  EXPECT_AUTOMATION_ERROR(font.ToString(), kErrTypeMismatch);
  EXPECT_AUTOMATION_ERROR(Variant(1).ToObject(), kErrTypeMismatch);
  EXPECT_NE(font.ToObject(), nullptr);
}

TEST(VariantText, NumbersPrintInTheirShortestForm) {
  EXPECT_EQ(Variant(int16_t{-5}).ToString(), "-5");
  EXPECT_EQ(Variant(0.1).ToString(), "0.1");
  EXPECT_EQ(Variant(0.1 + 0.2).ToString(), "0.3");
  EXPECT_EQ(Variant(8.25f).ToString(), "8.25");
  EXPECT_EQ(Variant(0.1f).ToString(), "0.1");
  EXPECT_EQ(Variant(1e20).ToString(), "1E+20");
  EXPECT_EQ(Variant(1.5e-7).ToString(), "1.5E-07");
  EXPECT_EQ(Variant(123456.0).ToString(), "123456");
  EXPECT_EQ(Variant(0.00012).ToString(), "0.00012");
  EXPECT_EQ(Variant(12345678.0f).ToString(), "1.234568E+07");
}

TEST(VariantCompare, NumbersCompareNumerically) {
  EXPECT_LT(CompareVariants(Variant(1), Variant(2.5)), 0);
  EXPECT_EQ(CompareVariants(Variant(int16_t{2}), Variant(2.0)), 0);
  EXPECT_GT(CompareVariants(Variant(0), Variant::Boolean(true)), 0);
}

TEST(VariantCompare, ANumberIsBelowEveryString) {
  EXPECT_LT(CompareVariants(Variant(32767), Variant("abc")), 0);
  EXPECT_LT(CompareVariants(Variant(5), Variant("2")), 0);
  EXPECT_GT(CompareVariants(Variant("0"), Variant(100)), 0);
}

TEST(VariantCompare, StringsCompareByCharacterCodes) {
  EXPECT_LT(CompareVariants(Variant("B"), Variant("a")), 0);
  EXPECT_EQ(CompareVariants(Variant("key"), Variant("key")), 0);
}

TEST(VariantCompare, EmptyIsZeroOrEmptyText) {
  EXPECT_EQ(CompareVariants(Variant(), Variant(0)), 0);
  EXPECT_LT(CompareVariants(Variant(), Variant(1)), 0);
  EXPECT_LT(CompareVariants(Variant(), Variant("a")), 0);
  EXPECT_EQ(CompareVariants(Variant(), Variant("")), 0);
}

TEST(VariantCompare, MissingOrObjectsAreATypeMismatch) {
  EXPECT_AUTOMATION_ERROR(CompareVariants(Variant(1), Variant::Missing()), kErrTypeMismatch);
}
