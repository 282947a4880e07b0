#pragma once
// The shape of a wide pen's slanted body: what the fast and the reference
// painters share, so that they differ only in how they write pixels.

#include <array>
#include <cstdint>

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

// The quadrilateral a pen of this width sweeps from p0 to p1 (not axis-aligned).
Quad SlantedBodyQuad(Corner p0, Corner p1, int64_t width);

}  // namespace vorlex::gdi::soft
