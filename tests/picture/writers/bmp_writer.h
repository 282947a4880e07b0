#pragma once
// Device-independent bitmaps as the tests write them: any header size, bit
// depth, compression, palette and bit masks, with the pixel bits given as
// stored.

#include <cstdint>
#include <vector>

#include "writers/bytes.h"

namespace vorlex::picture_test {

inline constexpr uint32_t kCoreHeader = 12;
inline constexpr uint32_t kInfoHeader = 40;
inline constexpr uint32_t kV4Header = 108;
inline constexpr uint32_t kV5Header = 124;

inline constexpr uint32_t kBiRgb = 0;
inline constexpr uint32_t kBiRle8 = 1;
inline constexpr uint32_t kBiRle4 = 2;
inline constexpr uint32_t kBiBitfields = 3;

struct BmpLayout {
  int32_t width = 1;
  int32_t height = 1;  // negative: rows stored top row first
  uint16_t bitCount = 24;
  uint32_t compression = kBiRgb;
  uint32_t headerSize = kInfoHeader;
  std::vector<uint32_t> palette;  // 0x00RRGGBB each
  std::vector<uint32_t> masks;    // red, green, blue: after the header (BI_BITFIELDS with a 40-byte header) or in it
  uint32_t clrUsed = 0;
  Bytes bits;  // pixel data as stored
};

// Header, palette or masks, and bits: a DIB as an icon or a packed DIB holds it.
Bytes Dib(const BmpLayout& layout);
// The same behind a 14-byte file header whose bfOffBits points at the bits.
Bytes BmpFile(const BmpLayout& layout);

// Rows of values (palette indexes, or pixel values of bitCount bits), each row
// packed high bits first and padded to four bytes. Rows are given in stored
// order.
Bytes PackRows(int width, const std::vector<std::vector<uint32_t>>& rows, int bitCount);

}  // namespace vorlex::picture_test
