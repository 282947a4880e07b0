// Fonts as objects and text as measured: GetTextExtentPoint32A sums the
// characters' whole-pixel advances and gives the cell height, whatever the
// escapement.

#include <gtest/gtest.h>

#include <string>

#include "canvas.h"
#include "platform/gdi.h"
#include "text_fonts.h"

namespace vorlex::gdi_conformance {
namespace {

gdi::SIZE Extent(gdi::HDC dc, const std::string& text) {
  gdi::SIZE size{-1, -1};
  EXPECT_NE(gdi::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size), 0) << text;
  return size;
}

// The extent of a text in a font made from `font`.
gdi::SIZE ExtentIn(const gdi::LOGFONTA& font, const std::string& text) {
  Canvas canvas(4, 4);
  Owned<gdi::HFONT> made(MakeFont(font));
  EXPECT_NE(made.get(), nullptr);
  Selection selected(canvas.dc(), made.get());
  return Extent(canvas.dc(), text);
}

::testing::AssertionResult Measures(const gdi::SIZE& size, int cx, int cy) {
  if (size.cx == cx && size.cy == cy) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << size.cx << " x " << size.cy << " instead of " << cx << " x " << cy;
}

TEST(TextExtent, SansSerifAtAnElevenPixelEmHasTheBitmapFontsAdvances) {
  const gdi::LOGFONTA font = LogFont(kSansSerif, -11);
  EXPECT_TRUE(Measures(ExtentIn(font, "Hello, World"), 58, 13));
  EXPECT_TRUE(Measures(ExtentIn(font, "0123456789"), 60, 13));
  EXPECT_TRUE(Measures(ExtentIn(font, "MS Sans Serif"), 67, 13));
  EXPECT_TRUE(Measures(ExtentIn(font, "iiiii"), 10, 13));
  EXPECT_TRUE(Measures(ExtentIn(font, "WWW"), 33, 13));
  EXPECT_TRUE(Measures(ExtentIn(font, "A"), 7, 13));
  EXPECT_TRUE(Measures(ExtentIn(font, "The quick brown fox"), 97, 13));
}

// The UTF-8 string is measured by its characters, not its bytes.
TEST(TextExtent, Utf8CharactersAreMeasuredOnce) {
  EXPECT_TRUE(Measures(ExtentIn(LogFont(kSansSerif, -11), "\xC3\xA9t\xC3\xA9 \xE2\x82\xAC"), 24, 13));
}

// cy is the cell: ascent + descent. The bitmap font comes in 13-, 16- and
// 20-pixel cells (ems of 11, 13 and 16) and GDI takes the largest not above
// the request; a positive height asks for a cell.
TEST(TextExtent, HeightIsTheCellOfTheSizeChosen) {
  EXPECT_EQ(ExtentIn(LogFont(kSansSerif, -8), "A").cy, 13);
  EXPECT_EQ(ExtentIn(LogFont(kSansSerif, -12), "A").cy, 13);
  EXPECT_EQ(ExtentIn(LogFont(kSansSerif, -13), "A").cy, 16);
  EXPECT_EQ(ExtentIn(LogFont(kSansSerif, -15), "A").cy, 16);
  EXPECT_EQ(ExtentIn(LogFont(kSansSerif, -16), "A").cy, 20);
  EXPECT_EQ(ExtentIn(LogFont(kSansSerif, 16), "A").cy, 16);
  EXPECT_TRUE(Measures(ExtentIn(LogFont(kSansSerif, -13), "Hello, World"), 74, 16));
  EXPECT_TRUE(Measures(ExtentIn(LogFont(kOutline, -11), "Hello, World"), 69, 13));
  EXPECT_TRUE(Measures(ExtentIn(LogFont(kOutline, -13), "Hello, World"), 80, 15));
}

// Beyond twice its largest cell a bitmap font is scaled by a whole factor.
TEST(TextExtent, BitmapFontScalesByWholeFactors) {
  EXPECT_TRUE(Measures(ExtentIn(LogFont(kSansSerif, -27), "Hello, World"), 85, 20));
  EXPECT_TRUE(Measures(ExtentIn(LogFont(kSansSerif, -32), "Hello, World"), 170, 40));
}

TEST(TextExtent, EscapementDoesNotChangeTheExtent) {
  for (const char* face : {kSansSerif, kOutline}) {
    const gdi::SIZE flat = ExtentIn(LogFont(face, -11), "Hello, World");
    for (int32_t escapement : {450, 900, 1800, 2700}) {
      EXPECT_TRUE(Measures(ExtentIn(LogFont(face, -11, escapement), "Hello, World"), flat.cx, flat.cy))
          << face << " at " << escapement;
    }
  }
}

// A synthetic bold widens every character of the bitmap font by a pixel.
TEST(TextExtent, BoldBitmapFontAddsAPixelPerCharacter) {
  gdi::LOGFONTA font = LogFont(kSansSerif, -11);
  font.lfWeight = gdi::FW_BOLD;
  EXPECT_TRUE(Measures(ExtentIn(font, "Hello, World"), 70, 13));
  EXPECT_TRUE(Measures(ExtentIn(font, "iiiii"), 15, 13));
}

TEST(TextExtent, EmptyStringMeasuresNothing) { EXPECT_TRUE(Measures(ExtentIn(LogFont(kSansSerif, -11), ""), 0, 0)); }

TEST(TextExtent, ScreenHasNinetySixPixelsPerInch) {
  gdi::HDC screen = gdi::GetDC(nullptr);
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(gdi::GetDeviceCaps(screen, gdi::LOGPIXELSY), 96);
  gdi::ReleaseDC(nullptr, screen);
}

TEST(FontObject, SelectObjectReturnsThePreviousFont) {
  Canvas canvas(4, 4);
  Owned<gdi::HFONT> first(MakeFont(LogFont(kSansSerif, -11)));
  Owned<gdi::HFONT> second(MakeFont(LogFont(kOutline, -13)));
  ASSERT_NE(first.get(), nullptr);
  ASSERT_NE(second.get(), nullptr);
  const gdi::HGDIOBJ original = gdi::SelectObject(canvas.dc(), first.get());
  EXPECT_NE(original, nullptr) << "a context starts with a font of its own";
  EXPECT_EQ(gdi::SelectObject(canvas.dc(), second.get()), static_cast<gdi::HGDIOBJ>(first.get()));
  EXPECT_EQ(Extent(canvas.dc(), "Hello, World").cy, 15) << "the font selected last measures";
  EXPECT_EQ(gdi::SelectObject(canvas.dc(), original), static_cast<gdi::HGDIOBJ>(second.get()));
}

TEST(FontObject, FontsAreCountedAndFreed) {
  Canvas canvas(2, 2);
  const size_t base = gdi::LiveObjectCount();
  if (base == 0) GTEST_SKIP() << "this backend does not count its objects";
  gdi::HFONT font = MakeFont(LogFont(kSansSerif, -11));
  ASSERT_NE(font, nullptr);
  EXPECT_EQ(gdi::LiveObjectCount(), base + 1);
  EXPECT_NE(gdi::DeleteObject(font), 0);
  EXPECT_EQ(gdi::LiveObjectCount(), base);
}

// Deleted while selected, a font still measures until it is deselected; then
// it is gone and deleting it again fails.
TEST(FontObject, SelectedFontLivesUntilDeselected) {
  Canvas canvas(2, 2);
  gdi::HFONT font = MakeFont(LogFont(kSansSerif, -13));
  ASSERT_NE(font, nullptr);
  const gdi::HGDIOBJ previous = gdi::SelectObject(canvas.dc(), font);
  EXPECT_NE(gdi::DeleteObject(font), 0);
  EXPECT_EQ(Extent(canvas.dc(), "A").cy, 16);
  EXPECT_EQ(gdi::SelectObject(canvas.dc(), previous), static_cast<gdi::HGDIOBJ>(font));
  EXPECT_EQ(gdi::DeleteObject(font), 0);
}

TEST(TextColour, StartsBlackAndSetTextColorReturnsThePreviousOne) {
  Canvas canvas(2, 2);
  EXPECT_EQ(gdi::SetTextColor(canvas.dc(), kPen.colour), gdi::RGB(0, 0, 0));
  EXPECT_EQ(gdi::SetTextColor(canvas.dc(), kBrush.colour), kPen.colour);
}

}  // namespace
}  // namespace vorlex::gdi_conformance
