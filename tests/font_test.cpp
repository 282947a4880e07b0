#include "vorlex/Font.h"

#include <gtest/gtest.h>

#include "error_matchers.h"
#include "vorlex/Picture.h"

using namespace vorlex;

TEST(Font, NewFontIsMsSansSerif825) {
  const Font font;
  EXPECT_EQ(font.Name(), "MS Sans Serif");
  EXPECT_DOUBLE_EQ(font.Size(), 8.25);
  EXPECT_FALSE(font.Bold());
  EXPECT_EQ(font.Weight(), 400);
  EXPECT_FALSE(font.Italic());
  EXPECT_FALSE(font.Underline());
  EXPECT_FALSE(font.Strikethrough());
}

TEST(Font, SizeKeepsFourDecimalsRoundedHalfToEven) {
  Font font;
  font.SetSize(9.123456);
  EXPECT_DOUBLE_EQ(font.Size(), 9.1235);
  font.SetSize(8.00025);  // 80002.5 ten-thousandths: ties to even
  EXPECT_DOUBLE_EQ(font.Size(), 8.0002);
  font.SetSize(0.00035);  // 3.5 ten-thousandths
  EXPECT_DOUBLE_EQ(font.Size(), 0.0004);
}

TEST(Font, SizeBeyondTheCurrencyRangeOverflows) {
  Font font;
  EXPECT_AUTOMATION_ERROR(font.SetSize(1e16), kErrOverflow);
  EXPECT_DOUBLE_EQ(font.Size(), 8.25);
}

TEST(Font, BoldFollowsTheWeight) {
  Font font;
  font.SetBold(true);
  EXPECT_EQ(font.Weight(), 700);
  font.SetWeight(600);
  EXPECT_TRUE(font.Bold());
  font.SetWeight(550);
  EXPECT_FALSE(font.Bold());
  font.SetBold(false);
  EXPECT_EQ(font.Weight(), 400);
}

TEST(Picture, EmptyPictureHasNoTypeHandleOrSize) {
  const PicturePtr picture = EmptyPicture();
  EXPECT_EQ(picture->Type(), kPicTypeNone);
  EXPECT_EQ(picture->Handle(), 0u);
  EXPECT_EQ(picture->PixelWidth(), 0);
  EXPECT_EQ(picture->PixelHeight(), 0);
}
