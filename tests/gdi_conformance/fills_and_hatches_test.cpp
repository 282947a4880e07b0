// FillRect with solid and hatch brushes.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "canvas.h"
#include "picture.h"
#include "platform/gdi.h"

namespace vorlex::gdi_conformance {
namespace {

const std::vector<Ink> kInks = {kPaper, kBrush, kBack};

TEST(FillRect, SolidBrushPaintsExactlyTheHalfOpenRectangle) {
  Canvas canvas(12, 9);
  canvas.Fill(kPaper.colour);
  canvas.Fill({3, 2, 9, 7}, kBrush.colour);
  Picture expected(canvas.bounds(), '.');
  expected.Paint("2:3..8 3:3..8 4:3..8 5:3..8 6:3..8", '#');
  EXPECT_TRUE(Shows(canvas.Read(), expected, kInks));
}

TEST(FillRect, SolidColourIsStoredAsRrGgBbWithoutDithering) {
  Canvas canvas(4, 4);
  canvas.Fill(gdi::RGB(1, 2, 3));
  const gdi::Pixels pixels = canvas.Read();
  ASSERT_EQ(pixels.argb.size(), 16u);
  for (uint32_t pixel : pixels.argb) EXPECT_EQ(pixel, 0x010203u);
  canvas.Fill(gdi::RGB(0x81, 0x7F, 0xFE));
  for (uint32_t pixel : canvas.Read().argb) EXPECT_EQ(pixel, 0x817FFEu);
}

TEST(FillRect, RectanglePartlyOutsideTheBitmapIsClipped) {
  Canvas canvas(8, 6);
  canvas.Fill(kPaper.colour);
  canvas.Fill({-3, -2, 3, 2}, kBrush.colour);
  canvas.Fill({6, 4, 20, 20}, kBrush.colour);
  Picture expected(canvas.bounds(), '.');
  expected.Paint("0:0..2 1:0..2 4:6..7 5:6..7", '#');
  EXPECT_TRUE(Shows(canvas.Read(), expected, kInks));
}

TEST(FillRect, ZeroWidthOrHeightDrawsNothing) {
  Canvas canvas(10, 8);
  canvas.Fill(kPaper.colour);
  canvas.Fill({2, 2, 2, 7}, kBrush.colour);
  canvas.Fill({2, 5, 9, 5}, kBrush.colour);
  canvas.Fill({4, 4, 4, 4}, kBrush.colour);
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.'), kInks));
}

// Wine orders an inverted rectangle and moves it right by one: {10,0,5,5}
// fills x = 6..10. Not confirmed on Windows; the control never passes one.
TEST(FillRect, InvertedRectangleIsOrderedAndMovedByOne) {
  Canvas canvas(12, 6);
  canvas.Fill(kPaper.colour);
  canvas.Fill({10, 0, 5, 5}, kBrush.colour);
  Picture expected(canvas.bounds(), '.');
  expected.Paint("0:6..10 1:6..10 2:6..10 3:6..10 4:6..10", '#');
  EXPECT_TRUE(Shows(canvas.Read(), expected, kInks));
}

// The 8x8 hatch of each style over the rectangle {3,2,17,11}: '#' the hatch
// colour, '-' the pixels the pattern leaves unlit. The pattern is anchored to
// the bitmap's origin: HS_HORIZONTAL lights row 3 (first row of the rectangle
// + 1), HS_VERTICAL column 4 and 12.
struct Hatch {
  int style;
  std::vector<std::string> rows;
};

const gdi::RECT kHatchRect = {3, 2, 17, 11};
const gdi::RECT kHatchArea = {2, 1, 18, 12};  // the rectangle and a frame around it

const std::vector<Hatch> kHatches = {
    {gdi::HS_HORIZONTAL,
     {
         "--------------",
         "##############",
         "--------------",
         "--------------",
         "--------------",
         "--------------",
         "--------------",
         "--------------",
         "--------------",
     }},
    {gdi::HS_VERTICAL,
     {
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
     }},
    {gdi::HS_FDIAGONAL,
     {
         "-------#------",
         "#-------#-----",
         "-#-------#----",
         "--#-------#---",
         "---#-------#--",
         "----#-------#-",
         "-----#-------#",
         "------#-------",
         "-------#------",
     }},
    {gdi::HS_BDIAGONAL,
     {
         "--#-------#---",
         "-#-------#----",
         "#-------#-----",
         "-------#------",
         "------#-------",
         "-----#-------#",
         "----#-------#-",
         "---#-------#--",
         "--#-------#---",
     }},
    {gdi::HS_CROSS,
     {
         "-#-------#----",
         "##############",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
         "-#-------#----",
     }},
    {gdi::HS_DIAGCROSS,
     {
         "--#----#--#---",
         "##------##----",
         "##------##----",
         "--#----#--#---",
         "---#--#----#--",
         "----##------##",
         "----##------##",
         "---#--#----#--",
         "--#----#--#---",
     }},
};

class HatchFill : public ::testing::TestWithParam<Hatch> {
 protected:
  // Fills kHatchRect with the style in the given background mode; the
  // background colour is kBack.
  static gdi::Pixels Draw(Canvas& canvas, int style, int mode) {
    canvas.Fill(kPaper.colour);
    Owned<gdi::HBRUSH> brush(gdi::CreateHatchBrush(style, kBrush.colour));
    EXPECT_NE(brush.get(), nullptr);
    gdi::SetBkMode(canvas.dc(), mode);
    gdi::SetBkColor(canvas.dc(), kBack.colour);
    EXPECT_NE(gdi::FillRect(canvas.dc(), &kHatchRect, brush.get()), 0);
    return canvas.Read();
  }
  static Picture Expected(const Hatch& hatch) {
    Picture expected(kHatchArea, '.');
    expected.Paint(Picture(kHatchRect.left, kHatchRect.top, hatch.rows));
    return expected;
  }
};

TEST_P(HatchFill, OpaqueModePaintsUnlitPixelsWithTheBackgroundColour) {
  Canvas canvas(20, 13);
  const gdi::Pixels pixels = Draw(canvas, GetParam().style, gdi::OPAQUE);
  EXPECT_TRUE(Shows(pixels, Expected(GetParam()), {kPaper, kBrush, kBack}));
}

TEST_P(HatchFill, TransparentModeLeavesUnlitPixelsUntouched) {
  Canvas canvas(20, 13);
  const gdi::Pixels pixels = Draw(canvas, GetParam().style, gdi::TRANSPARENT);
  const Ink untouched{'-', kPaper.colour, kPaper.pixel};
  EXPECT_TRUE(Shows(pixels, Expected(GetParam()), {kPaper, kBrush, untouched}));
}

const char* const kHatchNames[] = {"Horizontal", "Vertical", "FDiagonal", "BDiagonal", "Cross", "DiagCross"};

INSTANTIATE_TEST_SUITE_P(EveryStyle, HatchFill, ::testing::ValuesIn(kHatches),
                         [](const ::testing::TestParamInfo<Hatch>& test) { return kHatchNames[test.param.style]; });

TEST(Hatch, BackgroundColourInForceAtEachFillCounts) {
  Canvas canvas(16, 5);
  canvas.Fill(kPaper.colour);
  Owned<gdi::HBRUSH> brush(gdi::CreateHatchBrush(gdi::HS_CROSS, kBrush.colour));
  gdi::SetBkMode(canvas.dc(), gdi::OPAQUE);
  gdi::SetBkColor(canvas.dc(), kBack.colour);
  const gdi::RECT left = {0, 0, 8, 5};
  gdi::FillRect(canvas.dc(), &left, brush.get());
  gdi::SetBkColor(canvas.dc(), kPaper.colour);
  const gdi::RECT right = {8, 0, 16, 5};
  gdi::FillRect(canvas.dc(), &right, brush.get());
  const Picture expected(0, 0,
                         {
                             "----#---....#...",
                             "----#---....#...",
                             "----#---....#...",
                             "################",
                             "----#---....#...",
                         });
  EXPECT_TRUE(Shows(canvas.Read(), expected, kInks));
}

TEST(Hatch, PatternContinuesAcrossSeparateFills) {
  Canvas whole(19, 13);
  Canvas pieces(19, 13);
  whole.Fill(kPaper.colour);
  pieces.Fill(kPaper.colour);
  Owned<gdi::HBRUSH> brush(gdi::CreateHatchBrush(gdi::HS_DIAGCROSS, kBrush.colour));
  for (Canvas* canvas : {&whole, &pieces}) gdi::SetBkColor(canvas->dc(), kBack.colour);
  const gdi::RECT all = {1, 1, 18, 12};
  gdi::FillRect(whole.dc(), &all, brush.get());
  for (const gdi::RECT& piece : {gdi::RECT{1, 1, 6, 12}, gdi::RECT{6, 1, 18, 5}, gdi::RECT{6, 5, 18, 12}}) {
    gdi::FillRect(pieces.dc(), &piece, brush.get());
  }
  const gdi::Pixels a = whole.Read();
  const gdi::Pixels b = pieces.Read();
  EXPECT_EQ(a.argb, b.argb) << "whole:\n"
                            << Map(a, whole.bounds(), kInks) << "in pieces:\n"
                            << Map(b, pieces.bounds(), kInks);
}

}  // namespace
}  // namespace vorlex::gdi_conformance
