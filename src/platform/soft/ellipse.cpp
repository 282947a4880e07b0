// Ellipse: finds the DC's pen, brush and pixels; ellipse_shape.h draws.

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/ellipse_shape.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {

BOOL Ellipse(HDC dc, int left, int top, int right, int bottom) {
  const auto lock = soft::LockObjects();
  const auto target = soft::FindTarget(dc);
  if (!target) return soft::kFalse;
  const soft::Pen* pen = soft::SelectedPen(*target->dc);
  const soft::Brush* brush = soft::SelectedBrush(*target->dc);
  const soft::Box box = soft::OrderedBox(left, top, right, bottom);
  if (box.Empty() || target->surface.Empty() || pen == nullptr || brush == nullptr) return soft::kTrue;
  soft::DrawEllipse(target->surface, box, *brush, *target->dc, *pen);
  return soft::kTrue;
}

}  // namespace vorlex::gdi
