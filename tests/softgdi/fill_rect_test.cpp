// FillRect: PatBlt(PATCOPY) semantics at pixels.

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

constexpr COLORREF kFill = RGB(10, 20, 30);

class SoftGdiFillRect : public LeakChecked {};

std::set<Point> Fill(RECT rect, int width = 14, int height = 12) {
  Canvas canvas(width, height);
  HBRUSH brush = CreateSolidBrush(kFill);
  EXPECT_EQ(FillRect(canvas.dc(), &rect, brush), 1);
  DeleteObject(brush);
  const Pixels pixels = canvas.Read();
  EXPECT_EQ(Changed(pixels), WithColor(pixels, kFill)) << "no dithering, one colour";
  return Changed(pixels);
}

TEST_F(SoftGdiFillRect, SolidBrushCoversTheHalfOpenRectangle) {
  EXPECT_EQ(Fill({2, 3, 9, 7}), PointsWhere(14, 12, [](int x, int y) { return x >= 2 && x < 9 && y >= 3 && y < 7; }));
}

TEST_F(SoftGdiFillRect, ZeroWidthOrHeightFillsNothing) {
  EXPECT_TRUE(Fill({4, 1, 4, 9}).empty());
  EXPECT_TRUE(Fill({1, 6, 9, 6}).empty());
}

TEST_F(SoftGdiFillRect, InvertedRectangleIsPutInOrderShiftedByOne) {
  EXPECT_EQ(Fill({10, 0, 5, 5}), PointsWhere(14, 12, [](int x, int y) { return x >= 6 && x <= 10 && y < 5; }));
  EXPECT_EQ(Fill({0, 8, 3, 2}), PointsWhere(14, 12, [](int x, int y) { return x < 3 && y >= 3 && y <= 8; }));
  EXPECT_EQ(Fill({7, 9, 2, 4}), PointsWhere(14, 12, [](int x, int y) { return x >= 3 && x <= 7 && y >= 5 && y <= 9; }));
}

TEST_F(SoftGdiFillRect, ScreenDcAcceptsTheFillAndHasNoPixels) {
  HDC screen = GetDC(nullptr);
  HBRUSH brush = CreateSolidBrush(kFill);
  const RECT rect{0, 0, 100, 100};
  EXPECT_EQ(FillRect(screen, &rect, brush), 1);
  Pixels pixels;
  EXPECT_FALSE(ReadPixels(screen, pixels));
  EXPECT_EQ(pixels.width, 0);
  DeleteObject(brush);
  ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace softgdi_test
