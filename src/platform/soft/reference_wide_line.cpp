#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "platform/soft/box.h"
#include "platform/soft/elliptic_region.h"
#include "platform/soft/pen_line.h"
#include "platform/soft/reference.h"
#include "platform/soft/wide_pen_shape.h"

namespace vorlex::gdi::soft::reference {
namespace {

void PaintCap(const Surface& surface, Corner p, int64_t width, const SolidPaint& paint) {
  const Box cap = CapBox(p, width);
  if (width <= 2) {
    PaintBox(surface, cap, paint);
    return;
  }
  PaintRegion(surface, EllipticRegion(width, width), cap.left, cap.top, paint);
}

// Where row y crosses the polygon's edges, sorted; an edge covers the rows
// from its upper end to just above its lower end.
std::vector<double> Crossings(const std::array<Corner, 4>& corners, int64_t y) {
  std::vector<double> xs;
  for (size_t i = 0; i < corners.size(); ++i) {
    Corner a = corners[i];
    Corner b = corners[(i + 1) % corners.size()];
    if (a.y == b.y) continue;
    if (a.y > b.y) std::swap(a, b);
    if (y < a.y || y >= b.y) continue;
    const double t = static_cast<double>(y - a.y) / static_cast<double>(b.y - a.y);
    xs.push_back(static_cast<double>(a.x) + t * static_cast<double>(b.x - a.x));
  }
  std::sort(xs.begin(), xs.end());
  return xs;
}

// Even-odd fill: pixel x of row y is in when its centre lies at or right of a
// left crossing and left of the matching right crossing.
void FillPolygon(const Surface& surface, const std::array<Corner, 4>& corners, const SolidPaint& paint) {
  const auto [firstRow, endRow] = VisibleRowsOf(corners, surface.height);
  for (int64_t y = firstRow; y < endRow; ++y) {
    const std::vector<double> xs = Crossings(corners, y);
    for (size_t i = 0; i + 1 < xs.size(); i += 2) PaintSpan(surface, y, Ceil(xs[i]), Ceil(xs[i + 1]), paint);
  }
}

}  // namespace

void DrawWideLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, int64_t width,
                  uint32_t pixel) {
  if (surface.Empty()) return;
  const SolidPaint paint{pixel};
  const Corner p0{x0, y0};
  const Corner p1{x1, y1};
  if (const std::optional<Box> body = StraightBodyBox(p0, p1, width)) {
    PaintBox(surface, *body, paint);
  } else {
    FillPolygon(surface, SlantedBodyQuad(p0, p1, width), paint);
  }
  PaintCap(surface, p0, width, paint);
  PaintCap(surface, p1, width, paint);
}

void DrawPenLine(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1) {
  DrawPenLineWith(surface, pen, x0, y0, x1, y1, reference::DrawThinLine, reference::DrawWideLine);
}

}  // namespace vorlex::gdi::soft::reference
