#include <cstdint>

#include "platform/soft/line_axes.h"
#include "platform/soft/reference.h"

namespace vorlex::gdi::soft::reference {
namespace {

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

}  // namespace

void DrawThinLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, uint32_t pixel) {
  if (surface.Empty()) return;
  const auto [major, minor, xMajor] = AxesOf(surface, x0, y0, x1, y1);
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
