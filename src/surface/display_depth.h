#pragma once
// How many shades a colour channel shows usefully at a display's colour depth.

#include <cstdint>

#include "platform/gdi.h"

namespace vorlex {

struct DisplayDepth {
  int32_t depth = 0;   // bits per pixel times planes
  int16_t levels = 0;  // 64, 32 or 256
  int16_t step = 0;    // 256 divided by levels

  // 4 or 8 bits give 64 levels, 15 bits 32, 16, 24 or 32 bits 256; any other
  // depth (monochrome among them) is taken as 4 bits.
  static DisplayDepth FromDepth(int32_t depth);
  static DisplayDepth Read(gdi::HDC dc);
};

}  // namespace vorlex
