// DisplayText at pixels: where the text lands for each alignment and angle, its
// 3-D copy, the clipping, and the fonts it makes. Glyph shapes belong to the
// platform's text drawing; the facts here are placement, colours and bounds,
// measured against ExtTextOutA drawing the same text at the expected point.

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include "error_matchers.h"
#include "surface_fixture.h"
#include "vorlex/Enums.h"
#include "vorlex/Font.h"
#include "vorlex/Numeric.h"

using namespace vorlex;
using namespace vorlex::testing;

namespace {

// Colours (0x00BBGGRR) unlike each other and unlike the 3-D copies' white
// and dark grey.
constexpr OLE_COLOR kPaper = 0x40C080;
constexpr OLE_COLOR kInk = 0x801010;

// The outline face both backends find; GDI does not rotate bitmap fonts such
// as MS Sans Serif.
constexpr const char* kOutlineFace = "DejaVu Sans";

// The logical font DisplayText makes for 12-point text at an angle, written
// out field by field: -20 x 12 / 15 pixels, proof quality, variable pitch.
gdi::LOGFONTA RotatedTwelvePoint(int32_t escapement) {
  return {-16, 0, escapement, 0, gdi::FW_NORMAL, 0, 0, 0, 0, 0, 0, 2, 2, "DejaVu Sans"};
}

// The smallest rectangle holding every pixel that is not paper; empty
// ({0, 0, 0, 0}) when there is none.
gdi::RECT InkBox(const gdi::Pixels& p) {
  gdi::RECT box{p.width, p.height, 0, 0};
  for (int y = 0; y < p.height; ++y) {
    for (int x = 0; x < p.width; ++x) {
      if (p.At(x, y) == AsPixel(kPaper)) continue;
      box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), std::max(box.bottom, y + 1)};
    }
  }
  return box.right == 0 ? gdi::RECT{0, 0, 0, 0} : box;
}

::testing::AssertionResult SameRect(const gdi::RECT& actual, const gdi::RECT& expected) {
  if (actual.left == expected.left && actual.top == expected.top && actual.right == expected.right &&
      actual.bottom == expected.bottom) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "{" << actual.left << ", " << actual.top << ", " << actual.right << ", "
                                       << actual.bottom << "} instead of {" << expected.left << ", " << expected.top
                                       << ", " << expected.right << ", " << expected.bottom << "}";
}

bool Empty(const gdi::RECT& r) { return r.right <= r.left || r.bottom <= r.top; }

// Where a thing of size w x h goes along one axis for an alignment's column
// or row: 0 centred, 1 a margin from the near edge, 2 from the far one.
int32_t Along(int place, int32_t near, int32_t far, int32_t offset, int32_t size) {
  if (place == 0) return near + (far - near - size) / 2;
  return place == 1 ? near + offset : far - offset - size;
}

class DisplayTextTest : public SurfaceTest {
 protected:
  FontPtr sansSerif_ = std::make_shared<vorlex::Font>("MS Sans Serif", 8.25);
  FontPtr outline_ = std::make_shared<vorlex::Font>(kOutlineFace, 12);

  OffScreenDC& Prepare(int width, int height, const std::string& text, const FontPtr& font) {
    OffScreenDC& s = Init(width, height);
    s.Text = text;
    s.TextFont = font;
    s.TextColor = kInk;
    return s;
  }

  static gdi::HGDIOBJ HandleOf(const FontPtr& font) { return reinterpret_cast<gdi::HGDIOBJ>(font->hFont()); }

  // The text's extent in a font, as GetTextExtentPoint32A measures it.
  gdi::SIZE Extent(gdi::HGDIOBJ font) {
    const gdi::HGDIOBJ previous = gdi::SelectObject(Surface().MemoryDC(), font);
    gdi::SIZE size{0, 0};
    const std::string& text = Surface().Text;
    EXPECT_NE(gdi::GetTextExtentPoint32A(Surface().MemoryDC(), text.c_str(), static_cast<int>(text.size()), &size), 0);
    gdi::SelectObject(Surface().MemoryDC(), previous);
    return size;
  }

  // The surface's text drawn by ExtTextOutA at `at` in `colour`, unclipped,
  // on paper.
  gdi::Pixels DrawnAt(gdi::HGDIOBJ font, gdi::POINT at, OLE_COLOR colour = kInk) {
    Fill(kPaper);
    const gdi::HDC dc = Surface().MemoryDC();
    const gdi::HGDIOBJ previous = gdi::SelectObject(dc, font);
    const int mode = gdi::SetBkMode(dc, gdi::TRANSPARENT);
    gdi::SetTextColor(dc, colour);
    const std::string& text = Surface().Text;
    EXPECT_NE(gdi::ExtTextOutA(dc, at.x, at.y, 0, nullptr, text.c_str(), static_cast<unsigned>(text.size()), nullptr),
              0);
    gdi::SetBkMode(dc, mode);
    gdi::SelectObject(dc, previous);
    return Read();
  }

  // A rotated font made as the test states it, drawn at `at`.
  gdi::Pixels DrawnAt(const gdi::LOGFONTA& lf, gdi::POINT at) {
    gdi::HFONT font = gdi::CreateFontIndirectA(&lf);
    EXPECT_NE(font, nullptr);
    gdi::Pixels pixels = DrawnAt(font, at);
    gdi::DeleteObject(font);
    return pixels;
  }

  gdi::SIZE Extent(const gdi::LOGFONTA& lf) {
    gdi::HFONT font = gdi::CreateFontIndirectA(&lf);
    const gdi::SIZE size = Extent(font);
    gdi::DeleteObject(font);
    return size;
  }

  // DisplayText on paper.
  gdi::Pixels Displayed() {
    Fill(kPaper);
    Surface().DisplayText();
    return Read();
  }

  // Rotated text centred on the area: the cell's centre on the area's centre,
  // turned by the angle (radians from 0.0174532925 per degree).
  static gdi::POINT CentredAt(const gdi::RECT& area, double degrees, const gdi::SIZE& extent) {
    const double cx = area.left + (area.right - area.left) / 2.0;
    const double cy = area.top + (area.bottom - area.top) / 2.0;
    const double r = degrees * 0.0174532925;
    return {ToLong(cx - extent.cx / 2.0 * std::cos(r) - extent.cy / 2.0 * std::sin(r)),
            ToLong(cy + extent.cx / 2.0 * std::sin(r) - extent.cy / 2.0 * std::cos(r))};
  }
};

// Every pixel outside `clip` is paper and every one inside is as in `full`.
::testing::AssertionResult ClippedOf(const gdi::Pixels& actual, const gdi::Pixels& full, const gdi::RECT& clip) {
  for (int y = 0; y < actual.height; ++y) {
    for (int x = 0; x < actual.width; ++x) {
      const bool inside = x >= clip.left && x < clip.right && y >= clip.top && y < clip.bottom;
      const uint32_t expected = inside ? full.At(x, y) : AsPixel(kPaper);
      if (actual.At(x, y) != expected) {
        return ::testing::AssertionFailure()
               << "pixel (" << x << ", " << y << ") is " << std::hex << actual.At(x, y) << " instead of " << expected;
      }
    }
  }
  return ::testing::AssertionSuccess();
}

// Horizontal text ---------------------------------------------------------

TEST_F(DisplayTextTest, EachAlignmentPlacesTheTextCellByItsExtentAndOffset) {
  OffScreenDC& s = Prepare(200, 80, "Vorlex bar", sansSerif_);
  SetRect(20, 10, 180, 70);
  s.TextOffset = 4;
  const gdi::SIZE extent = Extent(HandleOf(sansSerif_));
  ASSERT_GT(extent.cx, 0);
  for (int32_t alignment = vxCenterCenter; alignment <= vxBottomRight; ++alignment) {
    s.TextAlignment = alignment;
    // Columns: centre, left, right; rows: centre, top, bottom.
    const gdi::POINT at{Along(alignment % 3, 20, 180, 4, extent.cx), Along(alignment / 3, 10, 70, 4, extent.cy)};
    const gdi::RECT expected = InkBox(DrawnAt(HandleOf(sansSerif_), at));
    ASSERT_FALSE(Empty(expected));
    EXPECT_TRUE(SameRect(InkBox(Displayed()), expected)) << "alignment " << alignment;
  }
}

// The same facts spelt out for one text: "Vorlex bar" is 47 x 13 pixels in
// MS Sans Serif 8.25 on both platforms.
TEST_F(DisplayTextTest, TopRightAndBottomLeftCellsSitOffsetFromTheirCorners) {
  OffScreenDC& s = Prepare(200, 80, "Vorlex bar", sansSerif_);
  SetRect(20, 10, 180, 70);
  const gdi::SIZE extent = Extent(HandleOf(sansSerif_));
  ASSERT_EQ(extent.cx, 47);
  ASSERT_EQ(extent.cy, 13);
  s.TextOffset = 3;
  s.TextAlignment = vxTopRight;
  EXPECT_TRUE(SameRect(InkBox(Displayed()), InkBox(DrawnAt(HandleOf(sansSerif_), {130, 13}))));
  s.TextAlignment = vxBottomLeft;
  EXPECT_TRUE(SameRect(InkBox(Displayed()), InkBox(DrawnAt(HandleOf(sansSerif_), {23, 54}))));
  s.TextAlignment = vxCenterCenter;
  EXPECT_TRUE(SameRect(InkBox(Displayed()), InkBox(DrawnAt(HandleOf(sansSerif_), {76, 33}))));
}

TEST_F(DisplayTextTest, GlyphPixelsAreThoseOfTheTextDrawnAtTheAlignedPoint) {
  OffScreenDC& s = Prepare(120, 40, "Hg", sansSerif_);
  SetRect(0, 0, 120, 40);
  s.TextAlignment = vxTopLeft;
  s.TextOffset = 6;
  EXPECT_EQ(Displayed().argb, DrawnAt(HandleOf(sansSerif_), {6, 6}).argb);
}

TEST_F(DisplayTextTest, OffsetHasNoEffectOnACentredAxis) {
  OffScreenDC& s = Prepare(160, 60, "Centred", sansSerif_);
  SetRect(0, 0, 160, 60);
  for (int32_t alignment : {vxCenterCenter, vxTopCenter, vxCenterLeft}) {
    s.TextAlignment = alignment;
    s.TextOffset = 0;
    const gdi::RECT plain = InkBox(Displayed());
    s.TextOffset = 9;
    const gdi::RECT offset = InkBox(Displayed());
    // Only the axis with an edge moves, by the offset.
    const int32_t dx = alignment == vxCenterLeft ? 9 : 0;
    const int32_t dy = alignment == vxTopCenter ? 9 : 0;
    EXPECT_TRUE(SameRect(offset, {plain.left + dx, plain.top + dy, plain.right + dx, plain.bottom + dy}))
        << "alignment " << alignment;
  }
}

TEST_F(DisplayTextTest, AnAlignmentOutsideTheNineDrawsAtTheSurfaceOrigin) {
  OffScreenDC& s = Prepare(120, 40, "Hg", sansSerif_);
  SetRect(-5, -5, 120, 40);
  s.TextAlignment = 9;
  s.TextOffset = 4;
  EXPECT_EQ(Displayed().argb, DrawnAt(HandleOf(sansSerif_), {0, 0}).argb);
}

TEST_F(DisplayTextTest, RivetsInsetTheAreaBySevenPixels) {
  OffScreenDC& s = Prepare(200, 80, "Riveted", sansSerif_);
  SetRect(20, 10, 180, 70);
  s.RivetsStyle = vxRaisedRivets;
  s.TextOffset = 2;
  const gdi::SIZE extent = Extent(HandleOf(sansSerif_));
  s.TextAlignment = vxTopLeft;
  EXPECT_TRUE(SameRect(InkBox(Displayed()), InkBox(DrawnAt(HandleOf(sansSerif_), {29, 19}))));
  s.TextAlignment = vxBottomRight;
  const gdi::POINT bottomRight{173 - 2 - extent.cx, 63 - 2 - extent.cy};
  EXPECT_TRUE(SameRect(InkBox(Displayed()), InkBox(DrawnAt(HandleOf(sansSerif_), bottomRight))));
  s.RivetsStyle = vxInsetRivetsExt;
  EXPECT_TRUE(SameRect(InkBox(Displayed()), InkBox(DrawnAt(HandleOf(sansSerif_), bottomRight))));
}

// Rotated text --------------------------------------------------------------

TEST_F(DisplayTextTest, NinetyDegreesDrawsUpwardTextCentredInTheArea) {
  OffScreenDC& s = Prepare(120, 160, "Vorlex", outline_);
  SetRect(10, 10, 110, 150);
  s.TextAngle = 90;
  const gdi::LOGFONTA lf = RotatedTwelvePoint(900);
  const gdi::SIZE extent = Extent(lf);
  const gdi::RECT expected = InkBox(DrawnAt(lf, CentredAt({10, 10, 110, 150}, 90, extent)));
  ASSERT_FALSE(Empty(expected));
  const gdi::RECT shown = InkBox(Displayed());
  EXPECT_TRUE(SameRect(shown, expected));
  // Upward: taller than wide.
  EXPECT_GT(shown.bottom - shown.top, shown.right - shown.left);
}

// The same spelt out: "Vorlex" in 12-point DejaVu Sans measures 51 x 19 on
// both platforms. At 90 degrees the cell's top-left corner is
// (round(60 - 9.5 sin r), round(80 + 25.5 sin r)) = (50, 105); at the
// automatic 45 degrees on a square centred on (80, 80) it is
// (round(80 - 35 cos r), round(80 + 16 cos r)) = (55, 91).
TEST_F(DisplayTextTest, RotatedCellCornersSpeltOut) {
  OffScreenDC& s = Prepare(160, 160, "Vorlex", outline_);
  const gdi::SIZE extent = Extent(RotatedTwelvePoint(900));
  ASSERT_EQ(extent.cx, 51);
  ASSERT_EQ(extent.cy, 19);
  SetRect(10, 10, 110, 150);
  s.TextAngle = 90;
  EXPECT_TRUE(SameRect(InkBox(Displayed()), InkBox(DrawnAt(RotatedTwelvePoint(900), {50, 105}))));
  SetRect(10, 10, 150, 150);
  s.TextAutoAngle = vxUp;
  EXPECT_TRUE(SameRect(InkBox(Displayed()), InkBox(DrawnAt(RotatedTwelvePoint(450), {55, 91}))));
}

TEST_F(DisplayTextTest, RotatedTextIgnoresAlignmentAndOffset) {
  OffScreenDC& s = Prepare(120, 160, "Vorlex", outline_);
  SetRect(10, 10, 110, 150);
  s.TextAngle = 90;
  const gdi::Pixels centred = Displayed();
  s.TextAlignment = vxTopLeft;
  s.TextOffset = 12;
  EXPECT_EQ(Displayed().argb, centred.argb);
  s.TextAlignment = vxBottomRight;
  EXPECT_EQ(Displayed().argb, centred.argb);
}

TEST_F(DisplayTextTest, UpOnASquareAreaDrawsAtFortyFiveDegrees) {
  OffScreenDC& s = Prepare(160, 160, "Vorlex", outline_);
  SetRect(10, 10, 150, 150);
  s.TextAutoAngle = vxUp;
  s.TextAngle = 90;  // ignored under an automatic angle
  const gdi::LOGFONTA lf = RotatedTwelvePoint(450);
  const double angle = static_cast<float>(std::atan(1.0) * 180 / 3.14159);
  const gdi::RECT expected = InkBox(DrawnAt(lf, CentredAt({10, 10, 150, 150}, angle, Extent(lf))));
  ASSERT_FALSE(Empty(expected));
  EXPECT_TRUE(SameRect(InkBox(Displayed()), expected));
}

TEST_F(DisplayTextTest, DownOnASquareAreaDrawsAtAbout315Degrees) {
  OffScreenDC& s = Prepare(160, 160, "Vorlex", outline_);
  SetRect(10, 10, 150, 150);
  s.TextAutoAngle = vxDown;
  const gdi::LOGFONTA lf = RotatedTwelvePoint(3150);
  const double angle = static_cast<float>(360 - std::atan(1.0) * 180 / 3.14159);
  const gdi::RECT expected = InkBox(DrawnAt(lf, CentredAt({10, 10, 150, 150}, angle, Extent(lf))));
  ASSERT_FALSE(Empty(expected));
  EXPECT_TRUE(SameRect(InkBox(Displayed()), expected));
}

// Rising text climbs to the right; descending text falls to the right.
TEST_F(DisplayTextTest, UpAndDownSlantOppositeWays) {
  OffScreenDC& s = Prepare(160, 160, "IIIIIIIIIIII", outline_);
  SetRect(10, 10, 150, 150);
  auto rowOfLeftmostInk = [](const gdi::Pixels& p) {
    for (int x = 0; x < p.width; ++x) {
      for (int y = 0; y < p.height; ++y) {
        if (p.At(x, y) != AsPixel(kPaper)) return y;
      }
    }
    return -1;
  };
  s.TextAutoAngle = vxUp;
  const gdi::Pixels up = Displayed();
  s.TextAutoAngle = vxDown;
  const gdi::Pixels down = Displayed();
  const gdi::RECT upBox = InkBox(up);
  const gdi::RECT downBox = InkBox(down);
  EXPECT_GT(rowOfLeftmostInk(up), (upBox.top + upBox.bottom) / 2);
  EXPECT_LT(rowOfLeftmostInk(down), (downBox.top + downBox.bottom) / 2);
}

// The clipping rectangle of a zero-width area, {31, 1, 29, 59}, is taken with
// its sides in order: two columns of the horizontal, centred text show.
TEST_F(DisplayTextTest, UpOnAnAreaWithoutWidthIsHorizontalAndMakesNoFont) {
  OffScreenDC& s = Prepare(60, 60, "O", outline_);
  SetRect(30, 0, 30, 60);
  s.TextAutoAngle = vxUp;
  const gdi::SIZE extent = Extent(HandleOf(outline_));
  const gdi::Pixels full = DrawnAt(HandleOf(outline_), {30 - extent.cx / 2, (60 - extent.cy) / 2});
  Fill(kPaper);
  const size_t created = gdi::CreatedObjectCount();
  s.DisplayText();
  EXPECT_EQ(gdi::CreatedObjectCount(), created);
  const gdi::Pixels shown = Read();
  EXPECT_TRUE(ClippedOf(shown, full, {29, 1, 31, 59}));
  EXPECT_FALSE(Empty(InkBox(shown)));
}

// 3-D copies ----------------------------------------------------------------

struct CopyCase {
  int32_t font3D;
  OLE_COLOR colour;
  int32_t offset;
};

// The text over its copy: text pixels where the plain text has ink, copy
// pixels where the plain text shifted by the offset has ink, paper elsewhere.
gdi::Pixels OverCopy(const gdi::Pixels& plain, const CopyCase& c) {
  gdi::Pixels out = plain;
  for (int y = 0; y < plain.height; ++y) {
    for (int x = 0; x < plain.width; ++x) {
      if (plain.At(x, y) != AsPixel(kPaper)) continue;
      const int sx = x - c.offset;
      const int sy = y - c.offset;
      const bool copied =
          sx >= 0 && sy >= 0 && sx < plain.width && sy < plain.height && plain.At(sx, sy) != AsPixel(kPaper);
      if (copied)
        out.argb[static_cast<size_t>(y) * static_cast<size_t>(plain.width) + static_cast<size_t>(x)] =
            AsPixel(c.colour);
    }
  }
  return out;
}

TEST_F(DisplayTextTest, ThreeDCopiesHaveTheirColourAndOffsetBehindTheText) {
  OffScreenDC& s = Prepare(120, 40, "Hg Vorlex", sansSerif_);
  SetRect(0, 0, 120, 40);
  const gdi::Pixels plain = Displayed();
  ASSERT_FALSE(Empty(InkBox(plain)));
  const CopyCase cases[] = {{vxRaisedLight, 0xFFFFFF, -1},
                            {vxInsetLight, 0xFFFFFF, 1},
                            {vxRaisedShadow, 0x808080, -1},
                            {vxInsetShadow, 0x808080, 1}};
  for (const CopyCase& c : cases) {
    s.Font3D = c.font3D;
    const gdi::Pixels shown = Displayed();
    EXPECT_EQ(shown.argb, OverCopy(plain, c).argb) << "Font3D " << c.font3D;
    const gdi::RECT box = InkBox(shown);
    const gdi::RECT text = InkBox(plain);
    EXPECT_EQ(box.left, std::min(text.left, text.left + c.offset)) << "Font3D " << c.font3D;
    EXPECT_EQ(box.bottom, std::max(text.bottom, text.bottom + c.offset)) << "Font3D " << c.font3D;
  }
}

TEST_F(DisplayTextTest, NoCopyWithoutAThreeDLookOrForAnUnknownOne) {
  OffScreenDC& s = Prepare(120, 40, "Hg Vorlex", sansSerif_);
  SetRect(0, 0, 120, 40);
  const gdi::Pixels plain = Displayed();
  for (int32_t font3D : {5, -1, 100}) {
    s.Font3D = font3D;
    EXPECT_EQ(Displayed().argb, plain.argb) << "Font3D " << font3D;
  }
}

TEST_F(DisplayTextTest, InsetLightOnWhiteLooksPlain) {
  OffScreenDC& s = Prepare(120, 40, "Hg Vorlex", sansSerif_);
  SetRect(0, 0, 120, 40);
  Fill(0xFFFFFF);
  s.DisplayText();
  const gdi::Pixels plain = Read();
  s.Font3D = vxInsetLight;
  Fill(0xFFFFFF);
  s.DisplayText();
  EXPECT_EQ(Read().argb, plain.argb);
}

TEST_F(DisplayTextTest, RotatedTextHasItsCopyToo) {
  OffScreenDC& s = Prepare(120, 160, "Vorlex", outline_);
  SetRect(10, 10, 110, 150);
  s.TextAngle = 90;
  s.Font3D = vxRaisedShadow;
  const gdi::Pixels shown = Displayed();
  s.Font3D = vxNoneFont3D;
  const gdi::RECT text = InkBox(Displayed());
  int copyPixels = 0;
  for (uint32_t v : shown.argb) copyPixels += v == AsPixel(0x808080) ? 1 : 0;
  EXPECT_GT(copyPixels, 10);
  const gdi::RECT box = InkBox(shown);
  EXPECT_EQ(box.left, text.left - 1);
  EXPECT_EQ(box.top, text.top - 1);
}

// Clipping ------------------------------------------------------------------

TEST_F(DisplayTextTest, LongTextIsCutOnePixelInsideTheArea) {
  OffScreenDC& s = Prepare(70, 30, "HHHHHHHHHHHHHHHH", sansSerif_);
  SetRect(10, 10, 50, 20);
  s.TextAlignment = vxCenterLeft;
  s.TextOffset = -1;  // the first stem of H on the area's left edge
  // The 13-pixel cell centred on a 10-pixel area: y = 10 + (10 - 13) / 2 = 9.
  const gdi::Pixels full = DrawnAt(HandleOf(sansSerif_), {9, 9});
  ASSERT_TRUE(SameRect(InkBox(full), {10, 11, 70, 20}));
  const gdi::Pixels shown = Displayed();
  EXPECT_TRUE(ClippedOf(shown, full, {11, 11, 49, 19}));
  // The stem on the edge is gone, the crossbar beside it stays; the strokes of
  // H reach the top and bottom of the clipping rectangle.
  EXPECT_TRUE(SameRect(InkBox(shown), {11, 11, 48, 19}));
}

TEST_F(DisplayTextTest, WithRivetsTextIsCutEightPixelsInsideTheElement) {
  OffScreenDC& s = Prepare(70, 40, "HHHHHHHHHHHHHHHH", sansSerif_);
  SetRect(0, 0, 60, 30);
  s.RivetsStyle = vxInsetRivets;
  s.TextAlignment = vxCenterRight;
  const gdi::SIZE extent = Extent(HandleOf(sansSerif_));
  // Area {7, 7, 53, 23}: right-aligned x = 53 - w, centred y = 7 + (16 - 13) / 2 = 8.
  const gdi::Pixels full = DrawnAt(HandleOf(sansSerif_), {53 - extent.cx, 8});
  const gdi::Pixels shown = Displayed();
  EXPECT_TRUE(ClippedOf(shown, full, {8, 8, 52, 22}));
  const gdi::RECT box = InkBox(shown);
  EXPECT_EQ(box.left, 8);
  EXPECT_EQ(box.right, 52);
}

TEST_F(DisplayTextTest, TheThreeDCopyIsClippedLikeTheText) {
  OffScreenDC& s = Prepare(70, 30, "HHHHHHHHHHHHHHHH", sansSerif_);
  SetRect(10, 10, 50, 20);
  s.TextAlignment = vxCenterLeft;
  s.Font3D = vxInsetShadow;
  const gdi::RECT box = InkBox(Displayed());
  EXPECT_TRUE(SameRect(box, {11, 11, 49, 19}));
}

TEST_F(DisplayTextTest, RotatedTextLongerThanTheAreaIsCutOnePixelInside) {
  OffScreenDC& s = Prepare(60, 80, "Vorlex Vorlex Vorlex", outline_);
  SetRect(10, 10, 50, 70);
  s.TextAngle = 90;
  const gdi::LOGFONTA lf = RotatedTwelvePoint(900);
  const gdi::Pixels full = DrawnAt(lf, CentredAt({10, 10, 50, 70}, 90, Extent(lf)));
  // Uncut, the text runs past both ends of the area.
  const gdi::RECT uncut = InkBox(full);
  ASSERT_LT(uncut.top, 11);
  ASSERT_GT(uncut.bottom, 69);
  EXPECT_TRUE(ClippedOf(Displayed(), full, {11, 11, 49, 69}));
}

// Fonts and context state -------------------------------------------------

TEST_F(DisplayTextTest, EmptyTextDrawsNothingAndMakesNoFont) {
  OffScreenDC& s = Prepare(60, 60, "", outline_);
  SetRect(0, 0, 60, 60);
  s.TextAngle = 90;
  s.Font3D = vxInsetShadow;
  HandleOf(outline_);
  Fill(kPaper);
  const size_t created = gdi::CreatedObjectCount();
  const size_t live = gdi::LiveObjectCount();
  s.DisplayText();
  EXPECT_EQ(gdi::CreatedObjectCount(), created);
  EXPECT_EQ(gdi::LiveObjectCount(), live);
  EXPECT_TRUE(Empty(InkBox(Read())));
}

TEST_F(DisplayTextTest, EmptyTextNeedsNoFontObject) {
  Prepare(20, 20, "", nullptr);
  SetRect(0, 0, 20, 20);
  EXPECT_TRUE(Empty(InkBox(Displayed())));
}

TEST_F(DisplayTextTest, TextWithoutAFontObjectRaisesObjectNotSet) {
  OffScreenDC& s = Prepare(20, 20, "x", nullptr);
  SetRect(0, 0, 20, 20);
  EXPECT_AUTOMATION_ERROR(s.DisplayText(), kErrObjectNotSet);
}

TEST_F(DisplayTextTest, HorizontalTextUsesTheFontObjectsOwnHandle) {
  OffScreenDC& s = Prepare(60, 30, "Vorlex", outline_);
  SetRect(0, 0, 60, 30);
  HandleOf(outline_);
  Fill(kPaper);
  const size_t created = gdi::CreatedObjectCount();
  s.DisplayText();
  EXPECT_EQ(gdi::CreatedObjectCount(), created);
  EXPECT_FALSE(Empty(InkBox(Read())));
}

TEST_F(DisplayTextTest, RotatedTextMakesOneFontAndDeletesIt) {
  OffScreenDC& s = Prepare(120, 160, "Vorlex", outline_);
  SetRect(10, 10, 110, 150);
  s.TextAngle = 90;
  HandleOf(outline_);
  Fill(kPaper);
  const size_t created = gdi::CreatedObjectCount();
  const size_t live = gdi::LiveObjectCount();
  s.DisplayText();
  EXPECT_EQ(gdi::CreatedObjectCount(), created + 1);
  EXPECT_EQ(gdi::LiveObjectCount(), live);
  EXPECT_FALSE(Empty(InkBox(Read())));
}

// Before Initialize there is no context to select the font into, so nothing
// is drawn; the font made for the angle is deleted all the same.
TEST(DisplayTextWithoutContext, TheFontMadeForTheAngleIsDeletedAllTheSame) {
  OffScreenDC surface;
  surface.Right = 100;
  surface.Bottom = 100;
  surface.Text = "Vorlex";
  surface.TextFont = std::make_shared<vorlex::Font>(kOutlineFace, 12);
  surface.TextAngle = 90;
  surface.Font3D = vxRaisedLight;
  const size_t created = gdi::CreatedObjectCount();
  const size_t live = gdi::LiveObjectCount();
  surface.DisplayText();
  EXPECT_EQ(gdi::CreatedObjectCount(), created + 1);
  EXPECT_EQ(gdi::LiveObjectCount(), live);
}

TEST_F(DisplayTextTest, TheContextKeepsItsFontAndModeAndTheLastTextColour) {
  OffScreenDC& s = Prepare(120, 40, "Vorlex", sansSerif_);
  SetRect(0, 0, 120, 40);
  const gdi::HDC dc = s.MemoryDC();
  const gdi::HGDIOBJ font = gdi::SelectObject(dc, HandleOf(outline_));
  gdi::SelectObject(dc, font);
  s.Font3D = vxRaisedLight;
  for (int32_t angle : {0, 90}) {
    s.TextAngle = static_cast<int16_t>(angle);
    s.DisplayText();
    EXPECT_EQ(gdi::SetBkMode(dc, gdi::OPAQUE), gdi::OPAQUE) << angle;
    EXPECT_EQ(gdi::SetTextColor(dc, 0), kInk) << angle;
    const gdi::HGDIOBJ held = gdi::SelectObject(dc, font);
    EXPECT_EQ(held, font) << angle;
  }
}

}  // namespace
