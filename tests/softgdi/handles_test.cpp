// Handles are looked up, never trusted: null, foreign, deleted and wrongly
// typed handles make calls fail the way GDI's do.

#include <climits>
#include <cstdint>
#include <vector>

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

template <class H>
H Forge(uintptr_t value) {
  return reinterpret_cast<H>(value);
}

// Values no handle of this process has: small numbers, odd and unaligned
// values, all ones, and addresses of real memory.
std::vector<uintptr_t> ForeignValues() {
  static int onTheStack = 0;
  static std::vector<int> onTheHeap(4);
  return {1,
          2,
          4,
          0x1234,
          0xFFFF,
          UINTPTR_MAX,
          UINTPTR_MAX - 3,
          reinterpret_cast<uintptr_t>(&onTheStack),
          reinterpret_cast<uintptr_t>(onTheHeap.data())};
}

class SoftGdiHandles : public LeakChecked {};

TEST_F(SoftGdiHandles, NullHandlesFailEveryCall) {
  RECT rect{0, 0, 4, 4};
  POINT previous{};
  Pixels pixels;
  EXPECT_EQ(SelectObject(nullptr, nullptr), nullptr);
  EXPECT_EQ(DeleteObject(nullptr), 0);
  EXPECT_EQ(DeleteDC(nullptr), 0);
  EXPECT_EQ(ReleaseDC(nullptr, nullptr), 0);
  EXPECT_EQ(CreateCompatibleBitmap(nullptr, 4, 4), nullptr);
  EXPECT_EQ(GetDeviceCaps(nullptr, BITSPIXEL), 0);
  EXPECT_EQ(SetBkMode(nullptr, OPAQUE), 0);
  EXPECT_EQ(SetBkColor(nullptr, RGB(1, 2, 3)), 0xFFFFFFFFu);
  EXPECT_EQ(MoveToEx(nullptr, 1, 1, &previous), 0);
  EXPECT_EQ(LineTo(nullptr, 2, 2), 0);
  EXPECT_EQ(Ellipse(nullptr, 0, 0, 5, 5), 0);
  EXPECT_EQ(FillRect(nullptr, &rect, nullptr), 0);
  EXPECT_EQ(DrawFocusRect(nullptr, &rect), 0);
  EXPECT_EQ(BitBlt(nullptr, 0, 0, 1, 1, nullptr, 0, 0, SRCCOPY), 0);
  EXPECT_FALSE(ReadPixels(nullptr, pixels));
}

TEST_F(SoftGdiHandles, NullBrushOrRectangleFailsFillRect) {
  Canvas canvas(4, 4);
  HBRUSH brush = CreateSolidBrush(RGB(255, 0, 0));
  RECT rect{0, 0, 4, 4};
  EXPECT_EQ(FillRect(canvas.dc(), &rect, nullptr), 0);
  EXPECT_EQ(FillRect(canvas.dc(), nullptr, brush), 0);
  EXPECT_EQ(DrawFocusRect(canvas.dc(), nullptr), 0);
  EXPECT_TRUE(Changed(canvas.Read()).empty());
  DeleteObject(brush);
}

TEST_F(SoftGdiHandles, ForeignValuesAreNoHandles) {
  Canvas canvas(4, 4);
  HBRUSH brush = CreateSolidBrush(0);
  RECT rect{0, 0, 4, 4};
  Pixels pixels;
  for (uintptr_t value : ForeignValues()) {
    SCOPED_TRACE(value);
    HDC dc = Forge<HDC>(value);
    EXPECT_EQ(SelectObject(canvas.dc(), Forge<HGDIOBJ>(value)), nullptr);
    EXPECT_EQ(SelectObject(dc, brush), nullptr);
    EXPECT_EQ(DeleteObject(Forge<HGDIOBJ>(value)), 0);
    EXPECT_EQ(DeleteDC(dc), 0);
    EXPECT_EQ(CreateCompatibleDC(dc), nullptr);
    EXPECT_EQ(CreateCompatibleBitmap(dc, 2, 2), nullptr);
    EXPECT_EQ(GetDeviceCaps(dc, BITSPIXEL), 0);
    EXPECT_EQ(FillRect(canvas.dc(), &rect, Forge<HBRUSH>(value)), 0);
    EXPECT_EQ(LineTo(dc, 3, 3), 0);
    EXPECT_EQ(BitBlt(canvas.dc(), 0, 0, 4, 4, dc, 0, 0, SRCCOPY), 0);
    EXPECT_FALSE(ReadPixels(dc, pixels));
  }
  EXPECT_TRUE(Changed(canvas.Read()).empty());
  DeleteObject(brush);
}

TEST_F(SoftGdiHandles, DeletedBrushFailsEveryCall) {
  Canvas canvas(4, 4);
  HBRUSH brush = CreateSolidBrush(RGB(255, 0, 0));
  ASSERT_NE(brush, nullptr);
  EXPECT_EQ(DeleteObject(brush), 1);
  RECT rect{0, 0, 4, 4};
  EXPECT_EQ(FillRect(canvas.dc(), &rect, brush), 0);
  EXPECT_EQ(SelectObject(canvas.dc(), brush), nullptr);
  EXPECT_EQ(DeleteObject(brush), 0);
  EXPECT_TRUE(Changed(canvas.Read()).empty());
}

TEST_F(SoftGdiHandles, DeletedDcFailsEveryCall) {
  HDC dc = CreateCompatibleDC(nullptr);
  ASSERT_NE(dc, nullptr);
  EXPECT_EQ(DeleteDC(dc), 1);
  EXPECT_EQ(DeleteDC(dc), 0);
  EXPECT_EQ(SetBkMode(dc, TRANSPARENT), 0);
  EXPECT_EQ(GetDeviceCaps(dc, PLANES), 0);
  EXPECT_EQ(Ellipse(dc, 0, 0, 3, 3), 0);
  EXPECT_EQ(CreateCompatibleDC(dc), nullptr);
}

TEST_F(SoftGdiHandles, ReusedSlotDoesNotReviveAnOldHandle) {
  Canvas canvas(2, 1);
  std::vector<HBRUSH> stale;
  for (int i = 0; i < 50; ++i) {
    HBRUSH brush = CreateSolidBrush(RGB(0, 0, 255));
    stale.push_back(brush);
    DeleteObject(brush);
  }
  HBRUSH live = CreateSolidBrush(RGB(0, 255, 0));
  RECT rect{0, 0, 1, 1};
  for (HBRUSH old : stale) {
    EXPECT_NE(old, live);
    EXPECT_EQ(FillRect(canvas.dc(), &rect, old), 0);
  }
  EXPECT_EQ(FillRect(canvas.dc(), &rect, live), 1);
  EXPECT_EQ(canvas.Read().At(0, 0), PixelOf(RGB(0, 255, 0)));
  DeleteObject(live);
}

TEST_F(SoftGdiHandles, WrongKindOfHandleFails) {
  Canvas canvas(4, 4);
  HPEN pen = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
  HBRUSH brush = CreateSolidBrush(RGB(255, 0, 0));
  HDC other = CreateCompatibleDC(nullptr);
  RECT rect{0, 0, 4, 4};
  Pixels pixels;
  EXPECT_EQ(FillRect(canvas.dc(), &rect, reinterpret_cast<HBRUSH>(pen)), 0);
  EXPECT_EQ(FillRect(reinterpret_cast<HDC>(brush), &rect, brush), 0);
  EXPECT_EQ(SelectObject(canvas.dc(), other), nullptr);
  EXPECT_EQ(SelectObject(reinterpret_cast<HDC>(pen), brush), nullptr);
  EXPECT_EQ(DeleteDC(reinterpret_cast<HDC>(brush)), 0);
  EXPECT_EQ(DeleteObject(other), 0) << "a DC goes through DeleteDC";
  EXPECT_EQ(GetDeviceCaps(reinterpret_cast<HDC>(canvas.bitmap()), BITSPIXEL), 0);
  EXPECT_FALSE(ReadPixels(reinterpret_cast<HDC>(canvas.bitmap()), pixels));
  EXPECT_EQ(CreateCompatibleDC(reinterpret_cast<HDC>(pen)), nullptr);
  EXPECT_TRUE(Changed(canvas.Read()).empty());
  DeleteObject(pen);
  DeleteObject(brush);
  DeleteDC(other);
}

TEST_F(SoftGdiHandles, ExtremeArgumentsNeverCrash) {
  Canvas canvas(3, 3);
  for (int value : {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX}) {
    SCOPED_TRACE(value);
    const bool knownMode = value == TRANSPARENT || value == OPAQUE;
    EXPECT_EQ(SetBkMode(canvas.dc(), value), knownMode ? OPAQUE : 0);
    SetBkMode(canvas.dc(), OPAQUE);
    EXPECT_EQ(GetDeviceCaps(canvas.dc(), value), 0) << "only BITSPIXEL and PLANES are answered";
    HBRUSH hatch = CreateHatchBrush(value, 0);
    EXPECT_EQ(hatch != nullptr, value >= 0 && value < 12);
    DeleteObject(hatch);
    HPEN pen = CreatePen(PS_SOLID, value, RGB(9, 9, 9));
    ASSERT_NE(pen, nullptr);
    DeleteObject(pen);
  }
}

}  // namespace
}  // namespace softgdi_test
