#include "picture/dib_header.h"

#include <algorithm>
#include <limits>

namespace vorlex::picture {

namespace {

constexpr uint32_t kCoreHeaderSize = 12;
constexpr uint32_t kInfoHeaderSize = 40;

bool KnownHeaderSize(uint32_t size) {
  return size == kCoreHeaderSize || size == kInfoHeaderSize || size == 52 || size == 56 || size == 108 || size == 124;
}

bool KnownDepth(uint16_t bits) { return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32; }

bool ValidCompression(const DibHeader& h) {
  switch (h.compression) {
    case kBiRgb:
      return true;
    case kBiRle8:
      return h.bitCount == 8 && !h.topDown;
    case kBiRle4:
      return h.bitCount == 4 && !h.topDown;
    case kBiBitfields:
      return h.bitCount == 16 || h.bitCount == 32;
    default:
      return false;
  }
}

void SetMasks(DibHeader& h, ByteView dib) {
  if (h.compression == kBiBitfields) {
    h.masks = {dib.U32(40), dib.U32(44), dib.U32(48)};
  } else if (h.bitCount == 16) {
    h.masks = {0x7C00, 0x03E0, 0x001F};
  } else {
    h.masks = {0xFF0000, 0x00FF00, 0x0000FF};
  }
}

// Entries of the palette as stored (entrySize bytes each, blue first) from
// offset; the palette holds `used` of them.
void ReadPalette(DibHeader& h, ByteView dib, uint64_t offset, uint32_t used, size_t entrySize) {
  h.palette.reserve(used);
  for (uint32_t i = 0; i < used; ++i) {
    const size_t at = static_cast<size_t>(offset) + i * entrySize;
    h.palette.push_back((static_cast<uint32_t>(dib.U8(at + 2)) << 16) | (static_cast<uint32_t>(dib.U8(at + 1)) << 8) |
                        dib.U8(at));
  }
}

DibHeader ReadCoreHeader(ByteView dib) {
  DibHeader h;
  h.width = dib.U16(4);
  h.height = dib.U16(6);
  h.bitCount = dib.U16(10);
  Require(h.width > 0 && h.height > 0 && KnownDepth(h.bitCount) && h.bitCount != 16 && h.bitCount != 32);
  SetMasks(h, dib);
  const uint32_t entries = h.bitCount <= 8 ? 1u << h.bitCount : 0u;
  ReadPalette(h, dib, kCoreHeaderSize, entries, 3);
  h.tableEnd = kCoreHeaderSize + uint64_t{3} * entries;
  return h;
}

DibHeader ReadInfoHeader(ByteView dib, uint32_t headerSize) {
  DibHeader h;
  h.width = dib.I32(4);
  const int32_t height = dib.I32(8);
  h.bitCount = dib.U16(14);
  h.compression = dib.U32(16);
  const uint32_t clrUsed = dib.U32(32);
  Require(h.width > 0 && height != 0 && height != std::numeric_limits<int32_t>::min() && KnownDepth(h.bitCount));
  h.topDown = height < 0;
  h.height = h.topDown ? -height : height;
  Require(ValidCompression(h));
  SetMasks(h, dib);
  const uint64_t maskBytes = headerSize == kInfoHeaderSize && h.compression == kBiBitfields ? 12 : 0;
  const uint64_t stored = clrUsed != 0 ? clrUsed : (h.bitCount <= 8 ? 1u << h.bitCount : 0u);
  if (h.bitCount <= 8) {
    const auto used = static_cast<uint32_t>(std::min<uint64_t>(stored, 1u << h.bitCount));
    ReadPalette(h, dib, headerSize + maskBytes, used, 4);
  }
  h.tableEnd = headerSize + maskBytes + 4 * stored;
  return h;
}

}  // namespace

DibHeader ReadDibHeader(ByteView dib) {
  const uint32_t headerSize = dib.U32(0);
  Require(KnownHeaderSize(headerSize) && dib.Has(0, headerSize));
  return headerSize == kCoreHeaderSize ? ReadCoreHeader(dib) : ReadInfoHeader(dib, headerSize);
}

uint64_t DibStride(int32_t width, uint16_t bitCount) { return (static_cast<uint64_t>(width) * bitCount + 31) / 32 * 4; }

}  // namespace vorlex::picture
