#pragma once
// How a brush paints a pixel: solid, or one of the six 8x8 hatch patterns
// anchored at the DC's brush origin, its unlit pixels painted with the
// background colour in OPAQUE mode and left alone in TRANSPARENT mode.

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/soft/objects.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

// One byte per row, row 0 first; bit 0x80 >> x lights column x. Indexed by
// HS_HORIZONTAL .. HS_DIAGCROSS.
inline constexpr int kHatchStyleCount = 6;
inline constexpr std::array<std::array<uint8_t, 8>, kHatchStyleCount> kHatchRows = {{
    {0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00, 0x00},  // HS_HORIZONTAL
    {0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08},  // HS_VERTICAL
    {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},  // HS_FDIAGONAL
    {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},  // HS_BDIAGONAL
    {0x08, 0x08, 0x08, 0xFF, 0x08, 0x08, 0x08, 0x08},  // HS_CROSS
    {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81},  // HS_DIAGCROSS
}};

// The non-negative remainder modulo 8 (two's complement): a pattern row or
// column from any coordinate.
inline size_t Mod8(int64_t value) { return static_cast<size_t>(value & 7); }

// Whether pattern pixel (x, y), relative to the brush origin, is lit.
bool HatchLit(int style, int64_t x, int64_t y);

// A brush as the DC's current state applies it; the background mode and colour
// are taken when the paint is made, i.e. at the fill.
class BrushPaint {
 public:
  BrushPaint(const Brush& brush, const DeviceContext& dc);
  void operator()(int64_t x, int64_t y, uint32_t& target) const;

 private:
  uint32_t foreground_;
  uint32_t background_;
  int hatch_;
  bool opaque_;
  int64_t originX_;
  int64_t originY_;
};

}  // namespace vorlex::gdi::soft
