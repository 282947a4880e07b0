#pragma once
// Whole spans written at once: each call clips its span or box to the surface
// once and then writes the rows directly.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/soft/box.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

// The pixels of row y with x in [x0, x1) that lie on the surface: `count`
// pixels from `first`, the first of them at column `x`.
struct Run {
  uint32_t* first = nullptr;
  size_t count = 0;
  int64_t x = 0;
};

inline Run ClipRun(const Surface& surface, int64_t y, int64_t x0, int64_t x1) {
  if (surface.Empty() || y < 0 || y >= surface.height) return {};
  const int64_t begin = std::max<int64_t>(x0, 0);
  const int64_t end = std::min<int64_t>(x1, surface.width);
  if (begin >= end) return {};
  return {&surface.At(begin, y), static_cast<size_t>(end - begin), begin};
}

// `count` pixels from `first` set to `pixel`.
void FillPixels(uint32_t* first, size_t count, uint32_t pixel);
// The same on `rows` rows, each `stride` pixels after the one before.
void FillRows(uint32_t* first, size_t count, size_t rows, size_t stride, uint32_t pixel);

inline void FillSolidSpan(const Surface& surface, int64_t y, int64_t x0, int64_t x1, uint32_t pixel) {
  const Run run = ClipRun(surface, y, x0, x1);
  FillPixels(run.first, run.count, pixel);
}

inline void FillSolidBox(const Surface& surface, const Box& box, uint32_t pixel) {
  const Box visible = Intersect(box, BoundsOf(surface));
  if (surface.Empty() || visible.Empty()) return;
  FillRows(&surface.At(visible.left, visible.top), static_cast<size_t>(visible.Width()),
           static_cast<size_t>(visible.Height()), static_cast<size_t>(surface.width), pixel);
}

}  // namespace vorlex::gdi::soft
