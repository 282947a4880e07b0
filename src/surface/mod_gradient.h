#pragma once
// Gradient previews painted straight onto a host's picture box or form.

#include <cstdint>

#include "platform/gdi.h"
#include "surface/drawing_target.h"
#include "vorlex/Color.h"

namespace vorlex {

namespace modGradient {

// Reads the target's colour depth into the module's own state (the previews'
// callers do this when they load) and returns it.
int16_t ReadDisplayDepth(const DrawingTarget& target);

// The surface's gradient with three differences: the working rectangle is
// ScaleLeft, ScaleTop, ScaleWidth, ScaleHeight as they stand (no border
// inset), the levels are the module's, and style 12 keeps its colours, so it
// previews like style 11.
void PaintObjectGradient(const DrawingTarget& target, int16_t& style, int16_t& granularity, OLE_COLOR& color,
                         OLE_COLOR& colorEnd);

}  // namespace modGradient
}  // namespace vorlex
