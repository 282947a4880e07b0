// Hatch brushes: 8x8 patterns anchored at the bitmap's origin; unlit pixels
// take the background colour in OPAQUE mode and stay in TRANSPARENT mode.

#include <array>
#include <functional>

#include "platform/soft/brush_paint.h"
#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

constexpr COLORREF kInk = RGB(0, 128, 255);
constexpr COLORREF kPaper = RGB(250, 240, 10);

int Mod8(int v) { return ((v % 8) + 8) % 8; }

// The lit pixels of each style, as the rule states them (bitmap coordinates).
bool Lit(int style, int x, int y) {
  const int px = Mod8(x);
  const int py = Mod8(y);
  switch (style) {
    case HS_HORIZONTAL:
      return py == 3;
    case HS_VERTICAL:
      return px == 4;
    case HS_FDIAGONAL:
      return px == py;
    case HS_BDIAGONAL:
      return px == 7 - py;
    case HS_CROSS:
      return py == 3 || px == 4;
    case HS_DIAGCROSS:
      return px == py || px == 7 - py;
    default:
      return false;
  }
}

constexpr std::array<int, 6> kStyles{HS_HORIZONTAL, HS_VERTICAL, HS_FDIAGONAL, HS_BDIAGONAL, HS_CROSS, HS_DIAGCROSS};

// A rectangle that starts off the pattern's grid on both axes.
constexpr RECT kOffsetRect{3, 5, 27, 22};

bool Inside(const RECT& r, int x, int y) { return x >= r.left && x < r.right && y >= r.top && y < r.bottom; }

class SoftGdiHatches : public LeakChecked {};

TEST_F(SoftGdiHatches, TableRowsLightTheStatedPixels) {
  for (int style : kStyles) {
    for (int y = -9; y < 17; ++y) {
      for (int x = -9; x < 17; ++x) {
        EXPECT_EQ(vorlex::gdi::soft::HatchLit(style, x, y), Lit(style, x, y))
            << "style " << style << " at " << x << "," << y;
      }
    }
  }
}

TEST_F(SoftGdiHatches, EveryStyleIsAnchoredToTheBitmapInOpaqueMode) {
  for (int style : kStyles) {
    SCOPED_TRACE(style);
    Canvas canvas(32, 28);
    SetBkColor(canvas.dc(), kPaper);
    HBRUSH brush = CreateHatchBrush(style, kInk);
    ASSERT_EQ(FillRect(canvas.dc(), &kOffsetRect, brush), 1);
    DeleteObject(brush);
    const Pixels pixels = canvas.Read();
    for (int y = 0; y < pixels.height; ++y) {
      for (int x = 0; x < pixels.width; ++x) {
        const COLORREF expected = !Inside(kOffsetRect, x, y) ? kBackground : (Lit(style, x, y) ? kInk : kPaper);
        ASSERT_EQ(pixels.At(x, y), PixelOf(expected)) << x << "," << y;
      }
    }
  }
}

TEST_F(SoftGdiHatches, TransparentModeLeavesUnlitPixelsAlone) {
  for (int style : kStyles) {
    SCOPED_TRACE(style);
    Canvas canvas(32, 28);
    EXPECT_EQ(SetBkMode(canvas.dc(), TRANSPARENT), OPAQUE);
    HBRUSH brush = CreateHatchBrush(style, kInk);
    FillRect(canvas.dc(), &kOffsetRect, brush);
    DeleteObject(brush);
    const std::set<Point> expected =
        PointsWhere(32, 28, [&](int x, int y) { return Inside(kOffsetRect, x, y) && Lit(style, x, y); });
    EXPECT_EQ(Changed(canvas.Read()), expected);
  }
}

TEST_F(SoftGdiHatches, ModeAndColourInForceAtTheFillCount) {
  Canvas canvas(16, 8);
  HBRUSH brush = CreateHatchBrush(HS_FDIAGONAL, kInk);
  const RECT left{0, 0, 8, 8};
  const RECT right{8, 0, 16, 8};
  SetBkColor(canvas.dc(), kPaper);
  FillRect(canvas.dc(), &left, brush);
  EXPECT_EQ(SetBkColor(canvas.dc(), RGB(1, 2, 3)), kPaper);
  FillRect(canvas.dc(), &right, brush);
  SetBkMode(canvas.dc(), TRANSPARENT);
  DeleteObject(brush);
  const Pixels pixels = canvas.Read();
  EXPECT_EQ(pixels.At(1, 0), PixelOf(kPaper)) << "changing the colour later repaints nothing";
  EXPECT_EQ(pixels.At(9, 0), PixelOf(RGB(1, 2, 3)));
  EXPECT_EQ(pixels.At(8, 0), PixelOf(kInk));
}

TEST_F(SoftGdiHatches, StylesPastDiagCrossMakeSolidBrushes) {
  for (int style = 6; style < 12; ++style) {
    SCOPED_TRACE(style);
    Canvas canvas(9, 9);
    HBRUSH brush = CreateHatchBrush(style, kInk);
    ASSERT_NE(brush, nullptr);
    const RECT all{0, 0, 9, 9};
    FillRect(canvas.dc(), &all, brush);
    DeleteObject(brush);
    EXPECT_EQ(WithColor(canvas.Read(), kInk).size(), 81u);
  }
}

TEST_F(SoftGdiHatches, EllipseInteriorUsesThePatternAndTheBackgroundMode) {
  Canvas canvas(20, 20);
  Selected pen(canvas.dc(), CreatePen(PS_NULL, 1, 0));
  Selected brush(canvas.dc(), CreateHatchBrush(HS_CROSS, kInk));
  SetBkMode(canvas.dc(), TRANSPARENT);
  Ellipse(canvas.dc(), 1, 2, 19, 17);
  const Pixels pixels = canvas.Read();
  const std::set<Point> changed = Changed(pixels);
  ASSERT_FALSE(changed.empty());
  for (const Point& p : changed) EXPECT_TRUE(Lit(HS_CROSS, p.x, p.y)) << p.x << "," << p.y;
  EXPECT_EQ(pixels.At(10, 3), PixelOf(kInk)) << "row 3 of the pattern is lit";
  EXPECT_EQ(pixels.At(9, 4), PixelOf(kBackground)) << "an unlit pixel inside stays";
}

}  // namespace
}  // namespace softgdi_test
