#include "writers/ico_writer.h"

#include "writers/bmp_writer.h"

namespace vorlex::picture_test {

namespace {

// Rows top first to stored rows bottom first.
std::vector<std::vector<uint32_t>> BottomUpRows(int width, int height, const std::vector<uint32_t>& values) {
  std::vector<std::vector<uint32_t>> rows;
  for (int y = height - 1; y >= 0; --y) {
    const auto from = values.begin() + static_cast<std::ptrdiff_t>(y) * width;
    rows.emplace_back(from, from + width);
  }
  return rows;
}

std::vector<uint32_t> MaskValues(const std::vector<bool>& mask) {
  std::vector<uint32_t> values;
  for (bool transparent : mask) values.push_back(transparent ? 1u : 0u);
  return values;
}

Bytes IconDibWithBits(int width, int height, uint16_t bitCount, const std::vector<uint32_t>& palette,
                      const std::vector<uint32_t>& values, const std::vector<bool>& mask) {
  BmpLayout layout;
  layout.width = width;
  layout.height = height * 2;
  layout.bitCount = bitCount;
  layout.palette = palette;
  layout.clrUsed = static_cast<uint32_t>(palette.size());
  layout.bits = PackRows(width, BottomUpRows(width, height, values), bitCount);
  Append(layout.bits, AndMask(width, height, mask));
  return Dib(layout);
}

}  // namespace

Bytes AndMask(int width, int height, const std::vector<bool>& mask) {
  return PackRows(width, BottomUpRows(width, height, MaskValues(mask)), 1);
}

Bytes IconDib(int width, int height, const std::vector<uint32_t>& pixels, const std::vector<bool>& mask) {
  return IconDibWithBits(width, height, 32, {}, pixels, mask);
}

Bytes PalettedIconDib(int width, int height, uint16_t bitCount, const std::vector<uint32_t>& palette,
                      const std::vector<uint32_t>& indexes, const std::vector<bool>& mask) {
  return IconDibWithBits(width, height, bitCount, palette, indexes, mask);
}

Bytes IcoFile(const std::vector<IconImage>& images) {
  Bytes out;
  PutU16(out, 0);
  PutU16(out, 1);
  PutU16(out, static_cast<uint32_t>(images.size()));
  auto offset = static_cast<uint32_t>(6 + 16 * images.size());
  for (const IconImage& image : images) {
    PutU8(out, static_cast<uint32_t>(image.width));  // 256 wraps to 0
    PutU8(out, static_cast<uint32_t>(image.height));
    PutU8(out, 0);
    PutU8(out, 0);
    PutU16(out, 1);
    PutU16(out, image.bitCount);
    PutU32(out, static_cast<uint32_t>(image.data.size()));
    PutU32(out, offset);
    offset += static_cast<uint32_t>(image.data.size());
  }
  for (const IconImage& image : images) Append(out, image.data);
  return out;
}

}  // namespace vorlex::picture_test
