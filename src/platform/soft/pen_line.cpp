#include "platform/soft/pen_line.h"

#include "platform/soft/thin_line.h"
#include "platform/soft/wide_line.h"

namespace vorlex::gdi::soft {

void DrawPenLine(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1) {
  if (pen.style == PS_NULL) return;
  const uint32_t pixel = PixelOf(pen.color);
  if (pen.width <= 1) {
    DrawThinLine(surface, x0, y0, x1, y1, pixel);
  } else {
    DrawWideLine(surface, x0, y0, x1, y1, pen.width, pixel);
  }
}

}  // namespace vorlex::gdi::soft
