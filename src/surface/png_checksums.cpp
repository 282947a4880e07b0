#include "surface/png_checksums.h"

#include <array>

namespace vorlex {

namespace {

constexpr std::array<uint32_t, 256> MakeCrcTable() {
  std::array<uint32_t, 256> table{};
  for (uint32_t n = 0; n < 256; ++n) {
    uint32_t c = n;
    for (int k = 0; k < 8; ++k) c = (c & 1) != 0 ? 0xEDB88320u ^ (c >> 1) : c >> 1;
    table[n] = c;
  }
  return table;
}

constexpr std::array<uint32_t, 256> kCrcTable = MakeCrcTable();

constexpr uint32_t kAdlerModulus = 65521;
// The most bytes whose sums cannot overflow 32 bits before the modulus is
// taken (zlib's NMAX).
constexpr size_t kAdlerRun = 5552;

}  // namespace

uint32_t Crc32(const uint8_t* data, size_t size, uint32_t crc) {
  uint32_t c = crc ^ 0xFFFFFFFFu;
  for (size_t i = 0; i < size; ++i) c = kCrcTable[(c ^ data[i]) & 0xFFu] ^ (c >> 8);
  return c ^ 0xFFFFFFFFu;
}

uint32_t Adler32(const uint8_t* data, size_t size, uint32_t adler) {
  uint32_t a = adler & 0xFFFFu;
  uint32_t b = adler >> 16;
  while (size > 0) {
    const size_t run = size < kAdlerRun ? size : kAdlerRun;
    for (size_t i = 0; i < run; ++i) {
      a += data[i];
      b += a;
    }
    a %= kAdlerModulus;
    b %= kAdlerModulus;
    data += run;
    size -= run;
  }
  return (b << 16) | a;
}

}  // namespace vorlex
