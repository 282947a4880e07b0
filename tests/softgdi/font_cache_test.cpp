// Realized fonts kept for logical fonts made again.

#include "platform/soft/text/font_cache.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

#include "platform/soft/object_table.h"

namespace {

using vorlex::gdi::LOGFONTA;
using vorlex::gdi::soft::text::Realize;
using vorlex::gdi::soft::text::RealizedFont;

LOGFONTA Outline(int32_t height, int32_t escapement = 0) {
  LOGFONTA font{};
  font.lfHeight = height;
  font.lfEscapement = escapement;
  std::strncpy(font.lfFaceName, "DejaVu Sans", sizeof font.lfFaceName - 1);
  return font;
}

std::shared_ptr<RealizedFont> Realized(const LOGFONTA& font) {
  const auto lock = vorlex::gdi::soft::LockObjects();
  return Realize(font);
}

TEST(SoftFontCache, TheSameLogicalFontFindsTheSameRealizedFont) {
  const auto first = Realized(Outline(-16, 900));
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(Realized(Outline(-16, 900)), first);
}

TEST(SoftFontCache, AnyDifferentFieldMakesAnotherFont) {
  const auto base = Realized(Outline(-16, 900));
  LOGFONTA bold = Outline(-16, 900);
  bold.lfWeight = 700;
  LOGFONTA named = Outline(-16, 900);
  std::strncpy(named.lfFaceName, "DejaVu Serif", sizeof named.lfFaceName - 1);
  for (const LOGFONTA& other : {Outline(-17, 900), Outline(-16, 450), bold, named}) {
    const auto made = Realized(other);
    ASSERT_NE(made, nullptr);
    EXPECT_NE(made, base);
  }
}

// Bytes after the face name's terminator are not part of the name.
TEST(SoftFontCache, BytesAfterTheFaceNameDoNotCount) {
  LOGFONTA dirty = Outline(-15);
  std::memset(dirty.lfFaceName + 12, 'x', sizeof dirty.lfFaceName - 12);
  EXPECT_EQ(Realized(dirty), Realized(Outline(-15)));
}

TEST(SoftFontCache, OnlyTheLatestFontsAreKept) {
  const auto oldest = Realized(Outline(-30));
  std::vector<std::shared_ptr<RealizedFont>> later;
  for (int32_t height = -31; height > -31 - 16; --height) later.push_back(Realized(Outline(height)));
  const auto again = Realized(Outline(-30));
  ASSERT_NE(again, nullptr);
  EXPECT_NE(again, oldest);
  // The one used last is still there.
  EXPECT_EQ(Realized(Outline(-46)), later.back());
}

}  // namespace
