#include "platform/soft/ellipse_shape.h"

#include <optional>

#include "platform/soft/brush_spans.h"
#include "platform/soft/elliptic_region.h"
#include "platform/soft/rectangle_frame.h"
#include "platform/soft/spans.h"
#include "platform/soft/thin_line.h"

namespace vorlex::gdi::soft {
namespace {

// The footprint is x in [left, right - 1] and y in [top, bottom - 1]; the
// outline is the region's pixels with a neighbour (left, right, above or
// below) outside it. Only the rows on the surface are traced and painted, each
// filled and then outlined.
void PaintEllipse(const Surface& surface, const Box& box, const BrushSpans& fill, const Pen& pen) {
  const auto [firstRow, endRow] = RowsOnSurface(surface, box.top, box.Height());
  if (firstRow >= endRow) return;
  const EllipticRegion region(box.Width(), box.Height(), firstRow, endRow);
  const bool outlined = pen.style != PS_NULL;
  const uint32_t outline = PixelOf(pen.color);
  for (int64_t row = firstRow; row < endRow; ++row) {
    const std::optional<int64_t> first = region.First(row);
    if (!first) continue;
    const int64_t y = box.top + row;
    fill.FillSpan(surface, y, box.left + *first, box.right - *first);
    if (!outlined) continue;
    const int64_t end = region.OutlineEnd(row);
    FillSolidSpan(surface, y, box.left + *first, box.left + end + 1, outline);
    FillSolidSpan(surface, y, box.right - 1 - end, box.right - *first, outline);
  }
}

}  // namespace

void DrawEllipse(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc, const Pen& pen) {
  const BrushSpans fill(brush, dc);
  if (box.Width() <= 2 || box.Height() <= 2) {
    const auto fillBox = [&fill](const Surface& target, const Box& inside) { fill.FillBox(target, inside); };
    DrawRectangleFrame(surface, box, pen, fillBox, DrawThinLine);
  } else {
    PaintEllipse(surface, box, fill, pen);
  }
}

}  // namespace vorlex::gdi::soft
