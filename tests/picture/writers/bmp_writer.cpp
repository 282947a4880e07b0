#include "writers/bmp_writer.h"

namespace vorlex::picture_test {

namespace {

void PutCoreHeader(Bytes& out, const BmpLayout& l) {
  PutU32(out, kCoreHeader);
  PutU16(out, static_cast<uint32_t>(l.width));
  PutU16(out, static_cast<uint32_t>(l.height));
  PutU16(out, 1);
  PutU16(out, l.bitCount);
}

void PutInfoHeader(Bytes& out, const BmpLayout& l) {
  PutU32(out, l.headerSize);
  PutI32(out, l.width);
  PutI32(out, l.height);
  PutU16(out, 1);
  PutU16(out, l.bitCount);
  PutU32(out, l.compression);
  PutU32(out, static_cast<uint32_t>(l.bits.size()));
  PutU32(out, 2835);
  PutU32(out, 2835);
  PutU32(out, l.clrUsed);
  PutU32(out, 0);
  if (l.headerSize == kInfoHeader) return;
  for (size_t i = 0; i < 3; ++i) PutU32(out, i < l.masks.size() ? l.masks[i] : 0);
  PutU32(out, 0);  // alpha mask
  while (out.size() < l.headerSize) PutU8(out, 0);
}

}  // namespace

Bytes Dib(const BmpLayout& l) {
  Bytes out;
  if (l.headerSize == kCoreHeader) {
    PutCoreHeader(out, l);
  } else {
    PutInfoHeader(out, l);
  }
  if (l.headerSize == kInfoHeader && l.compression == kBiBitfields) {
    for (uint32_t mask : l.masks) PutU32(out, mask);
  }
  for (uint32_t colour : l.palette) {
    PutU8(out, colour);
    PutU8(out, colour >> 8);
    PutU8(out, colour >> 16);
    if (l.headerSize != kCoreHeader) PutU8(out, 0);
  }
  Append(out, l.bits);
  return out;
}

Bytes BmpFile(const BmpLayout& l) {
  const Bytes dib = Dib(l);
  const auto size = static_cast<uint32_t>(14 + dib.size());
  const auto offBits = static_cast<uint32_t>(size - l.bits.size());
  Bytes out{'B', 'M'};
  PutU32(out, size);
  PutU32(out, 0);
  PutU32(out, offBits);
  Append(out, dib);
  return out;
}

Bytes PackRows(int width, const std::vector<std::vector<uint32_t>>& rows, int bitCount) {
  const size_t stride = ((static_cast<size_t>(width) * static_cast<size_t>(bitCount) + 31) / 32) * 4;
  Bytes out;
  for (const auto& row : rows) {
    Bytes packed(stride, 0);
    size_t bit = 0;
    for (uint32_t value : row) {
      if (bitCount >= 8) {
        for (int b = 0; b < bitCount / 8; ++b)
          packed[bit / 8 + static_cast<size_t>(b)] = static_cast<uint8_t>(value >> (8 * b));
      } else {
        const size_t shift = 8 - static_cast<size_t>(bitCount) - bit % 8;
        packed[bit / 8] = static_cast<uint8_t>(packed[bit / 8] | (value << shift));
      }
      bit += static_cast<size_t>(bitCount);
    }
    Append(out, packed);
  }
  return out;
}

}  // namespace vorlex::picture_test
