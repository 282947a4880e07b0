#include "platform/soft/brush_paint.h"

namespace vorlex::gdi::soft {

bool HatchLit(int style, int64_t x, int64_t y) {
  const uint8_t row = kHatchRows[static_cast<size_t>(style)][Mod8(y)];
  return (row & (0x80u >> Mod8(x))) != 0;
}

BrushPaint::BrushPaint(const Brush& brush, const DeviceContext& dc)
    : foreground_(PixelOf(brush.color)),
      background_(PixelOf(dc.bkColor)),
      hatch_(brush.Hatched() ? brush.hatch : -1),
      opaque_(dc.bkMode == OPAQUE),
      originX_(dc.brushOrigin.x),
      originY_(dc.brushOrigin.y) {}

void BrushPaint::operator()(int64_t x, int64_t y, uint32_t& target) const {
  if (hatch_ < 0 || HatchLit(hatch_, x - originX_, y - originY_)) {
    target = foreground_;
  } else if (opaque_) {
    target = background_;
  }
}

}  // namespace vorlex::gdi::soft
