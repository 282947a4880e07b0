// MoveToEx and LineTo.

#include "platform/gdi.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"
#include "platform/soft/pen_line.h"

namespace vorlex::gdi {

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
  const POINT from = target->dc->position;
  if (pen != nullptr) soft::DrawPenLine(target->surface, *pen, from.x, from.y, x, y);
  target->dc->position = {x, y};
  return soft::kTrue;
}

}  // namespace vorlex::gdi
