#pragma once
// Where ExtTextOut puts a run with the default alignment (TA_TOP | TA_LEFT):
// (x, y) is the top-left corner of the unrotated text cell. With an
// escapement of theta (tenths of a degree, counter-clockwise) the baseline
// starts at (x + ascent * sin, y + ascent * cos), truncated, and each glyph at
// that origin plus the advance so far along (cos, -sin), truncated.
// Underline and strike-out are parallelograms along the run.

#include <array>
#include <cstdint>
#include <vector>

#include "platform/gdi.h"

namespace vorlex::gdi::soft::text {

struct Direction {
  double cos = 1;
  double sin = 0;
};
Direction DirectionOf(int32_t tenths);

struct RunLayout {
  POINT origin{0, 0};  // the baseline's start
  POINT extent{0, 0};  // the run's whole advance, y down
  // The pen's step after each glyph when positions come from advances (a
  // rotated run, or advances given); empty when each glyph moves the pen by
  // its own advance.
  std::vector<POINT> steps;
};

// `advances` are the per-character widths (GetTextExtentPoint's) or the
// caller's; `stepped` whether glyph positions are derived from them.
RunLayout LayOutRun(POINT at, int32_t ascent, Direction d, const std::vector<int32_t>& advances, bool stepped);

// The corners of a line `thickness` thick whose top edge is `position`
// pixels above the baseline (half the thickness added, as GDI does), along
// the run.
std::array<POINT, 4> LineCorners(const RunLayout& run, Direction d, int32_t position, int32_t thickness);

}  // namespace vorlex::gdi::soft::text
