// Every primitive clips to its bitmap before it writes: shapes straddling an
// edge keep exactly their visible pixels, and coordinates anywhere in the int
// range (INT_MIN and INT_MAX included) neither overflow nor write outside.

#include <climits>
#include <functional>
#include <vector>

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

constexpr COLORREF kInk = RGB(255, 64, 0);
constexpr COLORREF kFill = RGB(0, 64, 255);

using Drawing = std::function<void(HDC, int dx, int dy)>;

// Draws with everything shifted by (dx, dy) on a width x height canvas
// holding a red pen, a hatch brush and an opaque background.
Pixels DrawShifted(int width, int height, int dx, int dy, const Drawing& draw, int penWidth = 1) {
  Canvas canvas(width, height);
  Selected pen(canvas.dc(), CreatePen(PS_SOLID, penWidth, kInk));
  Selected brush(canvas.dc(), CreateHatchBrush(HS_DIAGCROSS, kFill));
  SetBkColor(canvas.dc(), RGB(9, 9, 9));
  draw(canvas.dc(), dx, dy);
  return canvas.Read();
}

// Drawn at (dx, dy) on a small canvas, a shape shows exactly the pixels of the
// same shape drawn on a large canvas (with room on every side) that fall on
// the small one. The hatch is anchored to each bitmap, so shifts are
// multiples of 8.
void ExpectClippedCopy(const Drawing& draw, int penWidth = 1) {
  constexpr int kSmall = 16;
  constexpr int kMargin = 32;
  const Pixels whole = DrawShifted(kSmall + 2 * kMargin, kSmall + 2 * kMargin, kMargin, kMargin, draw, penWidth);
  for (int dy = -24; dy <= 24; dy += 8) {
    for (int dx = -24; dx <= 24; dx += 8) {
      const Pixels clipped = DrawShifted(kSmall, kSmall, dx, dy, draw, penWidth);
      for (int y = 0; y < kSmall; ++y) {
        for (int x = 0; x < kSmall; ++x) {
          ASSERT_EQ(clipped.At(x, y), whole.At(x - dx + kMargin, y - dy + kMargin))
              << "shift " << dx << "," << dy << " pixel " << x << "," << y;
        }
      }
    }
  }
}

class SoftGdiClipping : public LeakChecked {};

TEST_F(SoftGdiClipping, FillRectKeepsItsVisiblePixelsAtEveryEdge) {
  ExpectClippedCopy([](HDC dc, int dx, int dy) {
    HBRUSH brush = CreateHatchBrush(HS_CROSS, kInk);
    const RECT rect{dx + 1, dy + 2, dx + 14, dy + 13};
    FillRect(dc, &rect, brush);
    DeleteObject(brush);
  });
}

TEST_F(SoftGdiClipping, EllipseKeepsItsVisiblePixelsAtEveryEdge) {
  ExpectClippedCopy([](HDC dc, int dx, int dy) { Ellipse(dc, dx + 1, dy, dx + 15, dy + 11); });
  ExpectClippedCopy([](HDC dc, int dx, int dy) { Ellipse(dc, dx + 3, dy + 1, dx + 5, dy + 15); });
}

TEST_F(SoftGdiClipping, LinesKeepTheirVisiblePixelsAtEveryEdge) {
  for (int penWidth : {1, 2, 5}) {
    SCOPED_TRACE(penWidth);
    ExpectClippedCopy(
        [](HDC dc, int dx, int dy) {
          MoveToEx(dc, dx + 1, dy + 2, nullptr);
          LineTo(dc, dx + 14, dy + 7);
          LineTo(dc, dx + 3, dy + 15);
          LineTo(dc, dx + 3, dy + 4);
          LineTo(dc, dx + 12, dy + 4);
        },
        penWidth);
  }
}

TEST_F(SoftGdiClipping, FocusRectKeepsItsVisiblePixelsAtEveryEdge) {
  ExpectClippedCopy([](HDC dc, int dx, int dy) {
    const RECT rect{dx + 1, dy + 2, dx + 15, dy + 13};
    DrawFocusRect(dc, &rect);
  });
}

TEST_F(SoftGdiClipping, FillRectOverTheWholeIntRangeFillsTheBitmap) {
  for (RECT rect : {RECT{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, RECT{INT_MAX, INT_MAX, INT_MIN, INT_MIN},
                    RECT{INT_MIN, 0, INT_MAX, 5}, RECT{-1000000000, -1000000000, 1000000000, 1000000000}}) {
    Canvas canvas(9, 5);
    HBRUSH brush = CreateSolidBrush(kFill);
    EXPECT_EQ(FillRect(canvas.dc(), &rect, brush), 1);
    DeleteObject(brush);
    EXPECT_EQ(WithColor(canvas.Read(), kFill).size(), 45u);
  }
}

TEST_F(SoftGdiClipping, FillRectEntirelyOutsideTouchesNothing) {
  for (RECT rect : {RECT{INT_MIN, INT_MIN, INT_MIN + 5, INT_MAX}, RECT{INT_MAX - 5, 0, INT_MAX, 5},
                    RECT{0, INT_MIN + 1, 5, INT_MIN}, RECT{-10, -10, 0, 0}, RECT{9, 0, 12, 5}}) {
    Canvas canvas(9, 5);
    HBRUSH brush = CreateSolidBrush(kFill);
    FillRect(canvas.dc(), &rect, brush);
    DeleteObject(brush);
    EXPECT_TRUE(Changed(canvas.Read()).empty()) << rect.left << "," << rect.top;
  }
}

Pixels Line(int width, int height, int penWidth, POINT from, POINT to) {
  Canvas canvas(width, height);
  Selected pen(canvas.dc(), CreatePen(PS_SOLID, penWidth, kInk));
  MoveToEx(canvas.dc(), from.x, from.y, nullptr);
  EXPECT_EQ(LineTo(canvas.dc(), to.x, to.y), 1);
  return canvas.Read();
}

TEST_F(SoftGdiClipping, ThinLinesFromTheEndsOfTheIntRange) {
  EXPECT_EQ(Changed(Line(12, 8, 1, {INT_MIN, 3}, {INT_MAX, 3})), PointsWhere(12, 8, [](int, int y) { return y == 3; }));
  EXPECT_EQ(Changed(Line(12, 8, 1, {INT_MAX, 3}, {INT_MIN, 3})), PointsWhere(12, 8, [](int, int y) { return y == 3; }));
  EXPECT_EQ(Changed(Line(12, 8, 1, {5, INT_MIN}, {5, INT_MAX})), PointsWhere(12, 8, [](int x, int) { return x == 5; }));
  EXPECT_EQ(Changed(Line(12, 8, 1, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX})),
            PointsWhere(12, 8, [](int x, int y) { return x == y; }));
  EXPECT_EQ(Changed(Line(12, 8, 1, {INT_MAX, INT_MIN}, {INT_MIN, INT_MAX})), std::set<Point>{})
      << "the anti-diagonal through (-1, 0) misses the bitmap";
  // From x = INT_MIN to INT_MAX while y goes 0 -> 1 the line is past half way
  // (y > 0.5) for every x >= 0: row 1, whole.
  EXPECT_EQ(Changed(Line(12, 8, 1, {INT_MIN, 0}, {INT_MAX, 1})), PointsWhere(12, 8, [](int, int y) { return y == 1; }));
}

TEST_F(SoftGdiClipping, WideLinesFromTheEndsOfTheIntRange) {
  EXPECT_EQ(Changed(Line(12, 16, 5, {INT_MIN, 8}, {INT_MAX, 8})),
            PointsWhere(12, 16, [](int, int y) { return y >= 6 && y <= 10; }));
  EXPECT_EQ(Changed(Line(16, 12, 4, {7, INT_MAX}, {7, INT_MIN})),
            PointsWhere(16, 12, [](int x, int) { return x >= 5 && x <= 8; }));
  const std::set<Point> diagonal = Changed(Line(12, 12, 3, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}));
  for (int y = 0; y < 12; ++y) {
    for (int x = 0; x < 12; ++x) {
      if (x - y >= -1 && x - y <= 1) {
        EXPECT_EQ(diagonal.count({x, y}), 1u) << x << "," << y;
      }
      if (x - y < -4 || x - y > 4) {
        EXPECT_EQ(diagonal.count({x, y}), 0u) << x << "," << y;
      }
    }
  }
}

TEST_F(SoftGdiClipping, HugePenCapCoversTheBitmap) {
  for (int width : {1000000, INT_MAX, INT_MIN}) {
    EXPECT_EQ(WithColor(Line(7, 6, width, {3, 3}, {3, 3}), kInk).size(), 42u) << width;
  }
}

Pixels EllipseOn(int width, int height, RECT box, int penStyle = PS_SOLID) {
  Canvas canvas(width, height);
  Selected pen(canvas.dc(), CreatePen(penStyle, 1, kInk));
  Selected brush(canvas.dc(), CreateSolidBrush(kFill));
  EXPECT_EQ(Ellipse(canvas.dc(), box.left, box.top, box.right, box.bottom), 1);
  return canvas.Read();
}

TEST_F(SoftGdiClipping, EllipseOverTheWholeIntRangePaintsItsInterior) {
  // The bitmap lies at the centre of the box, deep inside the ellipse.
  EXPECT_EQ(WithColor(EllipseOn(10, 10, {INT_MIN, INT_MIN, INT_MAX, INT_MAX}), kFill).size(), 100u);
  EXPECT_EQ(WithColor(EllipseOn(10, 10, {INT_MAX, INT_MAX, INT_MIN, INT_MIN}), kFill).size(), 100u);
  EXPECT_EQ(WithColor(EllipseOn(10, 10, {-100000000, -100000000, 100000000, 100000000}), kFill).size(), 100u);
}

TEST_F(SoftGdiClipping, EllipseEdgeFromFarAwayIsOnePixelOfOutline) {
  // A huge ellipse whose left-most point is at x = 2 on row 5 of the bitmap.
  const Pixels pixels = EllipseOn(12, 12, {2, 5 - 1000000000, 2 + 2000000000, 5 + 1000000001});
  EXPECT_EQ(pixels.At(2, 5), PixelOf(kInk));
  EXPECT_EQ(pixels.At(1, 5), PixelOf(kBackground));
  EXPECT_EQ(pixels.At(0, 5), PixelOf(kBackground));
  EXPECT_EQ(pixels.At(6, 5), PixelOf(kFill));
}

TEST_F(SoftGdiClipping, EllipseEntirelyOutsideTouchesNothing) {
  for (RECT box : {RECT{INT_MIN, INT_MIN, INT_MIN + 100, INT_MIN + 100}, RECT{INT_MAX - 9, 0, INT_MAX, 9},
                   RECT{-20, -20, 0, 0}, RECT{10, 0, 30, 10}}) {
    EXPECT_TRUE(Changed(EllipseOn(10, 10, box)).empty()) << box.left << "," << box.top;
  }
}

TEST_F(SoftGdiClipping, FocusRectOverTheWholeIntRangeHasNoVisibleFrame) {
  Canvas canvas(8, 8);
  const RECT everything{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
  EXPECT_EQ(DrawFocusRect(canvas.dc(), &everything), 1);
  EXPECT_TRUE(Changed(canvas.Read()).empty());
  const RECT band{-1000000, 2, 1000000, 6};
  DrawFocusRect(canvas.dc(), &band);
  const int parity = (1000000 - 1 + 2) & 1;
  EXPECT_EQ(Changed(canvas.Read()),
            PointsWhere(8, 8, [&](int x, int y) { return (y == 2 || y == 5) && ((x + y) & 1) == parity; }));
}

TEST_F(SoftGdiClipping, BitBltWithExtremeArgumentsCopiesOnlyTheOverlap) {
  Canvas source(6, 6, RGB(1, 2, 3));
  const int extremes[][6] = {{INT_MIN, INT_MIN, INT_MAX, INT_MAX, 0, 0},
                             {0, 0, INT_MAX, INT_MAX, INT_MIN, INT_MIN},
                             {0, 0, INT_MIN, INT_MIN, 0, 0},
                             {INT_MAX, INT_MAX, INT_MIN, INT_MIN, 0, 0},
                             {0, 0, INT_MAX, INT_MAX, INT_MAX, 0},
                             {INT_MIN, 0, INT_MAX, 4, INT_MIN, 0}};
  for (const auto& e : extremes) {
    Canvas destination(8, 8);
    BitBlt(destination.dc(), e[0], e[1], e[2], e[3], source.dc(), e[4], e[5], SRCCOPY);
    const std::set<Point> copied = Changed(destination.Read());
    for (const Point& p : copied) EXPECT_TRUE(p.x < 6 && p.y < 6) << "only pixels with a source";
  }
  Canvas destination(8, 8);
  EXPECT_EQ(BitBlt(destination.dc(), 0, 0, INT_MAX, INT_MAX, source.dc(), 0, 0, SRCCOPY), 1);
  EXPECT_EQ(WithColor(destination.Read(), RGB(1, 2, 3)).size(), 36u);
  Canvas shifted(8, 8);
  EXPECT_EQ(BitBlt(shifted.dc(), INT_MIN, 0, INT_MAX, 8, source.dc(), INT_MIN + 2, 0, SRCCOPY), 1);
  EXPECT_TRUE(Changed(shifted.Read()).empty()) << "the band ends at x = -2, before the bitmap";
}

}  // namespace
}  // namespace softgdi_test
