// DrawFocusRect inverts a dotted frame: pixel (x, y) of the frame when x + y
// has the parity of (right - 1) + top; twice restores.

#include <random>

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

class SoftGdiFocusRect : public LeakChecked {};

constexpr COLORREF kInverted = RGB(0xCF, 0xCF, 0xCF);  // kBackground inverted

std::set<Point> Focus(RECT rect, int width = 12, int height = 10) {
  Canvas canvas(width, height);
  EXPECT_EQ(DrawFocusRect(canvas.dc(), &rect), 1);
  const Pixels pixels = canvas.Read();
  EXPECT_EQ(Changed(pixels), WithColor(pixels, kInverted)) << "inverted, nothing else";
  return Changed(pixels);
}

TEST_F(SoftGdiFocusRect, FiveByFourFromTheRule) {
  EXPECT_EQ(Focus({0, 0, 5, 4}), (std::set<Point>{{0, 0}, {2, 0}, {4, 0}, {0, 2}, {4, 2}, {1, 3}, {3, 3}}));
}

TEST_F(SoftGdiFocusRect, FrameFollowsTheParityRule) {
  for (RECT rect : {RECT{1, 1, 11, 9}, RECT{2, 3, 7, 8}, RECT{0, 1, 2, 6}, RECT{3, 2, 10, 4}}) {
    const int parity = (rect.right - 1 + rect.top) & 1;
    const std::set<Point> expected = PointsWhere(12, 10, [&](int x, int y) {
      const bool inside = x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
      const bool edge = x == rect.left || x == rect.right - 1 || y == rect.top || y == rect.bottom - 1;
      return inside && edge && ((x + y) & 1) == parity;
    });
    EXPECT_EQ(Focus(rect), expected);
  }
}

TEST_F(SoftGdiFocusRect, OnePixelThinFrameKeepsOnlyItsEnds) {
  // The path goes out and back: the pixels between the ends are inverted twice.
  EXPECT_EQ(Focus({2, 1, 3, 6}), (std::set<Point>{{2, 1}, {2, 5}}));
  EXPECT_EQ(Focus({1, 1, 6, 2}), (std::set<Point>{{1, 1}, {5, 1}}));
  EXPECT_TRUE(Focus({1, 1, 2, 2}).empty());
  EXPECT_TRUE(Focus({3, 3, 3, 6}).empty());
}

TEST_F(SoftGdiFocusRect, CornersInAnyOrderDrawTheSameFrame) { EXPECT_EQ(Focus({5, 4, 0, 0}), Focus({0, 0, 5, 4})); }

TEST_F(SoftGdiFocusRect, DrawingTwiceRestoresEveryPixel) {
  std::mt19937 random(1234);
  std::uniform_int_distribution<int> coordinate(-3, 15);
  Canvas canvas(12, 10);
  HBRUSH brush = CreateHatchBrush(HS_DIAGCROSS, RGB(9, 99, 199));
  const RECT all{0, 0, 12, 10};
  FillRect(canvas.dc(), &all, brush);
  DeleteObject(brush);
  const Pixels before = canvas.Read();
  for (int i = 0; i < 200; ++i) {
    const RECT rect{coordinate(random), coordinate(random), coordinate(random), coordinate(random)};
    DrawFocusRect(canvas.dc(), &rect);
    DrawFocusRect(canvas.dc(), &rect);
    ASSERT_EQ(canvas.Read().argb, before.argb)
        << rect.left << "," << rect.top << "," << rect.right << "," << rect.bottom;
  }
}

}  // namespace
}  // namespace softgdi_test
