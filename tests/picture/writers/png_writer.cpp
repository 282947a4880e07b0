#include "writers/png_writer.h"

#include <algorithm>
#include <array>
#include <string>

namespace vorlex::picture_test {

namespace {

std::array<uint32_t, 256> CrcTable() {
  std::array<uint32_t, 256> table{};
  for (uint32_t n = 0; n < 256; ++n) {
    uint32_t c = n;
    for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
    table[n] = c;
  }
  return table;
}

uint32_t Adler32(const Bytes& data) {
  uint32_t a = 1;
  uint32_t b = 0;
  for (uint8_t byte : data) {
    a = (a + byte) % 65521;
    b = (b + a) % 65521;
  }
  return (b << 16) | a;
}

void PutChunk(Bytes& out, const std::string& type, const Bytes& body) {
  PutU32BigEndian(out, static_cast<uint32_t>(body.size()));
  Bytes typed(type.begin(), type.end());
  Append(typed, body);
  Append(out, typed);
  PutU32BigEndian(out, Crc32(typed.data(), typed.size()));
}

// A zlib stream of stored deflate blocks.
Bytes StoredZlib(const Bytes& raw) {
  Bytes out{0x78, 0x01};
  size_t pos = 0;
  do {
    const size_t length = std::min<size_t>(raw.size() - pos, 65535);
    const bool last = pos + length == raw.size();
    PutU8(out, last ? 1 : 0);
    PutU16(out, static_cast<uint32_t>(length));
    PutU16(out, static_cast<uint32_t>(~length & 0xFFFF));
    out.insert(out.end(), raw.begin() + static_cast<std::ptrdiff_t>(pos),
               raw.begin() + static_cast<std::ptrdiff_t>(pos + length));
    pos += length;
  } while (pos < raw.size());
  PutU32BigEndian(out, Adler32(raw));
  return out;
}

Bytes Scanlines(int width, int height, const std::vector<uint32_t>& argb, bool withAlpha) {
  Bytes raw;
  for (int y = 0; y < height; ++y) {
    raw.push_back(0);  // filter: none
    for (int x = 0; x < width; ++x) {
      const uint32_t p = argb[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
      raw.push_back(static_cast<uint8_t>(p >> 16));
      raw.push_back(static_cast<uint8_t>(p >> 8));
      raw.push_back(static_cast<uint8_t>(p));
      if (withAlpha) raw.push_back(static_cast<uint8_t>(p >> 24));
    }
  }
  return raw;
}

}  // namespace

uint32_t Crc32(const uint8_t* data, size_t size) {
  static const std::array<uint32_t, 256> table = CrcTable();
  uint32_t c = 0xFFFFFFFFu;
  for (size_t i = 0; i < size; ++i) c = table[(c ^ data[i]) & 0xFF] ^ (c >> 8);
  return c ^ 0xFFFFFFFFu;
}

Bytes PngFile(int width, int height, const std::vector<uint32_t>& argb, bool withAlpha) {
  Bytes out{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  Bytes header;
  PutU32BigEndian(header, static_cast<uint32_t>(width));
  PutU32BigEndian(header, static_cast<uint32_t>(height));
  header.insert(header.end(), {8, static_cast<uint8_t>(withAlpha ? 6 : 2), 0, 0, 0});
  PutChunk(out, "IHDR", header);
  PutChunk(out, "IDAT", StoredZlib(Scanlines(width, height, argb, withAlpha)));
  PutChunk(out, "IEND", {});
  return out;
}

}  // namespace vorlex::picture_test
