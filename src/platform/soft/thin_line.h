#pragma once
// One-pixel lines (pen width 0 or 1): from the start up to but not including
// the end point.

#include <cstdint>

#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

// Bresenham over max(|dx|, |dy|) steps; a half-way tie goes to the smaller y on
// x-major lines and to the smaller x on y-major lines, whatever the direction.
// Only the steps that land on the surface are visited, so the cost is bounded
// by the surface, not by the coordinates.
void DrawThinLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, uint32_t pixel);

}  // namespace vorlex::gdi::soft
