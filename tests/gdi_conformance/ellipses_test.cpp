// Ellipse with a solid brush and a null or one-pixel pen.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "canvas.h"
#include "picture.h"
#include "platform/gdi.h"

namespace vorlex::gdi_conformance {
namespace {

const std::vector<Ink> kInks = {kPaper, kPen, kBrush};

// Ellipse(3, 3, 3 + width, 3 + height) on a bitmap 6 pixels wider and higher.
// Spans are relative to the box's top-left corner: the footprint is every
// pixel painted; with a one-pixel pen, the interior is what is left in the
// brush colour, the rest of the footprint being the outline.
struct Figure {
  int width;
  int height;
  const char* footprint;
  const char* interior;
};

constexpr int kAt = 3;

const std::vector<Figure> kFigures = {
    {3, 3, "0:1 1:0..2 2:1", "1:1"},
    {4, 4, "0:1..2 1:0..3 2:0..3 3:1..2", "1:1..2 2:1..2"},
    {5, 5, "0:1..3 1:0..4 2:0..4 3:0..4 4:1..3", "1:1..3 2:1..3 3:1..3"},
    {6, 6, "0:2..3 1:1..4 2:0..5 3:0..5 4:1..4 5:2..3", "1:2..3 2:1..4 3:1..4 4:2..3"},
    {7, 4, "0:1..5 1:0..6 2:0..6 3:1..5", "1:1..5 2:1..5"},
    // Wine leaves the top and bottom rows of a 4x7 box empty, though a 7x4
    // box is filled to its left and right columns.
    {4, 7, "1:1..2 2:0..3 3:0..3 4:0..3 5:1..2", "2:1..2 3:1..2 4:1..2"},
    {20, 11, "0:6..13 1:3..16 2:2..17 3:1..18 4:0..19 5:0..19 6:0..19 7:1..18 8:2..17 9:3..16 10:6..13",
     "1:6..13 2:3..16 3:2..17 4:1..18 5:1..18 6:1..18 7:2..17 8:3..16 9:6..13"},
    {31, 31,
     "0:12..18 1:9..21 2:7..23 3:6..24 4:5..25 5:4..26 6:3..27 7:2..28 8:2..28 9:1..29 10:1..29 11:1..29 "
     "12:0..30 13:0..30 14:0..30 15:0..30 16:0..30 17:0..30 18:0..30 19:1..29 20:1..29 21:1..29 22:2..28 "
     "23:2..28 24:3..27 25:4..26 26:5..25 27:6..24 28:7..23 29:9..21 30:12..18",
     "1:12..18 2:9..21 3:7..23 4:6..24 5:5..25 6:4..26 7:3..27 8:3..27 9:2..28 10:2..28 11:2..28 12:1..29 "
     "13:1..29 14:1..29 15:1..29 16:1..29 17:1..29 18:1..29 19:2..28 20:2..28 21:2..28 22:3..27 23:3..27 "
     "24:4..26 25:5..25 26:6..24 27:7..23 28:9..21 29:12..18"},
    {64, 40,
     "0:25..38 1:20..43 2:17..46 3:14..49 4:12..51 5:10..53 6:9..54 7:7..56 8:6..57 9:5..58 10:4..59 "
     "11:3..60 12:2..61 13:2..61 14:1..62 15:1..62 16:1..62 17:0..63 18:0..63 19:0..63 20:0..63 21:0..63 "
     "22:0..63 23:1..62 24:1..62 25:1..62 26:2..61 27:2..61 28:3..60 29:4..59 30:5..58 31:6..57 32:7..56 "
     "33:9..54 34:10..53 35:12..51 36:14..49 37:17..46 38:20..43 39:25..38",
     "1:25..38 2:20..43 3:17..46 4:14..49 5:12..51 6:10..53 7:9..54 8:7..56 9:6..57 10:5..58 11:4..59 "
     "12:3..60 13:3..60 14:2..61 15:2..61 16:2..61 17:1..62 18:1..62 19:1..62 20:1..62 21:1..62 22:1..62 "
     "23:2..61 24:2..61 25:2..61 26:3..60 27:3..60 28:4..59 29:5..58 30:6..57 31:7..56 32:9..54 33:10..53 "
     "34:12..51 35:14..49 36:17..46 37:20..43 38:25..38"},
};

// Draws the ellipse of the given size with a new solid brush and a new pen.
gdi::Pixels DrawEllipse(Canvas& canvas, int width, int height, int pen_style) {
  canvas.Fill(kPaper.colour);
  Owned<gdi::HBRUSH> brush(gdi::CreateSolidBrush(kBrush.colour));
  Owned<gdi::HPEN> pen(gdi::CreatePen(pen_style, 1, kPen.colour));
  EXPECT_NE(brush.get(), nullptr);
  EXPECT_NE(pen.get(), nullptr);
  Selection brush_selected(canvas.dc(), brush.get());
  Selection pen_selected(canvas.dc(), pen.get());
  EXPECT_NE(gdi::Ellipse(canvas.dc(), kAt, kAt, kAt + width, kAt + height), 0);
  return canvas.Read();
}

std::string SizeName(int width, int height) { return std::to_string(width) + "x" + std::to_string(height); }

class EllipseFigure : public ::testing::TestWithParam<Figure> {};

TEST_P(EllipseFigure, NullPenPaintsTheFootprintWithTheBrush) {
  const Figure& figure = GetParam();
  Canvas canvas(figure.width + 6, figure.height + 6);
  const gdi::Pixels pixels = DrawEllipse(canvas, figure.width, figure.height, gdi::PS_NULL);
  EXPECT_TRUE(Shows(pixels, Picture(canvas.bounds(), '.').Paint(figure.footprint, '#', kAt, kAt), kInks));
}

TEST_P(EllipseFigure, OnePixelPenOutlinesTheSameFootprint) {
  const Figure& figure = GetParam();
  Canvas canvas(figure.width + 6, figure.height + 6);
  const gdi::Pixels pixels = DrawEllipse(canvas, figure.width, figure.height, gdi::PS_SOLID);
  Picture expected(canvas.bounds(), '.');
  expected.Paint(figure.footprint, 'o', kAt, kAt).Paint(figure.interior, '#', kAt, kAt);
  EXPECT_TRUE(Shows(pixels, expected, kInks));
}

// Independently of the tables: the figure is symmetric about both axes of its
// box, and nothing outside the box is painted.
TEST_P(EllipseFigure, IsSymmetricWithinItsBox) {
  const Figure& figure = GetParam();
  for (int style : {gdi::PS_NULL, gdi::PS_SOLID}) {
    SCOPED_TRACE(style == gdi::PS_NULL ? "null pen" : "one-pixel pen");
    Canvas canvas(figure.width + 6, figure.height + 6);
    const gdi::Pixels pixels = DrawEllipse(canvas, figure.width, figure.height, style);
    ASSERT_EQ(pixels.width, canvas.width());
    const int right = kAt + figure.width - 1;
    const int bottom = kAt + figure.height - 1;
    for (int y = 0; y < canvas.height(); ++y) {
      for (int x = 0; x < canvas.width(); ++x) {
        const bool in_box = x >= kAt && x <= right && y >= kAt && y <= bottom;
        if (!in_box) {
          EXPECT_EQ(pixels.At(x, y), kPaper.pixel) << "(" << x << "," << y << ") outside the box";
          continue;
        }
        EXPECT_EQ(pixels.At(x, y), pixels.At(kAt + right - x, y)) << "left-right at (" << x << "," << y << ")";
        EXPECT_EQ(pixels.At(x, y), pixels.At(x, kAt + bottom - y)) << "top-bottom at (" << x << "," << y << ")";
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, EllipseFigure, ::testing::ValuesIn(kFigures),
                         [](const ::testing::TestParamInfo<Figure>& test) {
                           return SizeName(test.param.width, test.param.height);
                         });

// Boxes 2 pixels wide or high or less are drawn as the rectangle: with a
// one-pixel pen all of it in the pen colour; with the null pen only the brush,
// one pixel narrower and shorter. A 1x1 box draws nothing.
struct SmallFigure {
  int width;
  int height;
  const char* null_pen;
  const char* one_pixel_pen;
};

const std::vector<SmallFigure> kSmallFigures = {
    {1, 1, "", ""},
    {2, 2, "0:0", "0:0..1 1:0..1"},
    {2, 5, "0:0 1:0 2:0 3:0", "0:0..1 1:0..1 2:0..1 3:0..1 4:0..1"},
    {5, 2, "0:0..3", "0:0..4 1:0..4"},
};

class SmallEllipse : public ::testing::TestWithParam<SmallFigure> {};

TEST_P(SmallEllipse, IsTheRectangleOfItsBox) {
  const SmallFigure& figure = GetParam();
  Canvas with_null(figure.width + 6, figure.height + 6);
  const gdi::Pixels null_pixels = DrawEllipse(with_null, figure.width, figure.height, gdi::PS_NULL);
  EXPECT_TRUE(Shows(null_pixels, Picture(with_null.bounds(), '.').Paint(figure.null_pen, '#', kAt, kAt), kInks));
  Canvas with_pen(figure.width + 6, figure.height + 6);
  const gdi::Pixels pen_pixels = DrawEllipse(with_pen, figure.width, figure.height, gdi::PS_SOLID);
  EXPECT_TRUE(Shows(pen_pixels, Picture(with_pen.bounds(), '.').Paint(figure.one_pixel_pen, 'o', kAt, kAt), kInks));
}

INSTANTIATE_TEST_SUITE_P(Sizes, SmallEllipse, ::testing::ValuesIn(kSmallFigures),
                         [](const ::testing::TestParamInfo<SmallFigure>& test) {
                           return SizeName(test.param.width, test.param.height);
                         });

TEST(Ellipse, ZeroWidthOrHeightDrawsNothing) {
  for (const gdi::RECT& box : {gdi::RECT{3, 3, 3, 9}, gdi::RECT{3, 3, 9, 3}, gdi::RECT{3, 3, 3, 3}}) {
    SCOPED_TRACE(SizeName(box.right - box.left, box.bottom - box.top));
    Canvas canvas(12, 12);
    const gdi::Pixels pixels = DrawEllipse(canvas, box.right - box.left, box.bottom - box.top, gdi::PS_SOLID);
    EXPECT_TRUE(Shows(pixels, Picture(canvas.bounds(), '.'), kInks));
  }
}

TEST(Ellipse, DoesNotMoveTheCurrentPosition) {
  Canvas canvas(12, 12);
  Owned<gdi::HBRUSH> brush(gdi::CreateSolidBrush(kBrush.colour));
  Selection selected(canvas.dc(), brush.get());
  gdi::MoveToEx(canvas.dc(), 2, 9, nullptr);
  gdi::Ellipse(canvas.dc(), 3, 3, 8, 8);
  gdi::POINT previous{-1, -1};
  gdi::MoveToEx(canvas.dc(), 0, 0, &previous);
  EXPECT_EQ(previous.x, 2);
  EXPECT_EQ(previous.y, 9);
}

}  // namespace
}  // namespace vorlex::gdi_conformance
