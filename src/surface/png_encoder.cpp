#include "surface/png_encoder.h"

#include <algorithm>
#include <string_view>

#include "surface/png_checksums.h"

namespace vorlex {

namespace {

using Bytes = std::vector<uint8_t>;

// A stored deflate block holds at most 65535 bytes.
constexpr size_t kStoredBlock = 65535;

void PutU32(Bytes& out, uint32_t v) {
  for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<uint8_t>(v >> shift));
}

// Length, type, data, and the CRC of type and data.
void PutChunk(Bytes& out, std::string_view type, const Bytes& data) {
  PutU32(out, static_cast<uint32_t>(data.size()));
  const size_t typeAt = out.size();
  out.insert(out.end(), type.begin(), type.end());
  out.insert(out.end(), data.begin(), data.end());
  PutU32(out, Crc32(out.data() + typeAt, out.size() - typeAt));
}

Bytes Header(const gdi::Pixels& pixels) {
  Bytes header;
  PutU32(header, static_cast<uint32_t>(pixels.width));
  PutU32(header, static_cast<uint32_t>(pixels.height));
  // Bit depth 8, colour type 2 (RGB), deflate, adaptive filtering, no interlace.
  header.insert(header.end(), {8, 2, 0, 0, 0});
  return header;
}

// Each row: filter type 0 (none), then red, green, blue per pixel.
Bytes Scanlines(const gdi::Pixels& pixels) {
  Bytes raw;
  raw.reserve(static_cast<size_t>(pixels.height) * (1 + static_cast<size_t>(pixels.width) * 3));
  for (int y = 0; y < pixels.height; ++y) {
    raw.push_back(0);
    for (int x = 0; x < pixels.width; ++x) {
      const uint32_t p = pixels.At(x, y);
      raw.insert(raw.end(), {static_cast<uint8_t>(p >> 16), static_cast<uint8_t>(p >> 8), static_cast<uint8_t>(p)});
    }
  }
  return raw;
}

// A zlib stream (deflate, 32 KiB window, no dictionary) of stored blocks,
// ending with the Adler-32 of the data.
Bytes StoredZlib(const Bytes& raw) {
  Bytes out{0x78, 0x01};
  size_t at = 0;
  do {
    const size_t length = std::min(raw.size() - at, kStoredBlock);
    const bool last = at + length == raw.size();
    out.push_back(last ? 1 : 0);  // BFINAL, BTYPE 00
    out.push_back(static_cast<uint8_t>(length));
    out.push_back(static_cast<uint8_t>(length >> 8));
    out.push_back(static_cast<uint8_t>(~length));
    out.push_back(static_cast<uint8_t>(~length >> 8));
    out.insert(out.end(), raw.begin() + static_cast<std::ptrdiff_t>(at),
               raw.begin() + static_cast<std::ptrdiff_t>(at + length));
    at += length;
  } while (at < raw.size());
  PutU32(out, Adler32(raw.data(), raw.size()));
  return out;
}

}  // namespace

std::vector<uint8_t> EncodePng(const gdi::Pixels& pixels) {
  Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  PutChunk(file, "IHDR", Header(pixels));
  PutChunk(file, "IDAT", StoredZlib(Scanlines(pixels)));
  PutChunk(file, "IEND", {});
  return file;
}

}  // namespace vorlex
