#include <algorithm>
#include <optional>

#include "platform/soft/brush_paint.h"
#include "platform/soft/elliptic_region.h"
#include "platform/soft/reference.h"

namespace vorlex::gdi::soft::reference {
namespace {

// The footprint is x in [left, right - 1] and y in [top, bottom - 1]; the
// outline is the region's pixels with a neighbour (left, right, above or
// below) outside it.
void PaintEllipse(const Surface& surface, const Box& box, const BrushPaint& fill, const Pen& pen) {
  const EllipticRegion region(box.Width(), box.Height());
  PaintRegion(surface, region, box.left, box.top, fill);
  if (pen.style == PS_NULL) return;
  const SolidPaint outline{PixelOf(pen.color)};
  const int64_t firstRow = std::max<int64_t>(0, -box.top);
  const int64_t endRow = std::min(region.Height(), surface.height - box.top);
  for (int64_t row = firstRow; row < endRow; ++row) {
    const std::optional<int64_t> first = region.First(row);
    if (!first) continue;
    const int64_t end = region.OutlineEnd(row);
    const int64_t y = box.top + row;
    PaintSpan(surface, y, box.left + *first, box.left + end + 1, outline);
    PaintSpan(surface, y, box.right - 1 - end, box.right - *first, outline);
  }
}

// Boxes two pixels wide or high or less are drawn as Rectangle draws them: the
// frame is the closed path around the edge pixels with the pen; the brush
// fills inside it, or [left, right - 1) x [top, bottom - 1) with a null pen.
void PaintRectangle(const Surface& surface, const Box& box, const BrushPaint& fill, const Pen& pen) {
  if (pen.style == PS_NULL) {
    PaintBox(surface, {box.left, box.top, box.right - 1, box.bottom - 1}, fill);
    return;
  }
  PaintBox(surface, {box.left + 1, box.top + 1, box.right - 1, box.bottom - 1}, fill);
  const uint32_t pixel = PixelOf(pen.color);
  const int64_t right = box.right - 1;
  const int64_t bottom = box.bottom - 1;
  DrawThinLine(surface, box.left, box.top, right, box.top, pixel);
  DrawThinLine(surface, right, box.top, right, bottom, pixel);
  DrawThinLine(surface, right, bottom, box.left, bottom, pixel);
  DrawThinLine(surface, box.left, bottom, box.left, box.top, pixel);
}

}  // namespace

void DrawEllipse(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc, const Pen& pen) {
  const BrushPaint fill(brush, dc);
  if (box.Width() <= 2 || box.Height() <= 2) {
    PaintRectangle(surface, box, fill, pen);
  } else {
    PaintEllipse(surface, box, fill, pen);
  }
}

}  // namespace vorlex::gdi::soft::reference
