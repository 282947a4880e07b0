#pragma once
// The plain drawing path: every pixel decided on its own through PaintSpan,
// PaintPixel and BrushPaint, with no shortcut. The drawing calls use the fast
// functions of the same names and signatures; these define the pixels those
// must produce, and the tests hold the two to each other on random scenes.

#include <cstdint>

#include "platform/soft/box.h"
#include "platform/soft/objects.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft::reference {

// FillRect: the box, clipped to the surface, with the brush.
void FillBox(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc);

// Ellipse with an ordered, non-empty box.
void DrawEllipse(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc, const Pen& pen);

// Lines as thin_line.h and wide_line.h describe them, and LineTo's choice
// between the two by the pen.
void DrawThinLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, uint32_t pixel);
void DrawWideLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, int64_t width,
                  uint32_t pixel);
void DrawPenLine(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1);

// BitBlt SRCCOPY of the width x height extent at (x, y) from (sourceX, sourceY):
// each pixel whose destination and source both lie on their surfaces, every
// source pixel read before any is written.
void Blit(const Surface& destination, int64_t x, int64_t y, int64_t width, int64_t height, const Surface& source,
          int64_t sourceX, int64_t sourceY);

}  // namespace vorlex::gdi::soft::reference
