#include "compose/geometry.h"

#include <gtest/gtest.h>

#include "control/block_definition.h"
#include "vorlex/Enums.h"

using namespace vorlex;

namespace {
Layout MakeLayout(double w, double h, int16_t hRange, int16_t vRange, int16_t border, int32_t orientation) {
  Layout l;
  l.scaleWidth = w;
  l.scaleHeight = h;
  l.hRange = hRange;
  l.vRange = vRange;
  l.border = border;
  l.orientation = orientation;
  ComputeUnitSizes(l);
  return l;
}

BlockDefinition MakeBlock(int16_t left, int16_t right, int16_t top, int16_t bottom, bool autoSize) {
  BlockDefinition b;
  ApplyNewBlockDefaults(b, nullptr);
  b.BarLeft = left;
  b.BarRight = right;
  b.BarTop = top;
  b.BarBottom = bottom;
  b.AutoSize = ToVariantBool(autoSize);
  return b;
}

gdi::RECT Rect(const BlockDefinition& b, const Layout& l, const BlockScale& s) {
  gdi::RECT r{-1, -1, -1, -1};
  EXPECT_TRUE(BlockRectangle(b, l, s, r));
  return r;
}

void ExpectRect(const gdi::RECT& r, int32_t left, int32_t top, int32_t right, int32_t bottom) {
  EXPECT_EQ(r.left, left);
  EXPECT_EQ(r.top, top);
  EXPECT_EQ(r.right, right);
  EXPECT_EQ(r.bottom, bottom);
}
}  // namespace

TEST(EffectiveBorderWidth, EtchedAndBumpBordersAreOnePixel) {
  EXPECT_EQ(EffectiveBorderWidth(vxBump, 5), 1);
  EXPECT_EQ(EffectiveBorderWidth(vxEtched, 3), 1);
  EXPECT_EQ(EffectiveBorderWidth(vxBumpLight, 0), 0);
  EXPECT_EQ(EffectiveBorderWidth(vxInset, 5), 5);
  EXPECT_EQ(EffectiveBorderWidth(9, 4), 1);  // any style from 4 up
}

TEST(UnitSizes, AreTheInnerSizeOverTheRange) {
  const Layout l = MakeLayout(200, 100, 100, 50, 0, vxFromLeft);
  EXPECT_FLOAT_EQ(l.hUnitSize, 2.0f);
  EXPECT_FLOAT_EQ(l.vUnitSize, 2.0f);
}

TEST(UnitSizes, ABumpBorderOfFiveCountsAsOnePixel) {
  const Layout l = MakeLayout(200, 100, 100, 100, EffectiveBorderWidth(vxBump, 5), vxFromLeft);
  EXPECT_FLOAT_EQ(l.hUnitSize, 1.98f);
  EXPECT_FLOAT_EQ(l.vUnitSize, 0.98f);
}

TEST(UnitSizes, ANegativeRangeGivesNegativeUnits) {
  const Layout l = MakeLayout(100, 100, -50, 100, 0, vxFromLeft);
  EXPECT_FLOAT_EQ(l.hUnitSize, -2.0f);
}

TEST(BlockGeometry, PixelBlockInFromLeftOn200By100) {
  const Layout l = MakeLayout(200, 100, 100, 100, 0, vxFromLeft);
  BlockDefinition b = MakeBlock(10, 50, 40, 10, false);
  const BlockScale s = UpdatePercentages(b, l);
  EXPECT_EQ(s.h, 1.0f);
  ExpectRect(Rect(b, l, s), 10, 60, 50, 90);
  EXPECT_EQ(b.HPercentage, "20");
  EXPECT_EQ(b.VPercentage, "30");
}

TEST(BlockGeometry, UserUnitBlockPercentagesAreOfTheRanges) {
  const Layout l = MakeLayout(200, 100, 100, 100, 0, vxFromLeft);
  BlockDefinition b = MakeBlock(0, 25, 100, 33, true);
  const BlockScale s = UpdatePercentages(b, l);
  EXPECT_EQ(b.HPercentage, "25");
  EXPECT_EQ(b.VPercentage, "67");
  EXPECT_EQ(s.h, 2.0f);
  ExpectRect(Rect(b, l, s), 0, 0, 50, 67);
}

TEST(BlockGeometry, PercentagesTruncateTowardMinusInfinity) {
  const Layout l = MakeLayout(300, 100, 3, 100, 0, vxFromLeft);
  BlockDefinition b = MakeBlock(0, 2, 0, 0, true);
  UpdatePercentages(b, l);
  EXPECT_EQ(b.HPercentage, "66");
}

TEST(BlockGeometry, AHalfPixelEdgeRoundsToEven) {
  const Layout l = MakeLayout(101, 100, 2, 100, 0, vxFromLeft);  // 50.5 pixels a unit
  BlockDefinition b = MakeBlock(1, 1, 0, 0, true);
  const BlockScale s = UpdatePercentages(b, l);
  EXPECT_EQ(Rect(b, l, s).left, 50);  // 50.5
  b.BarLeft = 3;
  EXPECT_EQ(Rect(b, l, s).left, 152);  // 151.5
}

TEST(BlockGeometry, TheBorderOffsetsEveryOrientation) {
  // 104 x 54 with a 2-pixel border: 100 x 50 inside, one unit a pixel.
  const struct {
    int32_t orientation;
    int32_t l, t, r, b;
  } cases[] = {{vxFromLeft, 12, 12, 32, 42},
               {vxFromRight, 72, 12, 92, 42},
               {vxFromTop, 62, 12, 92, 32},
               {vxFromBottom, 62, 22, 92, 42}};
  for (const auto& c : cases) {
    const Layout l = MakeLayout(104, 54, 100, 50, 2, c.orientation);
    BlockDefinition b = MakeBlock(10, 30, 40, 10, true);
    const BlockScale s = UpdatePercentages(b, l);
    gdi::RECT r{};
    ASSERT_TRUE(BlockRectangle(b, l, s, r));
    EXPECT_EQ(r.left, c.l) << c.orientation;
    EXPECT_EQ(r.top, c.t) << c.orientation;
    EXPECT_EQ(r.right, c.r) << c.orientation;
    EXPECT_EQ(r.bottom, c.b) << c.orientation;
  }
}

TEST(BlockGeometry, BarValuesAreOffsetsFromZeroNotFromTheMinimum) {
  Layout l = MakeLayout(100, 100, 100, 100, 0, vxFromLeft);  // HMinValue 10, HMaxValue 110
  BlockDefinition b = MakeBlock(0, 100, 100, 0, true);
  const BlockScale s = UpdatePercentages(b, l);
  ExpectRect(Rect(b, l, s), 0, 0, 100, 100);
}

TEST(BlockGeometry, FromTopWithAHalfVerticalRangeCoversTwiceTheHeight) {
  const Layout l = MakeLayout(100, 100, 100, 50, 0, vxFromTop);
  BlockDefinition b = MakeBlock(0, 100, 100, 0, true);
  const BlockScale s = UpdatePercentages(b, l);
  const gdi::RECT r = Rect(b, l, s);
  EXPECT_EQ(r.top, 0);
  EXPECT_EQ(r.bottom, 200);
}

TEST(BlockGeometry, OrientationOutsideTheTableComputesNoRectangle) {
  const Layout l = MakeLayout(100, 100, 100, 100, 0, 4);
  BlockDefinition b = MakeBlock(0, 10, 10, 0, true);
  gdi::RECT r{1, 2, 3, 4};
  EXPECT_FALSE(BlockRectangle(b, l, UpdatePercentages(b, l), r));
  EXPECT_EQ(r.left, 1);
}

TEST(PercentageText, IsTheShortestWholeNumber) {
  EXPECT_EQ(PercentageText(45.9), "45");
  EXPECT_EQ(PercentageText(0), "0");
  EXPECT_EQ(PercentageText(100), "100");
  EXPECT_EQ(PercentageText(-0.5), "-1");
}
