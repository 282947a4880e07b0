// BitBlt with SRCCOPY: both rectangles clipped to their bitmaps, only the
// overlap written, copies within one bitmap read before they write.

#include <cstdint>

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

class SoftGdiBlit : public LeakChecked {};

// A distinct colour for every pixel.
uint32_t Marker(int x, int y) { return 0x010000u * static_cast<uint32_t>(x + 1) + static_cast<uint32_t>(y + 1); }

void PaintMarkers(const Canvas& canvas, int width, int height) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const uint32_t pixel = Marker(x, y);
      HBRUSH brush = CreateSolidBrush(
          RGB(static_cast<uint8_t>(pixel >> 16), static_cast<uint8_t>(pixel >> 8), static_cast<uint8_t>(pixel)));
      const RECT one{x, y, x + 1, y + 1};
      FillRect(canvas.dc(), &one, brush);
      DeleteObject(brush);
    }
  }
}

// What a copy must leave: `before` with every destination pixel whose source
// lies on the source bitmap replaced by that source pixel.
Pixels Expected(const Pixels& before, const Pixels& source, int x, int y, int w, int h, int sx, int sy) {
  Pixels after = before;
  for (int row = 0; row < h; ++row) {
    for (int column = 0; column < w; ++column) {
      const int dx = x + column;
      const int dy = y + row;
      const int fx = sx + column;
      const int fy = sy + row;
      const bool onDest = dx >= 0 && dy >= 0 && dx < before.width && dy < before.height;
      const bool onSource = fx >= 0 && fy >= 0 && fx < source.width && fy < source.height;
      if (onDest && onSource) after.argb[static_cast<size_t>(dy * before.width + dx)] = source.At(fx, fy);
    }
  }
  return after;
}

TEST_F(SoftGdiBlit, CopiesBetweenBitmapsClippedOnBothSides) {
  Canvas source(7, 5);
  PaintMarkers(source, 7, 5);
  const Pixels from = source.Read();
  const int cases[][6] = {{1, 1, 4, 3, 2, 1}, {-3, -2, 8, 8, 0, 0},    {6, 5, 9, 9, 0, 0}, {0, 0, 9, 9, -4, -1},
                          {2, 2, 9, 9, 5, 3}, {-20, 0, 40, 2, -10, 3}, {0, 0, 10, 8, 0, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c[0] << "," << c[1] << " " << c[2] << "x" << c[3] << " from " << c[4] << ","
                                    << c[5]);
    Canvas destination(10, 8);
    const Pixels before = destination.Read();
    EXPECT_EQ(BitBlt(destination.dc(), c[0], c[1], c[2], c[3], source.dc(), c[4], c[5], SRCCOPY), 1);
    EXPECT_EQ(destination.Read().argb, Expected(before, from, c[0], c[1], c[2], c[3], c[4], c[5]).argb);
  }
}

TEST_F(SoftGdiBlit, ZeroSizeCopiesNothing) {
  Canvas source(4, 4, RGB(1, 1, 1));
  Canvas destination(4, 4);
  EXPECT_EQ(BitBlt(destination.dc(), 0, 0, 0, 4, source.dc(), 0, 0, SRCCOPY), 1);
  EXPECT_EQ(BitBlt(destination.dc(), 0, 0, 4, 0, source.dc(), 0, 0, SRCCOPY), 1);
  EXPECT_TRUE(Changed(destination.Read()).empty());
}

TEST_F(SoftGdiBlit, OverlappingCopyWithinOneBitmapReadsBeforeWriting) {
  for (int dx = -3; dx <= 3; ++dx) {
    for (int dy = -3; dy <= 3; ++dy) {
      SCOPED_TRACE(testing::Message() << dx << "," << dy);
      Canvas canvas(9, 8);
      PaintMarkers(canvas, 9, 8);
      const Pixels before = canvas.Read();
      EXPECT_EQ(BitBlt(canvas.dc(), 2 + dx, 2 + dy, 5, 4, canvas.dc(), 2, 2, SRCCOPY), 1);
      EXPECT_EQ(canvas.Read().argb, Expected(before, before, 2 + dx, 2 + dy, 5, 4, 2, 2).argb);
    }
  }
}

TEST_F(SoftGdiBlit, NegativeExtentsCoverThePixelsBeforeTheCorner) {
  Canvas source(6, 6);
  PaintMarkers(source, 6, 6);
  const Pixels from = source.Read();
  Canvas destination(12, 10);
  const Pixels before = destination.Read();
  EXPECT_EQ(BitBlt(destination.dc(), 10, 5, -4, -3, source.dc(), 3, 2, SRCCOPY), 1);
  // Both corners move by width + 1 and height + 1: a 4x3 copy from (0, 0) to (7, 3).
  EXPECT_EQ(destination.Read().argb, Expected(before, from, 7, 3, 4, 3, 0, 0).argb);
}

TEST_F(SoftGdiBlit, OnlySourceCopyIsDone) {
  Canvas source(3, 3, RGB(5, 5, 5));
  Canvas destination(3, 3);
  EXPECT_EQ(BitBlt(destination.dc(), 0, 0, 3, 3, source.dc(), 0, 0, 0x00EE0086), 0);
  EXPECT_TRUE(Changed(destination.Read()).empty());
}

TEST_F(SoftGdiBlit, ScreenIsASinkNotASource) {
  Canvas canvas(3, 3, RGB(5, 5, 5));
  HDC screen = GetDC(nullptr);
  EXPECT_EQ(BitBlt(screen, 0, 0, 3, 3, canvas.dc(), 0, 0, SRCCOPY), 1);
  EXPECT_EQ(BitBlt(canvas.dc(), 0, 0, 3, 3, screen, 0, 0, SRCCOPY), 0);
  EXPECT_EQ(WithColor(canvas.Read(), RGB(5, 5, 5)).size(), 9u);
  ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace softgdi_test
