// The leading numeric value the pages read from their text boxes.

#include <gtest/gtest.h>

#include "control/numeric_text.h"

namespace vorlex {
namespace {

TEST(LeadingNumericValue, ReadsTheNumberAtTheStartAndStopsAfterIt) {
  EXPECT_EQ(LeadingNumericValue("12abc"), 12);
  EXPECT_EQ(LeadingNumericValue("-3.25 kg"), -3.25);
  EXPECT_EQ(LeadingNumericValue("1e3x"), 1000);
  EXPECT_EQ(LeadingNumericValue("2D2"), 200);
  EXPECT_EQ(LeadingNumericValue("7e"), 7) << "an exponent without digits is not read";
  EXPECT_EQ(LeadingNumericValue(".5"), 0.5);
}

TEST(LeadingNumericValue, TextWithoutANumberIsZero) {
  EXPECT_EQ(LeadingNumericValue("abc"), 0);
  EXPECT_EQ(LeadingNumericValue(""), 0);
  EXPECT_EQ(LeadingNumericValue("-"), 0);
  EXPECT_EQ(LeadingNumericValue("x12"), 0);
}

TEST(LeadingNumericValue, BlanksAnywhereAreSkipped) {
  EXPECT_EQ(LeadingNumericValue("  1 2 3"), 123);
  EXPECT_EQ(LeadingNumericValue("\t4\n5"), 45);
}

TEST(LeadingNumericValue, HexadecimalAndOctalLiteralsAsBasicReadsThem) {
  EXPECT_EQ(LeadingNumericValue("&H1F"), 31);
  EXPECT_EQ(LeadingNumericValue("&hFFFF"), -1) << "four digits are a 16-bit literal";
  EXPECT_EQ(LeadingNumericValue("&H10000"), 65536);
  EXPECT_EQ(LeadingNumericValue("&O17z"), 15);
  EXPECT_EQ(LeadingNumericValue("&Hz"), 0);
}

}  // namespace
}  // namespace vorlex
