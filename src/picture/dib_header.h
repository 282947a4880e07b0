#pragma once
// The header of a device-independent bitmap, with its bit masks and palette:
// BITMAPCOREHEADER (12 bytes) and BITMAPINFOHEADER with its later extensions
// (40, 52, 56, 108 and 124 bytes).

#include <array>
#include <cstdint>
#include <vector>

#include "picture/byte_view.h"

namespace vorlex::picture {

inline constexpr uint32_t kBiRgb = 0;
inline constexpr uint32_t kBiRle8 = 1;
inline constexpr uint32_t kBiRle4 = 2;
inline constexpr uint32_t kBiBitfields = 3;

struct DibHeader {
  int32_t width = 0;
  int32_t height = 0;  // rows, always positive
  bool topDown = false;
  uint16_t bitCount = 0;
  uint32_t compression = kBiRgb;
  std::array<uint32_t, 3> masks{};  // red, green, blue, for 16 and 32 bits a pixel
  std::vector<uint32_t> palette;    // 0x00RRGGBB, for 1, 4 and 8 bits a pixel
  uint64_t tableEnd = 0;            // where header, masks and palette end: the bits follow a packed DIB there
};

// Reads the header at the start of dib. Rejects (error 481) sizes, bit depths
// and compressions it does not know, RLE stored top-down, and a header or
// palette cut short.
DibHeader ReadDibHeader(ByteView dib);

// Bytes of one stored row of an uncompressed DIB, padded to four bytes.
uint64_t DibStride(int32_t width, uint16_t bitCount);

}  // namespace vorlex::picture
