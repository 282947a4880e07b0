#include "surface/display_depth.h"

#include "vorlex/Numeric.h"

namespace vorlex {

DisplayDepth DisplayDepth::FromDepth(int32_t depth) {
  DisplayDepth d;
  d.depth = depth;
  switch (depth) {
    case 4:
    case 8:
      d.levels = 64;
      break;
    case 15:
      d.levels = 32;
      break;
    case 16:
    case 24:
    case 32:
      d.levels = 256;
      break;
    default:
      d.depth = 4;
      d.levels = 64;
      break;
  }
  d.step = static_cast<int16_t>(256 / d.levels);
  return d;
}

DisplayDepth DisplayDepth::Read(gdi::HDC dc) {
  return FromDepth(CheckedMul(static_cast<int32_t>(gdi::GetDeviceCaps(dc, gdi::BITSPIXEL)),
                              static_cast<int32_t>(gdi::GetDeviceCaps(dc, gdi::PLANES))));
}

}  // namespace vorlex
