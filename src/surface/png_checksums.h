#pragma once
// The two checksums of a PNG file: CRC-32 over each chunk's type and data,
// Adler-32 over the uncompressed image data inside its zlib stream.

#include <cstddef>
#include <cstdint>

namespace vorlex {

// CRC-32 (polynomial 0xEDB88320, reflected, inverted before and after).
// `crc` carries a running value between calls; start from 0.
uint32_t Crc32(const uint8_t* data, size_t size, uint32_t crc = 0);

// Adler-32; `adler` carries a running value between calls; start from 1.
uint32_t Adler32(const uint8_t* data, size_t size, uint32_t adler = 1);

}  // namespace vorlex
