// DrawFocusRect: a dotted frame inverted on the rectangle's perimeter.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "canvas.h"
#include "picture.h"
#include "platform/gdi.h"

namespace vorlex::gdi_conformance {
namespace {

// kPaper with every bit inverted.
constexpr Ink kInverted{'x', gdi::RGB(0x0F, 0x17, 0x2F), 0x0F172F};
const std::vector<Ink> kInks = {kPaper, kInverted};

// The pixels a focus rectangle inverts, as Wine draws it: every other pixel of
// the perimeter, starting from the top-right corner (right - 1, top), so that
// (x + y) has the parity of (right - 1 + top). Where the rectangle is one
// pixel high or wide its two long sides coincide and cancel out, leaving the
// ends; a 1x1 or empty rectangle inverts nothing.
//
// Windows inverts with a 50% pattern brush whose phase follows the brush
// origin, not the rectangle; there, on rectangles where (right - 1 + top) is
// odd, the dots may fall on the other pixels. The rectangles with an even sum
// below agree with both rules.
struct Focus {
  const char* name;
  gdi::RECT rect;
  const char* inverted;
};

const std::vector<Focus> kFocusRects = {
    {"FiveByFour", {0, 0, 5, 4}, "0:0,2,4 2:0,4 3:1,3"},
    {"TenBySix", {2, 3, 12, 9}, "3:3,5,7,9,11 4:2 5:11 6:2 7:11 8:2,4,6,8,10"},
    {"NineBySevenOddPhase", {3, 2, 12, 9}, "2:3,5,7,9,11 4:3,11 6:3,11 8:3,5,7,9,11"},
    {"TwelveByTenOddPhase", {1, 1, 13, 11}, "1:2,4,6,8,10,12 2:1 3:12 4:1 5:12 6:1 7:12 8:1 9:12 10:1,3,5,7,9,11"},
    {"TwoByTwo", {4, 4, 6, 6}, "4:5 5:4"},
    {"OnePixelHigh", {1, 1, 7, 2}, "1:6"},
    {"OnePixelWide", {0, 0, 1, 5}, "0:0 4:0"},
    {"OneByOne", {1, 1, 2, 2}, ""},
    {"ZeroWidth", {2, 2, 2, 8}, ""},
};

class FocusRect : public ::testing::TestWithParam<Focus> {};

TEST_P(FocusRect, InvertsTheseDotsOfThePerimeter) {
  Canvas canvas(15, 12);
  canvas.Fill(kPaper.colour);
  EXPECT_NE(gdi::DrawFocusRect(canvas.dc(), &GetParam().rect), 0);
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.').Paint(GetParam().inverted, 'x'), kInks));
}

TEST_P(FocusRect, InvertsBlackToWhite) {
  Canvas canvas(15, 12);  // a new bitmap is black
  gdi::DrawFocusRect(canvas.dc(), &GetParam().rect);
  const Ink black{'.', gdi::RGB(0, 0, 0), 0x000000};
  const Ink white{'x', gdi::RGB(255, 255, 255), 0xFFFFFF};
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.').Paint(GetParam().inverted, 'x'), {black, white}));
}

TEST_P(FocusRect, DrawnTwiceRestoresEveryPixel) {
  Canvas canvas(15, 12);
  canvas.Fill(kPaper.colour);
  canvas.Fill({4, 0, 9, 12}, kBrush.colour);
  const gdi::Pixels before = canvas.Read();
  gdi::DrawFocusRect(canvas.dc(), &GetParam().rect);
  gdi::DrawFocusRect(canvas.dc(), &GetParam().rect);
  const gdi::Pixels after = canvas.Read();
  EXPECT_EQ(after.argb, before.argb) << Map(after, canvas.bounds(), {kPaper, kBrush});
}

INSTANTIATE_TEST_SUITE_P(Rectangles, FocusRect, ::testing::ValuesIn(kFocusRects),
                         [](const ::testing::TestParamInfo<Focus>& test) { return std::string(test.param.name); });

TEST(FocusRectClipping, PartlyOutsideTheBitmapInvertsOnlyTheDotsInside) {
  Canvas canvas(6, 5);
  canvas.Fill(kPaper.colour);
  // The frame {-2,-1,4,3} has dots where x + y is even (right - 1 + top = 2);
  // inside the bitmap that leaves the bottom side's (0,2) (2,2) and the right
  // side's (3,1).
  const gdi::RECT rect = {-2, -1, 4, 3};
  gdi::DrawFocusRect(canvas.dc(), &rect);
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.').Paint("1:3 2:0,2", 'x'), kInks));
}

}  // namespace
}  // namespace vorlex::gdi_conformance
