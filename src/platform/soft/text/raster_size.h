#pragma once
// How GDI sizes a bitmap font: it picks one of the sizes the font has and
// may scale it by a whole factor, never in between.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorlex::gdi::soft::text {

struct RasterSize {
  int32_t cellHeight = 0;       // ascent + descent
  int32_t internalLeading = 0;  // the cell height less the em height
};

// The size drawn for lfHeight (> 0 a cell height, < 0 an em height, 0 the
// first size): the largest not above the request, else the smallest.
// `sizes` is never empty.
size_t PickRasterSize(const std::vector<RasterSize>& sizes, int32_t lfHeight);

// The whole factor that size is scaled by: the next multiple of its cell
// height is taken only when within a quarter cell of the request (one pixel
// less for doubling).
int32_t RasterScale(const RasterSize& size, int32_t lfHeight);

}  // namespace vorlex::gdi::soft::text
