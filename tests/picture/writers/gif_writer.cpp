#include "writers/gif_writer.h"

#include <algorithm>

namespace vorlex::picture_test {

namespace {

// log2 of a colour table's size, at least 1.
int TableBits(size_t entries) {
  int bits = 1;
  while ((size_t{1} << bits) < entries) ++bits;
  return bits;
}

void PutPalette(Bytes& out, const std::vector<uint32_t>& palette) {
  const size_t entries = size_t{1} << TableBits(palette.size());
  for (size_t i = 0; i < entries; ++i) {
    const uint32_t c = i < palette.size() ? palette[i] : 0;
    PutU8(out, c >> 16);
    PutU8(out, c >> 8);
    PutU8(out, c);
  }
}

class BitWriter {
 public:
  void Put(uint32_t code, int width) {
    accumulator_ |= code << used_;
    used_ += width;
    while (used_ >= 8) {
      bytes_.push_back(static_cast<uint8_t>(accumulator_ & 0xFF));
      accumulator_ >>= 8;
      used_ -= 8;
    }
  }
  Bytes Finish() {
    if (used_ > 0) bytes_.push_back(static_cast<uint8_t>(accumulator_ & 0xFF));
    return bytes_;
  }

 private:
  Bytes bytes_;
  uint32_t accumulator_ = 0;
  int used_ = 0;
};

// Literal codes only, with a clear code every 2^m - 2 of them.
Bytes LzwCodes(const std::vector<uint8_t>& indexes, int minCodeSize) {
  const uint32_t clear = 1u << minCodeSize;
  const int width = minCodeSize + 1;
  const size_t run = (size_t{1} << minCodeSize) - 2;
  BitWriter writer;
  for (size_t i = 0; i < indexes.size(); ++i) {
    if (i % run == 0) writer.Put(clear, width);
    writer.Put(indexes[i], width);
  }
  writer.Put(clear + 1, width);
  return writer.Finish();
}

void PutSubBlocks(Bytes& out, const Bytes& data) {
  for (size_t pos = 0; pos < data.size(); pos += 255) {
    const size_t length = std::min<size_t>(255, data.size() - pos);
    PutU8(out, static_cast<uint32_t>(length));
    out.insert(out.end(), data.begin() + static_cast<std::ptrdiff_t>(pos),
               data.begin() + static_cast<std::ptrdiff_t>(pos + length));
  }
  PutU8(out, 0);
}

// Rows in the order of the four interlace passes.
std::vector<uint8_t> Interlace(const GifFrame& f) {
  std::vector<uint8_t> out;
  const int starts[] = {0, 4, 2, 1};
  const int steps[] = {8, 8, 4, 2};
  for (int pass = 0; pass < 4; ++pass) {
    for (int y = starts[pass]; y < f.height; y += steps[pass]) {
      const auto from = f.indexes.begin() + static_cast<std::ptrdiff_t>(y) * f.width;
      out.insert(out.end(), from, from + f.width);
    }
  }
  return out;
}

void PutFrame(Bytes& out, const GifFrame& f, int globalBits) {
  if (f.transparentIndex >= 0) {
    out.insert(out.end(), {0x21, 0xF9, 0x04, 0x01, 0x00, 0x00});
    PutU8(out, static_cast<uint32_t>(f.transparentIndex));
    PutU8(out, 0);
  }
  PutU8(out, 0x2C);
  PutU16(out, static_cast<uint32_t>(f.left));
  PutU16(out, static_cast<uint32_t>(f.top));
  PutU16(out, static_cast<uint32_t>(f.width));
  PutU16(out, static_cast<uint32_t>(f.height));
  const int localBits = f.localPalette.empty() ? 0 : TableBits(f.localPalette.size());
  PutU8(out,
        (f.localPalette.empty() ? 0u : 0x80u | static_cast<uint32_t>(localBits - 1)) | (f.interlaced ? 0x40u : 0u));
  if (!f.localPalette.empty()) PutPalette(out, f.localPalette);
  const int minCodeSize = std::max(2, f.localPalette.empty() ? globalBits : localBits);
  PutU8(out, static_cast<uint32_t>(minCodeSize));
  PutSubBlocks(out, LzwCodes(f.interlaced ? Interlace(f) : f.indexes, minCodeSize));
}

}  // namespace

Bytes GifFile(const GifLayout& layout) {
  Bytes out{'G', 'I', 'F', '8', '9', 'a'};
  PutU16(out, static_cast<uint32_t>(layout.width));
  PutU16(out, static_cast<uint32_t>(layout.height));
  const int bits = TableBits(layout.palette.size());
  PutU8(out, layout.palette.empty() ? 0x70u : 0xF0u | static_cast<uint32_t>(bits - 1));
  PutU8(out, layout.background);
  PutU8(out, 0);
  if (!layout.palette.empty()) PutPalette(out, layout.palette);
  for (const GifFrame& frame : layout.frames) PutFrame(out, frame, bits);
  PutU8(out, 0x3B);
  return out;
}

}  // namespace vorlex::picture_test
