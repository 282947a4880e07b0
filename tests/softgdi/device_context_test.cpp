// Device contexts: capabilities, attributes and the format of compatible
// bitmaps.

#include "platform/soft/object_table.h"
#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

class SoftGdiDeviceContexts : public LeakChecked {};

int BitsPerPixelOf(HBITMAP bitmap) {
  const auto lock = vorlex::gdi::soft::LockObjects();
  const auto* data = vorlex::gdi::soft::Objects().Get<vorlex::gdi::soft::Bitmap>(vorlex::gdi::soft::ValueOf(bitmap));
  return data != nullptr ? data->bitsPerPixel : 0;
}

TEST_F(SoftGdiDeviceContexts, ScreenAndMemoryDcsAreThirtyTwoBitsOnOnePlane) {
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  for (HDC dc : {screen, memory}) {
    EXPECT_EQ(GetDeviceCaps(dc, BITSPIXEL), 32);
    EXPECT_EQ(GetDeviceCaps(dc, PLANES), 1);
  }
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
}

TEST_F(SoftGdiDeviceContexts, CompatibleBitmapTakesTheFormatOfTheDcsBitmap) {
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(nullptr);
  HBITMAP fromScreen = CreateCompatibleBitmap(screen, 3, 3);
  HBITMAP fromDefault = CreateCompatibleBitmap(memory, 3, 3);
  EXPECT_EQ(BitsPerPixelOf(fromScreen), 32);
  EXPECT_EQ(BitsPerPixelOf(fromDefault), 1) << "a new memory DC holds the 1x1 monochrome bitmap";
  HGDIOBJ stock = SelectObject(memory, fromScreen);
  HBITMAP fromColour = CreateCompatibleBitmap(memory, 3, 3);
  EXPECT_EQ(BitsPerPixelOf(fromColour), 32);
  EXPECT_EQ(GetDeviceCaps(memory, BITSPIXEL), 32) << "the device is the screen whatever the DC holds";
  SelectObject(memory, stock);
  for (HBITMAP bitmap : {fromScreen, fromDefault, fromColour}) DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
}

TEST_F(SoftGdiDeviceContexts, NewBitmapIsBlackAndNegativeSizesCountBySize) {
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, -5, 3);
  ASSERT_NE(bitmap, nullptr);
  HGDIOBJ stock = SelectObject(memory, bitmap);
  Pixels pixels;
  ASSERT_TRUE(ReadPixels(memory, pixels));
  EXPECT_EQ(pixels.width, 5);
  EXPECT_EQ(pixels.height, 3);
  EXPECT_EQ(WithColor(pixels, RGB(0, 0, 0)).size(), 15u);
  SelectObject(memory, stock);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
}

TEST_F(SoftGdiDeviceContexts, AttributeSettersReturnThePreviousValues) {
  HDC dc = CreateCompatibleDC(nullptr);
  EXPECT_EQ(SetBkMode(dc, TRANSPARENT), OPAQUE);
  EXPECT_EQ(SetBkMode(dc, 0), 0) << "an unknown mode is refused";
  EXPECT_EQ(SetBkMode(dc, 3), 0);
  EXPECT_EQ(SetBkMode(dc, OPAQUE), TRANSPARENT);
  EXPECT_EQ(SetBkColor(dc, RGB(1, 2, 3)), RGB(255, 255, 255));
  EXPECT_EQ(SetBkColor(dc, RGB(4, 5, 6)), RGB(1, 2, 3));
  DeleteDC(dc);
}

TEST_F(SoftGdiDeviceContexts, DrawingOnTheScreenSucceedsAndChangesNothingReadable) {
  HDC screen = GetDC(nullptr);
  const RECT rect{0, 0, 10, 10};
  EXPECT_EQ(MoveToEx(screen, 1, 1, nullptr), 1);
  EXPECT_EQ(LineTo(screen, 5, 5), 1);
  EXPECT_EQ(Ellipse(screen, 0, 0, 8, 8), 1);
  EXPECT_EQ(DrawFocusRect(screen, &rect), 1);
  Pixels pixels;
  EXPECT_FALSE(ReadPixels(screen, pixels));
  ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace softgdi_test
