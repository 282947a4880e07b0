// MoveToEx and LineTo with cosmetic pens (width 0 and 1) and the null pen.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "canvas.h"
#include "line_table.h"
#include "picture.h"
#include "platform/gdi.h"

namespace vorlex::gdi_conformance {
namespace {

const std::vector<Ink> kInks = {kPaper, kPen};

// Draws one line with a new PS_SOLID pen of the given width.
gdi::Pixels DrawLine(Canvas& canvas, int width, int x0, int y0, int x1, int y1) {
  canvas.Fill(kPaper.colour);
  Owned<gdi::HPEN> pen(gdi::CreatePen(gdi::PS_SOLID, width, kPen.colour));
  EXPECT_NE(pen.get(), nullptr);
  Selection selected(canvas.dc(), pen.get());
  EXPECT_NE(gdi::MoveToEx(canvas.dc(), x0, y0, nullptr), 0);
  EXPECT_NE(gdi::LineTo(canvas.dc(), x1, y1), 0);
  return canvas.Read();
}

class CosmeticLine : public ::testing::TestWithParam<Line> {};

TEST_P(CosmeticLine, WidthZeroSetsExactlyThesePixels) {
  const Line& line = GetParam();
  Canvas canvas(20, 20);
  const gdi::Pixels pixels = DrawLine(canvas, 0, 10, 10, 10 + line.dx, 10 + line.dy);
  EXPECT_TRUE(Shows(pixels, Picture(canvas.bounds(), '.').Paint(line.pixels, 'o'), kInks));
}

TEST_P(CosmeticLine, WidthOneSetsTheSamePixelsAsWidthZero) {
  const Line& line = GetParam();
  Canvas canvas(20, 20);
  const gdi::Pixels pixels = DrawLine(canvas, 1, 10, 10, 10 + line.dx, 10 + line.dy);
  EXPECT_TRUE(Shows(pixels, Picture(canvas.bounds(), '.').Paint(line.pixels, 'o'), kInks));
}

INSTANTIATE_TEST_SUITE_P(EveryDirection, CosmeticLine, ::testing::ValuesIn(kLines),
                         [](const ::testing::TestParamInfo<Line>& test) { return std::string(test.param.name); });

TEST(LineTo, MovesTheCurrentPositionToTheEndPoint) {
  Canvas canvas(12, 12);
  canvas.Fill(kPaper.colour);
  Owned<gdi::HPEN> pen(gdi::CreatePen(gdi::PS_SOLID, 1, kPen.colour));
  Selection selected(canvas.dc(), pen.get());
  gdi::MoveToEx(canvas.dc(), 2, 2, nullptr);
  gdi::LineTo(canvas.dc(), 8, 2);
  gdi::LineTo(canvas.dc(), 8, 8);
  gdi::LineTo(canvas.dc(), 2, 8);
  gdi::POINT previous{-1, -1};
  EXPECT_NE(gdi::MoveToEx(canvas.dc(), 0, 0, &previous), 0);
  EXPECT_EQ(previous.x, 2);
  EXPECT_EQ(previous.y, 8);
  // Each segment leaves out its own end point; the next one starts there.
  const char* pixels = "2:2..8 3:8 4:8 5:8 6:8 7:8 8:3..8";
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.').Paint(pixels, 'o'), kInks));
}

TEST(MoveToEx, ReportsThePreviousPositionAndDrawsNothing) {
  Canvas canvas(10, 10);
  canvas.Fill(kPaper.colour);
  Owned<gdi::HPEN> pen(gdi::CreatePen(gdi::PS_SOLID, 1, kPen.colour));
  Selection selected(canvas.dc(), pen.get());
  gdi::POINT previous{-1, -1};
  EXPECT_NE(gdi::MoveToEx(canvas.dc(), 3, 4, &previous), 0);
  EXPECT_EQ(previous.x, 0);  // a new context starts at (0,0)
  EXPECT_EQ(previous.y, 0);
  EXPECT_NE(gdi::MoveToEx(canvas.dc(), 7, 8, &previous), 0);
  EXPECT_EQ(previous.x, 3);
  EXPECT_EQ(previous.y, 4);
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.'), kInks));
}

TEST(LineTo, ZeroLengthLineDrawsNothing) {
  Canvas canvas(8, 8);
  const gdi::Pixels pixels = DrawLine(canvas, 1, 4, 4, 4, 4);
  EXPECT_TRUE(Shows(pixels, Picture(canvas.bounds(), '.'), kInks));
}

TEST(LineTo, NullPenDrawsNothingButMovesTheCurrentPosition) {
  for (int width : {0, 1, 3}) {
    SCOPED_TRACE(width);
    Canvas canvas(20, 20);
    canvas.Fill(kPaper.colour);
    Owned<gdi::HPEN> pen(gdi::CreatePen(gdi::PS_NULL, width, kPen.colour));
    ASSERT_NE(pen.get(), nullptr);
    Selection selected(canvas.dc(), pen.get());
    gdi::MoveToEx(canvas.dc(), 2, 3, nullptr);
    gdi::LineTo(canvas.dc(), 17, 3);
    gdi::LineTo(canvas.dc(), 5, 16);
    gdi::LineTo(canvas.dc(), 5, 4);
    gdi::POINT previous{-1, -1};
    gdi::MoveToEx(canvas.dc(), 0, 0, &previous);
    EXPECT_EQ(previous.x, 5);
    EXPECT_EQ(previous.y, 4);
    EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.'), kInks));
  }
}

TEST(LineTo, LineLeavingTheBitmapIsClipped) {
  Canvas canvas(10, 6);
  const gdi::Pixels pixels = DrawLine(canvas, 1, -4, 2, 14, 2);
  EXPECT_TRUE(Shows(pixels, Picture(canvas.bounds(), '.').Paint("2:0..9", 'o'), kInks));
  Canvas diagonal(10, 6);
  const gdi::Pixels crossing = DrawLine(diagonal, 1, -2, -2, 8, 8);
  EXPECT_TRUE(Shows(crossing, Picture(diagonal.bounds(), '.').Paint("0:0 1:1 2:2 3:3 4:4 5:5", 'o'), kInks));
}

}  // namespace
}  // namespace vorlex::gdi_conformance
