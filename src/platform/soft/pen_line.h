#pragma once
// LineTo's pixels: nothing with a null pen, a one-pixel line with a pen of
// width 0 or 1, a geometric line with a wider one.

#include <cstdint>

#include "platform/soft/objects.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

void DrawPenLine(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1);

}  // namespace vorlex::gdi::soft
