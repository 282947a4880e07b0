// FillRect: PatBlt(PATCOPY) with the given brush.

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/brush_spans.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {

int FillRect(HDC dc, const RECT* rect, HBRUSH brush) {
  const auto lock = soft::LockObjects();
  const auto target = soft::FindTarget(dc);
  const soft::Brush* fill = soft::Objects().Get<soft::Brush>(soft::ValueOf(brush));
  if (!target || fill == nullptr || rect == nullptr) return 0;
  // The extent form puts an inverted rectangle in order: {10,0,5,5} fills x = 6..10.
  const int64_t width = int64_t{rect->right} - rect->left;
  const int64_t height = int64_t{rect->bottom} - rect->top;
  const soft::Box box = soft::BoxFromExtent(rect->left, rect->top, width, height);
  soft::FillBox(target->surface, box, *fill, *target->dc);
  return 1;
}

}  // namespace vorlex::gdi
