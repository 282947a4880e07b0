#include "platform/soft/thin_line.h"

#include <algorithm>

#include "platform/soft/line_axes.h"
#include "platform/soft/spans.h"

namespace vorlex::gdi::soft {
namespace {

// Steps [first, end) of the major axis, all at minor coordinate `across`
// (both on the surface): one span of a row, or a stretch of a column.
void PaintRun(const Surface& surface, const Axis& major, int64_t across, bool xMajor, StepRange steps, uint32_t pixel) {
  const int64_t a = major.start + major.direction * steps.first;
  const int64_t b = major.start + major.direction * (steps.end - 1);
  const int64_t low = std::min(a, b);
  const int64_t high = std::max(a, b);
  if (xMajor) {
    FillSolidSpan(surface, across, low, high + 1, pixel);
  } else {
    for (int64_t y = low; y <= high; ++y) surface.At(across, y) = pixel;
  }
}

// A line along one axis: the visible steps are one run of pixels.
void DrawStraight(const Surface& surface, const Axis& major, int64_t across, bool xMajor, uint32_t pixel) {
  if (across < 0 || across >= (xMajor ? surface.height : surface.width)) return;
  const StepRange steps = VisibleSteps(major.start, major.direction, major.length, major.limit);
  if (steps.first < steps.end) PaintRun(surface, major, across, xMajor, steps, pixel);
}

// A slanted line's minor offset at step i is round(i * minor / major), a tie
// rounded up only when tieUp: floor((i * minor + bias) / major) with bias =
// major - half. The lengths of two 32-bit coordinates' differences are below
// 2^32, so every product here fits 64 bits.
class MinorOffsets {
 public:
  MinorOffsets(uint64_t major, uint64_t minor, bool tieUp)
      : major_(major), minor_(minor), bias_(major - (tieUp ? (major + 1) / 2 : major / 2 + 1)) {}

  // The first step whose offset is at least `offset` (major when none is).
  uint64_t FirstReaching(uint64_t offset) const {
    if (offset == 0) return 0;
    if (offset > minor_) return major_;
    return (offset * major_ - bias_ + minor_ - 1) / minor_;
  }
  uint64_t Major() const { return major_; }
  uint64_t Minor() const { return minor_; }
  uint64_t Bias() const { return bias_; }

 private:
  uint64_t major_;
  uint64_t minor_;
  uint64_t bias_;
};

// The steps whose minor coordinate start + direction * offset lies in [0, limit):
// offsets form a range, and offsets only grow with the step.
StepRange StepsOnMinorAxis(const Axis& minor, const MinorOffsets& offsets) {
  const int64_t low = minor.direction > 0 ? -minor.start : minor.start - minor.limit + 1;
  const int64_t high = minor.direction > 0 ? minor.limit - minor.start : minor.start + 1;
  if (high <= 0) return {0, 0};
  const auto first = offsets.FirstReaching(static_cast<uint64_t>(std::max<int64_t>(low, 0)));
  const auto end = offsets.FirstReaching(static_cast<uint64_t>(high));
  return {static_cast<int64_t>(first), static_cast<int64_t>(end)};
}

// Bresenham over steps [first, end): the pixel index moves along the major
// axis every step and across it whenever the running remainder of
// i * minor + bias passes major.
void DrawSteps(const Surface& surface, const Axis& major, const Axis& minor, bool xMajor, const MinorOffsets& offsets,
               StepRange steps, uint32_t pixel) {
  const uint64_t total = static_cast<uint64_t>(steps.first) * offsets.Minor() + offsets.Bias();
  uint64_t remainder = total % offsets.Major();
  const auto offset = static_cast<int64_t>(total / offsets.Major());
  const int64_t majorStride = xMajor ? 1 : surface.width;
  const int64_t minorStride = xMajor ? surface.width : 1;
  const int64_t majorStep = major.direction * majorStride;
  const int64_t minorStep = minor.direction * minorStride;
  int64_t index = (major.start + major.direction * steps.first) * majorStride +
                  (minor.start + minor.direction * offset) * minorStride;
  for (int64_t i = steps.first; i < steps.end; ++i) {
    surface.pixels[index] = pixel;
    index += majorStep;
    remainder += offsets.Minor();
    if (remainder >= offsets.Major()) {
      remainder -= offsets.Major();
      index += minorStep;
    }
  }
}

// The same a run at a time for lines close to one axis: offset k covers steps
// [FirstReaching(k), FirstReaching(k + 1)).
void DrawRuns(const Surface& surface, const Axis& major, const Axis& minor, bool xMajor, const MinorOffsets& offsets,
              StepRange steps, uint32_t pixel) {
  uint64_t offset = (static_cast<uint64_t>(steps.first) * offsets.Minor() + offsets.Bias()) / offsets.Major();
  for (int64_t i = steps.first; i < steps.end; ++offset) {
    const int64_t runEnd = std::min(steps.end, static_cast<int64_t>(offsets.FirstReaching(offset + 1)));
    const int64_t across = minor.start + minor.direction * static_cast<int64_t>(offset);
    PaintRun(surface, major, across, xMajor, {i, runEnd}, pixel);
    i = runEnd;
  }
}

// Runs pay a division each, so they are taken when they are long.
constexpr int64_t kRunsFromLength = 8;

void DrawSlanted(const Surface& surface, const Axis& major, const Axis& minor, bool xMajor, uint32_t pixel) {
  const MinorOffsets offsets(static_cast<uint64_t>(major.length), static_cast<uint64_t>(minor.length),
                             minor.direction < 0);
  const StepRange alongSteps = VisibleSteps(major.start, major.direction, major.length, major.limit);
  const StepRange acrossSteps = StepsOnMinorAxis(minor, offsets);
  const StepRange steps{std::max(alongSteps.first, acrossSteps.first), std::min(alongSteps.end, acrossSteps.end)};
  if (steps.first >= steps.end) return;
  if (major.length >= kRunsFromLength * minor.length) {
    DrawRuns(surface, major, minor, xMajor, offsets, steps, pixel);
  } else {
    DrawSteps(surface, major, minor, xMajor, offsets, steps, pixel);
  }
}

}  // namespace

void DrawThinLine(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1, uint32_t pixel) {
  if (surface.Empty()) return;
  const auto [major, minor, xMajor] = AxesOf(surface, x0, y0, x1, y1);
  if (major.length == 0) return;
  if (minor.length == 0) {
    DrawStraight(surface, major, minor.start, xMajor, pixel);
  } else {
    DrawSlanted(surface, major, minor, xMajor, pixel);
  }
}

}  // namespace vorlex::gdi::soft
