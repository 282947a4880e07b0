#pragma once
// Small pictures the tests share, written in code, with the pixels each must
// give.

#include <cstdint>
#include <vector>

#include "writers/bytes.h"

namespace vorlex::picture_test {

// Colours whose three channels differ, so that a swapped channel shows.
inline constexpr uint32_t kRed = 0xE01020;
inline constexpr uint32_t kGreen = 0x20C040;
inline constexpr uint32_t kBlue = 0x3050D0;
inline constexpr uint32_t kWhite = 0xFFFFFF;
inline constexpr uint32_t kBlack = 0x000000;

// A 3 x 2 24-bit bottom-up BMP: top row kRed kGreen kBlue, bottom row kWhite
// kBlack 0x808080.
Bytes Bmp3x2();
std::vector<uint32_t> Bmp3x2Pixels();

// A 4 x 4 32-bit icon, green, whose pixels (1, 1) and (2, 3) are masked out
// (black under the AND mask).
Bytes Icon4x4();
bool Icon4x4Masked(int x, int y);

// A 4 x 3 GIF with a global palette {kRed, kGreen, kBlue, kWhite} whose index 3
// is transparent; rows {0 1 2 3} {3 2 1 0} {0 0 1 1}.
Bytes Gif4x3();
std::vector<int> Gif4x3Indexes();
std::vector<uint32_t> Gif4x3Palette();

// A 16 x 8 JPEG: the left 8 x 8 block kRed, the right one kBlue.
Bytes Jpeg16x8();

// A 3 x 1 PNG with alpha: kRed opaque, kGreen alpha 0, kBlue alpha 200.
Bytes Png3x1();

}  // namespace vorlex::picture_test
