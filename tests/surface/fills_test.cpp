#include "pixel_map.h"
#include "surface_fixture.h"
#include "vorlex/Enums.h"

using namespace vorlex;
using namespace vorlex::testing;

namespace {
constexpr uint32_t kMarker = 0x00FF00;  // COLORREF green
const std::map<char, uint32_t> kRivet = {
    {'W', Rgb(255, 255, 255)}, {'D', Rgb(128, 128, 128)}, {'L', Rgb(192, 192, 192)}, {'-', AsPixel(kMarker)}};

class FillsTest : public SurfaceTest {};
}  // namespace

TEST_F(FillsTest, SolidFillUsesTheBackgroundColourInsideTheRectangleOnly) {
  Init(12, 10);
  Fill(kMarker);
  SetRect(2, 3, 9, 7);
  Surface().BackgroundColor = 0x0000FF;
  Surface().FillRectangle();
  const gdi::Pixels p = Read();
  for (int y = 0; y < 10; ++y) {
    for (int x = 0; x < 12; ++x) {
      const bool inside = x >= 2 && x < 9 && y >= 3 && y < 7;
      EXPECT_EQ(p.At(x, y), inside ? Rgb(255, 0, 0) : AsPixel(kMarker)) << x << "," << y;
    }
  }
}

TEST_F(FillsTest, HatchIsAnchoredToTheSurfaceOnAnOpaqueBackground) {
  Init(24, 24);
  SetRect(3, 2, 19, 18);
  Surface().BrushStyle = vxCross;
  Surface().BrushColor = 0x000000;
  Surface().BackgroundColor = 0xFFFFFF;
  Surface().FillRectangle();
  const gdi::Pixels p = Read();
  for (int y = 2; y < 18; ++y) {
    for (int x = 3; x < 19; ++x) {
      const bool lit = y % 8 == 3 || x % 8 == 4;
      EXPECT_EQ(p.At(x, y), lit ? Rgb(0, 0, 0) : Rgb(255, 255, 255)) << x << "," << y;
    }
  }
}

TEST_F(FillsTest, EveryBrushStyleSelectsItsHatch) {
  Init(8, 8);
  const struct {
    int32_t style;
    bool (*lit)(int x, int y);
  } cases[] = {
      {vxHorizontal, [](int, int y) { return y == 3; }},
      {vxVertical, [](int x, int) { return x == 4; }},
      {vxForwardDiagonal, [](int x, int y) { return x == y; }},
      {vxBackwardDiagonal, [](int x, int y) { return x == 7 - y; }},
      {vxCross, [](int x, int y) { return y == 3 || x == 4; }},
      {vxDiagonalCross, [](int x, int y) { return x == y || x == 7 - y; }},
  };
  for (const auto& c : cases) {
    SetRect(0, 0, 8, 8);
    Surface().BrushStyle = c.style;
    Surface().BrushColor = 0x0000FF;
    Surface().BackgroundColor = 0xFFFFFF;
    Surface().FillRectangle();
    const gdi::Pixels p = Read();
    for (int y = 0; y < 8; ++y) {
      for (int x = 0; x < 8; ++x) {
        EXPECT_EQ(p.At(x, y), c.lit(x, y) ? Rgb(255, 0, 0) : Rgb(255, 255, 255))
            << "style " << c.style << " at " << x << "," << y;
      }
    }
  }
}

TEST_F(FillsTest, AGradientReplacesTheHatch) {
  Init(8, 8);
  SetRect(0, 0, 8, 8);
  Surface().BrushStyle = vxCross;
  Surface().BrushColor = 0x000000;
  Surface().GradientStyle = vxLeftHGradient;
  Surface().GradientColor = 0x0000FF;
  Surface().GradientColorEnd = 0x0000FF;
  Surface().FillRectangle();
  for (uint32_t v : Read().argb) ASSERT_EQ(v, Rgb(255, 0, 0));
}

TEST_F(FillsTest, RaisedRivetIsAThreeByThreeStud) {
  Init(40, 30);
  Fill(kMarker);
  SetRect(0, 0, 40, 30);
  Surface().BackgroundColor = kMarker;
  Surface().RivetsStyle = vxRaisedRivets;
  Surface().FillRectangle();
  const gdi::Pixels p = Read();
  // Studs at (7, 7), (33, 7), (7, 23), (33, 23); the map starts one pixel up and left.
  for (auto [x, y] : {std::pair{7, 7}, std::pair{33, 7}, std::pair{7, 23}, std::pair{33, 23}}) {
    EXPECT_TRUE(MatchesMap(p, x - 1, y - 1, {"WW-", "WLD", "-DD"}, kRivet)) << x << "," << y;
  }
  EXPECT_EQ(p.At(20, 7), AsPixel(kMarker));  // no middle rivets
}

TEST_F(FillsTest, InsetRivetSwapsTheShades) {
  Init(40, 30);
  Fill(kMarker);
  SetRect(0, 0, 40, 30);
  Surface().BackgroundColor = kMarker;
  Surface().RivetsStyle = vxInsetRivets;
  Surface().FillRectangle();
  EXPECT_TRUE(MatchesMap(Read(), 6, 6, {"DD-", "DLW", "-WW"}, kRivet));
}

TEST_F(FillsTest, ExtendedRivetsAddFourMiddlesOffsetByTheBorderWidth) {
  Init(40, 30);
  Fill(kMarker);
  SetRect(0, 0, 40, 30);
  Surface().BackgroundColor = kMarker;
  Surface().BorderWidth = 2;
  Surface().RivetsStyle = vxRaisedRivetsExt;
  Surface().FillRectangle();
  const gdi::Pixels p = Read();
  // Corners at i = 9; middles at (round(2 + 20), ...) = 22 and 17.
  for (auto [x, y] : {std::pair{9, 9}, std::pair{31, 9}, std::pair{9, 21}, std::pair{31, 21}, std::pair{22, 9},
                      std::pair{31, 17}, std::pair{22, 21}, std::pair{9, 17}}) {
    EXPECT_TRUE(MatchesMap(p, x - 1, y - 1, {"WW-", "WLD", "-DD"}, kRivet)) << x << "," << y;
  }
}

TEST_F(FillsTest, MiddleRivetsRoundHalfToEven) {
  Init(41, 31);
  Fill(kMarker);
  SetRect(0, 0, 41, 31);
  Surface().BackgroundColor = kMarker;
  Surface().RivetsStyle = vxInsetRivetsExt;
  Surface().FillRectangle();
  const gdi::Pixels p = Read();
  // 20.5 rounds to 20 and 15.5 to 16.
  EXPECT_EQ(p.At(20, 7), Rgb(192, 192, 192));
  EXPECT_EQ(p.At(34, 16), Rgb(192, 192, 192));
}

TEST_F(FillsTest, RivetStylesAboveFourDrawEightInsetRivets) {
  Init(40, 30);
  Fill(kMarker);
  SetRect(0, 0, 40, 30);
  Surface().BackgroundColor = kMarker;
  Surface().RivetsStyle = 9;
  Surface().FillRectangle();
  const gdi::Pixels p = Read();
  for (auto [x, y] : {std::pair{7, 7}, std::pair{20, 7}, std::pair{33, 15}, std::pair{7, 15}}) {
    EXPECT_TRUE(MatchesMap(p, x - 1, y - 1, {"DD-", "DLW", "-WW"}, kRivet)) << x << "," << y;
  }
}

TEST_F(FillsTest, EllipseIgnoresGradientAndRivetsAndOutlinesInTheBackgroundColour) {
  Init(20, 20);
  Fill(kMarker);
  SetRect(0, 0, 20, 20);
  Surface().BackgroundColor = 0xFF0000;  // blue
  Surface().GradientStyle = vxLeftHGradient;
  Surface().GradientColor = 0x0000FF;
  Surface().RivetsStyle = vxRaisedRivetsExt;
  Surface().FillEllipse();
  const gdi::Pixels p = Read();
  EXPECT_EQ(p.At(10, 10), Rgb(0, 0, 255));
  EXPECT_EQ(p.At(0, 10), Rgb(0, 0, 255));  // the outline
  EXPECT_EQ(p.At(0, 0), AsPixel(kMarker));
  EXPECT_EQ(p.At(7, 7), Rgb(0, 0, 255));  // no rivet
  for (uint32_t v : p.argb) EXPECT_TRUE(v == Rgb(0, 0, 255) || v == AsPixel(kMarker));
}

TEST_F(FillsTest, HatchedEllipseKeepsTheHatch) {
  Init(16, 16);
  SetRect(0, 0, 16, 16);
  Surface().BackgroundColor = 0xFFFFFF;
  Surface().BrushStyle = vxHorizontal;
  Surface().BrushColor = 0x000000;
  Surface().FillEllipse();
  const gdi::Pixels p = Read();
  EXPECT_EQ(p.At(8, 11), Rgb(0, 0, 0));  // row 11: 11 mod 8 is 3
  EXPECT_EQ(p.At(8, 10), Rgb(255, 255, 255));
}

TEST_F(FillsTest, FocusRectangleTwiceRestoresThePixels) {
  Init(10, 8);
  Fill(0x336699);
  const gdi::Pixels before = Read();
  SetRect(1, 1, 9, 7);
  Surface().DrawFocusRect();
  const gdi::Pixels once = Read();
  EXPECT_NE(once.argb, before.argb);
  EXPECT_EQ(once.At(4, 4), before.At(4, 4));  // inside untouched
  Surface().DrawFocusRect();
  EXPECT_EQ(Read().argb, before.argb);
}
