#pragma once
// Filling a polygon with integer corners as a GDI region of it does: pixel
// (x, y) is inside when the point (x, y) is, edges on the left and top
// counting as inside and those on the right and bottom not, so the polygon
// (0,0) (4,0) (4,2) (0,2) fills x = 0..3, y = 0..1. Overlaps cancel in pairs
// (alternate filling).

#include <cstdint>
#include <span>

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft::text {

// Paints the inside of `corners`, limited to `clip` and the surface.
void FillPolygon(const Surface& surface, std::span<const POINT> corners, const Box& clip, uint32_t pixel);

}  // namespace vorlex::gdi::soft::text
