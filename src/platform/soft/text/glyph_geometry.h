#pragma once
// The geometry GDI gives glyphs: the transformations a font applies (a whole
// scale and a synthetic slant before any rotation), advances rounded up to
// whole pixels, and pixel-aligned boxes. Lengths are FreeType's 26.6 fixed
// point; y grows upward as in FreeType.

#include <cstdint>

#include "platform/soft/text/freetype_face.h"

namespace vorlex::gdi::soft::text {

struct GlyphTransform {
  bool active = false;                          // something other than the identity
  FT_Matrix unrotated{1 << 16, 0, 0, 1 << 16};  // scale, then slant
  FT_Matrix rotated{1 << 16, 0, 0, 1 << 16};    // the above, then rotated
};

// `scale` a whole factor (bitmap fonts), `slant` the synthetic italic,
// `tenths` a counter-clockwise rotation in tenths of a degree (outline fonts).
GlyphTransform MakeGlyphTransform(int32_t scale, bool slant, int32_t tenths);

// A glyph's advance from its 26.6 advance width through an optional matrix,
// a synthetic bold adding one pixel along the baseline, each coordinate
// rounded up to a whole pixel; y is returned pointing down.
FT_Vector AdvanceOf(FT_Pos width, bool fakeBold, const FT_Matrix* matrix);

// The whole-pixel box around a glyph's metrics box through an optional matrix.
FT_BBox BoxOf(const FT_Glyph_Metrics& metrics, const FT_Matrix* matrix);

}  // namespace vorlex::gdi::soft::text
