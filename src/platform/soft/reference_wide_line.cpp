#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "platform/soft/box.h"
#include "platform/soft/elliptic_region.h"
#include "platform/soft/reference.h"
#include "platform/soft/wide_pen_shape.h"

namespace vorlex::gdi::soft::reference {
namespace {

void PaintCap(const Surface& surface, int64_t x, int64_t y, int64_t width, const SolidPaint& paint) {
  const int64_t left = x - width / 2;
  const int64_t top = y - width / 2;
  if (width <= 2) {
    PaintBox(surface, {left, top, left + width, top + width}, paint);
    return;
  }
  PaintRegion(surface, EllipticRegion(width, width), left, top, paint);
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
  int64_t top = corners[0].y;
  int64_t bottom = corners[0].y;
  for (const Corner& c : corners) {
    top = std::min(top, c.y);
    bottom = std::max(bottom, c.y);
  }
  const int64_t firstRow = std::max<int64_t>(top, 0);
  const int64_t endRow = std::min(bottom, surface.height);
  for (int64_t y = firstRow; y < endRow; ++y) {
    const std::vector<double> xs = Crossings(corners, y);
    for (size_t i = 0; i + 1 < xs.size(); i += 2) PaintSpan(surface, y, Ceil(xs[i]), Ceil(xs[i + 1]), paint);
  }
}

void PaintSlantedBody(const Surface& surface, Corner p0, Corner p1, int64_t width, const SolidPaint& paint) {
  FillPolygon(surface, SlantedBodyQuad(p0, p1, width), paint);
}

void PaintBody(const Surface& surface, Corner p0, Corner p1, int64_t width, const SolidPaint& paint) {
  if (p0.y == p1.y) {
    const int64_t top = p0.y - width / 2;
    PaintBox(surface, {std::min(p0.x, p1.x), top, std::max(p0.x, p1.x), top + width}, paint);
  } else if (p0.x == p1.x) {
    const int64_t left = p0.x - width / 2;
    PaintBox(surface, {left, std::min(p0.y, p1.y), left + width, std::max(p0.y, p1.y)}, paint);
  } else {
    PaintSlantedBody(surface, p0, p1, width, paint);
  }
}

}  // namespace

void DrawWideLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, int64_t width,
                  uint32_t pixel) {
  if (surface.Empty()) return;
  const SolidPaint paint{pixel};
  PaintBody(surface, {x0, y0}, {x1, y1}, width, paint);
  PaintCap(surface, x0, y0, width, paint);
  PaintCap(surface, x1, y1, width, paint);
}

void DrawPenLine(const Surface& surface, const Pen& pen, int64_t x0, int64_t y0, int64_t x1, int64_t y1) {
  if (pen.style == PS_NULL) return;
  const uint32_t pixel = PixelOf(pen.color);
  if (pen.width <= 1) {
    DrawThinLine(surface, x0, y0, x1, y1, pixel);
  } else {
    DrawWideLine(surface, x0, y0, x1, y1, pen.width, pixel);
  }
}

}  // namespace vorlex::gdi::soft::reference
