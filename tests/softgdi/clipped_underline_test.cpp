// Underline and strike-out under ETO_CLIPPED. Windows draws them as extra
// rectangles of the same text output, through the same clipping as the
// glyphs, so nothing of a clipped run shows outside the rectangle. Wine draws
// them after the glyphs with the context's clipping only and lets them run past
// the rectangle; the rule stated here is the Windows one, on softgdi alone.

#include <cstring>

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

class SoftGdiClippedLines : public LeakChecked {};

constexpr COLORREF kInk = RGB(0, 0, 0xFF);

// Columns of the canvas where the ink shows.
std::set<int> InkedColumns(const Pixels& pixels) {
  std::set<int> columns;
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      if (pixels.At(x, y) == PixelOf(kInk)) columns.insert(x);
    }
  }
  return columns;
}

TEST_F(SoftGdiClippedLines, UnderlineAndStrikeOutStayInsideTheClipRectangle) {
  for (const bool underline : {true, false}) {
    Canvas canvas(60, 30, RGB(0xFF, 0xFF, 0xFF));
    LOGFONTA font{};
    font.lfHeight = -11;
    font.lfUnderline = underline ? 1 : 0;
    font.lfStrikeOut = underline ? 0 : 1;
    std::strncpy(font.lfFaceName, "MS Sans Serif", sizeof font.lfFaceName - 1);
    Selected selected(canvas.dc(), CreateFontIndirectA(&font));
    SetBkMode(canvas.dc(), TRANSPARENT);
    SetTextColor(canvas.dc(), kInk);
    const RECT clip{8, 0, 20, 30};
    ASSERT_NE(ExtTextOutA(canvas.dc(), 5, 5, ETO_CLIPPED, &clip, "HgHgHg", 6, nullptr), 0);
    const std::set<int> columns = InkedColumns(canvas.Read());
    ASSERT_FALSE(columns.empty());
    EXPECT_GE(*columns.begin(), 8) << (underline ? "underline" : "strike-out");
    EXPECT_LT(*columns.rbegin(), 20) << (underline ? "underline" : "strike-out");
    // The line itself crosses the whole rectangle.
    for (int x = 8; x < 20; ++x) EXPECT_TRUE(columns.count(x)) << x;
  }
}

}  // namespace
}  // namespace softgdi_test
