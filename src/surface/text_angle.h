#pragma once
// The angle DisplayText draws at: the given one, or the area's diagonal.

#include <cstdint>

#include "surface/alignment.h"

namespace vorlex {

// Degrees counter-clockwise. vxUp rises along the area's diagonal, vxDown
// descends along it; an area of no width, or any other automatic value that
// is not vxNoneAuto, gives 0.
float TextAngleFor(int32_t autoAngle, int16_t angle, const Area& area);

}  // namespace vorlex
