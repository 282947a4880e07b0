// Fonts in softgdi's object table: the stock font every DC starts with,
// selection counts and pending deletion, and the text calls' refusals.

#include <cstring>

#include "platform/soft/object_table.h"
#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

class SoftGdiFonts : public LeakChecked {};

HFONT Font(const char* face, int32_t height) {
  LOGFONTA font{};
  font.lfHeight = height;
  std::strncpy(font.lfFaceName, face, sizeof font.lfFaceName - 1);
  return CreateFontIndirectA(&font);
}

int32_t CellHeight(HDC dc) {
  SIZE size{0, 0};
  EXPECT_NE(GetTextExtentPoint32A(dc, "A", 1, &size), 0);
  return size.cy;
}

TEST_F(SoftGdiFonts, EveryDcStartsWithTheStockFontWhichStays) {
  Canvas canvas(4, 4);
  HFONT font = Font("MS Sans Serif", -13);
  const HGDIOBJ stock = SelectObject(canvas.dc(), font);
  ASSERT_NE(stock, nullptr);
  EXPECT_NE(DeleteObject(stock), 0) << "deleting a stock object is allowed and does nothing";
  EXPECT_EQ(SelectObject(canvas.dc(), stock), static_cast<HGDIOBJ>(font));
  EXPECT_GT(CellHeight(canvas.dc()), 0) << "the stock font still measures";
  HDC other = CreateCompatibleDC(nullptr);
  EXPECT_EQ(SelectObject(other, font), stock) << "one stock font for every DC";
  SelectObject(other, stock);
  DeleteDC(other);
  DeleteObject(font);
}

TEST_F(SoftGdiFonts, DeletingTheDcFreesAFontWhoseDeletionWasPending) {
  const size_t before = LiveObjectCount();
  HDC dc = CreateCompatibleDC(nullptr);
  HFONT font = Font("MS Sans Serif", -11);
  SelectObject(dc, font);
  EXPECT_NE(DeleteObject(font), 0);
  EXPECT_EQ(LiveObjectCount(), before + 2) << "the DC and the font it holds";
  EXPECT_EQ(CellHeight(dc), 13);
  DeleteDC(dc);
  EXPECT_EQ(LiveObjectCount(), before);
}

TEST_F(SoftGdiFonts, AFontSelectedIntoTwoDcsLivesUntilBothLetItGo) {
  HDC first = CreateCompatibleDC(nullptr);
  HDC second = CreateCompatibleDC(nullptr);
  HFONT font = Font("MS Sans Serif", -16);
  const HGDIOBJ stock = SelectObject(first, font);
  SelectObject(second, font);
  DeleteObject(font);
  DeleteDC(first);
  EXPECT_EQ(CellHeight(second), 20);
  EXPECT_EQ(SelectObject(second, stock), static_cast<HGDIOBJ>(font));
  EXPECT_EQ(DeleteObject(font), 0) << "freed with its last selection";
  DeleteDC(second);
}

TEST_F(SoftGdiFonts, EveryContextHasNinetySixPixelsPerInch) {
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  EXPECT_EQ(GetDeviceCaps(screen, LOGPIXELSY), 96);
  EXPECT_EQ(GetDeviceCaps(memory, LOGPIXELSY), 96);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
}

TEST_F(SoftGdiFonts, TextCallsRefuseWhatGdiRefuses) {
  Canvas canvas(4, 4);
  SIZE size{};
  EXPECT_EQ(CreateFontIndirectA(nullptr), nullptr);
  EXPECT_EQ(GetTextExtentPoint32A(nullptr, "A", 1, &size), 0);
  EXPECT_EQ(GetTextExtentPoint32A(canvas.dc(), "A", -1, &size), 0);
  EXPECT_EQ(GetTextExtentPoint32A(canvas.dc(), "A", 1, nullptr), 0);
  EXPECT_EQ(GetTextExtentPoint32A(canvas.dc(), nullptr, 1, &size), 0);
  EXPECT_EQ(ExtTextOutA(nullptr, 0, 0, 0, nullptr, "A", 1, nullptr), 0);
  EXPECT_EQ(ExtTextOutA(canvas.dc(), 0, 0, 0, nullptr, nullptr, 1, nullptr), 0);
  EXPECT_EQ(SetTextColor(nullptr, RGB(1, 2, 3)), 0xFFFFFFFFu) << "CLR_INVALID";
}

TEST_F(SoftGdiFonts, TheScreenMeasuresAndDrawsNothing) {
  HDC screen = GetDC(nullptr);
  HFONT font = Font("MS Sans Serif", -11);
  const HGDIOBJ stock = SelectObject(screen, font);
  EXPECT_EQ(CellHeight(screen), 13);
  EXPECT_NE(ExtTextOutA(screen, 0, 0, 0, nullptr, "A", 1, nullptr), 0);
  SelectObject(screen, stock);
  DeleteObject(font);
  ReleaseDC(nullptr, screen);
}

// Advances given per byte: a character takes the sum of its bytes'.
TEST_F(SoftGdiFonts, GivenAdvancesPlaceTheGlyphs) {
  HFONT font = Font("MS Sans Serif", -11);
  auto inkRightOf = [&](const char* text, unsigned count, int x, const int* dx) {
    Canvas canvas(60, 20, RGB(255, 255, 255));
    const HGDIOBJ stock = SelectObject(canvas.dc(), font);
    SetBkMode(canvas.dc(), TRANSPARENT);
    ExtTextOutA(canvas.dc(), x, 2, 0, nullptr, text, count, dx);
    SelectObject(canvas.dc(), stock);
    std::set<Point> ink;
    for (const Point& p : WithColor(canvas.Read(), RGB(0, 0, 0))) {
      if (p.x >= 25) ink.insert(p);
    }
    return ink;
  };
  const int dx[] = {10, 20, 0};
  const std::set<Point> placed = inkRightOf("\xC3\x89I", 3, 2, dx);  // "\u00C9I"
  EXPECT_FALSE(placed.empty());
  EXPECT_EQ(placed, inkRightOf("I", 1, 32, nullptr)) << "the I 30 pixels on";
  DeleteObject(font);
}

}  // namespace
}  // namespace softgdi_test
