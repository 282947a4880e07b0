#pragma once
// BitBlt's pixels (SRCCOPY): the width x height extent at (x, y), put in order
// as BoxFromExtent does, takes the pixels at the same offsets from (sourceX,
// sourceY); only pixels whose destination and source both lie on their
// surfaces are copied, and a copy within one surface reads every pixel before
// it writes any.

#include <cstdint>

#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

void Blit(const Surface& destination, int64_t x, int64_t y, int64_t width, int64_t height, const Surface& source,
          int64_t sourceX, int64_t sourceY);

}  // namespace vorlex::gdi::soft
