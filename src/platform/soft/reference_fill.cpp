#include "platform/soft/brush_paint.h"
#include "platform/soft/reference.h"

namespace vorlex::gdi::soft::reference {

void FillBox(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc) {
  PaintBox(surface, box, BrushPaint(brush, dc));
}

}  // namespace vorlex::gdi::soft::reference
