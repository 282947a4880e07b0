#pragma once
// PNG files of our own making, for builds without libpng: 8-bit RGB, no
// filtering, the image data in stored (uncompressed) deflate blocks. Larger
// than a compressed file, but needs no compression library.

#include <cstdint>
#include <vector>

#include "platform/gdi.h"

namespace vorlex {

// The whole file: signature, IHDR, IDAT, IEND. The pixels must be at least
// one by one.
std::vector<uint8_t> EncodePng(const gdi::Pixels& pixels);

}  // namespace vorlex
