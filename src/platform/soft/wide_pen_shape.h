#pragma once
// The shapes a wide pen covers, its body and its caps: what the fast and the
// reference painters share, so that they differ only in how they write pixels.

#include <array>
#include <cstdint>
#include <optional>

#include "platform/soft/box.h"

namespace vorlex::gdi::soft {

struct Corner {
  int64_t x;
  int64_t y;
};
using Quad = std::array<Corner, 4>;

// Doubles to integers, clamped far inside int64 so no conversion overflows;
// any value past the clamp is far off every surface anyway.
int64_t RoundHalfUp(double value);
int64_t Ceil(double value);

// The body of a horizontal or vertical line from p0 to p1 (empty for a point);
// nullopt for any other slope.
std::optional<Box> StraightBodyBox(Corner p0, Corner p1, int64_t width);

// The quadrilateral a pen of this width sweeps from p0 to p1 (not axis-aligned).
Quad SlantedBodyQuad(Corner p0, Corner p1, int64_t width);

// The rows y in [first, end) that the quadrilateral's corners span and that
// lie on a surface `surfaceHeight` rows high.
struct QuadRows {
  int64_t first;
  int64_t end;
};
QuadRows VisibleRowsOf(const Quad& corners, int64_t surfaceHeight);

// The width x width box that holds the cap on end point p.
inline Box CapBox(Corner p, int64_t width) {
  const int64_t left = p.x - width / 2;
  const int64_t top = p.y - width / 2;
  return {left, top, left + width, top + width};
}

}  // namespace vorlex::gdi::soft
