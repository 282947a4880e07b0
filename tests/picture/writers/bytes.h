#pragma once
// Byte buffers of picture files written by the tests, and little- and big-endian
// appenders.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorlex::picture_test {

using Bytes = std::vector<uint8_t>;

inline void PutU8(Bytes& out, uint32_t v) { out.push_back(static_cast<uint8_t>(v & 0xFF)); }
inline void PutU16(Bytes& out, uint32_t v) {
  PutU8(out, v);
  PutU8(out, v >> 8);
}
inline void PutU32(Bytes& out, uint32_t v) {
  PutU16(out, v);
  PutU16(out, v >> 16);
}
inline void PutI32(Bytes& out, int32_t v) { PutU32(out, static_cast<uint32_t>(v)); }
inline void PutU32BigEndian(Bytes& out, uint32_t v) {
  PutU8(out, v >> 24);
  PutU8(out, v >> 16);
  PutU8(out, v >> 8);
  PutU8(out, v);
}
inline void Append(Bytes& out, const Bytes& more) { out.insert(out.end(), more.begin(), more.end()); }

// 0x00RRGGBB from its channels.
constexpr uint32_t Rgb(uint32_t r, uint32_t g, uint32_t b) { return (r << 16) | (g << 8) | b; }

}  // namespace vorlex::picture_test
