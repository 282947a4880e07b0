#pragma once
// Ellipse's pixels: the interior with the brush, then a one-pixel outline with
// the pen; boxes two pixels wide or high or less are drawn as Rectangle draws
// them.

#include "platform/soft/box.h"
#include "platform/soft/objects.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

// The box is ordered and not empty.
void DrawEllipse(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc, const Pen& pen);

}  // namespace vorlex::gdi::soft
