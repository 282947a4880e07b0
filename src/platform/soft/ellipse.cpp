// Ellipse: the interior with the brush, then a one-pixel outline with the pen.

#include <algorithm>
#include <optional>

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/brush_paint.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/elliptic_region.h"
#include "platform/soft/object_table.h"
#include "platform/soft/thin_line.h"

namespace vorlex::gdi {
namespace {

using soft::Box;
using soft::Surface;

// The footprint is x in [left, right - 1] and y in [top, bottom - 1]; the
// outline is the region's pixels with a neighbour (left, right, above or
// below) outside it.
void PaintEllipse(const Surface& surface, const Box& box, const soft::BrushPaint& fill, const soft::Pen& pen) {
  const soft::EllipticRegion region(box.Width(), box.Height());
  soft::PaintRegion(surface, region, box.left, box.top, fill);
  if (pen.style == PS_NULL) return;
  const soft::SolidPaint outline{soft::PixelOf(pen.color)};
  const int64_t firstRow = std::max<int64_t>(0, -box.top);
  const int64_t endRow = std::min(region.Height(), surface.height - box.top);
  for (int64_t row = firstRow; row < endRow; ++row) {
    const std::optional<int64_t> first = region.First(row);
    if (!first) continue;
    const int64_t end = region.OutlineEnd(row);
    const int64_t y = box.top + row;
    soft::PaintSpan(surface, y, box.left + *first, box.left + end + 1, outline);
    soft::PaintSpan(surface, y, box.right - 1 - end, box.right - *first, outline);
  }
}

// Boxes two pixels wide or high or less are drawn as Rectangle draws them: the
// frame is the closed path around the edge pixels with the pen; the brush
// fills inside it, or [left, right - 1) x [top, bottom - 1) with a null pen.
void PaintRectangle(const Surface& surface, const Box& box, const soft::BrushPaint& fill, const soft::Pen& pen) {
  if (pen.style == PS_NULL) {
    soft::PaintBox(surface, {box.left, box.top, box.right - 1, box.bottom - 1}, fill);
    return;
  }
  soft::PaintBox(surface, {box.left + 1, box.top + 1, box.right - 1, box.bottom - 1}, fill);
  const uint32_t pixel = soft::PixelOf(pen.color);
  const int64_t right = box.right - 1;
  const int64_t bottom = box.bottom - 1;
  soft::DrawThinLine(surface, box.left, box.top, right, box.top, pixel);
  soft::DrawThinLine(surface, right, box.top, right, bottom, pixel);
  soft::DrawThinLine(surface, right, bottom, box.left, bottom, pixel);
  soft::DrawThinLine(surface, box.left, bottom, box.left, box.top, pixel);
}

}  // namespace

BOOL Ellipse(HDC dc, int left, int top, int right, int bottom) {
  const auto lock = soft::LockObjects();
  const auto target = soft::FindTarget(dc);
  if (!target) return soft::kFalse;
  const soft::Pen* pen = soft::SelectedPen(*target->dc);
  const soft::Brush* brush = soft::SelectedBrush(*target->dc);
  const Box box = soft::OrderedBox(left, top, right, bottom);
  if (box.Empty() || target->surface.Empty() || pen == nullptr || brush == nullptr) return soft::kTrue;
  const soft::BrushPaint fill(*brush, *target->dc);
  if (box.Width() <= 2 || box.Height() <= 2) {
    PaintRectangle(target->surface, box, fill, *pen);
  } else {
    PaintEllipse(target->surface, box, fill, *pen);
  }
  return soft::kTrue;
}

}  // namespace vorlex::gdi
