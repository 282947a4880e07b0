// The angle of DisplayText: given, or along the area's diagonal.

#include "surface/text_angle.h"

#include <gtest/gtest.h>

#include "error_matchers.h"
#include "vorlex/Enums.h"

using namespace vorlex;

TEST(TextAngle, WithoutAutomaticAngleTheGivenOneCounts) {
  EXPECT_EQ(TextAngleFor(vxNoneAuto, 90, {0, 0, 10, 10}), 90.0f);
  EXPECT_EQ(TextAngleFor(vxNoneAuto, -30, {0, 0, 0, 0}), -30.0f);
}

// The diagonal's angle comes from 3.14159 for pi: a hair above 45 degrees.
TEST(TextAngle, UpOnASquareIsAHairAbove45Degrees) {
  const float angle = TextAngleFor(vxUp, 10, {5, 5, 45, 45});
  EXPECT_FLOAT_EQ(angle, 45.0000383f);
  EXPECT_GT(angle, 45.0f);
}

TEST(TextAngle, DownOnASquareIsAHairBelow315Degrees) {
  const float angle = TextAngleFor(vxDown, 10, {5, 5, 45, 45});
  EXPECT_FLOAT_EQ(angle, 314.9999617f);
  EXPECT_LT(angle, 315.0f);
}

TEST(TextAngle, UpFollowsTheAreasProportions) {
  // atan(20 / 100) = 11.3099... degrees, through 3.14159.
  EXPECT_FLOAT_EQ(TextAngleFor(vxUp, 0, {0, 0, 100, 20}), 11.309942f);
  EXPECT_FLOAT_EQ(TextAngleFor(vxDown, 0, {0, 0, 100, 20}), 348.69006f);
}

TEST(TextAngle, AnAreaWithoutWidthGivesZero) {
  EXPECT_EQ(TextAngleFor(vxUp, 90, {7, 0, 7, 40}), 0.0f);
  EXPECT_EQ(TextAngleFor(vxDown, 90, {7, 0, 7, 40}), 0.0f);
}

TEST(TextAngle, AnUnknownAutomaticValueGivesZero) {
  EXPECT_EQ(TextAngleFor(3, 90, {0, 0, 10, 10}), 0.0f);
  EXPECT_EQ(TextAngleFor(-1, 90, {0, 0, 10, 10}), 0.0f);
}

TEST(TextAngle, AnAreaWiderThanTheRangeOverflows) {
  EXPECT_AUTOMATION_ERROR(TextAngleFor(vxUp, 0, {-2147483647, 0, 10, 10}), kErrOverflow);
}
