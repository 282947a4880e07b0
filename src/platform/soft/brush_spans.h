#pragma once
// A brush prepared for whole spans: the same pixels BrushPaint gives one at a
// time, written a row at a time. A solid brush fills; a hatch's eight rows are
// laid out once per brush so that a span copies eight pixels per step.

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/soft/box.h"
#include "platform/soft/objects.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

class BrushSpans {
 public:
  BrushSpans(const Brush& brush, const DeviceContext& dc);

  // Row y over x in [x0, x1), clipped to the surface.
  void FillSpan(const Surface& surface, int64_t y, int64_t x0, int64_t x1) const;
  void FillBox(const Surface& surface, const Box& box) const;

 private:
  // One pattern row: which columns are lit (bit 0x80 >> column), and its
  // pixels in OPAQUE mode twice over, so that entries [p, p + 8) are columns
  // p, p + 1, ... (modulo 8) from the brush origin.
  struct HatchRow {
    uint8_t lit;
    std::array<uint32_t, 16> pattern;
  };
  void PrepareHatch(int style, uint32_t background);
  void FillHatchRun(uint32_t* first, size_t count, int64_t x, int64_t y) const;

  uint32_t foreground_;
  bool hatched_;
  bool opaque_;
  int64_t originX_;
  int64_t originY_;
  std::array<HatchRow, 8> rows_;  // only prepared for a hatch
};

// FillRect's pixels: the box, clipped to the surface, with the brush.
void FillBox(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc);

}  // namespace vorlex::gdi::soft
