// The Windows backend's ReadPixels against what gdi32 itself reports.

#include "platform/gdi.h"
// After the seam: <windows.h> defines macros with the names the seam declares.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>

namespace {

namespace gdi = vorlex::gdi;

// A memory context made from the screen's, with a bitmap of our choice.
class MemoryDc {
 public:
  MemoryDc() : screen_(::GetDC(nullptr)), dc_(::CreateCompatibleDC(screen_)) {}
  ~MemoryDc() {
    if (previous_ != nullptr) ::SelectObject(dc_, previous_);
    if (bitmap_ != nullptr) ::DeleteObject(bitmap_);
    ::DeleteDC(dc_);
    ::ReleaseDC(nullptr, screen_);
  }
  MemoryDc(const MemoryDc&) = delete;
  MemoryDc& operator=(const MemoryDc&) = delete;

  void Select(HBITMAP bitmap) {
    bitmap_ = bitmap;
    previous_ = ::SelectObject(dc_, bitmap);
  }
  HDC dc() const { return dc_; }
  HDC screen() const { return screen_; }
  gdi::HDC seam() const { return reinterpret_cast<gdi::HDC>(dc_); }

 private:
  HDC screen_;
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ previous_ = nullptr;
};

// A DIB section of the given depth; rows bottom-up when height > 0.
HBITMAP MakeDib(HDC dc, int width, int height, int bits, void** memory) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = static_cast<WORD>(bits);
  info.bmiHeader.biCompression = BI_RGB;
  return ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, memory, nullptr, 0);
}

// COLORREF 0x00BBGGRR as the seam's pixel 0x00RRGGBB, byte by byte.
uint32_t AsPixel(COLORREF colour) {
  return (static_cast<uint32_t>(GetRValue(colour)) << 16) | (static_cast<uint32_t>(GetGValue(colour)) << 8) |
         GetBValue(colour);
}

TEST(ReadPixels, AgreesWithGetPixelOnAScreenCompatibleBitmap) {
  MemoryDc memory;
  memory.Select(::CreateCompatibleBitmap(memory.screen(), 7, 5));
  for (int y = 0; y < 5; ++y) {
    for (int x = 0; x < 7; ++x) {
      const COLORREF colour = RGB(30 * x + 5, 40 * y + 3, 255 - 20 * x - 7 * y);
      ::SetPixel(memory.dc(), x, y, colour);
    }
  }
  gdi::Pixels pixels;
  ASSERT_TRUE(gdi::ReadPixels(memory.seam(), pixels));
  ASSERT_EQ(pixels.width, 7);
  ASSERT_EQ(pixels.height, 5);
  for (int y = 0; y < 5; ++y) {
    for (int x = 0; x < 7; ++x) {
      EXPECT_EQ(pixels.At(x, y), AsPixel(::GetPixel(memory.dc(), x, y))) << "(" << x << "," << y << ")";
    }
  }
  EXPECT_EQ(pixels.At(6, 4), 0xB9A36Bu);  // RGB(185, 163, 107)
}

TEST(ReadPixels, BottomUpDibSectionReadsTopRowFirst) {
  MemoryDc memory;
  void* bits = nullptr;
  memory.Select(MakeDib(memory.dc(), 3, 2, 32, &bits));
  ASSERT_NE(bits, nullptr);
  auto* rows = static_cast<uint32_t*>(bits);  // the bottom row is stored first
  const uint32_t stored[6] = {0x000001, 0x000002, 0x000003, 0x0A0B0C, 0x0D0E0F, 0x102030};
  for (int i = 0; i < 6; ++i) rows[i] = stored[i];
  ::GdiFlush();
  gdi::Pixels pixels;
  ASSERT_TRUE(gdi::ReadPixels(memory.seam(), pixels));
  ASSERT_EQ(pixels.width, 3);
  ASSERT_EQ(pixels.height, 2);
  EXPECT_EQ(pixels.At(0, 0), 0x0A0B0Cu);
  EXPECT_EQ(pixels.At(2, 0), 0x102030u);
  EXPECT_EQ(pixels.At(0, 1), 0x000001u);
  EXPECT_EQ(pixels.At(2, 1), 0x000003u);
}

TEST(ReadPixels, ConvertsA16BitBitmap) {
  MemoryDc memory;
  void* bits = nullptr;
  memory.Select(MakeDib(memory.dc(), 2, 1, 16, &bits));
  ASSERT_NE(bits, nullptr);
  // Colours a 5-5-5 pixel holds exactly.
  ::SetPixel(memory.dc(), 0, 0, RGB(0xF8, 0x80, 0x08));
  ::SetPixel(memory.dc(), 1, 0, RGB(0x00, 0x08, 0xF8));
  gdi::Pixels pixels;
  ASSERT_TRUE(gdi::ReadPixels(memory.seam(), pixels));
  // How the low bits of each channel are filled in is gdi32's conversion (Wine
  // repeats the top bits: 0xF8 reads 0xFF); ReadPixels reports what GetPixel
  // does, and the five bits stored.
  for (int x = 0; x < 2; ++x) EXPECT_EQ(pixels.At(x, 0), AsPixel(::GetPixel(memory.dc(), x, 0))) << x;
  EXPECT_EQ(pixels.At(0, 0) & 0xF8F8F8u, 0xF88008u);
  EXPECT_EQ(pixels.At(1, 0) & 0xF8F8F8u, 0x0008F8u);
}

TEST(ReadPixels, NewMemoryContextHoldsItsOneByOneDefaultBitmap) {
  MemoryDc memory;
  gdi::Pixels pixels;
  ASSERT_TRUE(gdi::ReadPixels(memory.seam(), pixels));
  EXPECT_EQ(pixels.width, 1);
  EXPECT_EQ(pixels.height, 1);
  EXPECT_EQ(pixels.At(0, 0), 0u);
}

TEST(ReadPixels, ScreenAndNullContextsHoldNoReadableBitmap) {
  HDC screen = ::GetDC(nullptr);
  ASSERT_NE(screen, nullptr);
  gdi::Pixels pixels;
  EXPECT_FALSE(gdi::ReadPixels(reinterpret_cast<gdi::HDC>(screen), pixels));
  EXPECT_FALSE(gdi::ReadPixels(nullptr, pixels));
  ::ReleaseDC(nullptr, screen);
}

TEST(ReadPixels, LeavesTheSelectionAndTheBitmapAsTheyWere) {
  MemoryDc memory;
  HBITMAP bitmap = ::CreateCompatibleBitmap(memory.screen(), 4, 4);
  memory.Select(bitmap);
  ::SetPixel(memory.dc(), 1, 2, RGB(1, 2, 3));
  gdi::Pixels pixels;
  ASSERT_TRUE(gdi::ReadPixels(memory.seam(), pixels));
  EXPECT_EQ(::GetCurrentObject(memory.dc(), OBJ_BITMAP), static_cast<HGDIOBJ>(bitmap));
  EXPECT_EQ(::GetPixel(memory.dc(), 1, 2), RGB(1, 2, 3));
  EXPECT_EQ(pixels.At(1, 2), 0x010203u);
}

TEST(ReadPixels, ReadsDevicePixelsWhateverTheContextsCoordinates) {
  MemoryDc memory;
  memory.Select(::CreateCompatibleBitmap(memory.screen(), 6, 4));
  ::SetPixel(memory.dc(), 0, 0, RGB(9, 8, 7));
  ::SetPixel(memory.dc(), 5, 3, RGB(1, 2, 3));
  ::SetMapMode(memory.dc(), MM_ISOTROPIC);
  ::SetWindowExtEx(memory.dc(), 2, 2, nullptr);
  ::SetViewportExtEx(memory.dc(), 1, 1, nullptr);
  ::SetViewportOrgEx(memory.dc(), 3, 2, nullptr);
  gdi::Pixels pixels;
  ASSERT_TRUE(gdi::ReadPixels(memory.seam(), pixels));
  ASSERT_EQ(pixels.width, 6);
  EXPECT_EQ(pixels.At(0, 0), 0x090807u);
  EXPECT_EQ(pixels.At(5, 3), 0x010203u);
  // The context's coordinates are as they were.
  EXPECT_EQ(::GetMapMode(memory.dc()), MM_ISOTROPIC);
  POINT origin{};
  ::GetViewportOrgEx(memory.dc(), &origin);
  EXPECT_EQ(origin.x, 3);
  EXPECT_EQ(origin.y, 2);
}

}  // namespace
