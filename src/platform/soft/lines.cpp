// MoveToEx and LineTo.

#include "platform/gdi.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"
#include "platform/soft/thin_line.h"
#include "platform/soft/wide_line.h"

namespace vorlex::gdi {
namespace {

void DrawSegment(const soft::Surface& surface, const soft::Pen& pen, POINT from, POINT to) {
  if (pen.style == PS_NULL) return;
  const uint32_t pixel = soft::PixelOf(pen.color);
  if (pen.width <= 1) {
    soft::DrawThinLine(surface, from.x, from.y, to.x, to.y, pixel);
  } else {
    soft::DrawWideLine(surface, from.x, from.y, to.x, to.y, pen.width, pixel);
  }
}

}  // namespace

BOOL MoveToEx(HDC dc, int x, int y, POINT* previous) {
  const auto lock = soft::LockObjects();
  const auto target = soft::FindTarget(dc);
  if (!target) return soft::kFalse;
  if (previous != nullptr) *previous = target->dc->position;
  target->dc->position = {x, y};
  return soft::kTrue;
}

BOOL LineTo(HDC dc, int x, int y) {
  const auto lock = soft::LockObjects();
  const auto target = soft::FindTarget(dc);
  if (!target) return soft::kFalse;
  const soft::Pen* pen = soft::SelectedPen(*target->dc);
  const POINT to{x, y};
  if (pen != nullptr) DrawSegment(target->surface, *pen, target->dc->position, to);
  target->dc->position = to;
  return soft::kTrue;
}

}  // namespace vorlex::gdi
