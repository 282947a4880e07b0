#include <algorithm>

#include "platform/soft/reference.h"

namespace vorlex::gdi::soft::reference {
namespace {

int64_t Magnitude(int64_t value) { return value < 0 ? -value : value; }
int Direction(int64_t value) { return value < 0 ? -1 : 1; }

// round(step * minor / major) without overflow: the lengths of two 32-bit
// coordinates' differences are below 2^32, so step * minor (step < major,
// minor <= major) fits 64 bits. tieUp decides a remainder of exactly one half.
uint64_t MinorOffset(uint64_t step, uint64_t minor, uint64_t major, bool tieUp) {
  const uint64_t product = step * minor;
  const uint64_t quotient = product / major;
  const uint64_t twiceRemainder = 2 * (product % major);
  const bool roundUp = tieUp ? twiceRemainder >= major : twiceRemainder > major;
  return quotient + (roundUp ? 1 : 0);
}

// Steps i in [0, count) whose coordinate start + direction * i lies in [0, limit).
struct StepRange {
  int64_t first;
  int64_t end;
};

StepRange VisibleSteps(int64_t start, int direction, int64_t count, int64_t limit) {
  if (direction > 0) return {std::max<int64_t>(0, -start), std::min(count, limit - start)};
  return {std::max<int64_t>(0, start - limit + 1), std::min(count, start + 1)};
}

// One axis of the line: where it starts and which way it goes.
struct Axis {
  int64_t start;
  int64_t length;
  int direction;
  int64_t limit;
};

}  // namespace

void DrawThinLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, uint32_t pixel) {
  if (surface.Empty()) return;
  const Axis xAxis{x0, Magnitude(x1 - x0), Direction(x1 - x0), surface.width};
  const Axis yAxis{y0, Magnitude(y1 - y0), Direction(y1 - y0), surface.height};
  const bool xMajor = xAxis.length >= yAxis.length;
  const Axis& major = xMajor ? xAxis : yAxis;
  const Axis& minor = xMajor ? yAxis : xAxis;
  if (major.length == 0) return;
  // A tie takes the smaller minor coordinate: rounding the offset up does that
  // only when the minor axis runs towards smaller coordinates.
  const bool tieUp = minor.direction < 0;
  const StepRange steps = VisibleSteps(major.start, major.direction, major.length, major.limit);
  const SolidPaint paint{pixel};
  for (int64_t i = steps.first; i < steps.end; ++i) {
    const auto offset = static_cast<int64_t>(MinorOffset(static_cast<uint64_t>(i), static_cast<uint64_t>(minor.length),
                                                         static_cast<uint64_t>(major.length), tieUp));
    const int64_t along = major.start + major.direction * i;
    const int64_t across = minor.start + minor.direction * offset;
    PaintPixel(surface, xMajor ? along : across, xMajor ? across : along, paint);
  }
}

}  // namespace vorlex::gdi::soft::reference
