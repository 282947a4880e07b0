#include "surface/gradient.h"

#include <cmath>
#include <vector>

#include "surface_fixture.h"
#include "vorlex/Enums.h"

using namespace vorlex;
using namespace vorlex::testing;

namespace {

// The red channel of band i of n running from 0 to `end`, rounded half to even.
uint32_t Red(double end, int i, int n) { return static_cast<uint32_t>(std::nearbyint(end / n * i)) << 16; }

constexpr uint32_t kRed240 = 0x0000F0;  // COLORREF of red 240
constexpr uint32_t kMarker = 0x00FF00;  // COLORREF green: what was there before

struct DepthCase {
  int depth;
  int steps[5];  // by granularity vxDefault .. vxVeryLow
};
const DepthCase kDepths[] = {
    {32, {256, 64, 32, 16, 8}}, {16, {256, 64, 32, 16, 8}}, {15, {32, 8, 4, 2, 1}}, {8, {64, 16, 8, 4, 2}}};

class GradientTest : public SurfaceTest {
 protected:
  void Paint(int depth, int32_t style, int32_t granularity, int32_t l, int32_t t, int32_t r, int32_t b,
             uint32_t from = 0, uint32_t to = kRed240) {
    OffScreenDC& s = Surface();
    s.UseDisplayDepth(depth);
    SetRect(l, t, r, b);
    s.GradientStyle = style;
    s.GradientGranularity = granularity;
    s.GradientColor = from;
    s.GradientColorEnd = to;
    s.FillRectangle();
  }
};

}  // namespace

TEST(GradientSteps, FollowTheLevelsAndTheGranularity) {
  for (const DepthCase& d : kDepths) {
    const auto levels = DisplayDepth::FromDepth(d.depth).levels;
    for (int g = 0; g < 5; ++g) EXPECT_EQ(GradientSteps(levels, g), d.steps[g]) << d.depth << " " << g;
  }
}

TEST(GradientSteps, UnknownGranularityBehavesLikeDefault) {
  EXPECT_EQ(GradientSteps(256, 5), 256);
  EXPECT_EQ(GradientSteps(256, -1), 256);
  EXPECT_EQ(GradientSteps(32, 99), 32);
}

TEST(DisplayDepth, LevelsByDepth) {
  EXPECT_EQ(DisplayDepth::FromDepth(32).levels, 256);
  EXPECT_EQ(DisplayDepth::FromDepth(24).levels, 256);
  EXPECT_EQ(DisplayDepth::FromDepth(16).levels, 256);
  EXPECT_EQ(DisplayDepth::FromDepth(15).levels, 32);
  EXPECT_EQ(DisplayDepth::FromDepth(15).step, 8);
  EXPECT_EQ(DisplayDepth::FromDepth(8).levels, 64);
  EXPECT_EQ(DisplayDepth::FromDepth(8).step, 4);
  EXPECT_EQ(DisplayDepth::FromDepth(4).levels, 64);
}

TEST(DisplayDepth, MonochromeIsTakenAsFourBitsWith64Levels) {
  const DisplayDepth d = DisplayDepth::FromDepth(1);
  EXPECT_EQ(d.depth, 4);
  EXPECT_EQ(d.levels, 64);
  EXPECT_EQ(d.step, 4);
}

TEST_F(GradientTest, LeftToRightBandsAtEveryDepthAndGranularity) {
  Init(512, 1);
  for (const DepthCase& d : kDepths) {
    for (int g = 0; g < 5; ++g) {
      Paint(d.depth, vxLeftHGradient, g, 0, 0, 512, 1, 0, 0x0000FF);
      const gdi::Pixels p = Read();
      const int n = d.steps[g];
      const int width = 512 / n;
      for (int x = 0; x < 512; ++x) {
        ASSERT_EQ(p.At(x, 0), Red(255, x / width, n)) << "depth " << d.depth << " granularity " << g << " x " << x;
      }
    }
  }
}

TEST_F(GradientTest, BottomToTopBandsAtEveryDepthAndGranularity) {
  Init(1, 512);
  for (const DepthCase& d : kDepths) {
    for (int g = 0; g < 5; ++g) {
      Paint(d.depth, vxBottomVGradient, g, 0, 0, 1, 512, 0, 0x0000FF);
      const gdi::Pixels p = Read();
      const int n = d.steps[g];
      const int height = 512 / n;
      for (int y = 0; y < 512; ++y) {
        ASSERT_EQ(p.At(0, y), Red(255, (511 - y) / height, n)) << "depth " << d.depth << " granularity " << g;
      }
    }
  }
}

TEST_F(GradientTest, EachLinearStyleStartsAtItsNamedEdge) {
  Init(8, 8);
  // Depth 15, vxHigh: 8 bands of one pixel, red 0, 30, ..., 210.
  const struct {
    int32_t style;
    int x0, y0, dx, dy;  // where band 0 is and how bands advance
  } cases[] = {{vxLeftHGradient, 0, 0, 1, 0},
               {vxRightHGradient, 7, 0, -1, 0},
               {vxTopVGradient, 0, 0, 0, 1},
               {vxBottomVGradient, 0, 7, 0, -1}};
  for (const auto& c : cases) {
    Paint(15, c.style, vxHigh, 0, 0, 8, 8);
    const gdi::Pixels p = Read();
    for (int i = 0; i < 8; ++i) {
      const int x = c.x0 + c.dx * i;
      const int y = c.y0 + c.dy * i;
      EXPECT_EQ(p.At(x, y), Red(240, i, 8)) << "style " << c.style << " band " << i << "\n" << Describe(p, 0, 0, 8, 8);
    }
  }
}

TEST_F(GradientTest, LastBandIsNeverTheEndColour) {
  Init(8, 1);
  Paint(15, vxLeftHGradient, vxHigh, 0, 0, 8, 1, 0, 0x0000FF);
  EXPECT_EQ(Read().At(7, 0), Rgb(223, 0, 0));  // 255 * 7 / 8 = 223.125
}

TEST_F(GradientTest, InnerHorizontalRunsFromBothEdgesToTheMiddle) {
  Init(16, 1);
  Paint(15, vxInnerHGradient, vxHigh, 0, 0, 16, 1);
  const gdi::Pixels p = Read();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(p.At(i, 0), Red(240, i, 8)) << i;
    EXPECT_EQ(p.At(15 - i, 0), Red(240, i, 8)) << i;
  }
}

TEST_F(GradientTest, OuterHorizontalHasTheStartColourInTheMiddle) {
  Init(16, 1);
  Paint(15, vxOuterHGradient, vxHigh, 0, 0, 16, 1);
  const gdi::Pixels p = Read();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(p.At(7 - i, 0), Red(240, i, 8)) << i << "\n" << Describe(p, 0, 0, 16, 1);
    EXPECT_EQ(p.At(8 + i, 0), Red(240, i, 8)) << i << "\n" << Describe(p, 0, 0, 16, 1);
  }
}

TEST_F(GradientTest, InnerAndOuterVerticalMirrorTheHorizontalOnes) {
  Init(1, 16);
  Paint(15, vxInnerVGradient, vxHigh, 0, 0, 1, 16);
  gdi::Pixels p = Read();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(p.At(0, i), Red(240, i, 8));
    EXPECT_EQ(p.At(0, 15 - i), Red(240, i, 8));
  }
  Paint(15, vxOuterVGradient, vxHigh, 0, 0, 1, 16);
  p = Read();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(p.At(0, 7 - i), Red(240, i, 8));
    EXPECT_EQ(p.At(0, 8 + i), Red(240, i, 8));
  }
}

TEST_F(GradientTest, NestedRectanglesShrinkOnePixelPerBand) {
  Init(16, 16);
  Paint(15, vxInnerRectangleGradient, vxHigh, 0, 0, 16, 16);
  gdi::Pixels p = Read();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(p.At(i, i), Red(240, i, 8)) << i;
    EXPECT_EQ(p.At(15 - i, 15 - i), Red(240, i, 8)) << i;
    EXPECT_EQ(p.At(i, 8), Red(240, i, 8)) << i;
  }
  // The outer style swaps the colours: the end colour is outside.
  Paint(15, vxOuterRectangleGradient, vxHigh, 0, 0, 16, 16, kRed240, 0);
  p = Read();
  for (int i = 0; i < 8; ++i) EXPECT_EQ(p.At(i, i), Red(240, i, 8)) << i;
}

TEST_F(GradientTest, OuterCircleSwapsTheColours) {
  Init(16, 16);
  Paint(15, vxInnerCircleGradient, vxVeryLow, 0, 0, 16, 16, kRed240, 0);  // one band: the start colour
  EXPECT_EQ(Read().At(8, 8), Rgb(240, 0, 0));
  Paint(15, vxOuterCircleGradient, vxVeryLow, 0, 0, 16, 16, kRed240, 0);
  EXPECT_EQ(Read().At(8, 8), Rgb(0, 0, 0));
}

TEST_F(GradientTest, EqualColoursGiveAUniformFillForEveryStyle) {
  Init(24, 12);
  for (int32_t style = vxLeftHGradient; style <= vxOuterRectangleGradient; ++style) {
    Fill(kMarker);
    Paint(32, style, vxDefault, 0, 0, 24, 12, 0x336699, 0x336699);
    const gdi::Pixels p = Read();
    for (int y = 0; y < 12; ++y) {
      for (int x = 0; x < 24; ++x) {
        // Circles cover their box's inscribed ellipse only; elsewhere the marker stays.
        const uint32_t v = p.At(x, y);
        if (style == vxInnerCircleGradient || style == vxOuterCircleGradient) {
          EXPECT_TRUE(v == AsPixel(0x336699) || v == AsPixel(kMarker)) << "style " << style;
        } else {
          ASSERT_EQ(v, AsPixel(0x336699)) << "style " << style << " at " << x << "," << y;
        }
      }
    }
  }
}

TEST_F(GradientTest, BandsNarrowerThanAPixelStillCoverTheWholeRectangle) {
  Init(10, 10);
  for (int32_t style = vxLeftHGradient; style <= vxOuterVGradient; ++style) {
    Fill(kMarker);
    Paint(32, style, vxDefault, 2, 2, 7, 7, 0, 0xFF0000);  // 256 bands over 5 pixels
    const gdi::Pixels p = Read();
    for (int y = 2; y < 7; ++y) {
      for (int x = 2; x < 7; ++x) {
        ASSERT_NE(p.At(x, y), AsPixel(kMarker)) << "style " << style << " at " << x << "," << y << "\n"
                                                << Describe(p, 0, 0, 10, 10);
      }
    }
    EXPECT_EQ(p.At(1, 1), AsPixel(kMarker));
    EXPECT_EQ(p.At(7, 7), AsPixel(kMarker));
  }
}

TEST_F(GradientTest, VeryLowGranularityAtFifteenBitsIsOneBandOfTheStartColour) {
  Init(20, 6);
  Paint(15, vxLeftHGradient, vxVeryLow, 0, 0, 20, 6, 0x123456, 0xFFFFFF);
  const gdi::Pixels p = Read();
  for (int x = 0; x < 20; ++x) EXPECT_EQ(p.At(x, 3), AsPixel(0x123456));
}

TEST_F(GradientTest, UnknownGranularityPaintsLikeDefault) {
  Init(64, 1);
  Paint(15, vxLeftHGradient, 7, 0, 0, 64, 1, 0, 0x0000FF);
  const gdi::Pixels unknown = Read();
  Paint(15, vxLeftHGradient, vxDefault, 0, 0, 64, 1, 0, 0x0000FF);
  EXPECT_EQ(unknown.argb, Read().argb);
}

TEST_F(GradientTest, BorderWidthInsetsTheGradientEvenWithoutABorder) {
  Init(12, 12);
  Fill(kMarker);
  Surface().BorderWidth = 2;
  Surface().BorderStyle = vxNoneBorder;
  Paint(32, vxLeftHGradient, vxDefault, 0, 0, 12, 12, 0x0000FF, 0x0000FF);
  const gdi::Pixels p = Read();
  for (int y = 0; y < 12; ++y) {
    for (int x = 0; x < 12; ++x) {
      const bool inside = x >= 2 && x < 10 && y >= 2 && y < 10;
      EXPECT_EQ(p.At(x, y), inside ? Rgb(255, 0, 0) : AsPixel(kMarker)) << x << "," << y;
    }
  }
}

TEST_F(GradientTest, CircleRingsOfAnOffsetBlockStartNearTheOriginAndAreNotClipped) {
  Init(40, 40);
  Fill(kMarker);
  Paint(32, vxInnerCircleGradient, vxVeryLow, 20, 20, 30, 30, 0x0000FF, 0x0000FF);
  const gdi::Pixels p = Read();
  // The rings' box runs from about (-2, -2) to (32, 32): far outside the block.
  EXPECT_EQ(p.At(15, 15), Rgb(255, 0, 0));
  EXPECT_EQ(p.At(15, 1), Rgb(255, 0, 0));
  EXPECT_EQ(p.At(35, 35), AsPixel(kMarker));
}
