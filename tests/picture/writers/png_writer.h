#pragma once
// PNG files as the tests write them: 8-bit RGB or RGBA, the image data in
// stored (uncompressed) deflate blocks, so no compression library is needed.

#include <cstdint>
#include <vector>

#include "writers/bytes.h"

namespace vorlex::picture_test {

// Pixels 0xAARRGGBB top row first; withAlpha false writes colour type 2 and
// drops the alpha byte.
Bytes PngFile(int width, int height, const std::vector<uint32_t>& argb, bool withAlpha);

}  // namespace vorlex::picture_test
