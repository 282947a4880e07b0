// Smoothed glyphs and how their levels lie over the pixels under them:
// coverage in 17 levels, the quality and the 'gasp' table deciding whether a
// font smooths, and the per-channel blend of GDI's text ramp.

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>

#include "platform/soft/text/realized_font.h"
#include "platform/soft/text/text_ink.h"

namespace {

using vorlex::gdi::LOGFONTA;
using vorlex::gdi::RGB;
using vorlex::gdi::soft::text::GlyphImage;
using vorlex::gdi::soft::text::kFullLevel;
using vorlex::gdi::soft::text::RealizedFont;
using vorlex::gdi::soft::text::TextInk;

constexpr uint8_t kNonAntialiased = 3;

std::unique_ptr<RealizedFont> Realize(const char* face, int32_t height, uint8_t quality) {
  LOGFONTA font{};
  font.lfHeight = height;
  font.lfQuality = quality;
  std::strncpy(font.lfFaceName, face, sizeof font.lfFaceName - 1);
  return RealizedFont::Create(font);
}

std::set<int> LevelsOf(const GlyphImage& glyph) {
  std::set<int> levels;
  for (int32_t y = 0; y < glyph.height; ++y) {
    for (int32_t x = 0; x < glyph.width; ++x) levels.insert(glyph.Level(x, y));
  }
  return levels;
}

TEST(SoftSmoothedGlyph, DefaultQualityOutlineGlyphsHaveLevelsBetweenEmptyAndFull) {
  const auto font = Realize("DejaVu Sans", -16, 0);
  ASSERT_NE(font, nullptr);
  const GlyphImage* glyph = font->Glyph(u'o');
  ASSERT_NE(glyph, nullptr);
  const std::set<int> levels = LevelsOf(*glyph);
  EXPECT_EQ(*levels.begin(), 0);
  EXPECT_EQ(*levels.rbegin(), kFullLevel);
  EXPECT_GT(levels.size(), 8u) << "a round glyph's edges cross many levels";
}

TEST(SoftSmoothedGlyph, NonantialiasedGlyphsHoldOnlyEmptyAndFull) {
  const auto font = Realize("DejaVu Sans", -16, kNonAntialiased);
  ASSERT_NE(font, nullptr);
  const GlyphImage* glyph = font->Glyph(u'o');
  ASSERT_NE(glyph, nullptr);
  EXPECT_EQ(LevelsOf(*glyph), (std::set<int>{0, kFullLevel}));
}

TEST(SoftSmoothedGlyph, ThinLevelsLeaveThePixelAndFullCoverageIsTheTextColour) {
  const TextInk ink(RGB(0x20, 0x40, 0xC0));
  EXPECT_EQ(ink.pixel(), 0x2040C0u);
  for (const uint32_t under : {0x000000u, 0xFFFFFFu, 0x123456u}) {
    EXPECT_EQ(ink.Over(under, 0), under);
    EXPECT_EQ(ink.Over(under, 1), under);
    EXPECT_EQ(ink.Over(under, kFullLevel), 0x2040C0u);
  }
}

// Black on white a level L pixel takes the ramp's value for 16 - L, white on
// black its value for L: the ramp is 0, 4d, 68, 7c, 8c, 9a, a7, b2, bd, c7,
// d0, d9, e1, e9, f0, f8, ff.
TEST(SoftSmoothedGlyph, LevelsFollowTheTextRampNotStraightAlpha) {
  const TextInk black(RGB(0, 0, 0));
  EXPECT_EQ(black.Over(0xFFFFFF, 2), 0xF0F0F0u);
  EXPECT_EQ(black.Over(0xFFFFFF, 8), 0xBDBDBDu);
  EXPECT_EQ(black.Over(0xFFFFFF, 15), 0x4D4D4Du);
  const TextInk white(RGB(255, 255, 255));
  EXPECT_EQ(white.Over(0x000000, 2), 0x686868u);
  EXPECT_EQ(white.Over(0x000000, 8), 0xBDBDBDu);
  EXPECT_EQ(white.Over(0x000000, 15), 0xF8F8F8u);
}

TEST(SoftSmoothedGlyph, MoreCoverageNeverMovesAwayFromTheText) {
  const TextInk ink(RGB(0x20, 0x40, 0xC0));
  for (const uint32_t under : {0xFFFFFFu, 0x000000u, 0xF0E8D0u, 0x20FF00u}) {
    uint32_t previous = under;
    for (uint8_t level = 2; level <= kFullLevel; ++level) {
      const uint32_t now = ink.Over(under, level);
      for (const int shift : {0, 8, 16}) {
        const int text = static_cast<int>((ink.pixel() >> shift) & 0xFF);
        const int before = static_cast<int>((previous >> shift) & 0xFF);
        const int after = static_cast<int>((now >> shift) & 0xFF);
        EXPECT_LE(std::abs(after - text), std::abs(before - text))
            << std::hex << under << " level " << std::dec << int{level} << " shift " << shift;
      }
      previous = now;
    }
  }
}

TEST(SoftSmoothedGlyph, ChannelsEqualToTheTextStayPut) {
  const TextInk ink(RGB(0x80, 0x00, 0xFF));
  const uint32_t under = 0x80FF00;  // red equals the text's; green and blue are its opposites
  for (uint8_t level = 2; level < kFullLevel; ++level) {
    EXPECT_EQ(ink.Over(under, level) >> 16, 0x80u) << int{level};
  }
}

}  // namespace
