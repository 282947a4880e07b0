#include "platform/soft/wide_line.h"

#include <algorithm>
#include <array>
#include <optional>

#include "platform/soft/box.h"
#include "platform/soft/elliptic_region.h"
#include "platform/soft/spans.h"
#include "platform/soft/wide_pen_shape.h"

namespace vorlex::gdi::soft {
namespace {

void PaintCap(const Surface& surface, Corner p, int64_t width, uint32_t pixel) {
  const Box cap = CapBox(p, width);
  if (width <= 2) {
    FillSolidBox(surface, cap, pixel);
    return;
  }
  const auto [firstRow, endRow] = RowsOnSurface(surface, cap.top, width);
  if (firstRow >= endRow) return;
  const EllipticRegion region(width, width, firstRow, endRow);
  for (int64_t row = firstRow; row < endRow; ++row) {
    const std::optional<int64_t> first = region.First(row);
    if (first) FillSolidSpan(surface, cap.top + row, cap.left + *first, cap.right - *first, pixel);
  }
}

// Where row y crosses the quadrilateral's edges, sorted; an edge covers the
// rows from its upper end to just above its lower end.
struct Crossings {
  std::array<double, 4> xs;
  size_t count = 0;
};

// Insertion sort: at most four values.
void Sort(Crossings& crossings) {
  for (size_t i = 1; i < crossings.count; ++i) {
    for (size_t j = i; j > 0 && crossings.xs[j] < crossings.xs[j - 1]; --j) {
      std::swap(crossings.xs[j], crossings.xs[j - 1]);
    }
  }
}

Crossings CrossingsOf(const Quad& corners, int64_t y) {
  Crossings found;
  for (size_t i = 0; i < corners.size(); ++i) {
    Corner a = corners[i];
    Corner b = corners[(i + 1) % corners.size()];
    if (a.y == b.y) continue;
    if (a.y > b.y) std::swap(a, b);
    if (y < a.y || y >= b.y) continue;
    const double t = static_cast<double>(y - a.y) / static_cast<double>(b.y - a.y);
    found.xs[found.count++] = static_cast<double>(a.x) + t * static_cast<double>(b.x - a.x);
  }
  Sort(found);
  return found;
}

// Even-odd fill: pixel x of row y is in when its centre lies at or right of a
// left crossing and left of the matching right crossing.
void FillQuad(const Surface& surface, const Quad& corners, uint32_t pixel) {
  const auto [firstRow, endRow] = VisibleRowsOf(corners, surface.height);
  for (int64_t y = firstRow; y < endRow; ++y) {
    const Crossings row = CrossingsOf(corners, y);
    for (size_t i = 0; i + 1 < row.count; i += 2) {
      FillSolidSpan(surface, y, Ceil(row.xs[i]), Ceil(row.xs[i + 1]), pixel);
    }
  }
}

}  // namespace

void DrawWideLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, int64_t width,
                  uint32_t pixel) {
  if (surface.Empty()) return;
  const Corner p0{x0, y0};
  const Corner p1{x1, y1};
  if (const std::optional<Box> body = StraightBodyBox(p0, p1, width)) {
    FillSolidBox(surface, *body, pixel);
  } else {
    FillQuad(surface, SlantedBodyQuad(p0, p1, width), pixel);
  }
  PaintCap(surface, p0, width, pixel);
  PaintCap(surface, p1, width, pixel);
}

}  // namespace vorlex::gdi::soft
