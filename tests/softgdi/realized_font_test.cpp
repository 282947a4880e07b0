// Logical fonts made real: sizes, metrics, synthetic bold, bitmap fonts not
// rotating, missing characters.

#include "platform/soft/text/realized_font.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>
#include <memory>
#include <string_view>

#include "platform/soft/text/text_run.h"

namespace {

using vorlex::gdi::FW_BOLD;
using vorlex::gdi::LOGFONTA;
using vorlex::gdi::soft::text::MeasureRun;
using vorlex::gdi::soft::text::RealizedFont;

std::unique_ptr<RealizedFont> Realize(const char* face, int32_t height, int32_t escapement = 0, int32_t weight = 0) {
  LOGFONTA font{};
  font.lfHeight = height;
  font.lfEscapement = escapement;
  font.lfWeight = weight;
  std::strncpy(font.lfFaceName, face, sizeof font.lfFaceName - 1);
  return RealizedFont::Create(font);
}

bool HaveWineFonts() {
  struct stat info {};
  return stat("/usr/share/wine/fonts/sserife.fon", &info) == 0;
}

TEST(SoftRealizedFont, BitmapSansSerifHasItsCellsAndNoEscapement) {
  if (!HaveWineFonts()) GTEST_SKIP() << "fonts-wine is not installed";
  const auto small = Realize("MS Sans Serif", -11, 900);
  ASSERT_NE(small, nullptr);
  EXPECT_EQ(small->Metrics().ascent, 11);
  EXPECT_EQ(small->Metrics().descent, 2);
  EXPECT_FALSE(small->Metrics().outline);
  EXPECT_EQ(small->Escapement(), 0) << "GDI does not rotate bitmap fonts";
  const auto largest = Realize("MS Sans Serif", -16);
  const auto doubled = Realize("MS Sans Serif", -32);
  ASSERT_NE(largest, nullptr);
  ASSERT_NE(doubled, nullptr);
  EXPECT_EQ(largest->Metrics().Height(), 20);
  EXPECT_EQ(doubled->Metrics().Height(), 40) << "the 20-pixel cell doubled";
  EXPECT_EQ(doubled->CharWidth(u'i'), 2 * largest->CharWidth(u'i'));
}

TEST(SoftRealizedFont, SyntheticBoldWidensBitmapCharactersByAPixel) {
  if (!HaveWineFonts()) GTEST_SKIP() << "fonts-wine is not installed";
  const auto regular = Realize("MS Sans Serif", -11);
  const auto bold = Realize("MS Sans Serif", -11, 0, FW_BOLD);
  ASSERT_NE(regular, nullptr);
  ASSERT_NE(bold, nullptr);
  for (char16_t c : std::u16string_view(u"AiW,")) {
    EXPECT_EQ(bold->CharWidth(c), regular->CharWidth(c) + 1);
  }
}

TEST(SoftRealizedFont, OutlineFontsKeepTheirEscapementAndOutlineMetrics) {
  const auto font = Realize("DejaVu Sans", -11, 900);
  ASSERT_NE(font, nullptr);
  EXPECT_EQ(font->Escapement(), 900);
  EXPECT_TRUE(font->Metrics().outline);
  EXPECT_EQ(font->Metrics().ascent + font->Metrics().descent, MeasureRun(*font, u"x").cy);
}

TEST(SoftRealizedFont, MissingCharactersDrawTheFontsDefaultGlyph) {
  const auto font = Realize("DejaVu Sans", -11);
  ASSERT_NE(font, nullptr);
  const auto* missing = font->Glyph(u'\uE000');
  ASSERT_NE(missing, nullptr);
  EXPECT_GT(missing->width, 0) << ".notdef is a box";
  EXPECT_GT(font->CharWidth(u'\uE000'), 0);
}

TEST(SoftRealizedFont, EmptyRunMeasuresNothing) {
  const auto font = Realize("DejaVu Sans", -11);
  ASSERT_NE(font, nullptr);
  EXPECT_EQ(MeasureRun(*font, u"").cx, 0);
  EXPECT_EQ(MeasureRun(*font, u"").cy, 0);
}

}  // namespace
