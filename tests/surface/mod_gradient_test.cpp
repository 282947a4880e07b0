#include "surface/mod_gradient.h"

#include <cmath>

#include "memory_bitmap.h"
#include "surface_fixture.h"
#include "vorlex/Enums.h"

using namespace vorlex;
using namespace vorlex::testing;

namespace {

uint32_t Red(double end, int i, int n) { return static_cast<uint32_t>(std::nearbyint(end / n * i)) << 16; }

void Paint(const PictureBox& box, int16_t style, int16_t granularity, OLE_COLOR from, OLE_COLOR to) {
  modGradient::PaintObjectGradient(box, style, granularity, from, to);
}

}  // namespace

TEST(ModGradient, ReadDisplayDepthReturnsTheTargetsDepth) {
  const PictureBox box(4, 4);
  EXPECT_EQ(modGradient::ReadDisplayDepth(box), 32);
}

TEST(ModGradient, PaintsTheSameBandsAsTheSurfaceForLinearStyles) {
  PictureBox box(512, 1);
  modGradient::ReadDisplayDepth(box);
  Paint(box, vxLeftHGradient, vxHigh, 0, 0x0000FF);  // 64 bands of 8 pixels
  const gdi::Pixels p = ReadDC(box.hDC());
  for (int x = 0; x < 512; ++x) ASSERT_EQ(p.At(x, 0), Red(255, x / 8, 64)) << x;
}

TEST(ModGradient, OuterRectangleKeepsItsColoursAndLooksLikeInnerRectangle) {
  PictureBox box(16, 16);
  modGradient::ReadDisplayDepth(box);
  Paint(box, vxOuterRectangleGradient, vxVeryLow, 0x0000F0, 0);  // 8 bands
  const gdi::Pixels outer = ReadDC(box.hDC());
  Paint(box, vxInnerRectangleGradient, vxVeryLow, 0x0000F0, 0);
  const gdi::Pixels inner = ReadDC(box.hDC());
  EXPECT_EQ(outer.argb, inner.argb);
  EXPECT_EQ(outer.At(0, 0), Rgb(240, 0, 0));  // the first colour outside
}

TEST(ModGradient, OuterCircleStillSwapsItsColours) {
  PictureBox box(16, 16);
  modGradient::ReadDisplayDepth(box);
  Paint(box, vxOuterCircleGradient, vxVeryLow, 0x0000F0, 0);
  const gdi::Pixels outer = ReadDC(box.hDC());
  Paint(box, vxInnerCircleGradient, vxVeryLow, 0, 0x0000F0);
  EXPECT_EQ(outer.argb, ReadDC(box.hDC()).argb);
  EXPECT_NE(outer.At(8, 8), outer.At(8, 1));
}

TEST(ModGradient, WorkingRectangleIsTheScaleValuesWithoutABorderInset) {
  // Right and bottom are ScaleWidth and ScaleHeight themselves, not added to
  // ScaleLeft and ScaleTop.
  PictureBox box(20, 10, 4.0f, 2.0f);
  modGradient::ReadDisplayDepth(box);
  Paint(box, vxLeftHGradient, vxDefault, 0x0000FF, 0x0000FF);
  const gdi::Pixels p = ReadDC(box.hDC());
  EXPECT_EQ(p.At(3, 5), 0u);
  EXPECT_EQ(p.At(4, 5), Rgb(255, 0, 0));
  EXPECT_EQ(p.At(19, 9), Rgb(255, 0, 0));
  EXPECT_EQ(p.At(10, 1), 0u);
}

TEST(ModGradient, UsesTheModulesOwnLevels) {
  PictureBox box(32, 1);
  modGradient::ReadDisplayDepth(box);  // 32 bits: 256 levels, 8 bands at vxVeryLow
  Paint(box, vxLeftHGradient, vxVeryLow, 0, 0x0000FF);
  EXPECT_EQ(ReadDC(box.hDC()).At(4, 0), Red(255, 1, 8));
}
