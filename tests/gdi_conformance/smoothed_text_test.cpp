// Outline text with grayscale font smoothing (the standard smoothing of the
// system these tests run against): every quality but NONANTIALIASED_QUALITY
// draws edge pixels in colours between the text's and the background's, in
// 17 coverage levels of which 0 and 1 leave the pixel and 16 is the text
// colour; a face's 'gasp' table can turn smoothing off at small sizes; bitmap
// fonts never smooth. Bounds and checksums state where and what exactly.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>

#include "canvas.h"
#include "platform/gdi.h"
#include "text_fonts.h"

namespace vorlex::gdi_conformance {
namespace {

constexpr uint8_t kDefaultQuality = 0;
constexpr uint8_t kDraftQuality = 1;
constexpr uint8_t kAntialiased = 4;
// Wine's stand-in for Tahoma (fonts-wine): its 'gasp' table asks for gray
// levels from 17 pixels per em up only.
constexpr const char* kTahoma = "Tahoma";

constexpr gdi::COLORREF kBlack = gdi::RGB(0, 0, 0);
constexpr gdi::COLORREF kWhite = gdi::RGB(255, 255, 255);
constexpr uint32_t kBlackPixel = 0x000000;
constexpr uint32_t kWhitePixel = 0xFFFFFF;

gdi::LOGFONTA Smoothed(const char* face, int32_t height, int32_t escapement = 0, uint8_t quality = kDefaultQuality) {
  gdi::LOGFONTA font = LogFont(face, height, escapement);
  font.lfQuality = quality;
  return font;
}

// `text` drawn at (x, y) in TRANSPARENT mode on a canvas filled with `paper`.
gdi::Pixels Draw(int width, int height, const gdi::LOGFONTA& font, int x, int y, const std::string& text,
                 gdi::COLORREF ink, gdi::COLORREF paper, unsigned options = 0, const gdi::RECT* clip = nullptr) {
  Canvas canvas(width, height);
  canvas.Fill(paper);
  Owned<gdi::HFONT> made(MakeFont(font));
  EXPECT_NE(made.get(), nullptr);
  Selection selected(canvas.dc(), made.get());
  gdi::SetBkMode(canvas.dc(), gdi::TRANSPARENT);
  gdi::SetTextColor(canvas.dc(), ink);
  EXPECT_NE(
      gdi::ExtTextOutA(canvas.dc(), x, y, options, clip, text.c_str(), static_cast<unsigned>(text.size()), nullptr), 0);
  return canvas.Read();
}

gdi::Pixels BlackOnWhite(const gdi::LOGFONTA& font, int width = 80, int height = 30, int x = 5, int y = 5,
                         const std::string& text = "Vorlex") {
  return Draw(width, height, font, x, y, text, kBlack, kWhite);
}

// Colours other than the paper, as 0x00RRGGBB.
std::set<uint32_t> InkColours(const gdi::Pixels& pixels, uint32_t paper) {
  std::set<uint32_t> colours;
  for (uint32_t pixel : pixels.argb) {
    if (pixel != paper) colours.insert(pixel);
  }
  return colours;
}

// Greys strictly between black and white.
std::set<uint32_t> Greys(const gdi::Pixels& pixels) {
  std::set<uint32_t> greys = InkColours(pixels, kWhitePixel);
  greys.erase(kBlackPixel);
  return greys;
}

// The smallest rectangle (half-open) holding every pixel not the paper.
gdi::RECT InkedBounds(const gdi::Pixels& pixels, uint32_t paper) {
  gdi::RECT bounds{pixels.width, pixels.height, 0, 0};
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      if (pixels.At(x, y) == paper) continue;
      bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x + 1),
                std::max(bounds.bottom, y + 1)};
    }
  }
  return bounds.right == 0 ? gdi::RECT{0, 0, 0, 0} : bounds;
}

// FNV-1a over the pixels, row by row: a fact about every pixel at once.
uint32_t Checksum(const gdi::Pixels& pixels) {
  uint32_t hash = 2166136261u;
  for (uint32_t pixel : pixels.argb) {
    for (int shift = 0; shift < 32; shift += 8) {
      hash ^= (pixel >> shift) & 0xFFu;
      hash *= 16777619u;
    }
  }
  return hash;
}

uint8_t Channel(uint32_t pixel, int shift) { return static_cast<uint8_t>((pixel >> shift) & 0xFFu); }

TEST(SmoothedText, EdgePixelsAreGreysBetweenBlackTextAndWhitePaper) {
  const gdi::Pixels pixels = BlackOnWhite(Smoothed(kOutline, -16));
  const std::set<uint32_t> greys = Greys(pixels);
  for (uint32_t grey : greys) {
    EXPECT_TRUE(Channel(grey, 16) == Channel(grey, 8) && Channel(grey, 8) == Channel(grey, 0)) << std::hex << grey;
  }
  EXPECT_EQ(InkColours(pixels, kWhitePixel).count(kBlackPixel), 1u) << "fully covered pixels are the text colour";
  // Levels 2 to 15 each give their own grey; here all of them occur.
  EXPECT_EQ(greys.size(), 14u);
}

TEST(SmoothedText, InkedBoundsOfTwelvePointText) {
  // 12 points at 96 pixels per inch: a 16-pixel em.
  EXPECT_TRUE(
      SameRect(InkedBounds(BlackOnWhite(Smoothed(kOutline, -16), 120, 40, 54, 10), kWhitePixel), {54, 13, 105, 25}));
  EXPECT_TRUE(SameRect(InkedBounds(BlackOnWhite(Smoothed(kOutline, -12)), kWhitePixel), {5, 6, 42, 16}));
}

TEST(SmoothedText, RotatedTextIsSmoothedInPlace) {
  const gdi::Pixels pixels = BlackOnWhite(Smoothed(kOutline, -12, 900), 30, 80, 5, 70);
  EXPECT_TRUE(SameRect(InkedBounds(pixels, kWhitePixel), {6, 33, 16, 70}));
  EXPECT_EQ(Greys(pixels).size(), 14u);
}

TEST(SmoothedText, EveryQualityButNonantialiasedIsSmoothed) {
  const gdi::Pixels reference = BlackOnWhite(Smoothed(kOutline, -12));
  EXPECT_FALSE(Greys(reference).empty());
  for (const uint8_t quality : {kDraftQuality, gdi::PROOF_QUALITY, kAntialiased}) {
    EXPECT_EQ(BlackOnWhite(Smoothed(kOutline, -12, 0, quality)).argb, reference.argb) << "quality " << int{quality};
  }
  const gdi::Pixels oneBit = BlackOnWhite(Smoothed(kOutline, -12, 0, kNonAntialiased));
  EXPECT_TRUE(Greys(oneBit).empty());
  EXPECT_FALSE(InkColours(oneBit, kWhitePixel).empty());
}

TEST(SmoothedText, GaspTableKeepsSmallTahomaOneBit) {
  for (const int32_t height : {-8, -11, -16}) {
    const gdi::Pixels pixels = BlackOnWhite(Smoothed(kTahoma, height), 100, 40);
    EXPECT_TRUE(Greys(pixels).empty()) << height;
    EXPECT_EQ(InkColours(pixels, kWhitePixel).size(), 1u) << height;
  }
  EXPECT_EQ(Greys(BlackOnWhite(Smoothed(kTahoma, -17), 100, 40)).size(), 14u);
}

TEST(SmoothedText, SyntheticItalicIsSmoothedWhateverTheGaspTable) {
  gdi::LOGFONTA italic = Smoothed(kTahoma, -11);
  italic.lfItalic = 1;
  EXPECT_FALSE(Greys(BlackOnWhite(italic)).empty());
}

TEST(SmoothedText, BitmapFontIsNeverSmoothed) {
  for (const uint8_t quality : {kDefaultQuality, kAntialiased}) {
    const gdi::Pixels pixels = BlackOnWhite(Smoothed(kSansSerif, -11, 0, quality));
    EXPECT_EQ(pixels.argb, BlackOnWhite(Smoothed(kSansSerif, -11, 0, kNonAntialiased)).argb) << int{quality};
    EXPECT_TRUE(Greys(pixels).empty()) << int{quality};
  }
}

// Each channel moves from the paper's toward the text's on its own.
TEST(SmoothedText, ColouredEdgesBlendEachChannelBetweenTextAndPaper) {
  const gdi::Pixels pixels = Draw(80, 30, Smoothed(kOutline, -12), 5, 5, "Vorlex", kPen.colour, kPaper.colour);
  const std::set<uint32_t> colours = InkColours(pixels, kPaper.pixel);
  EXPECT_EQ(colours.count(kPen.pixel), 1u);
  EXPECT_GE(colours.size(), 10u);
  for (uint32_t colour : colours) {
    for (const int shift : {0, 8, 16}) {
      const uint8_t low = std::min(Channel(kPen.pixel, shift), Channel(kPaper.pixel, shift));
      const uint8_t high = std::max(Channel(kPen.pixel, shift), Channel(kPaper.pixel, shift));
      EXPECT_GE(Channel(colour, shift), low) << std::hex << colour;
      EXPECT_LE(Channel(colour, shift), high) << std::hex << colour;
    }
  }
}

TEST(SmoothedText, ClippedSmoothedTextStaysInsideTheRectangle) {
  const gdi::RECT clip{12, 8, 30, 14};
  const gdi::Pixels pixels =
      Draw(80, 30, Smoothed(kOutline, -12), 5, 5, "Vorlex", kBlack, kWhite, gdi::ETO_CLIPPED, &clip);
  const gdi::RECT bounds = InkedBounds(pixels, kWhitePixel);
  EXPECT_TRUE(SameRect(bounds, {12, 8, 30, 14}));
  EXPECT_FALSE(Greys(pixels).empty());
}

TEST(SmoothedText, UnderlineStaysSolidUnderSmoothedGlyphs) {
  gdi::LOGFONTA font = Smoothed(kOutline, -12);
  font.lfUnderline = 1;
  const gdi::Pixels pixels = BlackOnWhite(font);
  const gdi::RECT bounds = InkedBounds(pixels, kWhitePixel);
  int solidRows = 0;
  for (int y = bounds.top; y < bounds.bottom; ++y) {
    bool solid = true;
    for (int x = bounds.left; x < bounds.right; ++x) solid = solid && pixels.At(x, y) == kBlackPixel;
    solidRows += solid ? 1 : 0;
  }
  EXPECT_EQ(solidRows, 1);
  EXPECT_FALSE(Greys(pixels).empty());
}

// Every pixel at once: coverage, levels and blending all agree.
TEST(SmoothedText, PixelsOfKnownRunsHaveKnownChecksums) {
  struct Run {
    const char* face;
    int32_t height;
    int32_t escapement;
    uint32_t checksum;
  };
  for (const Run& run :
       {Run{kOutline, -12, 0, 0xe4e06e4du}, Run{kOutline, -12, 900, 0xd8f59864u}, Run{kOutline, -16, 0, 0x9160592au},
        Run{kTahoma, -17, 0, 0x7361e57au}, Run{kTahoma, -24, 900, 0xff27ab13u}}) {
    const bool rotated = run.escapement != 0;
    const gdi::Pixels pixels =
        Draw(rotated ? 40 : 120, rotated ? 120 : 40, Smoothed(run.face, run.height, run.escapement), 5,
             rotated ? 115 : 5, "Vorlex Hg", kPen.colour, kPaper.colour);
    EXPECT_EQ(Checksum(pixels), run.checksum)
        << run.face << " " << run.height << " at " << run.escapement << ": 0x" << std::hex << Checksum(pixels);
  }
}

}  // namespace
}  // namespace vorlex::gdi_conformance
