#pragma once
// Drawing a decoded picture over pixels: opaque pixels replace the
// destination's, transparent ones leave it; what falls outside is cut.

#include <cstdint>

#include "picture/image.h"
#include "platform/gdi.h"

namespace vorlex::picture {

void DrawImage(const Image& image, int32_t x, int32_t y, gdi::Pixels& target);

}  // namespace vorlex::picture
