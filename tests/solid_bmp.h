#pragma once
// A picture file for tests that need one: a bottom-up 32-bit BMP of one colour.

#include <cstdint>
#include <vector>

namespace vorlex::testing {

// A bottom-up 32-bit BMP of one colour (0x00RRGGBB).
inline std::vector<uint8_t> SolidBmp(int32_t width, int32_t height, uint32_t rgb) {
  std::vector<uint8_t> bytes;
  const auto put = [&bytes](uint32_t value, int size) {
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
  };
  const auto pixelBytes = static_cast<uint32_t>(width * height * 4);
  bytes.push_back('B');
  bytes.push_back('M');
  put(54 + pixelBytes, 4);
  put(0, 4);
  put(54, 4);
  put(40, 4);
  put(static_cast<uint32_t>(width), 4);
  put(static_cast<uint32_t>(height), 4);
  put(1, 2);
  put(32, 2);
  put(0, 4);
  put(pixelBytes, 4);
  put(2835, 4);
  put(2835, 4);
  put(0, 4);
  put(0, 4);
  for (int32_t i = 0; i < width * height; ++i) put(rgb, 4);  // B, G, R, 0 in the file
  return bytes;
}

}  // namespace vorlex::testing
