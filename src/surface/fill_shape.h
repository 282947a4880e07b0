#pragma once
// One solid or hatched rectangle or ellipse, drawn with an invisible pen: the
// painter of gradient bands and of every fill.

#include <cstdint>

#include "platform/gdi.h"
#include "vorlex/Color.h"

namespace vorlex {

// Brush style 0 is solid; 1 to 6 select hatch pattern style - 1.
gdi::HBRUSH CreateFillBrush(int32_t brushStyle, OLE_COLOR hatchColor, OLE_COLOR color);

void FillShape(gdi::HDC dc, bool isEllipse, const gdi::RECT& rect, int32_t brushStyle, OLE_COLOR hatchColor,
               OLE_COLOR color);

}  // namespace vorlex
