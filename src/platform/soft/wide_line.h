#pragma once
// Lines drawn with a geometric pen (width > 1): a body and a round cap of
// diameter `width` on each end point. Separate segments have no joins.

#include <cstdint>

#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

// Horizontal: x in [min, max), rows y - width/2 .. y - width/2 + width - 1
// (an even width puts the extra row above); vertical alike with columns.
// Other slopes: the quadrilateral whose corners are the end points moved
// across the line by the pen's half extents, rounded to whole pixels with the
// larger half on the side of larger x, filled row by row (a pixel belongs to a
// row's span when its centre is at or right of the left edge and left of the
// right edge, and edges cover the rows from their upper end to just above
// their lower end).
// Caps: the elliptic region of the width x width box whose left-top corner is
// the end point minus width/2 (a square when width <= 2).
void DrawWideLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, int64_t width,
                  uint32_t pixel);

}  // namespace vorlex::gdi::soft
