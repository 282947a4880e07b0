// LiveObjectCount counts the DCs and objects made through the seam and not yet
// freed, and nothing else.

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

TEST(SoftGdiLeakCounter, EveryCreationCountsUntilItsDeletion) {
  const size_t start = LiveObjectCount();
  HDC dc = CreateCompatibleDC(nullptr);
  EXPECT_EQ(LiveObjectCount(), start + 1);
  HDC screen = GetDC(nullptr);
  EXPECT_EQ(LiveObjectCount(), start + 2);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, 4, 4);
  HBRUSH solid = CreateSolidBrush(RGB(1, 1, 1));
  HBRUSH hatch = CreateHatchBrush(HS_CROSS, RGB(1, 1, 1));
  HPEN pen = CreatePen(PS_SOLID, 3, RGB(1, 1, 1));
  EXPECT_EQ(LiveObjectCount(), start + 6);
  ReleaseDC(nullptr, screen);
  DeleteObject(bitmap);
  DeleteObject(solid);
  DeleteObject(hatch);
  DeleteObject(pen);
  EXPECT_EQ(LiveObjectCount(), start + 1);
  DeleteDC(dc);
  EXPECT_EQ(LiveObjectCount(), start);
}

TEST(SoftGdiLeakCounter, ForgottenReleaseDcShowsAsALeak) {
  const size_t start = LiveObjectCount();
  HDC screen = GetDC(nullptr);
  EXPECT_EQ(LiveObjectCount(), start + 1);
  ReleaseDC(nullptr, screen);
  EXPECT_EQ(LiveObjectCount(), start);
}

TEST(SoftGdiLeakCounter, StockObjectsAreNotCounted) {
  const size_t start = LiveObjectCount();
  HDC dc = CreateCompatibleDC(nullptr);
  // An empty bitmap is the stock 1x1 bitmap.
  HBITMAP empty = CreateCompatibleBitmap(dc, 0, 7);
  ASSERT_NE(empty, nullptr);
  EXPECT_EQ(CreateCompatibleBitmap(dc, 7, 0), empty);
  EXPECT_EQ(LiveObjectCount(), start + 1);
  EXPECT_EQ(DeleteObject(empty), 1);
  HGDIOBJ stockPen = SelectObject(dc, CreatePen(PS_NULL, 0, 0));
  EXPECT_EQ(DeleteObject(stockPen), 1);
  EXPECT_EQ(LiveObjectCount(), start + 2);
  DeleteObject(SelectObject(dc, stockPen));
  DeleteDC(dc);
  EXPECT_EQ(LiveObjectCount(), start);
}

TEST(SoftGdiLeakCounter, FailedCreationsAddNothing) {
  const size_t start = LiveObjectCount();
  HDC screen = GetDC(nullptr);
  EXPECT_EQ(CreateCompatibleBitmap(screen, 100000, 100000), nullptr);
  EXPECT_EQ(CreateCompatibleBitmap(screen, INT32_MIN, 1), nullptr);
  EXPECT_EQ(CreateHatchBrush(12, 0), nullptr);
  EXPECT_EQ(CreateHatchBrush(-1, 0), nullptr);
  EXPECT_EQ(CreatePen(1, 1, 0), nullptr) << "dashed pens are not drawn by softgdi";
  EXPECT_EQ(CreatePen(6, 1, 0), nullptr) << "nor inside-frame pens";
  EXPECT_EQ(CreateCompatibleDC(reinterpret_cast<HDC>(uintptr_t{64})), nullptr);
  ReleaseDC(nullptr, screen);
  EXPECT_EQ(LiveObjectCount(), start);
}

TEST(SoftGdiLeakCounter, DeletingADcFreesWhatItsDeletionLeftPending) {
  const size_t start = LiveObjectCount();
  HDC dc = CreateCompatibleDC(nullptr);
  HDC screen = GetDC(nullptr);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, 2, 2);
  ReleaseDC(nullptr, screen);
  HBRUSH brush = CreateHatchBrush(HS_VERTICAL, 0);
  HPEN pen = CreatePen(PS_SOLID, 5, 0);
  SelectObject(dc, bitmap);
  SelectObject(dc, brush);
  SelectObject(dc, pen);
  DeleteObject(bitmap);
  DeleteObject(brush);
  DeleteObject(pen);
  EXPECT_EQ(LiveObjectCount(), start + 4);
  DeleteDC(dc);
  EXPECT_EQ(LiveObjectCount(), start);
}

}  // namespace
}  // namespace softgdi_test
