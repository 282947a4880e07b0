#include "platform/soft/pen_line.h"

#include "platform/soft/thin_line.h"
#include "platform/soft/wide_line.h"

namespace vorlex::gdi::soft {

void DrawPenLineWith(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1,
                     ThinLinePainter thin, WideLinePainter wide) {
  if (pen.style == PS_NULL) return;
  const uint32_t pixel = PixelOf(pen.color);
  if (pen.width <= 1) {
    thin(surface, x0, y0, x1, y1, pixel);
  } else {
    wide(surface, x0, y0, x1, y1, pen.width, pixel);
  }
}

void DrawPenLine(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1) {
  DrawPenLineWith(surface, pen, x0, y0, x1, y1, DrawThinLine, DrawWideLine);
}

}  // namespace vorlex::gdi::soft
