#include "samples.h"

#include "writers/bmp_writer.h"
#include "writers/gif_writer.h"
#include "writers/ico_writer.h"
#include "writers/jpeg_writer.h"
#include "writers/png_writer.h"

namespace vorlex::picture_test {

Bytes Bmp3x2() {
  BmpLayout layout;
  layout.width = 3;
  layout.height = 2;
  layout.bitCount = 24;
  layout.bits = PackRows(3, {{kWhite, kBlack, 0x808080}, {kRed, kGreen, kBlue}}, 24);
  return BmpFile(layout);
}

std::vector<uint32_t> Bmp3x2Pixels() { return {kRed, kGreen, kBlue, kWhite, kBlack, 0x808080}; }

bool Icon4x4Masked(int x, int y) { return (x == 1 && y == 1) || (x == 2 && y == 3); }

Bytes Icon4x4() {
  std::vector<uint32_t> pixels;
  std::vector<bool> mask;
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 4; ++x) {
      mask.push_back(Icon4x4Masked(x, y));
      pixels.push_back(Icon4x4Masked(x, y) ? kBlack : kGreen);
    }
  }
  return IcoFile({{4, 4, 32, IconDib(4, 4, pixels, mask)}});
}

std::vector<int> Gif4x3Indexes() { return {0, 1, 2, 3, 3, 2, 1, 0, 0, 0, 1, 1}; }
std::vector<uint32_t> Gif4x3Palette() { return {kRed, kGreen, kBlue, kWhite}; }

Bytes Gif4x3() {
  GifLayout layout;
  layout.width = 4;
  layout.height = 3;
  layout.palette = Gif4x3Palette();
  GifFrame frame;
  frame.width = 4;
  frame.height = 3;
  for (int index : Gif4x3Indexes()) frame.indexes.push_back(static_cast<uint8_t>(index));
  frame.transparentIndex = 3;
  layout.frames.push_back(frame);
  return GifFile(layout);
}

Bytes Jpeg16x8() { return FlatBlockJpeg(16, 8, {kRed, kBlue}); }

Bytes Png3x1() { return PngFile(3, 1, {0xFF000000 | kRed, kGreen, 0xC8000000 | kBlue}, true); }

}  // namespace vorlex::picture_test
