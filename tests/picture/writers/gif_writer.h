#pragma once
// GIF files as the tests write them: one or more frames of palette indexes,
// LZW-coded without compression (a clear code before the table would grow), so
// any decoder reads them.

#include <cstdint>
#include <vector>

#include "writers/bytes.h"

namespace vorlex::picture_test {

struct GifFrame {
  int left = 0;
  int top = 0;
  int width = 1;
  int height = 1;
  std::vector<uint8_t> indexes;        // top row first
  int transparentIndex = -1;           // a graphic control extension when >= 0
  bool interlaced = false;             // rows stored in the four interlace passes
  std::vector<uint32_t> localPalette;  // a local colour table when not empty
};

struct GifLayout {
  int width = 1;
  int height = 1;
  std::vector<uint32_t> palette;  // global colour table, 0x00RRGGBB; a power of two, 2 to 256 entries
  uint8_t background = 0;
  std::vector<GifFrame> frames;
};

Bytes GifFile(const GifLayout& layout);

}  // namespace vorlex::picture_test
