// The Windows backend hands out gdi32's own handles and reports the platform's
// surfaces as they are.

#include "platform/gdi.h"
// After the seam: <windows.h> defines macros with the names the seam declares
// (RGB, HS_*, PS_*, ...), so below those are the macros, of the same values.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <gtest/gtest.h>
#include <windows.h>

namespace {

namespace gdi = vorlex::gdi;

TEST(Handles, AreTheObjectsGdi32Knows) {
  gdi::HDC screen = gdi::GetDC(nullptr);
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(::GetObjectType(reinterpret_cast<HGDIOBJ>(screen)), static_cast<DWORD>(OBJ_DC));
  gdi::HDC dc = gdi::CreateCompatibleDC(screen);
  gdi::HBITMAP bitmap = gdi::CreateCompatibleBitmap(screen, 2, 2);
  gdi::HBRUSH solid = gdi::CreateSolidBrush(RGB(1, 2, 3));
  gdi::HBRUSH hatch = gdi::CreateHatchBrush(HS_CROSS, RGB(1, 2, 3));
  gdi::HPEN pen = gdi::CreatePen(PS_SOLID, 3, RGB(4, 5, 6));
  EXPECT_EQ(::GetObjectType(reinterpret_cast<HGDIOBJ>(dc)), static_cast<DWORD>(OBJ_MEMDC));
  EXPECT_EQ(::GetObjectType(bitmap), static_cast<DWORD>(OBJ_BITMAP));
  EXPECT_EQ(::GetObjectType(solid), static_cast<DWORD>(OBJ_BRUSH));
  EXPECT_EQ(::GetObjectType(pen), static_cast<DWORD>(OBJ_PEN));
  LOGBRUSH brush{};
  ASSERT_EQ(::GetObjectW(hatch, sizeof(brush), &brush), static_cast<int>(sizeof(brush)));
  EXPECT_EQ(brush.lbStyle, static_cast<UINT>(BS_HATCHED));
  EXPECT_EQ(brush.lbHatch, static_cast<ULONG_PTR>(HS_CROSS));
  EXPECT_EQ(brush.lbColor, RGB(1, 2, 3));
  LOGPEN logpen{};
  ASSERT_EQ(::GetObjectW(pen, sizeof(logpen), &logpen), static_cast<int>(sizeof(logpen)));
  EXPECT_EQ(logpen.lopnWidth.x, 3);
  EXPECT_EQ(logpen.lopnColor, RGB(4, 5, 6));
  for (gdi::HGDIOBJ object : {static_cast<gdi::HGDIOBJ>(bitmap), static_cast<gdi::HGDIOBJ>(solid),
                              static_cast<gdi::HGDIOBJ>(hatch), static_cast<gdi::HGDIOBJ>(pen)}) {
    EXPECT_NE(gdi::DeleteObject(object), 0);
  }
  EXPECT_NE(gdi::DeleteDC(dc), 0);
  EXPECT_EQ(gdi::ReleaseDC(nullptr, screen), 1);
}

TEST(Handles, MoveToExAcceptsANullPreviousPosition) {
  HDC dc = ::CreateCompatibleDC(nullptr);
  ASSERT_NE(dc, nullptr);
  EXPECT_NE(gdi::MoveToEx(reinterpret_cast<gdi::HDC>(dc), 4, 5, nullptr), 0);
  POINT now{};
  ::GetCurrentPositionEx(dc, &now);
  EXPECT_EQ(now.x, 4);
  EXPECT_EQ(now.y, 5);
  gdi::POINT previous{};
  EXPECT_NE(gdi::MoveToEx(reinterpret_cast<gdi::HDC>(dc), 0, 0, &previous), 0);
  EXPECT_EQ(previous.x, 4);
  EXPECT_EQ(previous.y, 5);
  ::DeleteDC(dc);
}

// Headless under Wine too, the screen is a 32-bpp surface and a bitmap made
// compatible with it is a 32-bpp device-dependent bitmap.
TEST(Surfaces, ScreenCompatibleBitmapHas32BitsPerPixel) {
  HDC screen = ::GetDC(nullptr);
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(gdi::GetDeviceCaps(reinterpret_cast<gdi::HDC>(screen), BITSPIXEL), 32);
  EXPECT_EQ(gdi::GetDeviceCaps(reinterpret_cast<gdi::HDC>(screen), PLANES), 1);
  HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 3, 3);
  BITMAP info{};
  ASSERT_EQ(::GetObjectW(bitmap, sizeof(info), &info), static_cast<int>(sizeof(info)));
  EXPECT_EQ(info.bmBitsPixel, 32);
  EXPECT_EQ(info.bmPlanes, 1);
  ::DeleteObject(bitmap);
  ::ReleaseDC(nullptr, screen);
}

TEST(LiveObjectCount, CountsOnlyWhatTheSeamCreated) {
  const size_t before = gdi::LiveObjectCount();
  HBRUSH outside = ::CreateSolidBrush(RGB(1, 1, 1));
  EXPECT_EQ(gdi::LiveObjectCount(), before);
  gdi::HBRUSH inside = gdi::CreateSolidBrush(RGB(1, 1, 1));
  EXPECT_EQ(gdi::LiveObjectCount(), before + 1);
  EXPECT_NE(gdi::DeleteObject(inside), 0);
  EXPECT_EQ(gdi::LiveObjectCount(), before);
  EXPECT_EQ(gdi::DeleteObject(nullptr), 0);  // a failed deletion counts nothing
  EXPECT_EQ(gdi::LiveObjectCount(), before);
  ::DeleteObject(outside);
}

}  // namespace
