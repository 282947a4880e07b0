#pragma once
// Paints a gradient preview box through modGradient, reading the box's colour
// depth first as the module's callers do before they paint.

#include <cstdint>
#include <string_view>

#include "editors/page_view.h"

namespace vorlex::editors {

void PaintGradientPreview(PageView& view, std::string_view box, int16_t style, int16_t granularity, OLE_COLOR color,
                          OLE_COLOR colorEnd);

// The colour depth of a preview box (bits per pixel times planes), 0 when the
// box has no context now.
int16_t PreviewDepth(PageView& view, std::string_view box);

}  // namespace vorlex::editors
