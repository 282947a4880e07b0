#pragma once
// Where a thing of a given size sits in an area for the nine alignments: a
// margin from the named edge, or centred with integer halving.

#include <cstdint>

#include "platform/gdi.h"

namespace vorlex {

struct Area {
  int32_t l, t, r, b;
};

// An alignment outside 0..8 leaves the origin (0, 0).
gdi::POINT AlignIn(const Area& area, int32_t alignment, int32_t offset, int32_t width, int32_t height);

}  // namespace vorlex
