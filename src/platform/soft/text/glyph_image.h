#pragma once
// One glyph as GDI draws it without antialiasing: a one-bit image placed
// relative to the pen, and the advance that moves the pen on; and the width
// GetTextExtentPoint counts for it.

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
};

struct GlyphImage {
  int32_t left = 0;   // pen to the image's left column
  int32_t top = 0;    // pen up to the image's top row
  int32_t width = 0;  // 0 when the glyph draws nothing
  int32_t height = 0;
  int32_t pitch = 0;          // bytes per row
  std::vector<uint8_t> bits;  // top row first; bit 0x80 >> (x % 8) of byte x / 8 is column x
  int32_t advanceX = 0;       // pixels, right
  int32_t advanceY = 0;       // pixels, down

  bool Lit(int32_t x, int32_t y) const {
    return (bits[static_cast<size_t>(y) * static_cast<size_t>(pitch) + static_cast<size_t>(x / 8)] &
            (0x80 >> (x % 8))) != 0;
  }
};

// Nothing when FreeType cannot load the glyph.
std::optional<GlyphImage> RenderGlyph(FT_Face face, FT_UInt index, const GlyphStyle& style);
std::optional<int32_t> GlyphWidth(FT_Face face, FT_UInt index, const GlyphStyle& style);

}  // namespace vorlex::gdi::soft::text
