#pragma once
// A property bag as bytes, for containers that keep controls in streams and
// storages rather than in named-value bags. Little-endian throughout:
//
//   "VXBAG"            5 bytes, the magic
//   version            u16, 1
//   payload length     u32, the bytes that follow
//   entry count        u32
//   per entry          name (u16 byte length + UTF-8), kind (u8), value:
//     0 Empty          nothing
//     2 Integer        i16
//     3 Long           i32
//     4 Single         f32
//     5 Double         f64
//     6 Boolean        i16 (as stored: -1 true, 0 false)
//     7 String         u32 byte length + UTF-8
//     8 Font           name (u16 length + UTF-8), size (f64 points), weight (i16),
//                      charset (i16), flags (u8: 1 italic, 2 underline, 4 strikethrough)
//     9 Picture        u32 byte length + the picture's file (0: the empty picture)
//    10 Nothing        nothing
//
// A reader of a later version refuses the stream; nothing is applied from a
// stream that does not read whole.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "vorlex/PropertyBag.h"

namespace vorlex {

inline constexpr uint16_t kBagStreamVersion = 1;
// The fixed part before the payload: magic, version, payload length.
inline constexpr size_t kBagStreamHeaderSize = 11;

std::vector<uint8_t> WriteBagStream(const MemoryPropertyBag& bag);
// The payload length a header gives; raises 321 when the bytes are no header
// of this format or of a version this reader knows.
uint32_t BagStreamPayloadLength(const uint8_t* header, size_t size);
// Reads a whole stream (header and payload); raises 321 ("Invalid file
// format") for anything it cannot read whole, 481 for a picture that is none.
MemoryPropertyBag ReadBagStream(const uint8_t* data, size_t size);

}  // namespace vorlex
