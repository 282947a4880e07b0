// LineTo with geometric pens (PS_SOLID, width 2 to 5): round caps at both ends,
// no joins between separate calls.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "canvas.h"
#include "line_table.h"
#include "picture.h"
#include "platform/gdi.h"

namespace vorlex::gdi_conformance {
namespace {

const std::vector<Ink> kInks = {kPaper, kPen};

// Rows y0..y1, each with the same ranges of x, in the notation of SpanPoints.
std::string Rows(int y0, int y1, const std::string& xs) {
  std::string spans;
  for (int y = y0; y <= y1; ++y) spans += std::to_string(y) + ":" + xs + " ";
  return spans;
}

// A horizontal or vertical line from (12,12) to (12 + dx, 12 + dy) on a 24x24
// bitmap. The body covers [min, max) along the line and w rows (columns)
// from y - w/2, the extra one of an even width above (left); a round cap of
// diameter w is centred on each end, so the end point is painted.
struct StraightLine {
  const char* name;
  int width;
  int dx;
  int dy;
  std::string pixels;
};

const std::vector<StraightLine> kStraightLines = {
    {"Width2East", 2, 6, 0, "11:11..18 12:11..18"},
    {"Width2West", 2, -6, 0, "11:5..12 12:5..12"},
    {"Width2South", 2, 0, 6, Rows(11, 18, "11..12")},
    {"Width2North", 2, 0, -6, Rows(5, 12, "11..12")},
    {"Width3East", 3, 6, 0, "11:12..18 12:11..19 13:12..18"},
    {"Width3West", 3, -6, 0, "11:6..12 12:5..13 13:6..12"},
    {"Width3South", 3, 0, 6, "11:12 " + Rows(12, 18, "11..13") + "19:12"},
    {"Width3North", 3, 0, -6, "5:12 " + Rows(6, 12, "11..13") + "13:12"},
    {"Width4East", 4, 6, 0, "10:11..18 11:10..19 12:10..19 13:11..18"},
    {"Width4West", 4, -6, 0, "10:5..12 11:4..13 12:4..13 13:5..12"},
    {"Width4South", 4, 0, 6, "10:11..12 " + Rows(11, 18, "10..13") + "19:11..12"},
    {"Width4North", 4, 0, -6, "4:11..12 " + Rows(5, 12, "10..13") + "13:11..12"},
    {"Width5East", 5, 6, 0, "10:11..19 11:10..20 12:10..20 13:10..20 14:11..19"},
    {"Width5West", 5, -6, 0, "10:5..13 11:4..14 12:4..14 13:4..14 14:5..13"},
    {"Width5South", 5, 0, 6, "10:11..13 " + Rows(11, 19, "10..14") + "20:11..13"},
    {"Width5North", 5, 0, -6, "4:11..13 " + Rows(5, 13, "10..14") + "14:11..13"},
};

gdi::Pixels DrawWide(Canvas& canvas, int width, int x0, int y0, int x1, int y1) {
  canvas.Fill(kPaper.colour);
  Owned<gdi::HPEN> pen(gdi::CreatePen(gdi::PS_SOLID, width, kPen.colour));
  EXPECT_NE(pen.get(), nullptr);
  Selection selected(canvas.dc(), pen.get());
  gdi::MoveToEx(canvas.dc(), x0, y0, nullptr);
  EXPECT_NE(gdi::LineTo(canvas.dc(), x1, y1), 0);
  return canvas.Read();
}

class StraightWideLine : public ::testing::TestWithParam<StraightLine> {};

TEST_P(StraightWideLine, SetsExactlyThesePixels) {
  const StraightLine& line = GetParam();
  Canvas canvas(24, 24);
  const gdi::Pixels pixels = DrawWide(canvas, line.width, 12, 12, 12 + line.dx, 12 + line.dy);
  EXPECT_TRUE(Shows(pixels, Picture(canvas.bounds(), '.').Paint(line.pixels, 'o'), kInks));
}

INSTANTIATE_TEST_SUITE_P(EveryDirection, StraightWideLine, ::testing::ValuesIn(kStraightLines),
                         [](const ::testing::TestParamInfo<StraightLine>& test) {
                           return std::string(test.param.name);
                         });

TEST(WideLine, SeparateLineToCallsHaveNoJoin) {
  // Two width-3 segments meeting at (10,4): the corner is the round cap of
  // each, no mitre or bevel fills the outside of the corner.
  Canvas canvas(14, 12);
  canvas.Fill(kPaper.colour);
  Owned<gdi::HPEN> pen(gdi::CreatePen(gdi::PS_SOLID, 3, kPen.colour));
  Selection selected(canvas.dc(), pen.get());
  gdi::MoveToEx(canvas.dc(), 3, 4, nullptr);
  gdi::LineTo(canvas.dc(), 10, 4);
  gdi::LineTo(canvas.dc(), 10, 10);
  const char* pixels = "3:3..10 4:2..11 5:3..11 6:9..11 7:9..11 8:9..11 9:9..11 10:9..11 11:10";
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.').Paint(pixels, 'o'), kInks));
}

// The round cap of each width, centred on (0,0): the footprint of an ellipse
// of diameter w from (-w/2, -w/2).
const char* const kCaps[] = {
    nullptr,
    nullptr,
    "-1:-1..0 0:-1..0",
    "-1:0 0:-1..1 1:0",
    "-2:-1..0 -1:-2..1 0:-2..1 1:-1..0",
    "-2:-1..1 -1:-2..2 0:-2..2 1:-2..2 2:-1..1",
};

// An oblique wide line is a convex figure: Wine's pixel set holds the one-pixel
// line between the end points, the cap around each end point, nothing beyond
// the caps' bounding box, and one run of pixels on each row. (How far the
// sides reach between the caps is Wine's polygon rasterisation and is not
// stated here.)
struct Oblique {
  int width;
  Line line;
};

std::vector<Oblique> ObliqueLines() {
  std::vector<Oblique> lines;
  for (int width = 2; width <= 5; ++width) {
    for (const Line& line : kLines) {
      if (line.dx != 0 && line.dy != 0) lines.push_back({width, line});
    }
  }
  return lines;
}

class ObliqueWideLine : public ::testing::TestWithParam<Oblique> {
 protected:
  // The cosmetic line table starts at (10,10); these start at (12,12).
  static constexpr int kShift = 2;
  void SetUp() override {
    const Line& line = GetParam().line;
    x1_ = 10 + kShift + line.dx;
    y1_ = 10 + kShift + line.dy;
    pixels_ = DrawWide(canvas_, GetParam().width, 12, 12, x1_, y1_);
  }
  bool Ink(int x, int y) const { return pixels_.At(x, y) == kPen.pixel; }
  std::string Drawn() const { return "drawn:\n" + Map(pixels_, canvas_.bounds(), kInks); }

  Canvas canvas_{24, 24};
  gdi::Pixels pixels_;
  int x1_ = 0;
  int y1_ = 0;
};

TEST_P(ObliqueWideLine, UsesOnlyThePenColour) {
  ASSERT_EQ(pixels_.width, 24);
  for (uint32_t pixel : pixels_.argb) ASSERT_TRUE(pixel == kPen.pixel || pixel == kPaper.pixel) << Drawn();
}

TEST_P(ObliqueWideLine, CoversTheOnePixelLine) {
  ASSERT_EQ(pixels_.width, 24);
  for (const Point& p : SpanPoints(GetParam().line.pixels, kShift, kShift)) {
    EXPECT_TRUE(Ink(p.x, p.y)) << "(" << p.x << "," << p.y << ") not painted\n" << Drawn();
  }
}

TEST_P(ObliqueWideLine, CoversARoundCapAtEachEnd) {
  ASSERT_EQ(pixels_.width, 24);
  const char* cap = kCaps[GetParam().width];
  for (const Point& end : {Point{12, 12}, Point{x1_, y1_}}) {
    for (const Point& p : SpanPoints(cap, end.x, end.y)) {
      EXPECT_TRUE(Ink(p.x, p.y)) << "(" << p.x << "," << p.y << ") of the cap at (" << end.x << "," << end.y
                                 << ") not painted\n"
                                 << Drawn();
    }
  }
}

TEST_P(ObliqueWideLine, StaysWithinTheCapsBoundingBox) {
  ASSERT_EQ(pixels_.width, 24);
  std::vector<Point> caps = SpanPoints(kCaps[GetParam().width], 12, 12);
  for (const Point& p : SpanPoints(kCaps[GetParam().width], x1_, y1_)) caps.push_back(p);
  gdi::RECT box{caps[0].x, caps[0].y, caps[0].x + 1, caps[0].y + 1};
  for (const Point& p : caps) {
    box = {std::min<int>(box.left, p.x), std::min<int>(box.top, p.y), std::max<int>(box.right, p.x + 1),
           std::max<int>(box.bottom, p.y + 1)};
  }
  for (int y = 0; y < 24; ++y) {
    for (int x = 0; x < 24; ++x) {
      const bool inside = x >= box.left && x < box.right && y >= box.top && y < box.bottom;
      if (!inside) {
        EXPECT_FALSE(Ink(x, y)) << "(" << x << "," << y << ") painted\n" << Drawn();
      }
    }
  }
}

TEST_P(ObliqueWideLine, PaintsOneRunPerRow) {
  ASSERT_EQ(pixels_.width, 24);
  for (int y = 0; y < 24; ++y) {
    int runs = 0;
    for (int x = 0; x < 24; ++x) {
      if (Ink(x, y) && (x == 0 || !Ink(x - 1, y))) ++runs;
    }
    EXPECT_LE(runs, 1) << "row " << y << "\n" << Drawn();
  }
}

INSTANTIATE_TEST_SUITE_P(EveryWidthAndDirection, ObliqueWideLine, ::testing::ValuesIn(ObliqueLines()),
                         [](const ::testing::TestParamInfo<Oblique>& test) {
                           return "Width" + std::to_string(test.param.width) + test.param.line.name;
                         });

}  // namespace
}  // namespace vorlex::gdi_conformance
