#include "picture/dib_rows.h"

#include "picture/channel_mask.h"

namespace vorlex::picture {

namespace {

uint32_t PaletteColour(const DibHeader& h, uint32_t index) { return index < h.palette.size() ? h.palette[index] : 0u; }

// The value of pixel x of a stored row: an index or a packed colour.
uint32_t RawValue(const uint8_t* row, int32_t x, uint16_t bitCount) {
  const auto i = static_cast<size_t>(x);
  switch (bitCount) {
    case 1:
      return (row[i / 8] >> (7 - i % 8)) & 1u;
    case 4:
      return (row[i / 2] >> (i % 2 == 0 ? 4 : 0)) & 0xFu;
    case 8:
      return row[i];
    case 16:
      return static_cast<uint32_t>(row[2 * i]) | (static_cast<uint32_t>(row[2 * i + 1]) << 8);
    case 24:
      return static_cast<uint32_t>(row[3 * i]) | (static_cast<uint32_t>(row[3 * i + 1]) << 8) |
             (static_cast<uint32_t>(row[3 * i + 2]) << 16);
    default:
      return static_cast<uint32_t>(row[4 * i]) | (static_cast<uint32_t>(row[4 * i + 1]) << 8) |
             (static_cast<uint32_t>(row[4 * i + 2]) << 16) | (static_cast<uint32_t>(row[4 * i + 3]) << 24);
  }
}

}  // namespace

bool HasAllRows(const DibHeader& h, ByteView bits) {
  return DibStride(h.width, h.bitCount) * static_cast<uint64_t>(h.height) <= bits.size();
}

Image DecodeDibRows(const DibHeader& h, ByteView bits) {
  Require(HasAllRows(h, bits));
  Image image = NewImage(h.width, h.height);
  const auto stride = static_cast<size_t>(DibStride(h.width, h.bitCount));
  const PixelMasks masks(h.masks[0], h.masks[1], h.masks[2]);
  for (int32_t stored = 0; stored < h.height; ++stored) {
    const uint8_t* row = bits.data() + static_cast<size_t>(stored) * stride;
    const int32_t y = h.topDown ? stored : h.height - 1 - stored;
    for (int32_t x = 0; x < h.width; ++x) {
      const uint32_t value = RawValue(row, x, h.bitCount);
      image.Set(x, y, h.bitCount <= 8 ? PaletteColour(h, value) : masks.Colour(value));
    }
  }
  return image;
}

}  // namespace vorlex::picture
