#pragma once
// Ellipses two pixels wide or high or less, drawn as Rectangle draws them.
// The fast and the reference ellipse share where the fill and the frame go and
// differ only in the painters they pass.

#include <cstdint>

#include "platform/soft/box.h"
#include "platform/soft/objects.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

// The frame is the closed path around the edge pixels with the pen, drawn by
// drawLine(surface, x0, y0, x1, y1, pixel) as one-pixel lines; fillBox(surface,
// box) fills inside it, or [left, right - 1) x [top, bottom - 1) with a null pen.
template <class FillBox, class DrawLine>
void DrawRectangleFrame(const Surface& surface, const Box& box, const Pen& pen, const FillBox& fillBox,
                        const DrawLine& drawLine) {
  if (pen.style == PS_NULL) {
    fillBox(surface, Box{box.left, box.top, box.right - 1, box.bottom - 1});
    return;
  }
  fillBox(surface, Box{box.left + 1, box.top + 1, box.right - 1, box.bottom - 1});
  const uint32_t pixel = PixelOf(pen.color);
  const int64_t right = box.right - 1;
  const int64_t bottom = box.bottom - 1;
  drawLine(surface, box.left, box.top, right, box.top, pixel);
  drawLine(surface, right, box.top, right, bottom, pixel);
  drawLine(surface, right, bottom, box.left, bottom, pixel);
  drawLine(surface, box.left, bottom, box.left, box.top, pixel);
}

}  // namespace vorlex::gdi::soft
