#include "pixel_map.h"
#include "surface_fixture.h"
#include "vorlex/Enums.h"

using namespace vorlex;
using namespace vorlex::testing;

namespace {
constexpr uint32_t kMarker = 0x00FF00;  // COLORREF green, the untouched inside
const std::map<char, uint32_t> kColours = {{'B', Rgb(0, 0, 0)},
                                           {'W', Rgb(255, 255, 255)},
                                           {'D', Rgb(128, 128, 128)},
                                           {'L', Rgb(192, 192, 192)},
                                           {'-', AsPixel(kMarker)}};

class BorderTest : public SurfaceTest {
 protected:
  gdi::Pixels Draw(int32_t style, int16_t width, int w = 10, int h = 8) {
    Init(w, h);
    Fill(kMarker);
    SetRect(0, 0, w, h);
    Surface().BorderStyle = style;
    Surface().BorderWidth = width;
    Surface().DrawBorder();
    return Read();
  }
};
}  // namespace

TEST_F(BorderTest, RaisedWidthOneRunsOnTheOutermostPixels) {
  EXPECT_TRUE(MatchesMap(Draw(vxRaised, 1), 0, 0,
                         {"WWWWWWWWWW",  //
                          "W--------D",  //
                          "W--------D",  //
                          "W--------D",  //
                          "W--------D",  //
                          "W--------D",  //
                          "W--------D",  //
                          "DDDDDDDDDD"},
                         kColours));
}

TEST_F(BorderTest, InsetSwapsTheShades) {
  EXPECT_TRUE(MatchesMap(
      Draw(vxInset, 1), 0, 0,
      {"DDDDDDDDDD", "D--------W", "D--------W", "D--------W", "D--------W", "D--------W", "D--------W", "WWWWWWWWWW"},
      kColours));
}

TEST_F(BorderTest, FlatWidthZeroDrawsTheSameFrameAsWidthOne) {
  const gdi::Pixels zero = Draw(vxFlat, 0);
  EXPECT_TRUE(MatchesMap(
      zero, 0, 0,
      {"BBBBBBBBBB", "B--------B", "B--------B", "B--------B", "B--------B", "B--------B", "B--------B", "BBBBBBBBBB"},
      kColours));
  EXPECT_EQ(zero.argb, Draw(vxFlat, 1).argb);
}

TEST_F(BorderTest, EtchedIsADarkFrameInsideALightOne) {
  EXPECT_TRUE(MatchesMap(Draw(vxEtched, 1), 0, 0,
                         {"BBBBBBBBBW",  //
                          "BWWWWWWWBW",  //
                          "BW------BW",  //
                          "BW------BW",  //
                          "BW------BW",  //
                          "BW------BW",  //
                          "BBBBBBBBBW",  //
                          "WWWWWWWWWW"},
                         kColours));
}

TEST_F(BorderTest, EtchedLightBumpAndBumpLightUseTheirShades) {
  struct Case {
    int32_t style;
    char first, second;
  };
  for (const Case& c : {Case{vxEtchedLight, 'D', 'W'}, Case{vxBump, 'L', 'B'}, Case{vxBumpLight, 'L', 'D'}}) {
    const gdi::Pixels p = Draw(c.style, 1);
    std::vector<std::string> rows = {"1111111112", "1222222212", "12------12", "12------12",
                                     "12------12", "12------12", "1111111112", "2222222222"};
    for (auto& row : rows) {
      for (char& ch : row) ch = ch == '1' ? c.first : (ch == '2' ? c.second : ch);
    }
    EXPECT_TRUE(MatchesMap(p, 0, 0, rows, kColours)) << "style " << c.style;
  }
}

TEST_F(BorderTest, EtchedStylesUseOnePixelPensWhateverTheWidth) {
  // The frame moves inward with the width; the lines stay one pixel wide.
  const gdi::Pixels p = Draw(vxEtched, 5, 20, 16);
  // l = t = 2, r = 17, b = 13.
  EXPECT_EQ(p.At(2, 2), Rgb(0, 0, 0));
  EXPECT_EQ(p.At(17, 13), Rgb(255, 255, 255));
  EXPECT_EQ(p.At(1, 1), AsPixel(kMarker));
  EXPECT_EQ(p.At(2, 4), Rgb(0, 0, 0));
  EXPECT_EQ(p.At(4, 4), AsPixel(kMarker));
}

TEST_F(BorderTest, WidePensStayInsideTheRectangle) {
  for (int16_t width : {int16_t{2}, int16_t{5}}) {
    const gdi::Pixels p = Draw(vxRaised, width, 20, 16);
    for (int y = 0; y < 16; ++y) {
      for (int x = 0; x < 20; ++x) {
        const bool ring = x < width || y < width || x >= 20 - width || y >= 16 - width;
        // Round caps of a 5-pixel pen leave the rectangle's outermost corner pixels.
        const bool corner = (x == 0 || x == 19) && (y == 0 || y == 15);
        if (corner && width == 5) {
          EXPECT_EQ(p.At(x, y), AsPixel(kMarker)) << "corner " << x << "," << y;
        } else if (ring) {
          EXPECT_NE(p.At(x, y), AsPixel(kMarker)) << "width " << width << " ring pixel " << x << "," << y;
        } else {
          EXPECT_EQ(p.At(x, y), AsPixel(kMarker)) << "width " << width << " inside pixel " << x << "," << y;
        }
      }
    }
    EXPECT_EQ(p.At(0, 8), Rgb(255, 255, 255)) << width;  // left edge: first pen
    EXPECT_EQ(p.At(10, 0), Rgb(255, 255, 255)) << width;
    EXPECT_EQ(p.At(19, 8), Rgb(128, 128, 128)) << width;  // right edge: second pen
    EXPECT_EQ(p.At(10, 15), Rgb(128, 128, 128)) << width;
  }
}

TEST_F(BorderTest, StylesOutsideOneToSevenDrawNothing) {
  for (int32_t style : {0, 8, -1, 99}) {
    const gdi::Pixels p = Draw(style, 1);
    for (uint32_t v : p.argb) ASSERT_EQ(v, AsPixel(kMarker)) << "style " << style;
  }
}

namespace {
struct Shades {
  int32_t style;
  uint32_t first, second;
};
const Shades kShades[] = {{vxFlat, Rgb(0, 0, 0), Rgb(0, 0, 0)},
                          {vxRaised, Rgb(255, 255, 255), Rgb(128, 128, 128)},
                          {vxInset, Rgb(128, 128, 128), Rgb(255, 255, 255)},
                          {vxEtched, Rgb(0, 0, 0), Rgb(255, 255, 255)},
                          {vxEtchedLight, Rgb(128, 128, 128), Rgb(255, 255, 255)},
                          {vxBump, Rgb(192, 192, 192), Rgb(0, 0, 0)},
                          {vxBumpLight, Rgb(192, 192, 192), Rgb(128, 128, 128)}};
}  // namespace

TEST_F(BorderTest, EveryStyleAtWidths0125) {
  for (const Shades& s : kShades) {
    for (int16_t w : {int16_t{0}, int16_t{1}, int16_t{2}, int16_t{5}}) {
      const gdi::Pixels p = Draw(s.style, w, 20, 16);
      // The frame line, pens centred on it.
      const int l = w / 2;
      const int t = w / 2;
      const int r = 20 - (w - 1) / 2 - 1;
      const int b = 16 - (w - 1) / 2 - 1;
      const std::string what = "style " + std::to_string(s.style) + " width " + std::to_string(w);
      if (s.style <= vxInset) {
        const int ring = w < 1 ? 1 : w;
        EXPECT_EQ(p.At(0, 8), s.first) << what;
        EXPECT_EQ(p.At(10, ring - 1), s.first) << what;
        EXPECT_EQ(p.At(19, 8), s.second) << what;
        EXPECT_EQ(p.At(10, 16 - ring), s.second) << what;
        EXPECT_EQ(p.At(ring, 8), AsPixel(kMarker)) << what;
        EXPECT_EQ(p.At(10, ring), AsPixel(kMarker)) << what;
      } else {
        EXPECT_EQ(p.At(l, t), s.first) << what;           // outer top-left: first pen
        EXPECT_EQ(p.At(r - 1, b - 1), s.first) << what;   // inner bottom-right corner
        EXPECT_EQ(p.At(l + 1, t + 1), s.second) << what;  // inner top-left line
        EXPECT_EQ(p.At(r, b), s.second) << what;          // outer bottom-right corner
        EXPECT_EQ(p.At(l + 2, t + 2), AsPixel(kMarker)) << what;
        if (l > 0) {
          EXPECT_EQ(p.At(l - 1, t - 1), AsPixel(kMarker)) << what;
        }
      }
    }
  }
}
