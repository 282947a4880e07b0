#pragma once
// One solid or hatched rectangle or ellipse, drawn with an invisible pen or an
// outline of its colour: the painter of gradient bands and of the ellipse fill.

#include <cstdint>

#include "platform/gdi.h"
#include "vorlex/Color.h"

namespace vorlex {

// Brush style 0 is solid; 1 to 6 select hatch pattern style - 1.
gdi::HBRUSH CreateFillBrush(int32_t brushStyle, OLE_COLOR hatchColor, OLE_COLOR color);

// Outlined: a solid one-pixel pen of the fill colour instead of the invisible one.
void FillShape(gdi::HDC dc, bool isEllipse, const gdi::RECT& rect, int32_t brushStyle, OLE_COLOR hatchColor,
               OLE_COLOR color, bool outlined = false);

}  // namespace vorlex
