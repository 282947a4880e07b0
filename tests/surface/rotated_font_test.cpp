// The logical font of rotated text.

#include "surface/rotated_font.h"

#include <gtest/gtest.h>

#include <string>

using namespace vorlex;

TEST(RotatedFont, HeightIsTheNegativeEmInPixelsRoundedHalfToEven) {
  EXPECT_EQ(RotatedFont(Font("Arial", 8.25), 90, 15).lfHeight, -11);
  EXPECT_EQ(RotatedFont(Font("Arial", 12), 90, 15).lfHeight, -16);
  // 20 x 9.375 / 15 = 12.5, to the even neighbour.
  EXPECT_EQ(RotatedFont(Font("Arial", 9.375), 90, 15).lfHeight, -12);
  // 20 x 10.125 / 15 = 13.5.
  EXPECT_EQ(RotatedFont(Font("Arial", 10.125), 90, 15).lfHeight, -14);
  EXPECT_EQ(RotatedFont(Font("Arial", 12), 90, 12).lfHeight, -20);
}

TEST(RotatedFont, EscapementIsTenthsOfTheAngle) {
  EXPECT_EQ(RotatedFont(Font(), 90, 15).lfEscapement, 900);
  EXPECT_EQ(RotatedFont(Font(), 45.0000383f, 15).lfEscapement, 450);
  EXPECT_EQ(RotatedFont(Font(), 314.9999617f, 15).lfEscapement, 3150);
  EXPECT_EQ(RotatedFont(Font(), -30, 15).lfEscapement, -300);
  EXPECT_EQ(RotatedFont(Font(), 90, 15).lfOrientation, 0);
}

TEST(RotatedFont, StylesComeFromTheFontObject) {
  Font font("DejaVu Sans", 10);
  EXPECT_EQ(RotatedFont(font, 90, 15).lfWeight, 400);
  font.SetBold(true);
  font.SetItalic(true);
  font.SetUnderline(true);
  font.SetStrikethrough(true);
  const gdi::LOGFONTA lf = RotatedFont(font, 90, 15);
  EXPECT_EQ(lf.lfWeight, 700);
  EXPECT_NE(lf.lfItalic, 0);
  EXPECT_NE(lf.lfUnderline, 0);
  EXPECT_NE(lf.lfStrikeOut, 0);
  EXPECT_EQ(std::string(lf.lfFaceName), "DejaVu Sans");
}

// Whatever the font object's weight, only bold or not reaches the font.
TEST(RotatedFont, WeightIsNormalOrBoldOnly) {
  Font font("DejaVu Sans", 10);
  font.SetWeight(300);
  EXPECT_EQ(RotatedFont(font, 90, 15).lfWeight, 400);
  font.SetWeight(900);
  EXPECT_EQ(RotatedFont(font, 90, 15).lfWeight, 700);
}

TEST(RotatedFont, FixedFieldsAreProofQualityVariablePitchAnsi) {
  Font font("DejaVu Sans", 10);
  font.SetCharset(2);
  const gdi::LOGFONTA lf = RotatedFont(font, 90, 15);
  EXPECT_EQ(lf.lfWidth, 0);
  EXPECT_EQ(lf.lfCharSet, 0);
  EXPECT_EQ(lf.lfOutPrecision, 0);
  EXPECT_EQ(lf.lfClipPrecision, 0);
  EXPECT_EQ(lf.lfQuality, 2);
  EXPECT_EQ(lf.lfPitchAndFamily, 2);
}

TEST(RotatedFont, ALongFaceNameIsCutToTheFieldWithItsTerminator) {
  const std::string name(40, 'x');
  const gdi::LOGFONTA lf = RotatedFont(Font(name, 10), 90, 15);
  EXPECT_EQ(std::string(lf.lfFaceName), std::string(31, 'x'));
}
