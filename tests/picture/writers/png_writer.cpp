#include "writers/png_writer.h"

#include <algorithm>
#include <string>

// The library's own checksums; png_checksums_test holds them to their
// published values.
#include "surface/png_checksums.h"

namespace vorlex::picture_test {

namespace {

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
  PutU32BigEndian(out, Adler32(raw.data(), raw.size()));
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
