#include "platform/soft/text/glyph_geometry.h"

#include FT_GLYPH_H
#include FT_TRIGONOMETRY_H

#include <algorithm>

namespace vorlex::gdi::soft::text {
namespace {

constexpr FT_Fixed kOne = 1 << 16;
constexpr FT_Pos kPixel = 64;

FT_Pos Floor(FT_Pos value) { return value & -kPixel; }
FT_Pos Ceiling(FT_Pos value) { return (value + kPixel - 1) & -kPixel; }

// A vector scaled to one pixel's length.
FT_Vector OnePixelAlong(FT_Vector direction) {
  const FT_Fixed length = FT_Vector_Length(&direction);
  if (length == 0) return {0, 0};
  return {direction.x * kPixel / length, direction.y * kPixel / length};
}

}  // namespace

GlyphTransform MakeGlyphTransform(int32_t scale, bool slant, int32_t tenths) {
  GlyphTransform t;
  if (scale != 1) {
    const FT_Matrix scaling{scale * kOne, 0, 0, scale * kOne};
    FT_Matrix_Multiply(&scaling, &t.unrotated);
    t.active = true;
  }
  if (slant) {
    const FT_Matrix shear{kOne, kOne / 4, 0, kOne};
    FT_Matrix_Multiply(&shear, &t.unrotated);
    t.active = true;
  }
  t.rotated = t.unrotated;
  if (tenths % 3600 != 0) {
    FT_Vector unit{};
    FT_Vector_Unit(&unit, FT_MulDiv(kOne, tenths, 10));
    const FT_Matrix rotation{unit.x, -unit.y, unit.y, unit.x};
    FT_Matrix_Multiply(&rotation, &t.rotated);
    t.active = true;
  }
  return t;
}

FT_Vector AdvanceOf(FT_Pos width, bool fakeBold, const FT_Matrix* matrix) {
  FT_Vector advance{width, 0};
  if (matrix != nullptr) FT_Vector_Transform(&advance, matrix);
  if (fakeBold) {
    FT_Vector along{kPixel, 0};
    if (matrix != nullptr) FT_Vector_Transform(&along, matrix);
    const FT_Vector extra = matrix != nullptr ? OnePixelAlong(along) : along;
    advance.x += extra.x;
    advance.y += extra.y;
  }
  return {Ceiling(advance.x), -Ceiling(advance.y)};
}

FT_BBox BoxOf(const FT_Glyph_Metrics& metrics, const FT_Matrix* matrix) {
  if (matrix == nullptr) {
    return {Floor(metrics.horiBearingX), Floor(metrics.horiBearingY - metrics.height),
            Ceiling(metrics.horiBearingX + metrics.width), Ceiling(metrics.horiBearingY)};
  }
  FT_BBox box{0, 0, 0, 0};
  for (int corner = 0; corner < 4; ++corner) {
    FT_Vector v{metrics.horiBearingX + (corner & 1) * metrics.width,
                metrics.horiBearingY - (corner >> 1) * metrics.height};
    FT_Vector_Transform(&v, matrix);
    if (corner == 0) box = {v.x, v.y, v.x, v.y};
    box = {std::min(box.xMin, v.x), std::min(box.yMin, v.y), std::max(box.xMax, v.x), std::max(box.yMax, v.y)};
  }
  return {Floor(box.xMin), Floor(box.yMin), Ceiling(box.xMax), Ceiling(box.yMax)};
}

}  // namespace vorlex::gdi::soft::text
