#include <optional>

#include "platform/soft/brush_paint.h"
#include "platform/soft/elliptic_region.h"
#include "platform/soft/rectangle_frame.h"
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
  const auto [firstRow, endRow] = RowsOnSurface(surface, box.top, region.Height());
  for (int64_t row = firstRow; row < endRow; ++row) {
    const std::optional<int64_t> first = region.First(row);
    if (!first) continue;
    const int64_t end = region.OutlineEnd(row);
    const int64_t y = box.top + row;
    PaintSpan(surface, y, box.left + *first, box.left + end + 1, outline);
    PaintSpan(surface, y, box.right - 1 - end, box.right - *first, outline);
  }
}

}  // namespace

void DrawEllipse(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc, const Pen& pen) {
  const BrushPaint fill(brush, dc);
  if (box.Width() <= 2 || box.Height() <= 2) {
    const auto fillBox = [&fill](const Surface& target, const Box& inside) { PaintBox(target, inside, fill); };
    DrawRectangleFrame(surface, box, pen, fillBox, reference::DrawThinLine);
  } else {
    PaintEllipse(surface, box, fill, pen);
  }
}

}  // namespace vorlex::gdi::soft::reference
