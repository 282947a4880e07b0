#pragma once
// Icon files as the tests write them: a directory and its images, each a DIB
// (colour bits followed by the AND mask, height doubled) or a PNG file.

#include <cstdint>
#include <vector>

#include "writers/bytes.h"

namespace vorlex::picture_test {

struct IconImage {
  int width = 16;  // as the directory states it: 256 is written as 0
  int height = 16;
  uint16_t bitCount = 32;
  Bytes data;  // the image as stored: IconDib(...) or a PNG file
};

// A 32-bpp icon DIB: pixels 0xAARRGGBB top row first (alpha 0 throughout for
// an icon whose AND mask decides); mask: true where the pixel is transparent.
Bytes IconDib(int width, int height, const std::vector<uint32_t>& pixels, const std::vector<bool>& mask);
// An icon DIB of 1, 4 or 8 bits a pixel with a palette: indexes top row first.
Bytes PalettedIconDib(int width, int height, uint16_t bitCount, const std::vector<uint32_t>& palette,
                      const std::vector<uint32_t>& indexes, const std::vector<bool>& mask);
// The AND mask rows of an icon, stored bottom row first.
Bytes AndMask(int width, int height, const std::vector<bool>& mask);

// The file: header, directory entries, images in order.
Bytes IcoFile(const std::vector<IconImage>& images);

}  // namespace vorlex::picture_test
