#pragma once
// One glyph as GDI draws it: an image of coverage levels placed relative to
// the pen, and the advance that moves the pen on; and the width
// GetTextExtentPoint counts for it. Like GDI's text cache, every glyph holds
// 17 levels (0 to 16) a pixel; a one-bit glyph holds only 0 and 16.

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/soft/text/freetype_face.h"
#include "platform/soft/text/glyph_geometry.h"

namespace vorlex::gdi::soft::text {

// What a font does to every glyph.
struct GlyphStyle {
  int32_t pixelsPerEm = 0;
  bool fakeBold = false;
  // Glyph boxes are cut to the face's unscaled ascent and descent (pixels).
  int32_t ascent = 0;
  int32_t descent = 0;
  GlyphTransform transform;
  // Grayscale font smoothing: outlines are hinted and scanned for gray
  // levels rather than for one bit.
  bool smoothed = false;
};

// The coverage a glyph pixel has when fully inked.
inline constexpr uint8_t kFullLevel = 16;

struct GlyphImage {
  int32_t left = 0;   // pen to the image's left column
  int32_t top = 0;    // pen up to the image's top row
  int32_t width = 0;  // 0 when the glyph draws nothing
  int32_t height = 0;
  std::vector<uint8_t> levels;  // width bytes a row, top row first; 0..kFullLevel
  int32_t advanceX = 0;         // pixels, right
  int32_t advanceY = 0;         // pixels, down

  uint8_t Level(int32_t x, int32_t y) const {
    return levels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
  }
};

// Nothing when FreeType cannot load the glyph.
std::optional<GlyphImage> RenderGlyph(FT_Face face, FT_UInt index, const GlyphStyle& style);
std::optional<int32_t> GlyphWidth(FT_Face face, FT_UInt index, const GlyphStyle& style);

}  // namespace vorlex::gdi::soft::text
