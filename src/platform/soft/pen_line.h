#pragma once
// LineTo's pixels: nothing with a null pen, a one-pixel line with a pen of
// width 0 or 1, a geometric line with a wider one.

#include <cstdint>

#include "platform/soft/objects.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

void DrawPenLine(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1);

// The same choice by the pen with the given line painters, so that the
// reference lines are chosen exactly as the fast ones.
using ThinLinePainter = void (*)(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1,
                                 uint32_t pixel);
using WideLinePainter = void (*)(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, int64_t width,
                                 uint32_t pixel);
void DrawPenLineWith(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1,
                     ThinLinePainter thin, WideLinePainter wide);

}  // namespace vorlex::gdi::soft
