// What a DC holds stays alive: DeleteObject on a selected object succeeds but
// frees it only when the last DC holding it lets go.

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

class SoftGdiObjectLifetime : public LeakChecked {};

TEST_F(SoftGdiObjectLifetime, SelectObjectReturnsThePreviousObjectOfTheSameKind) {
  Canvas canvas(2, 2);
  HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
  HBRUSH brush = CreateSolidBrush(RGB(4, 5, 6));
  HGDIOBJ stockPen = SelectObject(canvas.dc(), pen);
  HGDIOBJ stockBrush = SelectObject(canvas.dc(), brush);
  ASSERT_NE(stockPen, nullptr);
  ASSERT_NE(stockBrush, nullptr);
  EXPECT_NE(stockPen, stockBrush);
  EXPECT_EQ(SelectObject(canvas.dc(), pen), pen) << "selecting the held pen again returns it";
  EXPECT_EQ(SelectObject(canvas.dc(), stockPen), pen);
  EXPECT_EQ(SelectObject(canvas.dc(), stockBrush), brush);
  EXPECT_EQ(SelectObject(canvas.dc(), canvas.bitmap()), canvas.bitmap());
  DeleteObject(pen);
  DeleteObject(brush);
}

TEST_F(SoftGdiObjectLifetime, DeletedSelectedBrushStaysUsableUntilDeselected) {
  Canvas canvas(5, 5);
  const size_t before = LiveObjectCount();
  HBRUSH brush = CreateSolidBrush(RGB(0, 200, 0));
  HGDIOBJ previous = SelectObject(canvas.dc(), brush);
  EXPECT_EQ(DeleteObject(brush), 1);
  EXPECT_EQ(LiveObjectCount(), before + 1) << "still held by the DC";
  HPEN noPen = CreatePen(PS_NULL, 1, 0);
  HGDIOBJ previousPen = SelectObject(canvas.dc(), noPen);
  EXPECT_EQ(Ellipse(canvas.dc(), 0, 0, 5, 5), 1);
  EXPECT_EQ(WithColor(canvas.Read(), RGB(0, 200, 0)).size(), 21u) << "the DC still paints with it";
  EXPECT_EQ(SelectObject(canvas.dc(), previous), brush);
  EXPECT_EQ(LiveObjectCount(), before + 1) << "only the pen is left";
  RECT all{0, 0, 5, 5};
  EXPECT_EQ(FillRect(canvas.dc(), &all, brush), 0) << "freed on deselection";
  SelectObject(canvas.dc(), previousPen);
  DeleteObject(noPen);
}

TEST_F(SoftGdiObjectLifetime, DeletedSelectedBitmapKeepsItsPixelsUntilTheDcGoes) {
  HDC dc = CreateCompatibleDC(nullptr);
  HDC screen = GetDC(nullptr);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, 3, 2);
  ReleaseDC(nullptr, screen);
  const size_t withBitmap = LiveObjectCount();
  SelectObject(dc, bitmap);
  EXPECT_EQ(DeleteObject(bitmap), 1);
  EXPECT_EQ(LiveObjectCount(), withBitmap);
  Pixels pixels;
  ASSERT_TRUE(ReadPixels(dc, pixels));
  EXPECT_EQ(pixels.width, 3);
  EXPECT_EQ(pixels.height, 2);
  EXPECT_EQ(DeleteDC(dc), 1);
  EXPECT_EQ(LiveObjectCount(), withBitmap - 2) << "the DC and the bitmap it held";
}

TEST_F(SoftGdiObjectLifetime, PenHeldByTwoDcsLivesUntilBothLetGo) {
  HDC first = CreateCompatibleDC(nullptr);
  HDC second = CreateCompatibleDC(nullptr);
  HPEN pen = CreatePen(PS_SOLID, 2, RGB(7, 7, 7));
  HGDIOBJ firstStock = SelectObject(first, pen);
  HGDIOBJ secondStock = SelectObject(second, pen);
  const size_t held = LiveObjectCount();
  EXPECT_EQ(DeleteObject(pen), 1);
  EXPECT_EQ(SelectObject(first, firstStock), pen);
  EXPECT_EQ(LiveObjectCount(), held) << "the second DC still holds it";
  EXPECT_EQ(SelectObject(second, secondStock), pen);
  EXPECT_EQ(LiveObjectCount(), held - 1);
  EXPECT_EQ(SelectObject(first, pen), nullptr);
  DeleteDC(first);
  DeleteDC(second);
}

TEST_F(SoftGdiObjectLifetime, BitmapGoesIntoOneDcAtATime) {
  Canvas canvas(2, 2);
  HDC other = CreateCompatibleDC(nullptr);
  EXPECT_EQ(SelectObject(other, canvas.bitmap()), nullptr);
  HDC screen = GetDC(nullptr);
  HBITMAP spare = CreateCompatibleBitmap(screen, 1, 1);
  EXPECT_EQ(SelectObject(screen, spare), nullptr) << "the screen takes no bitmap";
  ReleaseDC(nullptr, screen);
  // Once the canvas lets go, the other DC may take it.
  HGDIOBJ held = SelectObject(canvas.dc(), spare);
  EXPECT_EQ(held, canvas.bitmap());
  HGDIOBJ otherDefault = SelectObject(other, canvas.bitmap());
  EXPECT_NE(otherDefault, nullptr);
  SelectObject(other, otherDefault);
  SelectObject(canvas.dc(), canvas.bitmap());
  DeleteObject(spare);
  DeleteDC(other);
}

TEST_F(SoftGdiObjectLifetime, StockObjectsSurviveDeleteObject) {
  Canvas canvas(6, 3);
  HPEN red = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
  HGDIOBJ stockPen = SelectObject(canvas.dc(), red);
  HBRUSH blue = CreateSolidBrush(RGB(0, 0, 255));
  HGDIOBJ stockBrush = SelectObject(canvas.dc(), blue);
  const size_t before = LiveObjectCount();
  EXPECT_EQ(DeleteObject(stockPen), 1);
  EXPECT_EQ(DeleteObject(stockBrush), 1);
  EXPECT_EQ(LiveObjectCount(), before);
  EXPECT_EQ(SelectObject(canvas.dc(), stockPen), red);
  EXPECT_EQ(SelectObject(canvas.dc(), stockBrush), blue);
  // The stock pen draws the outline black, the stock brush the inside white.
  EXPECT_EQ(Ellipse(canvas.dc(), 0, 0, 6, 3), 1);
  const Pixels pixels = canvas.Read();
  const std::set<Point> black = WithColor(pixels, RGB(0, 0, 0));
  const std::set<Point> white = WithColor(pixels, RGB(255, 255, 255));
  EXPECT_EQ(black.size(), 10u);
  EXPECT_EQ(white, (std::set<Point>{{1, 1}, {2, 1}, {3, 1}, {4, 1}}));
  EXPECT_EQ(Changed(pixels).size(), black.size() + white.size());
  DeleteObject(red);
  DeleteObject(blue);
}

TEST_F(SoftGdiObjectLifetime, NewMemoryDcHoldsTheStockOneByOneBitmap) {
  HDC dc = CreateCompatibleDC(nullptr);
  Pixels pixels;
  ASSERT_TRUE(ReadPixels(dc, pixels));
  EXPECT_EQ(pixels.width, 1);
  EXPECT_EQ(pixels.height, 1);
  HDC screen = GetDC(nullptr);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, 2, 2);
  ReleaseDC(nullptr, screen);
  HGDIOBJ stock = SelectObject(dc, bitmap);
  EXPECT_EQ(DeleteObject(stock), 1);
  HDC another = CreateCompatibleDC(nullptr);
  EXPECT_EQ(SelectObject(another, stock), stock) << "the stock bitmap is shared by every new DC";
  SelectObject(dc, stock);
  DeleteObject(bitmap);
  DeleteDC(dc);
  DeleteDC(another);
}

TEST_F(SoftGdiObjectLifetime, ScreenDcsComeFromGetDcAndGoBackThroughReleaseDc) {
  EXPECT_EQ(GetDC(reinterpret_cast<HWND>(uintptr_t{0x1000})), nullptr) << "softgdi has no windows";
  HDC first = GetDC(nullptr);
  HDC second = GetDC(nullptr);
  ASSERT_NE(first, nullptr);
  EXPECT_NE(first, second);
  EXPECT_EQ(DeleteDC(first), 0) << "not DeleteDC's to free";
  HDC memory = CreateCompatibleDC(first);
  ASSERT_NE(memory, nullptr);
  EXPECT_EQ(ReleaseDC(nullptr, memory), 0) << "not ReleaseDC's to free";
  EXPECT_EQ(ReleaseDC(nullptr, first), 1);
  EXPECT_EQ(ReleaseDC(nullptr, first), 0);
  EXPECT_EQ(ReleaseDC(nullptr, second), 1);
  EXPECT_EQ(DeleteDC(memory), 1);
}

}  // namespace
}  // namespace softgdi_test
