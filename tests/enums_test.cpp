#include "vorlex/Enums.h"

#include <gtest/gtest.h>

using namespace vorlex;

// Hosts store these numbers and forms persist them: they never change.
TEST(Enumerations, AlignmentValues) {
  EXPECT_EQ(vxCenterCenter, 0);
  EXPECT_EQ(vxCenterLeft, 1);
  EXPECT_EQ(vxCenterRight, 2);
  EXPECT_EQ(vxTopCenter, 3);
  EXPECT_EQ(vxTopLeft, 4);
  EXPECT_EQ(vxTopRight, 5);
  EXPECT_EQ(vxBottomCenter, 6);
  EXPECT_EQ(vxBottomLeft, 7);
  EXPECT_EQ(vxBottomRight, 8);
}

TEST(Enumerations, SmallEnumerationValues) {
  EXPECT_EQ(vxNoneAuto + vxUp * 10 + vxDown * 100, 210);
  EXPECT_EQ(vxNoneAutoSize + vxWidthAutoSize * 10 + vxHeightAutoSize * 100 + vxBothAutoSize * 1000, 3210);
  EXPECT_EQ(vxNoneFont3D + vxRaisedLight * 10 + vxInsetLight * 100 + vxRaisedShadow * 1000 + vxInsetShadow * 10000,
            43210);
  EXPECT_EQ(vxDefault + vxHigh * 10 + vxMedium * 100 + vxLow * 1000 + vxVeryLow * 10000, 43210);
  EXPECT_EQ(vxFromLeft + vxFromRight * 10 + vxFromTop * 100 + vxFromBottom * 1000, 3210);
  EXPECT_EQ(
      vxNoneRivets + vxRaisedRivets * 10 + vxInsetRivets * 100 + vxRaisedRivetsExt * 1000 + vxInsetRivetsExt * 10000,
      43210);
  EXPECT_EQ(vxRectangle + vxCircle * 10, 10);
  EXPECT_EQ(vxNoneTile + vxHorizontalTile * 10 + vxVerticalTile * 100 + vxBothTile * 1000, 3210);
}

TEST(Enumerations, BorderAndBrushValues) {
  const int borders[] = {vxNoneBorder, vxFlat, vxRaised, vxInset, vxEtched, vxEtchedLight, vxBump, vxBumpLight};
  const int brushes[] = {vxNoneBrush,        vxHorizontal, vxVertical,     vxForwardDiagonal,
                         vxBackwardDiagonal, vxCross,      vxDiagonalCross};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(borders[i], i);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(brushes[i], i);
}

TEST(Enumerations, GradientStyleValues) {
  const int styles[] = {vxNoneGradient,          vxLeftHGradient,       vxRightHGradient,      vxTopVGradient,
                        vxBottomVGradient,       vxInnerHGradient,      vxOuterHGradient,      vxInnerVGradient,
                        vxOuterVGradient,        vxInnerCircleGradient, vxOuterCircleGradient, vxInnerRectangleGradient,
                        vxOuterRectangleGradient};
  for (int i = 0; i < 13; ++i) EXPECT_EQ(styles[i], i);
}

TEST(Enumerations, TrueMembersAreMinusOne) {
  EXPECT_EQ(vxHard, -1);
  EXPECT_EQ(vxSoft, 0);
  EXPECT_EQ(vxClear, -1);
  EXPECT_EQ(vxDontClear, 0);
}

TEST(Enumerations, AreThirtyTwoBitSigned) {
  static_assert(sizeof(vxAlignmentEnum) == 4 && sizeof(vxClearAllEnum) == 4);
  EXPECT_LT(static_cast<int32_t>(vxHard), 0);
}
