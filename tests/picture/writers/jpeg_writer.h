#pragma once
// Baseline JPEG files as the tests write them: every 8 x 8 block one flat
// colour, so each block is only its DC coefficient (quantizer 1) and an end of
// block. Colours survive the YCbCr round trip to within a few levels.

#include <cstdint>
#include <vector>

#include "writers/bytes.h"

namespace vorlex::picture_test {

// blockColours: 0x00RRGGBB of each 8 x 8 block, top row of blocks first, for a
// picture of ceil(width / 8) x ceil(height / 8) blocks; blocks past the right
// or bottom edge are cut by the picture's size.
Bytes FlatBlockJpeg(int width, int height, const std::vector<uint32_t>& blockColours);

}  // namespace vorlex::picture_test
