#include "platform/soft/text/raster_size.h"

namespace vorlex::gdi::soft::text {
namespace {

// How far a request is above a size: cell heights for lfHeight > 0, em
// heights otherwise.
int64_t Excess(const RasterSize& size, int32_t lfHeight) {
  if (lfHeight > 0) return int64_t{lfHeight} - size.cellHeight;
  return -int64_t{lfHeight} - (int64_t{size.cellHeight} - size.internalLeading);
}

}  // namespace

size_t PickRasterSize(const std::vector<RasterSize>& sizes, int32_t lfHeight) {
  size_t best = 0;
  int64_t bestExcess = Excess(sizes[0], lfHeight);
  for (size_t i = 1; i < sizes.size(); ++i) {
    const int64_t excess = Excess(sizes[i], lfHeight);
    const bool closerBelow = bestExcess > 0 && excess >= 0 && excess < bestExcess;
    const bool lessAbove = bestExcess < 0 && excess > bestExcess;
    if (closerBelow || lessAbove) {
      best = i;
      bestExcess = excess;
    }
  }
  return best;
}

int32_t RasterScale(const RasterSize& size, int32_t lfHeight) {
  const int64_t cell = size.cellHeight > 0 ? size.cellHeight : 1;
  const int64_t wanted = lfHeight != 0 ? Excess(size, lfHeight) + cell : cell;
  if (wanted <= 0) return 1;
  int64_t scale = (wanted + cell - 1) / cell;
  const int64_t overshoot = scale * cell - wanted;
  if (scale > 2 && overshoot > cell / 4)
    --scale;
  else if (scale == 2 && overshoot > cell / 4 - 1)
    --scale;
  constexpr int64_t kLargest = 256;
  return static_cast<int32_t>(scale < 1 ? 1 : (scale > kLargest ? kLargest : scale));
}

}  // namespace vorlex::gdi::soft::text
