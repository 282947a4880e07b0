// ExtTextOutA with the default alignment: (x, y) is the top-left corner of the
// text cell; glyph pixels in the text colour, the cell in the background
// colour when the mode is OPAQUE, nothing outside the rectangle of
// ETO_CLIPPED. Glyphs of the bitmap font are compared pixel for pixel; those
// of outline fonts by their bounds, placement being the fact.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "canvas.h"
#include "picture.h"
#include "platform/gdi.h"
#include "text_fonts.h"

namespace vorlex::gdi_conformance {
namespace {

const std::vector<Ink> kInks = {kPaper, kPen, kBack};

// "Hg" in the bitmap font at an 11-pixel em, drawn at (5, 5): the cell is
// x = 5..18, y = 5..17, the baseline y = 16.
Picture SansSerifHg(char unlit) {
  std::vector<std::string> rows = {"o....o.......", "o....o.......", "o....o.......", "o....o...ooo.",
                                   "oooooo..o...o", "o....o..o...o", "o....o..o...o", "o....o..o...o",
                                   "o....o...oooo", "............o", ".........ooo."};
  for (std::string& row : rows) {
    for (char& c : row) c = c == '.' ? unlit : c;
  }
  return Picture(6, 7, rows);
}

// Draws `text` at (x, y) in a font made from `font` on a paper canvas.
void Draw(const Canvas& canvas, const gdi::LOGFONTA& font, int x, int y, const std::string& text, int mode,
          unsigned options = 0, const gdi::RECT* clip = nullptr) {
  Owned<gdi::HFONT> made(MakeFont(font));
  ASSERT_NE(made.get(), nullptr);
  Selection selected(canvas.dc(), made.get());
  gdi::SetBkMode(canvas.dc(), mode);
  gdi::SetBkColor(canvas.dc(), kBack.colour);
  gdi::SetTextColor(canvas.dc(), kPen.colour);
  EXPECT_NE(
      gdi::ExtTextOutA(canvas.dc(), x, y, options, clip, text.c_str(), static_cast<unsigned>(text.size()), nullptr), 0);
}

gdi::SIZE ExtentOf(const Canvas& canvas, const gdi::LOGFONTA& font, const std::string& text) {
  Owned<gdi::HFONT> made(MakeFont(font));
  Selection selected(canvas.dc(), made.get());
  gdi::SIZE size{0, 0};
  gdi::GetTextExtentPoint32A(canvas.dc(), text.c_str(), static_cast<int>(text.size()), &size);
  return size;
}

TEST(TextDrawing, BitmapFontGlyphsSitInTheirCell) {
  Canvas canvas(30, 24);
  canvas.Fill(kPaper.colour);
  Draw(canvas, LogFont(kSansSerif, -11), 5, 5, "Hg", gdi::TRANSPARENT);
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.').Paint(SansSerifHg('.')), kInks));
}

TEST(TextDrawing, OpaqueModePaintsTheCellFirst) {
  Canvas canvas(30, 24);
  canvas.Fill(kPaper.colour);
  Draw(canvas, LogFont(kSansSerif, -11), 5, 5, "Hg", gdi::OPAQUE);
  Picture expected = Picture(canvas.bounds(), '.').Paint({5, 5, 19, 18}, '-').Paint(SansSerifHg('?'));
  EXPECT_TRUE(Shows(canvas.Read(), expected, kInks));
}

TEST(TextDrawing, TransparentModePaintsOnlyGlyphPixelsInTheTextColour) {
  Canvas canvas(30, 24);
  canvas.Fill(kPaper.colour);
  Draw(canvas, LogFont(kOutline, -11), 5, 5, "Hg", gdi::TRANSPARENT);
  const gdi::Pixels pixels = canvas.Read();
  int ink = 0;
  for (uint32_t pixel : pixels.argb) {
    EXPECT_TRUE(pixel == kPaper.pixel || pixel == kPen.pixel) << std::hex << pixel;
    ink += pixel == kPen.pixel ? 1 : 0;
  }
  EXPECT_GT(ink, 20);
  EXPECT_TRUE(SameRect(BoundsOf(pixels, kPen.pixel), {6, 7, 19, 17}));
}

// Whatever the text, its pixels lie in its cell: right of x, below y, within
// the extent.
TEST(TextDrawing, PixelsStayInTheCell) {
  for (const char* face : {kSansSerif, kOutline}) {
    for (const std::string text : {"Hello, World", "WWW", "Tiger gypsy"}) {
      Canvas canvas(110, 30);
      canvas.Fill(kPaper.colour);
      const gdi::SIZE extent = ExtentOf(canvas, LogFont(face, -11), text);
      Draw(canvas, LogFont(face, -11), 7, 9, text, gdi::TRANSPARENT);
      const gdi::RECT bounds = BoundsOf(canvas.Read(), kPen.pixel);
      EXPECT_GE(bounds.left, 7) << face << ": " << text;
      EXPECT_GE(bounds.top, 9) << face << ": " << text;
      EXPECT_LE(bounds.right, 7 + extent.cx) << face << ": " << text;
      EXPECT_LE(bounds.bottom, 9 + extent.cy) << face << ": " << text;
    }
  }
}

TEST(TextDrawing, ClippedTextStaysInsideTheRectangle) {
  Canvas canvas(40, 24);
  canvas.Fill(kPaper.colour);
  const gdi::RECT clip{7, 7, 25, 14};
  Draw(canvas, LogFont(kSansSerif, -11), 5, 5, "HHHH", gdi::TRANSPARENT, gdi::ETO_CLIPPED, &clip);
  EXPECT_TRUE(SameRect(BoundsOf(canvas.Read(), kPen.pixel), clip)) << "the H strokes reach every edge of it";
}

TEST(TextDrawing, ClippedOpaqueCellStaysInsideTheRectangle) {
  Canvas canvas(40, 24);
  canvas.Fill(kPaper.colour);
  const gdi::RECT clip{7, 3, 12, 30};
  Draw(canvas, LogFont(kSansSerif, -11), 5, 5, "Hg", gdi::OPAQUE, gdi::ETO_CLIPPED, &clip);
  Picture expected = Picture(canvas.bounds(), '.').Paint({7, 5, 12, 18}, '-');
  expected.Paint("7:11 8:11 9:11 10:11 11:7..11 12:11 13:11 14:11 15:11", 'o');
  EXPECT_TRUE(Shows(canvas.Read(), expected, kInks));
}

// The underline of the bitmap font is one pixel on the baseline row (the first
// row under the ascent) across the whole advance; its strike-out crosses at
// half the ascent above the baseline.
TEST(TextDrawing, UnderlineAndStrikeOutRunAcrossTheAdvance) {
  for (const bool underline : {true, false}) {
    Canvas canvas(30, 24);
    canvas.Fill(kPaper.colour);
    gdi::LOGFONTA font = LogFont(kSansSerif, -11);
    font.lfUnderline = underline ? 1 : 0;
    font.lfStrikeOut = underline ? 0 : 1;
    Draw(canvas, font, 5, 5, "Hg", gdi::TRANSPARENT);
    Picture expected = Picture(canvas.bounds(), '.').Paint(SansSerifHg('.'));
    expected.Paint(underline ? "16:5..18" : "11:5..18", 'o');
    EXPECT_TRUE(Shows(canvas.Read(), expected, kInks)) << (underline ? "underline" : "strike-out");
  }
}

TEST(TextDrawing, OutlineFontUnderlineRunsUnderTheBaseline) {
  Canvas canvas(30, 24);
  canvas.Fill(kPaper.colour);
  gdi::LOGFONTA font = LogFont(kOutline, -11);
  font.lfUnderline = 1;
  Draw(canvas, font, 5, 5, "Hg", gdi::TRANSPARENT);
  const gdi::Pixels pixels = canvas.Read();
  for (int x = 0; x < pixels.width; ++x) {
    EXPECT_EQ(pixels.At(x, 15) == kPen.pixel, x >= 5 && x < 20) << "x = " << x;
  }
  EXPECT_TRUE(SameRect(BoundsOf(pixels, kPen.pixel), {5, 7, 20, 17}));
}

// At 90 degrees the baseline runs up from (x + ascent, y): the underline is
// the column x + ascent from y - 1 up by the advance, and the glyphs stand to
// its left (ascent) and right (descent).
TEST(TextDrawing, RotatedTextRunsUpFromTheReferencePoint) {
  Canvas canvas(30, 50);
  canvas.Fill(kPaper.colour);
  Draw(canvas, LogFont(kOutline, -11, 900), 5, 40, "Hg", gdi::TRANSPARENT);
  EXPECT_TRUE(SameRect(BoundsOf(canvas.Read(), kPen.pixel), {7, 26, 17, 39}));

  canvas.Fill(kPaper.colour);
  gdi::LOGFONTA underlined = LogFont(kOutline, -11, 900);
  underlined.lfUnderline = 1;
  Draw(canvas, underlined, 5, 40, "Hg", gdi::TRANSPARENT);
  const gdi::Pixels pixels = canvas.Read();
  for (int y = 0; y < pixels.height; ++y) {
    EXPECT_EQ(pixels.At(15, y) == kPen.pixel, y >= 25 && y < 40) << "y = " << y;
  }
  EXPECT_TRUE(SameRect(BoundsOf(pixels, kPen.pixel), {7, 25, 17, 40}));
}

// GDI does not rotate bitmap fonts: with an escapement they draw as without.
TEST(TextDrawing, BitmapFontIgnoresTheEscapement) {
  Canvas canvas(30, 24);
  canvas.Fill(kPaper.colour);
  Draw(canvas, LogFont(kSansSerif, -11, 900), 5, 5, "Hg", gdi::TRANSPARENT);
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.').Paint(SansSerifHg('.')), kInks));
}

TEST(TextDrawing, EmptyStringDrawsNothing) {
  Canvas canvas(20, 20);
  canvas.Fill(kPaper.colour);
  Draw(canvas, LogFont(kSansSerif, -11), 2, 2, "", gdi::OPAQUE);
  EXPECT_TRUE(Shows(canvas.Read(), Picture(canvas.bounds(), '.'), kInks));
}

}  // namespace
}  // namespace vorlex::gdi_conformance
