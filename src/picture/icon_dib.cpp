#include "picture/icon_dib.h"

#include "picture/dib_header.h"
#include "picture/dib_rows.h"

namespace vorlex::picture {

namespace {

// Whether a 32-bit BI_RGB image has an alpha byte that is not zero: then alpha
// decides what is transparent, else the AND mask does.
bool HasAlpha(const DibHeader& h, ByteView colour) {
  if (h.bitCount != 32 || h.compression != kBiRgb) return false;
  for (size_t i = 3; i < colour.size(); i += 4) {
    if (colour.data()[i] != 0) return true;
  }
  return false;
}

void ApplyAlpha(const DibHeader& h, ByteView colour, Image& image) {
  const auto stride = static_cast<size_t>(DibStride(h.width, h.bitCount));
  for (int32_t stored = 0; stored < h.height; ++stored) {
    for (int32_t x = 0; x < h.width; ++x) {
      const uint8_t alpha = colour.U8(static_cast<size_t>(stored) * stride + static_cast<size_t>(x) * 4 + 3);
      if (alpha < 128) image.SetTransparent(x, h.height - 1 - stored);
    }
  }
}

void ApplyAndMask(const DibHeader& h, ByteView mask, Image& image) {
  const auto stride = static_cast<size_t>(DibStride(h.width, 1));
  for (int32_t stored = 0; stored < h.height; ++stored) {
    for (int32_t x = 0; x < h.width; ++x) {
      const uint8_t byte = mask.U8(static_cast<size_t>(stored) * stride + static_cast<size_t>(x) / 8);
      if ((byte >> (7 - x % 8)) & 1) image.SetTransparent(x, h.height - 1 - stored);
    }
  }
}

}  // namespace

Image DecodeIconDib(ByteView dib) {
  DibHeader header = ReadDibHeader(dib);
  Require(!header.topDown && header.height >= 2 &&
          (header.compression == kBiRgb || header.compression == kBiBitfields));
  header.height /= 2;
  Require(header.tableEnd <= dib.size());
  const ByteView bits = dib.From(static_cast<size_t>(header.tableEnd));
  const uint64_t colourBytes = DibStride(header.width, header.bitCount) * static_cast<uint64_t>(header.height);
  const uint64_t maskBytes = DibStride(header.width, 1) * static_cast<uint64_t>(header.height);
  Require(colourBytes + maskBytes <= bits.size());
  const ByteView colour = bits.Sub(0, static_cast<size_t>(colourBytes));
  Image image = DecodeDibRows(header, colour);
  if (HasAlpha(header, colour)) {
    ApplyAlpha(header, colour, image);
  } else {
    ApplyAndMask(header, bits.Sub(static_cast<size_t>(colourBytes), static_cast<size_t>(maskBytes)), image);
  }
  return image;
}

}  // namespace vorlex::picture
